#include <ZelCommonView/common/NumericRange.h>

#include <limits>

namespace Zel {

NumericRange::NumericRange(double givenMin, double givenMax, double givenStep)
    : min(givenMin), max(givenMax), step(givenStep) {}

double NumericRange::getMin() const {
    return min;
}

double NumericRange::getMax() const {
    return max;
}

double NumericRange::getStep() const {
    return step;
}

bool NumericRange::isFull() const {
    using Limits = std::numeric_limits<double>;
    return min <= Limits::lowest() && max >= Limits::max();
}

bool NumericRange::operator==(const NumericRange& other) const {
    return min == other.min && max == other.max && step == other.step;
}

bool NumericRange::operator!=(const NumericRange& other) const {
    return !(*this == other);
}

} // namespace Zel
