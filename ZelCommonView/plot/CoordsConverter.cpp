#include <ZelCommonView/plot/CoordsConverter.h>

#include <ZelCommonView/plot/CoordsBordersCalc.h>

#include <algorithm>

namespace ZelView {

CoordsConverter::CoordsConverter() {
    setBorder(CoordsBordersCalc::getZero());
}

CoordsConverter::~CoordsConverter() = default;

float CoordsConverter::getCenterRealX() const {
    return 0.5f * realWidth + xMin;
}

float CoordsConverter::getCenterRealY() const {
    return 0.5f * realHeight + yMin;
}

void CoordsConverter::_onRecalc() {}

void CoordsConverter::recalc() {
    realWidth = xMax - xMin;
    realHeight = yMax - yMin;
    visualWidth = widgetWidth - offset.left - offset.right;
    visualHeight = widgetHeight - offset.top - offset.bottom;
    scaleX = realWidth == 0 ? 0 : visualWidth / realWidth;
    scaleY = realHeight == 0 ? 0 : visualHeight / realHeight;
    _onRecalc();
}

void CoordsConverter::setBorder(const Border& border) {
    xMin = border.xMin;
    xMax = border.xMax;
    yMin = border.yMin;
    yMax = border.yMax;
}

float StretchableCoordsConverter::getVisualX(float x) const {
    return (x - xMin) / realWidth * visualWidth + offset.left;
}

float StretchableCoordsConverter::getVisualY(float y) const {
    return (1 - (y - yMin) / realHeight) * visualHeight + offset.top;
}

float StretchableCoordsConverter::getZeroVisualY(unsigned long row) const {
    return static_cast<float>(row) * rowHeight + offset.top;
}

float StretchableCoordsConverter::getOneVisualY(unsigned long row, bool up) const {
    return static_cast<float>(row) * rowHeight + offset.top + (up ? onePulseHeight : -onePulseHeight);
}

float StretchableCoordsConverter::getRealX(float visualX) const {
    return (visualX - offset.left) / visualWidth * realWidth + xMin;
}

float StretchableCoordsConverter::getRealY(float visualY) const {
    return (1 - (visualY - offset.top) / visualHeight) * realHeight + yMin;
}

float StretchableCoordsConverter::getCenterVisualX() const {
    return 0.5f * visualWidth + offset.left;
}

float StretchableCoordsConverter::getCenterVisualY() const {
    return 0.5f * visualHeight + offset.top;
}

float ProportionalCoordsConverter::getVisualX(float x) const {
    return (x - xMin) * scale + (offset.left + paddingX);
}

float ProportionalCoordsConverter::getVisualY(float y) const {
    return (yMin + (realHeight - y)) * scale + (offset.top + paddingY);
}

float ProportionalCoordsConverter::getZeroVisualY(unsigned long) const {
    return 0;
}

float ProportionalCoordsConverter::getOneVisualY(unsigned long, bool) const {
    return 0;
}

float ProportionalCoordsConverter::getRealX(float visualX) const {
    return (visualX - offset.left - paddingX) / visualWidth * realWidth + xMin;
}

float ProportionalCoordsConverter::getRealY(float visualY) const {
    return (1 - (visualY - offset.top - paddingY) / visualHeight) * realHeight + yMin;
}

float ProportionalCoordsConverter::getCenterVisualX() const {
    return offset.left + paddingX + 0.5f * visualWidth;
}

float ProportionalCoordsConverter::getCenterVisualY() const {
    // The scale in this sum is meant, though the x formula has none.
    return offset.top + paddingY + scale + 0.5f * visualHeight;
}

void ProportionalCoordsConverter::_onRecalc() {
    const float s = std::min(scaleX, scaleY);
    scaleX = s;
    scaleY = s;
    scale = s;
    visualWidth = realWidth * s;
    visualHeight = realHeight * s;
    paddingX = (widgetWidth - offset.left - offset.right - visualWidth) * 0.5f;
    paddingY = (widgetHeight - offset.top - offset.bottom - visualHeight) * 0.5f;
}

} // namespace ZelView
