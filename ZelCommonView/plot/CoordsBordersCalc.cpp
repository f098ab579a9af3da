#include <ZelCommonView/plot/CoordsBordersCalc.h>

#include <ZelCommonView/plot/Series.h>

#include <algorithm>
#include <cmath>

namespace ZelView {

namespace {

/// The marks of "no data": a minimum of +noData and a maximum of -noData.
constexpr float noData = 2147483648.0f;

bool isBetweenMarks(float value) {
    return value > -noData && value < noData;
}

void fixPair(float& min, float& max) {
    if (max == -noData || min == noData) {
        min = -1;
        max = 1;
    }
}

} // namespace

CoordsConverter::Border CoordsBordersCalc::getZero() {
    return {0, 10, -1, 10};
}

CoordsConverter::Border CoordsBordersCalc::_getStart() {
    return getZero();
}

CoordsConverter::Border CoordsBordersCalc::_fixUnsetted(CoordsConverter::Border border) {
    fixPair(border.xMin, border.xMax);
    fixPair(border.yMin, border.yMax);
    return border;
}

CoordsConverter::Border CoordsBordersCalc::getX(const Zel::IBorderable& borderable) {
    CoordsConverter::Border border = _getStart();
    borderable.getRangeX(border.xMin, border.xMax);
    return _fixUnsetted(border);
}

CoordsConverter::Border CoordsBordersCalc::getY(const Zel::IBorderable& borderable) {
    CoordsConverter::Border border = _getStart();
    borderable.getRangeY(border.yMin, border.yMax);
    return _fixUnsetted(border);
}

CoordsConverter::Border CoordsBordersCalc::getXY(const Zel::IBorderable& borderable) {
    CoordsConverter::Border border = _getStart();
    borderable.getRangeXY(border.xMin, border.xMax, border.yMin, border.yMax);

    recalcValueDown10persent(border.xMin);
    recalcValueUp10persent(border.xMax);
    recalcValueDown10persent(border.yMin);
    recalcValueUp10persent(border.yMax);

    // The steps that follow differ between the axes and between the edges; that is meant. A flat x grows to
    // the right and a flat y downward, and only the lower edge of y is pulled so that the zero line stays in
    // view.
    if (std::fabs(border.xMin - border.xMax) < 0.001)
        border.xMax = border.xMin + 1;
    if (std::fabs(border.yMin - border.yMax) < 0.001)
        border.yMin = border.yMax - 1;
    if (0.1 * border.yMax > std::fabs(border.yMin))
        border.yMin = static_cast<float>(border.yMax * -0.1);
    if (border.yMin > -1)
        border.yMin = -1;
    return _fixUnsetted(border);
}

CoordsConverter::Border CoordsBordersCalc::getSummary(std::vector<CoordsConverter::Border> borders) {
    // The start takes part on purpose: a view that must show less than it is put to manual limits.
    CoordsConverter::Border summary = _getStart();
    for (const CoordsConverter::Border& border : borders) {
        summary.xMin = std::min(summary.xMin, border.xMin);
        summary.xMax = std::max(summary.xMax, border.xMax);
        summary.yMin = std::min(summary.yMin, border.yMin);
        summary.yMax = std::max(summary.yMax, border.yMax);
    }
    return _fixUnsetted(summary);
}

void recalcValueUp10persent(float& value) {
    if (isBetweenMarks(value))
        value = static_cast<float>(value * 1.1);
}

void recalcValueDown10persent(float& value) {
    if (isBetweenMarks(value))
        value = static_cast<float>(value > 0 ? value * 0.9 : value * 1.1);
}

} // namespace ZelView
