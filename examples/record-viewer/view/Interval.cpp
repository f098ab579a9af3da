#include "Interval.h"

#include <algorithm>

namespace viewer {

Interval centred(const Interval& seen, double time, double duration) {
    const double span = std::min(seen.to - seen.from, duration);
    const double from = std::clamp(time - span / 2, 0.0, duration - span);
    return {from, from + span};
}

} // namespace viewer
