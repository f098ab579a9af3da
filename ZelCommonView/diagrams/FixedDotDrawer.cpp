#include <ZelCommonView/diagrams/FixedDotDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

namespace ZelView {

FixedDotDrawer::~FixedDotDrawer() = default;

void FixedDotDrawer::_onDraw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::FixedDot& dot) {
    const double x = converter->getVisualX(dot.x);
    const double y = converter->getVisualY(dot.y);
    setSource(context, dot.color);
    context->move_to(x, y);
    context->arc(x, y, 10.0, 0.0, 6.283185307179586);
    context->fill();
}

} // namespace ZelView
