#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/FigureDrawer.h>

namespace ZelView {

/// Paints a circle in its colour, and its caption in the opposite colour so that it stands out from the
/// filling.
///
/// The circle is round in pixels: its radius takes the horizontal scale alone. A radius of 0 or below leaves
/// the caption. A circle whose numbers are not finite is not painted, nor one whose centre lies millions of
/// pixels away; one that is as large as that is painted as large as pictures can be.
class ZEL_API CircleDrawer : public FigureDrawer<Zel::Circle> {
public:
    using FigureDrawer::FigureDrawer;
    ~CircleDrawer() override;

    void _onDraw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Circle& circle) override;
};

} // namespace ZelView
