#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/FigureDrawer.h>

namespace ZelView {

/// Paints a dot with a radius of 10 pixels in its colour, whatever the scale. A coordinate that is not a
/// number is passed on unchecked, and cairo takes it for 0.
class ZEL_API FixedDotDrawer : public FigureDrawer<Zel::FixedDot> {
public:
    using FigureDrawer::FigureDrawer;
    ~FixedDotDrawer() override;

    void _onDraw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::FixedDot& dot) override;
};

} // namespace ZelView
