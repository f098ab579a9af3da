#pragma once

#include <ZelCommonView/common/Export.h>

namespace Zel {

/// Limits and step of a number. Whatever is given is stored: nothing orders the limits or refuses a step.
class ZEL_API NumericRange {
public:
    /// Takes the limits and the step as they are.
    NumericRange(double givenMin, double givenMax, double givenStep);

    /// The lower limit as it was given.
    double getMin() const;
    /// The upper limit as it was given.
    double getMax() const;
    /// The distance of neighbouring values; 0 where any value may stand.
    double getStep() const;

    /// Whether the limits span the whole of the type, so that they bound no number. The step plays no part.
    bool isFull() const;

    /// Equal if all three numbers are. A range with a NaN in it therefore differs even from itself.
    bool operator==(const NumericRange& other) const;
    /// The opposite of `==`.
    bool operator!=(const NumericRange& other) const;

private:
    double min;
    double max;
    double step;
};

} // namespace Zel
