#include <ZelCommonView/plot/TimedSeriesDrawer.h>

#include <ZelCommonView/common/LifeWatch.h>

#include <algorithm>
#include <utility>

namespace ZelView {

TimedSeriesDrawer::TimedSeriesDrawer() {
    drawerConverterChanged.connect(sigc::mem_fun(*this, &TimedSeriesDrawer::_onConverterChanged));
    counter.timeChanged.connect(sigc::mem_fun(*this, &TimedSeriesDrawer::_onTimeChanged));
}

TimedSeriesDrawer::~TimedSeriesDrawer() = default;

void TimedSeriesDrawer::addSeries(std::unique_ptr<Zel::TimedSeries> series) {
    if (!series)
        throw "addSeries";
    std::uint64_t duration = 0;
    for (const Zel::TimedPointF& point : series->points)
        duration = std::max(duration, point.time);
    if (duration > maxDuration) {
        const Zel::LifeWatch life(*this);
        _updateMaxDuration(duration);
        if (!life)
            return;
    }

    SingleTimedSeriesDrawer& drawer = drawers.emplace_back(std::move(series));
    if (converter)
        drawer.setConverter(*converter);
    drawer.setDrawArea(getDrawArea());
}

void TimedSeriesDrawer::deleteSeries() {
    drawers.clear();
    _updateMaxDuration(0);
}

void TimedSeriesDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    for (SingleTimedSeriesDrawer& drawer : drawers)
        drawer.draw(context);
}

void TimedSeriesDrawer::_updateMaxDuration(unsigned long duration) {
    maxDuration = duration;
    counter.setMax(duration);
}

void TimedSeriesDrawer::_onConverterChanged() {
    if (!converter)
        return;
    for (SingleTimedSeriesDrawer& drawer : drawers)
        drawer.setConverter(*converter);
}

void TimedSeriesDrawer::_onTimeChanged(unsigned long time) {
    for (SingleTimedSeriesDrawer& drawer : drawers)
        drawer.setTime(time);
}

} // namespace ZelView
