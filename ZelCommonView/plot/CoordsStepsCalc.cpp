#include <ZelCommonView/plot/CoordsStepsCalc.h>

#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/CoordsDrawer.h>

#include <cmath>
#include <limits>

namespace ZelView {

namespace {

/// More lines than any screen has pixels; a wanted distance near 0 must not ask for billions.
constexpr float maxCount = 65536;

/// How many steps of the wanted size fit. No room, less than none, or no number: none.
unsigned int getCount(float visual, float minStepPixels) {
    const float count = std::ceil(visual / minStepPixels);
    if (!(count > 0))
        return 0;
    return static_cast<unsigned int>(count < maxCount ? count : maxCount);
}

/// Truncates toward zero; what an `int` can't hold becomes the nearest that it can, and no number the lowest.
int toInt(float value) {
    using Limits = std::numeric_limits<int>;
    if (value >= static_cast<float>(Limits::max()))
        return Limits::max();
    if (!(value > static_cast<float>(Limits::min())))
        return Limits::min();
    return static_cast<int>(value);
}

} // namespace

CoordsStepsCalc::CoordsStepsCalc(const CoordsConverter& coordsConverter, const CoordsDrawerCfg& drawerCfg)
    : converter(coordsConverter), cfg(drawerCfg) {}

void CoordsStepsCalc::getStepsInfoX(int& first, int& last, float& step) const {
    _getStepsInfo(converter.visualWidth, cfg.minStepPixelsX, converter.realWidth, converter.xMin,
                  converter.xMax, first, last, step);
}

void CoordsStepsCalc::getStepsInfoY(int& first, int& last, float& step) const {
    _getStepsInfo(converter.visualHeight, cfg.minStepPixelsY, converter.realHeight, converter.yMin,
                  converter.yMax, first, last, step);
}

void CoordsStepsCalc::_getStepsInfo(float visual, float minStepPixels, float real, float min, float max,
                                    int& first, int& last, float& step) const {
    step = _getStepValue(real, getCount(visual, minStepPixels));
    // A step that is not finite has no lines of its own to count; running to them would take hours.
    if (step == 0 || !std::isfinite(step)) {
        first = 0;
        last = 0;
        return;
    }
    first = toInt(min / step - 1);
    last = toInt(max / step + 1);
}

float CoordsStepsCalc::_getStepValue(double span, unsigned int count) const {
    if (count == 0)
        return 0;
    const double raw = span / count;
    const double exponent = std::floor(std::log10(raw));
    const double base = std::pow(10, exponent);
    const double m = raw / base;
    // A mantissa of 1 to 2 gives 2: a step of 1 times a power of ten comes from the decade below only.
    if (m > 5)
        return static_cast<float>(10 * base);
    if (m >= 2)
        return static_cast<float>(5 * base);
    return static_cast<float>(2 * base);
}

} // namespace ZelView
