#include <ZelCommonView/markers/MarkerDrawerHelper.h>

#include <ZelCommonView/markers/MarkerDrawerCfg.h>
#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <cstdio>

namespace ZelView {

namespace {

constexpr float globalEnd = 9999; // pixels

} // namespace

MarkerDrawerHelper::MarkerDrawerHelper(const MarkerDrawerCfg& value, Orientation markerOrientation)
    : cfg(value), orientation(markerOrientation), textDrawer(value.text) {}

void MarkerDrawerHelper::setConverter(const CoordsConverter& value) {
    converter = &value;
}

void MarkerDrawerHelper::drawLine(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF worldPoint,
                                  bool isGlobal) const {
    context->set_line_width(cfg.lineWidth);
    setSource(context, cfg.lineColor);
    const Zel::PointF pixel = _getPixel(worldPoint);
    if (orientation == Orientation::Horizontal) {
        context->move_to(0, pixel.y);
        context->line_to(isGlobal ? globalEnd : converter->widgetWidth, pixel.y);
    } else {
        context->move_to(pixel.x, 0);
        context->line_to(pixel.x, isGlobal ? globalEnd : converter->widgetHeight);
    }
    context->stroke();
}

void MarkerDrawerHelper::drawText(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF worldPoint,
                                  bool selected) const {
    // The small buffer is meant: it cuts a label at 9 characters.
    char text[10];
    const int length = std::snprintf(text, sizeof text, "%.4f", _getValue(worldPoint));
    drawText(context, worldPoint, selected, length < 0 ? "" : text);
}

void MarkerDrawerHelper::drawText(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF worldPoint,
                                  bool selected, const std::string& text) const {
    textDrawer.draw(context, text, _getPixel(worldPoint), selected);
}

bool MarkerDrawerHelper::isCollide(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF worldPoint,
                                   Zel::PointF cursor, Zel::PointF& offset) const {
    // Six decimals, so the box that can be grabbed is wider than the label that is seen; that is meant.
    return textDrawer.isCollide(context, std::to_string(_getValue(worldPoint)), _getPixel(worldPoint), cursor,
                                offset);
}

Zel::PointF MarkerDrawerHelper::_getPixel(Zel::PointF worldPoint) const {
    return {converter->getVisualX(worldPoint.x), converter->getVisualY(worldPoint.y)};
}

float MarkerDrawerHelper::_getValue(Zel::PointF worldPoint) const {
    return orientation == Orientation::Horizontal ? worldPoint.y : worldPoint.x;
}

} // namespace ZelView
