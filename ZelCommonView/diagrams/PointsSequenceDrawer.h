#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/FigureDrawer.h>

namespace ZelView {

/// Paints a path through the points, 3 pixels wide and opaque; or a dot with a radius of 3 pixels for each
/// point, with the opacity of the colour. A coordinate that is not a number is passed on unchecked, and cairo
/// takes it for 0.
///
/// The text begins at the origin of the draw area, not at the figure: that is meant, and callers that want no
/// text there leave it empty.
class ZEL_API PointsSequenceDrawer : public FigureDrawer<Zel::PointsSequence> {
public:
    using FigureDrawer::FigureDrawer;
    ~PointsSequenceDrawer() override;

    void _onDraw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::PointsSequence& sequence) override;

private:
    void _drawLines(const Cairo::RefPtr<Cairo::Context>& context, const Zel::PointsSequence& sequence) const;
    void _drawDots(const Cairo::RefPtr<Cairo::Context>& context, const Zel::PointsSequence& sequence) const;
};

} // namespace ZelView
