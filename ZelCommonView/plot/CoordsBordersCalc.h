#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <vector>

namespace Zel {
class IBorderable;
}

namespace ZelView {

/// Turns what a borderable reports into the limits of a view, and merges many limits into one. It holds no
/// state.
class ZEL_API CoordsBordersCalc {
public:
    /// The view of an empty plot: x 0 to 10, y -1 to 10.
    static CoordsConverter::Border getZero();
    /// Limits when only x is automatic; y keeps the view of an empty plot. No margin is added.
    static CoordsConverter::Border getX(const Zel::IBorderable& borderable);
    /// Limits when only y is automatic; x keeps the view of an empty plot. No margin is added.
    static CoordsConverter::Border getY(const Zel::IBorderable& borderable);
    /// Limits when both axes are automatic: widened by a tenth, never flat, with the zero line of y in view.
    static CoordsConverter::Border getXY(const Zel::IBorderable& borderable);
    /// What covers all of them and the view of an empty plot.
    static CoordsConverter::Border getSummary(std::vector<CoordsConverter::Border> borders);

private:
    static CoordsConverter::Border _getStart();
    /// Puts -1 to 1 in the place of a pair that stands for "no data".
    static CoordsConverter::Border _fixUnsetted(CoordsConverter::Border border);
};

/// Multiplies an upper limit by 1.1, whatever its sign; the marks of "no data" pass unchanged.
ZEL_API void recalcValueUp10persent(float& value);
/// Multiplies a lower limit by 0.9 if it is positive, else by 1.1; the marks of "no data" pass unchanged.
ZEL_API void recalcValueDown10persent(float& value);

} // namespace ZelView
