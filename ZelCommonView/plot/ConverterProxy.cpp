#include <ZelCommonView/plot/ConverterProxy.h>

#include <ZelCommonView/plot/CoordsBordersCalc.h>
#include <ZelCommonView/plot/Series.h>

#include <vector>

namespace ZelView {

ConverterProxy::ConverterProxy() : converter(_createConverter(CoordsConvertMode::Stretchable)) {
    converter->recalc();
}

ConverterProxy::~ConverterProxy() = default;

CoordsConverter* ConverterProxy::getConverter() const {
    return converter.get();
}

void ConverterProxy::setWidgetSize(float width, float height) {
    CoordsConverter& current = _getConverterFor("setWidgetSize");
    if (width < 0 || height < 0)
        throw "setWidgetSize";
    current.widgetWidth = width;
    current.widgetHeight = height;
    current.recalc();
}

void ConverterProxy::setOffset(CoordsConverter::Offset offset) {
    CoordsConverter& current = _getConverterFor("setOffset");
    current.offset = offset;
    current.recalc();
}

void ConverterProxy::setXBordersMode(BordersMode mode) {
    xBordersMode = mode;
}

void ConverterProxy::setYBordersMode(BordersMode mode) {
    yBordersMode = mode;
}

void ConverterProxy::setXBorders(float min, float max) {
    CoordsConverter& current = _getConverterFor("setXBorders");
    if (xBordersMode != BordersMode::Manual || min > max)
        throw "setXBorders";
    current.xMin = min;
    current.xMax = max;
    current.recalc();
}

void ConverterProxy::setYBorders(float min, float max) {
    CoordsConverter& current = _getConverterFor("setYBorders");
    if (yBordersMode != BordersMode::Manual || min > max)
        throw "setYBorders";
    current.yMin = min;
    current.yMax = max;
    current.recalc();
}

void ConverterProxy::setCoordsConvertMode(CoordsConvertMode mode) {
    // Drawers hold the old pointer until the signal has told them, so the old converter goes last. If the
    // mode is not known it goes while the exception leaves.
    const std::unique_ptr<CoordsConverter> old = std::move(converter);
    converter = _createConverter(mode);
    if (old) {
        converter->widgetWidth = old->widgetWidth;
        converter->widgetHeight = old->widgetHeight;
        converter->setBorder(old->getBorder());
        converter->offset = old->offset;
    }
    converter->recalc();
    converterChanged.emit();
}

void ConverterProxy::addBorderable(const Zel::IBorderable& borderable) {
    connections.connect(&borderable,
                        borderable.rangeChanged.connect([this, &borderable] { _recalcBorder(borderable); }));
    _recalcBorder(borderable);
}

void ConverterProxy::deleteBorderable(const Zel::IBorderable& borderable) {
    connections.disconnect(&borderable);
    borders.erase(&borderable);
    _recalcConverterBorders();
}

void ConverterProxy::clearBorderable() {
    connections.disconnectAll();
    borders.clear();
    _recalcConverterBorders();
}

std::unique_ptr<CoordsConverter> ConverterProxy::_createConverter(CoordsConvertMode mode) {
    switch (mode) {
    case CoordsConvertMode::Stretchable:
        return std::make_unique<StretchableCoordsConverter>();
    case CoordsConvertMode::Proportional:
        return std::make_unique<ProportionalCoordsConverter>();
    }
    throw "_createConverter";
}

CoordsConverter& ConverterProxy::_getConverterFor(const char* operation) const {
    if (!converter)
        throw operation;
    return *converter;
}

void ConverterProxy::_recalcBorder(const Zel::IBorderable& borderable) {
    const bool isXAuto = xBordersMode == BordersMode::Auto;
    const bool isYAuto = yBordersMode == BordersMode::Auto;
    if (!isXAuto && !isYAuto)
        return;

    borders[&borderable] = isXAuto && isYAuto ? CoordsBordersCalc::getXY(borderable)
                           : isXAuto          ? CoordsBordersCalc::getX(borderable)
                                              : CoordsBordersCalc::getY(borderable);
    _recalcConverterBorders();
}

void ConverterProxy::_recalcConverterBorders() {
    if (!converter)
        return;

    std::vector<CoordsConverter::Border> all;
    all.reserve(borders.size());
    for (const auto& [borderable, border] : borders)
        all.push_back(border);
    const CoordsConverter::Border summary = CoordsBordersCalc::getSummary(all);

    // A listener may call back into the proxy and replace the converter, so it is asked for anew after each
    // signal.
    if (xBordersMode == BordersMode::Auto) {
        if (summary.xMin != converter->xMin || summary.xMax != converter->xMax)
            xBordersChanged.emit();
        converter->xMin = summary.xMin;
        converter->xMax = summary.xMax;
    }
    if (yBordersMode == BordersMode::Auto) {
        if (summary.yMin != converter->yMin || summary.yMax != converter->yMax)
            yBordersChanged.emit();
        converter->yMin = summary.yMin;
        converter->yMax = summary.yMax;
    }
    converter->recalc();
}

} // namespace ZelView
