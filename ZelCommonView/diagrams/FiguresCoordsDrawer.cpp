#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>

#include <ZelCommonView/diagrams/IScrollInfo.h>
#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

namespace ZelView {

namespace {

bool isEmpty(const Zel::RectangleF& rectangle) {
    return rectangle.width == 0 || rectangle.height == 0;
}

bool isOverlapped(const Zel::RectangleF& a, const Zel::RectangleF& b) {
    return !isEmpty(a) && !isEmpty(b) && b.x + b.width > a.x && a.x + a.width > b.x && b.y + b.height > a.y &&
           a.y + a.height > b.y;
}

/// A rectangle at a point with the size of the text as the context would paint it.
Zel::RectangleF placeText(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                          Zel::PointF point) {
    Cairo::TextExtents extents;
    context->get_text_extents(text, extents);
    return {point.x, point.y, static_cast<float>(extents.width), static_cast<float>(extents.height)};
}

void paintText(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text, float x, float y) {
    context->move_to(x, y);
    context->show_text(text);
}

} // namespace

FiguresCoordsDrawer::FiguresCoordsDrawer(const CoordsDrawerCfg& givenCfg,
                                         const FiguresCoordsDrawerCfg& givenFiguresCfg)
    : CoordsDrawer(givenCfg), figuresCfg(givenFiguresCfg) {}

FiguresCoordsDrawer::~FiguresCoordsDrawer() = default;

void FiguresCoordsDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    // The headers come first, so that the numbers can keep clear of them.
    const auto fontFace = context->get_font_face();
    context->set_antialias(Cairo::ANTIALIAS_NONE);
    setSource(context, cfg.color);
    context->set_font_size(figuresCfg.headerFontSize);
    context->set_font_face(Cairo::ToyFontFace::create("", Cairo::FONT_SLANT_NORMAL, Cairo::FONT_WEIGHT_BOLD));
    horizontalHeaderRect = _drawHorizonalHeader(context);
    verticalHeaderRect = _drawVerticalHeader(context);
    context->set_font_face(fontFace);
    CoordsDrawer::draw(context);
}

void FiguresCoordsDrawer::_onDrawStepLineX(const Cairo::RefPtr<Cairo::Context>& context,
                                           const std::string& text, Zel::PointF from, Zel::PointF) {
    _onDrawStepLine(context, text, {from.x + cfg.stepTextXOffsetX, _getHorizontalAxisTextY()});
}

void FiguresCoordsDrawer::_onDrawStepLineY(const Cairo::RefPtr<Cairo::Context>& context,
                                           const std::string& text, Zel::PointF from, Zel::PointF) {
    _onDrawStepLine(context, text, {_getVerticalAxisTextX(), from.y + cfg.stepTextYOffsetY});
}

Zel::RectangleF FiguresCoordsDrawer::_drawHorizonalHeader(const Cairo::RefPtr<Cairo::Context>& context) {
    if (horizontalHeader.empty())
        return {};
    auto rectangle = placeText(context, horizontalHeader, {0, _getHorizontalAxisTextY()});
    const auto right = static_cast<float>(scrollInfo->getWidthBefore() + scrollInfo->getWidthCurrent());
    rectangle.x = right - figuresCfg.rightMargin - rectangle.width;
    paintText(context, horizontalHeader, rectangle.x, rectangle.y);
    return rectangle;
}

Zel::RectangleF FiguresCoordsDrawer::_drawVerticalHeader(const Cairo::RefPtr<Cairo::Context>& context) {
    if (verticalHeader.empty())
        return {};
    auto rectangle = placeText(context, verticalHeader, {_getVerticalAxisTextX(), 0});
    const auto top = static_cast<float>(scrollInfo->getHeightBefore());
    rectangle.y = top + figuresCfg.topMargin + rectangle.height;
    paintText(context, verticalHeader, rectangle.x, rectangle.y);
    return rectangle;
}

void FiguresCoordsDrawer::_onDrawStepLine(const Cairo::RefPtr<Cairo::Context>& context,
                                          const std::string& text, Zel::PointF position) {
    if (!isEmpty(horizontalHeaderRect) || !isEmpty(verticalHeaderRect)) {
        // The position counts as the top left corner of the text, although text is painted upwards from
        // there: what is found overlapping is off by the height of the text. That is meant.
        const Zel::RectangleF box = placeText(context, text, position);
        if (isOverlapped(horizontalHeaderRect, box) || isOverlapped(verticalHeaderRect, box))
            return;
    }
    paintText(context, text, position.x, position.y);
}

/// The baseline of what belongs to the horizontal axis: below the axis, or at the bottom of the viewport when
/// that place is out of view.
float FiguresCoordsDrawer::_getHorizontalAxisTextY() const {
    const auto top = static_cast<float>(scrollInfo->getHeightBefore());
    const float bottom = top + static_cast<float>(scrollInfo->getHeightCurrent());
    const float y = converter->getVisualY(0.0f) + cfg.stepTextXOffsetY;
    return y < top || y > bottom ? bottom - figuresCfg.bottomMargin : y;
}

/// The left end of what belongs to the vertical axis: right of the axis, or at the left of the viewport when
/// that place is out of view.
float FiguresCoordsDrawer::_getVerticalAxisTextX() const {
    const auto left = static_cast<float>(scrollInfo->getWidthBefore());
    const float right = left + static_cast<float>(scrollInfo->getWidthCurrent());
    const float x = converter->getVisualX(0.0f) + cfg.stepTextYOffsetX;
    return x < left || x > right ? left + figuresCfg.leftMargin : x;
}

} // namespace ZelView
