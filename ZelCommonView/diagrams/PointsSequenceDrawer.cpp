#include <ZelCommonView/diagrams/PointsSequenceDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

namespace ZelView {

PointsSequenceDrawer::~PointsSequenceDrawer() = default;

void PointsSequenceDrawer::_onDraw(const Cairo::RefPtr<Cairo::Context>& context,
                                   const Zel::PointsSequence& sequence) {
    // A caption before leaves a current point, at which the text of an empty sequence would begin.
    context->begin_new_path();
    if (sequence.lines)
        _drawLines(context, sequence);
    else
        _drawDots(context, sequence);

    context->set_line_width(3.0);
    setSource(context, sequence.color, 1.0);
    context->stroke();
    context->show_text(sequence.text);
}

void PointsSequenceDrawer::_drawLines(const Cairo::RefPtr<Cairo::Context>& context,
                                      const Zel::PointsSequence& sequence) const {
    setSource(context, sequence.color, 0.0);
    context->set_line_width(1.0);
    if (sequence.points.empty())
        return;

    // The first line_to of an empty path is a move_to.
    for (const Zel::PointF& point : sequence.points)
        context->line_to(converter->getVisualX(point.x), converter->getVisualY(point.y));
    if (sequence.closed) {
        // The path is not closed in cairo's sense, so its last corner has no join. With the opacity of 0 the
        // filling leaves no mark; both are meant.
        const Zel::PointF& first = sequence.points.front();
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
