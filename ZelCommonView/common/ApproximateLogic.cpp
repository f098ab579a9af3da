#include <ZelCommonView/common/ApproximateLogic.h>

#include <cmath>

namespace Zel::ApproximateLogic {

namespace {

// std::clamp is undefined for limits in the wrong order.
double clamp(double value, const NumericRange& range) {
    if (value > range.getMax())
        value = range.getMax();
    if (value < range.getMin())
        value = range.getMin();
    return value;
}

// The multiple behind a limit gives way to the next one inside, unless only rounding put it there.
double inside(double origin, double index, const NumericRange& range, const ApproximateTolerance& tolerance) {
    const double nearest = origin + index * range.getStep();
    const double limited = clamp(nearest, range);
    if (limited == nearest || equals(limited, nearest, tolerance))
        return limited;
    return clamp(origin + (nearest > limited ? index - 1.0 : index + 1.0) * range.getStep(), range);
}

} // namespace

bool equals(double left, double right, const ApproximateTolerance& tolerance) {
    if (!std::isfinite(left) || !std::isfinite(right))
        return left == right;
    // fmax passes over a NaN, so a scale that is none leaves the size of the numbers to decide.
    const double size = std::fmax(std::fmax(std::fabs(left), std::fabs(right)), tolerance.scale);
    return left == right || std::fabs(left - right) <= tolerance.relative * size;
}

double limitValue(double value, NumericRange range, const ApproximateTolerance& tolerance, bool fromMin,
                  bool snap) {
    const double limited = clamp(value, range);
    const double step = range.getStep();
    if (!snap || !(step > 0.0) || !std::isfinite(limited))
        return limited;

    const double origin = fromMin && std::isfinite(range.getMin()) ? range.getMin() : 0.0;
    // Rounding stays in double: such a quotient easily exceeds every integer type.
    const double index = std::round((limited - origin) / step);
    const double snapped = origin + index * step;
    // No finite multiple is near: the step is infinite, or the numbers are too far apart to be counted.
    if (!std::isfinite(snapped) || equals(limited, snapped, tolerance))
        return limited;
    return inside(origin, index, range, tolerance);
}

} // namespace Zel::ApproximateLogic
