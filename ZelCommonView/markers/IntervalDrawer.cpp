#include <ZelCommonView/markers/IntervalDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
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
    setSource(context, color);
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
