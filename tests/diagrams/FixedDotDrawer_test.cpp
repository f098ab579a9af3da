#include "diagrams/Canvas.h"

#include <ZelCommonView/diagrams/FixedDotDrawer.h>

#include <gtest/gtest.h>

#include <limits>

namespace {

using ZelView::FixedDotDrawer;

Zel::FixedDot makeDot() {
    Zel::FixedDot dot;
    dot.x = 3.3f;
    dot.y = -1;
    dot.color = {200, 30, 60, 128};
    return dot;
}

test::Picture bareDot(double x, double y) {
    return test::paintBare([&](cairo_t* cr) {
        cairo_set_source_rgba(cr, 200 / 255.0, 30 / 255.0, 60 / 255.0, 128 / 255.0);
        cairo_move_to(cr, x, y);
        cairo_arc(cr, x, y, 10, 0, 6.283185307179586);
        cairo_fill(cr);
    });
}

} // namespace

TEST(FixedDotDrawer, PaintsADotOfTenPixelsWhateverTheScale) {
    const Zel::FixedDot dot = makeDot();
    test::expectSame(test::paintFigure(FixedDotDrawer(), dot),
                     bareDot(test::stretchable.getVisualX(dot.x), test::stretchable.getVisualY(dot.y)));
    test::expectSame(test::paintFigure(FixedDotDrawer(), dot, test::proportional),
                     bareDot(test::proportional.getVisualX(dot.x), test::proportional.getVisualY(dot.y)));
    auto coarse = test::stretchable;
    coarse.setBorder({-2000, 14000, -5000, 5000});
    coarse.recalc();
    test::expectSame(test::paintFigure(FixedDotDrawer(), dot, coarse),
                     bareDot(coarse.getVisualX(dot.x), coarse.getVisualY(dot.y)));
}

TEST(FixedDotDrawer, TakesNoCurrentPointOverFromATextBefore) {
    const auto withText = [](bool isDotFirst) {
        return test::paint(test::canvasWidth, test::canvasHeight,
                           [&](const Cairo::RefPtr<Cairo::Context>& context) {
                               FixedDotDrawer drawer;
                               drawer.converter = &test::stretchable;
                               Zel::FixedDot opaque = makeDot();
                               opaque.color = {0, 0, 0, 255};
                               if (isDotFirst)
                                   drawer._onDraw(context, opaque);
                               context->move_to(100, 90);
                               context->show_text("text");
                               if (!isDotFirst)
                                   drawer._onDraw(context, opaque);
                           });
    };
    test::expectSame(withText(true), withText(false));
}

TEST(FixedDotDrawer, LeavesTheContextUsableWhateverTheNumbers) {
    for (const float bad :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 3e38f, -3e38f})
        for (float Zel::FixedDot::*field : {&Zel::FixedDot::x, &Zel::FixedDot::y}) {
            Zel::FixedDot dot = makeDot();
            dot.*field = bad;
            test::paintFigure(FixedDotDrawer(), dot); // fails if the context is in an error
        }
}
