#include "diagrams/Canvas.h"

#include <ZelCommonView/diagrams/CircleDrawer.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using ZelView::CircleDrawer;

constexpr double fullCircle = 6.283185307179586;

Zel::Circle makeCircle(const std::string& text = "", bool isFilled = false) {
    Zel::Circle circle;
    circle.x = 3;
    circle.y = 1;
    circle.radius = 2.5;
    circle.color = {200, 30, 60, 128};
    circle.text = text;
    circle.filled = isFilled;
    return circle;
}

test::Picture bareCircle(const Zel::Circle& circle, const ZelView::CoordsConverter& converter) {
    return test::paintBare([&](cairo_t* cr) {
        const double x = converter.getVisualX(circle.x);
        const double y = converter.getVisualY(circle.y);
        cairo_set_source_rgba(cr, 200 / 255.0, 30 / 255.0, 60 / 255.0, 128 / 255.0);
        cairo_arc(cr, x, y, converter.scaleX * circle.radius, 0, fullCircle);
        if (circle.filled)
            cairo_fill_preserve(cr);
        cairo_stroke(cr);
        if (circle.text.empty())
            return;
        cairo_set_source_rgba(cr, 55 / 255.0, 225 / 255.0, 195 / 255.0, 1);
        cairo_move_to(cr, x, y);
        cairo_show_text(cr, circle.text.c_str());
    });
}

const float notANumber = std::numeric_limits<float>::quiet_NaN();
const float infinity = std::numeric_limits<float>::infinity();
const float largest = std::numeric_limits<float>::max();

} // namespace

TEST(CircleDrawer, PaintsTheOutlineTheFillingAndTheCaption) {
    for (const char* text : {"", "zone 1"})
        for (const bool isFilled : {false, true}) {
            const Zel::Circle circle = makeCircle(text, isFilled);
            test::expectSame(test::paintFigure(CircleDrawer(), circle),
                             bareCircle(circle, test::stretchable));
            test::expectSame(test::paintFigure(CircleDrawer(), circle, test::proportional),
                             bareCircle(circle, test::proportional));
        }
}

TEST(CircleDrawer, StaysRoundHoweverTheAxesScale) {
    ZelView::StretchableCoordsConverter wide;
    wide.widgetWidth = test::canvasWidth;
    wide.widgetHeight = test::canvasHeight;
    wide.setBorder({0, 16, 0, 100});
    wide.recalc();
    ASSERT_EQ(wide.scaleX, 10);
    ASSERT_EQ(wide.scaleY, 1);
    Zel::Circle circle;
    circle.x = 8;
    circle.y = 50;
    circle.radius = 3;
    circle.filled = true;
    const auto picture = test::paintFigure(CircleDrawer(), circle, wide);
    for (const auto& [x, y] : {std::pair(80 + 28, 50), {80 - 28, 50}, {80, 50 + 28}, {80, 50 - 28}})
        EXPECT_EQ(picture.at(x, y)[0], 0) << x << " " << y;
    for (const auto& [x, y] : {std::pair(80 + 33, 50), {80 - 33, 50}, {80, 50 + 33}, {80, 50 - 33}})
        EXPECT_EQ(picture.at(x, y)[0], 255) << x << " " << y;
}

TEST(CircleDrawer, TakesNoCurrentPointOverFromTheCaptionBefore) {
    Zel::Circle other = makeCircle("second");
    other.x = 9;
    const auto seen =
        test::paint(test::canvasWidth, test::canvasHeight, [&](const Cairo::RefPtr<Cairo::Context>& context) {
            CircleDrawer drawer;
            drawer.converter = &test::stretchable;
            drawer._onDraw(context, makeCircle("first"));
            drawer._onDraw(context, other);
        });
    const auto expected = test::paintBare([&](cairo_t* cr) {
        for (const Zel::Circle& circle : {makeCircle("first"), other}) {
            const double x = test::stretchable.getVisualX(circle.x);
            const double y = test::stretchable.getVisualY(circle.y);
            cairo_set_source_rgba(cr, 200 / 255.0, 30 / 255.0, 60 / 255.0, 128 / 255.0);
            cairo_new_path(cr);
            cairo_arc(cr, x, y, test::stretchable.scaleX * circle.radius, 0, fullCircle);
            cairo_stroke(cr);
            cairo_set_source_rgba(cr, 55 / 255.0, 225 / 255.0, 195 / 255.0, 1);
            cairo_move_to(cr, x, y);
            cairo_show_text(cr, circle.text.c_str());
        }
    });
    test::expectSame(seen, expected);
}

TEST(CircleDrawer, LeavesTheOppositeColourBehindEvenWithoutACaption) {
    CircleDrawer drawer;
    drawer.converter = &test::stretchable;
    const auto seen = test::paint(8, 8, [&](const Cairo::RefPtr<Cairo::Context>& context) {
        drawer._onDraw(context, makeCircle());
        context->paint();
    });
    EXPECT_EQ(seen.at(4, 4), (std::vector<int>{55, 225, 195, 255}));
}

TEST(CircleDrawer, WithARadiusOfZeroOrBelowPaintsTheCaptionAlone) {
    const auto captionAlone = test::paintBare([](cairo_t* cr) {
        cairo_set_source_rgba(cr, 55 / 255.0, 225 / 255.0, 195 / 255.0, 1);
        cairo_move_to(cr, test::stretchable.getVisualX(3), test::stretchable.getVisualY(1));
        cairo_show_text(cr, "zone 1");
    });
    for (const float radius : {0.0f, -2.5f, -largest}) {
        Zel::Circle circle = makeCircle("zone 1", true);
        circle.radius = radius;
        test::expectSame(test::paintFigure(CircleDrawer(), circle), captionAlone);
    }
}

TEST(CircleDrawer, PaintsNothingOfNumbersThatAreNotFinite) {
    for (const float bad : {notANumber, infinity, -infinity})
        for (float Zel::Circle::*field : {&Zel::Circle::x, &Zel::Circle::y, &Zel::Circle::radius}) {
            Zel::Circle circle = makeCircle("zone 1", true);
            circle.*field = bad;
            EXPECT_EQ(test::paintFigure(CircleDrawer(), circle).countPainted(), 0);
        }
}

TEST(CircleDrawer, OfAnyFiniteSizeIsPaintedAtOnceAndFillsTheView) {
    const auto filled = test::paintBare([](cairo_t* cr) {
        cairo_set_source_rgba(cr, 200 / 255.0, 30 / 255.0, 60 / 255.0, 128 / 255.0);
        cairo_paint(cr);
    });
    for (const float radius : {1e3f, 1e6f, 1e9f, 1e20f, largest}) {
        Zel::Circle circle = makeCircle("", true);
        circle.radius = radius;
        test::expectSame(test::paintFigure(CircleDrawer(), circle), filled);
        circle.filled = false;
        EXPECT_EQ(test::paintFigure(CircleDrawer(), circle).countPainted(), 0) << radius;
    }
}

TEST(CircleDrawer, ThatLiesFarAwayIsNotPainted) {
    for (const float x : {1e7f, -1e9f, largest}) {
        Zel::Circle circle = makeCircle("zone 1", true);
        circle.x = x;
        EXPECT_EQ(test::paintFigure(CircleDrawer(), circle).countPainted(), 0) << x;
    }
}

TEST(CircleDrawer, WhoseEdgePassesTheViewIsPaintedFromAFarCentre) {
    Zel::Circle circle = makeCircle("", true);
    circle.radius = 1e5f;
    circle.x = 6 - circle.radius;
    const auto picture = test::paintFigure(CircleDrawer(), circle);
    EXPECT_NE(picture.at(20, 50), picture.at(140, 50));
    EXPECT_EQ(picture.at(140, 50), (std::vector<int>{255, 255, 255, 255}));
}

TEST(CircleDrawer, OnAnEmptyViewLeavesTheContextUsable) {
    const ZelView::StretchableCoordsConverter empty; // of size 0, never computed
    EXPECT_EQ(test::paintFigure(CircleDrawer(), makeCircle("", true), empty).countPainted(), 0);
}
