#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Series.h>

#include <cstdint>
#include <vector>

namespace ZelView {

/// Knows how far a trajectory has been reached at a time, and finds it anew by walking on from where it
/// stands: a step of a replay costs as much as the points that it passes, however many there are.
///
/// The points stay the caller's, in ascending order of time, and don't change while it lives.
class ZEL_API TimedSeriesIteratorCalc {
public:
    /// A place in the points.
    using Iterator = std::vector<Zel::TimedPointF>::const_iterator;

    /// Begins at time 0 with no point reached, not even one of time 0.
    explicit TimedSeriesIteratorCalc(const std::vector<Zel::TimedPointF>& points);

    /// The first point that has not been reached; all before it have.
    Iterator getIt() const { return it; }

    /// Goes to a time in milliseconds; a point of exactly that time is reached. False if that was the time
    /// already. A return to 0 reaches the points of time 0, which the beginning doesn't.
    bool setTime(unsigned long newTime);

private:
    void _recalcItForward(unsigned long newTime);
    void _recalcItBackward(unsigned long newTime);
    void _recalcItZero(unsigned long newTime);

    const std::vector<Zel::TimedPointF>& points;
    Iterator it;
    std::uint64_t time = 0;
};

} // namespace ZelView
