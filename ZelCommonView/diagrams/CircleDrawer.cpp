#include <ZelCommonView/diagrams/CircleDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <algorithm>
#include <cmath>

namespace ZelView {

namespace {

constexpr double fullCircle = 6.283185307179586;

/// Cairo keeps pixels in 24 bits. Beyond them shapes wrap around, and the arc of an endless radius would be
/// divided without end.
constexpr float reach = 8388000;

Zel::Color complement(Zel::Color color) {
    return {static_cast<std::uint8_t>(255 - color.r), static_cast<std::uint8_t>(255 - color.g),
            static_cast<std::uint8_t>(255 - color.b), 255};
}

} // namespace

CircleDrawer::~CircleDrawer() = default;

void CircleDrawer::_onDraw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Circle& circle) {
    const float x = converter->getVisualX(circle.x);
    const float y = converter->getVisualY(circle.y);
    // False for what is not a number, too.
    const bool isInReach = std::fabs(x) < reach && std::fabs(y) < reach;
    if (!isInReach || !std::isfinite(circle.radius))
        return;

    // fmin takes the other one where the product is not a number.
    const float radius =
        std::fmin(converter->scaleX * circle.radius, reach - std::max(std::fabs(x), std::fabs(y)));

    // A caption before leaves a current point, from which the arc would draw a line.
    context->begin_new_path();
    setSource(context, circle.color);
    context->arc(x, y, radius, 0.0, fullCircle);
    if (circle.filled)
        context->fill_preserve();
    context->stroke();

    setSource(context, complement(circle.color), 1.0);
    if (!circle.text.empty()) {
        context->move_to(x, y);
        context->show_text(circle.text);
    }
}

} // namespace ZelView
