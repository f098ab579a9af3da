#pragma once

#include <ZelCommonView/common/ApproximateTolerance.h>
#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/NumericRange.h>

/// Comparing and limiting numbers that carry rounding errors.
namespace Zel::ApproximateLogic {

/// Whether two numbers are equal within the tolerance.
/// An infinity equals only itself and a NaN nothing, whatever the tolerance.
ZEL_API bool equals(double left, double right, const ApproximateTolerance& tolerance);

/// The value brought into the range and, if `snap` is set, to the nearest multiple of the range's step that
/// lies in it. The multiples are counted from zero, or from the range's min if `fromMin` is set and min is
/// finite; a value half way between two goes to the one away from there. A value that stands on the grid
/// within the tolerance comes back unchanged to the last bit. Where no multiple lies in the range next to the
/// value, the limit itself is the result: it never leaves the range. A step that is zero, negative, infinite
/// or NaN makes no grid, a limit that is NaN does not limit, a NaN value comes back as NaN, and of limits in
/// the wrong order min decides.
ZEL_API double limitValue(double value, NumericRange range, const ApproximateTolerance& tolerance,
                          bool fromMin, bool snap);

} // namespace Zel::ApproximateLogic
