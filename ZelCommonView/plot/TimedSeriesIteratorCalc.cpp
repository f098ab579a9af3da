#include <ZelCommonView/plot/TimedSeriesIteratorCalc.h>

#include <iterator>

namespace ZelView {

TimedSeriesIteratorCalc::TimedSeriesIteratorCalc(const std::vector<Zel::TimedPointF>& timedPoints)
    : points(timedPoints), it(points.begin()) {}

bool TimedSeriesIteratorCalc::setTime(unsigned long newTime) {
    // It is meant that 0 on a fresh object changes nothing, while a return to 0 passes the points of time 0.
    if (newTime == time)
        return false;
    if (newTime == 0)
        _recalcItZero(newTime);
    else if (newTime > time)
        _recalcItForward(newTime);
    else
        _recalcItBackward(newTime);
    time = newTime;
    return true;
}

void TimedSeriesIteratorCalc::_recalcItForward(unsigned long newTime) {
    while (it != points.end() && it->time <= newTime)
        ++it;
}

void TimedSeriesIteratorCalc::_recalcItBackward(unsigned long newTime) {
    while (it != points.begin() && std::prev(it)->time > newTime)
        --it;
}

void TimedSeriesIteratorCalc::_recalcItZero(unsigned long newTime) {
    it = points.begin();
    _recalcItForward(newTime);
}

} // namespace ZelView
