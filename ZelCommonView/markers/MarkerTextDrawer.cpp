#include <ZelCommonView/markers/MarkerTextDrawer.h>

#include <ZelCommonView/markers/MarkerDrawerCfg.h>
#include <ZelCommonView/plot/CairoColor.h>

namespace ZelView {

namespace {

Zel::PointF topLeftOf(Zel::PointF centre, Zel::PointF size) {
    return {centre.x - 0.5f * size.x, centre.y - 0.5f * size.y};
}

} // namespace

MarkerTextDrawer::MarkerTextDrawer(const MarkerDrawerTextCfg& value) : cfg(value) {}

void MarkerTextDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                            Zel::PointF centre, bool selected) const {
    const Zel::PointF size = _getTextSize(context, text);
    const Zel::PointF topLeft = topLeftOf(centre, size);
    context->rectangle(topLeft.x, topLeft.y, size.x, size.y);
    setSource(context, selected ? cfg.selectedBorderColor : cfg.normalBorderColor);
    context->set_line_width(selected ? cfg.selectedBorderWidth : cfg.normalBorderWidth);
    context->stroke_preserve();
    setSource(context, cfg.backgroundColor);
    context->fill();
    setSource(context, cfg.textColor);
    context->move_to(topLeft.x, topLeft.y + size.y);
    context->show_text(text);
}

bool MarkerTextDrawer::isCollide(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                                 Zel::PointF centre, Zel::PointF cursor, Zel::PointF& offset) const {
    const Zel::PointF size = _getTextSize(context, text);
    return _checkPos(topLeftOf(centre, size), size, cursor, offset);
}

Zel::PointF MarkerTextDrawer::_getTextSize(const Cairo::RefPtr<Cairo::Context>& context,
                                           const std::string& text) const {
    context->set_font_size(cfg.fontSize);
    Cairo::TextExtents extents;
    context->get_text_extents(text, extents);
    return {static_cast<float>(extents.width), static_cast<float>(extents.height)};
}

bool MarkerTextDrawer::_checkPos(Zel::PointF topLeft, Zel::PointF size, Zel::PointF cursor,
                                 Zel::PointF& offset) const {
    const bool isHit = topLeft.x <= cursor.x && cursor.x <= topLeft.x + size.x && topLeft.y <= cursor.y &&
                       cursor.y <= topLeft.y + size.y;
    if (isHit)
        offset = {0.5f * size.x - (cursor.x - topLeft.x), 0.5f * size.y - (cursor.y - topLeft.y)};
    return isHit;
}

} // namespace ZelView
