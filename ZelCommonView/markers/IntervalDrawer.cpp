#include <ZelCommonView/markers/IntervalDrawer.h>

#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtkmm/widget.h>

namespace ZelView {

IntervalDrawer::~IntervalDrawer() = default;

void IntervalDrawer::setHorizontalInterval(float newFrom, float newTo) {
    from = newFrom;
    to = newTo;
    getDrawArea().queue_draw();
}

void IntervalDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    context->set_source_rgba(color.r / 255.0, color.g / 255.0, color.b / 255.0, color.a / 255.0);
    const float x1 = converter->getVisualX(from);
    const float x2 = converter->getVisualX(to);
    context->move_to(x1, 0);
    context->line_to(x2, 0);
    context->line_to(x2, converter->widgetHeight);
    context->line_to(x1, converter->widgetHeight);
    context->line_to(x1, 0);
    context->fill();
}

} // namespace ZelView
