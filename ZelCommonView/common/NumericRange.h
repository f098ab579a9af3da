#pragma once

#include <ZelCommonView/common/Export.h>

namespace Zel {

/// Limits and step of a number. Whatever is given is stored: nothing orders the limits or refuses a step.
class ZEL_API NumericRange {
public:
    NumericRange(double givenMin, double givenMax, double givenStep);

    double getMin() const;
    double getMax() const;
    /// The distance of neighbouring values; 0 where any value may stand.
    double getStep() const;

    /// Whether the limits span the whole of the type, so that they bound no number. The step plays no part.
    bool isFull() const;

    /// Equal if all three numbers are. A range with a NaN in it therefore differs even from itself.
    bool operator==(const NumericRange& other) const;
    bool operator!=(const NumericRange& other) const;

private:
    double min;
    double max;
    double step;
};

} // namespace Zel
