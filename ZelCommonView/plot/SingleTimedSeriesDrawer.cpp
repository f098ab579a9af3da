#include <ZelCommonView/plot/SingleTimedSeriesDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtkmm/widget.h>

#include <cmath>
#include <iterator>
#include <utility>

namespace ZelView {

namespace {

const std::vector<Zel::TimedPointF>& pointsOf(const std::unique_ptr<Zel::TimedSeries>& series) {
    if (!series)
        throw "SingleTimedSeriesDrawer";
    return series->points;
}

} // namespace

SingleTimedSeriesDrawer::SingleTimedSeriesDrawer(std::unique_ptr<Zel::TimedSeries> timedSeries)
    : series(std::move(timedSeries)), iterator(pointsOf(series)) {}

SingleTimedSeriesDrawer::~SingleTimedSeriesDrawer() = default;

void SingleTimedSeriesDrawer::setConverter(const CoordsConverter& coordsConverter) {
    converter = &coordsConverter;
}

void SingleTimedSeriesDrawer::setDrawArea(Gtk::Widget& widget) {
    drawArea = &widget;
}

void SingleTimedSeriesDrawer::setTime(unsigned long time) {
    // A series whose adding failed for want of a draw area has none.
    if (iterator.setTime(time) && drawArea)
        drawArea->queue_draw();
}

void SingleTimedSeriesDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    if (series->points.size() < 2 || !converter)
        return;
    context->set_line_width(lineWidth);
    setSource(context, series->color);
    _drawCurve(context);
    _drawPointArrow(context);
}

void SingleTimedSeriesDrawer::_drawCurve(const Cairo::RefPtr<Cairo::Context>& context) const {
    // Each segment is a path element of its own, as joins would be seen in the pixels. The cairo calls are
    // made directly, since the wrapper's check after each would cost more than the call.
    cairo_t* cr = context->cobj();
    const Zel::PointF first = series->points.front().point;
    cairo_move_to(cr, converter->getVisualX(first.x), converter->getVisualY(first.y));
    const auto end = iterator.getIt();
    for (auto it = series->points.begin(); it != end; ++it) {
        const float x = converter->getVisualX(it->point.x);
        const float y = converter->getVisualY(it->point.y);
        cairo_line_to(cr, x, y);
        cairo_move_to(cr, x, y);
    }
    context->stroke();
}

void SingleTimedSeriesDrawer::_drawPointArrow(const Cairo::RefPtr<Cairo::Context>& context) const {
    if (iterator.getIt() == series->points.begin())
        return;
    const auto last = std::prev(iterator.getIt());
    const auto previous = last == series->points.begin() ? last : std::prev(last);
    _drawTriangle(context, converter->getVisualX(previous->point.x), converter->getVisualY(previous->point.y),
                  converter->getVisualX(last->point.x), converter->getVisualY(last->point.y));
}

void SingleTimedSeriesDrawer::_drawTriangle(const Cairo::RefPtr<Cairo::Context>& context, float x1, float y1,
                                            float x2, float y2) const {
    const float angle = _getAngleBetweenPoints(x1, y1, x2, y2);
    const float halfBase = arrowWidthFactor * arrowLength;
    const float left = x2 - (0.5f * arrowLength - 0.5f * lineWidth);
    Zel::PointF corners[] = {{left, y2 - halfBase}, {left, y2 + halfBase}, {left + arrowLength, y2}};
    const float centerX = (corners[0].x + corners[1].x + corners[2].x) / 3;
    const float centerY = (corners[0].y + corners[1].y + corners[2].y) / 3;
    for (Zel::PointF& corner : corners) {
        _rotate(corner.x, corner.y, centerX, centerY, angle);
        // An arrow without a direction is not seen; cairo would take such a coordinate for 0.
        if (!std::isfinite(corner.x) || !std::isfinite(corner.y))
            return;
    }
    context->move_to(corners[0].x, corners[0].y);
    context->line_to(corners[1].x, corners[1].y);
    context->line_to(corners[2].x, corners[2].y);
    context->line_to(corners[0].x, corners[0].y);
    context->fill();
}

float SingleTimedSeriesDrawer::_getAngleBetweenPoints(float x1, float y1, float x2, float y2) {
    float angle = std::atan((y2 - y1) / (x2 - x1));
    if (x1 > x2)
        angle -= _toRadians(180);
    return angle;
}

float SingleTimedSeriesDrawer::_toRadians(float angle) {
    return static_cast<float>(static_cast<double>(angle) * M_PI / 180);
}

void SingleTimedSeriesDrawer::_rotate(float& x, float& y, float cx, float cy, float angle) {
    const auto s = static_cast<float>(std::sin(static_cast<double>(angle)));
    const auto c = static_cast<float>(std::cos(static_cast<double>(angle)));
    const float dx = x - cx;
    const float dy = y - cy;
    x = dx * c - dy * s + cx;
    y = dx * s + dy * c + cy;
}

} // namespace ZelView
