#include <ZelCommonView/diagrams/PointsSequenceDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

namespace ZelView {

PointsSequenceDrawer::~PointsSequenceDrawer() = default;

void PointsSequenceDrawer::_onDraw(const Cairo::RefPtr<Cairo::Context>& context,
                                   const Zel::PointsSequence& sequence) {
    if (sequence.lines)
        _drawLines(context, sequence);
    else
        _drawDots(context, sequence);

    context->set_line_width(3.0);
    setSource(context, sequence.color, 1.0);
    // This also drops the current point, of an empty path too, so the text begins at the origin.
    context->stroke();
    context->show_text(sequence.text);
}

void PointsSequenceDrawer::_drawLines(const Cairo::RefPtr<Cairo::Context>& context,
                                      const Zel::PointsSequence& sequence) const {
    setSource(context, sequence.color, 0.0);
    context->set_line_width(1.0);
    if (sequence.points.empty())
        return;

    const Zel::PointF& first = sequence.points.front();
    context->move_to(converter->getVisualX(first.x), converter->getVisualY(first.y));
    for (std::size_t i = 1; i < sequence.points.size(); ++i)
        context->line_to(converter->getVisualX(sequence.points[i].x),
                         converter->getVisualY(sequence.points[i].y));
    if (sequence.closed) {
        // The path is not closed in cairo's sense, so its last corner has no join. With the opacity of 0 the
        // filling leaves no mark; both are meant.
        context->line_to(converter->getVisualX(first.x), converter->getVisualY(first.y));
        context->fill_preserve();
    }
}

void PointsSequenceDrawer::_drawDots(const Cairo::RefPtr<Cairo::Context>& context,
                                     const Zel::PointsSequence& sequence) const {
    setSource(context, sequence.color);
    for (const Zel::PointF& point : sequence.points) {
        const double x = converter->getVisualX(point.x);
        const double y = converter->getVisualY(point.y);
        context->move_to(x, y);
        context->arc(x, y, 3.0, 0.0, 6.283185307179586);
        context->fill();
    }
}

} // namespace ZelView
