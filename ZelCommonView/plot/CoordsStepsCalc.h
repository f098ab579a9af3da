#pragma once

#include <ZelCommonView/common/Export.h>

namespace ZelView {

class CoordsConverter;
struct CoordsDrawerCfg;

/// Chooses the grid step of an axis from the pixels available. A temporary: it refers to what it was made
/// from.
///
/// Grid line `i` lies at the world value `i * step`. `first` and `last` reach one step past the view on both
/// sides. Where the span gives no step, or none that is finite, both are 0.
class ZEL_API CoordsStepsCalc {
public:
    /// Both must outlive it.
    CoordsStepsCalc(const CoordsConverter& converter, const CoordsDrawerCfg& cfg);

    /// First and last line of x and the distance of lines in world units.
    void getStepsInfoX(int& first, int& last, float& step) const;
    /// The same for y.
    void getStepsInfoY(int& first, int& last, float& step) const;

private:
    void _getStepsInfo(float visual, float minStepPixels, float real, float min, float max, int& first,
                       int& last, float& step) const;
    /// A round step, 2, 5 or 10 times a power of ten, such that about `count` of them make the span; 0 for no
    /// count.
    float _getStepValue(double span, unsigned int count) const;

    const CoordsConverter& converter;
    const CoordsDrawerCfg& cfg;
};

} // namespace ZelView
