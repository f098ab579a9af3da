#include "support/Pictures.h"

#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/IScrollInfo.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <type_traits>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

static_assert(std::is_base_of_v<CoordsDrawer, FiguresCoordsDrawer>);
static_assert(std::is_aggregate_v<FiguresCoordsDrawerCfg>);

/// A viewport of any place and size on a content of 400 x 300.
struct View : IScrollInfo {
    View(int givenX, int givenY, int givenWidth, int givenHeight)
        : x(givenX), y(givenY), width(givenWidth), height(givenHeight) {}

    int getWidthBefore() const override { return x; }

    int getHeightBefore() const override { return y; }

    int getWidthCurrent() const override { return width; }

    int getHeightCurrent() const override { return height; }

    int getWidthAfter() const override { return 400 - x - width; }

    int getHeightAfter() const override { return 300 - y - height; }

    int getWidthTotal() const override { return 400; }

    int getHeightTotal() const override { return 300; }

    int x;
    int y;
    int width;
    int height;
};

/// Without the rounding of a scale that is computed.
struct ExactConverter : StretchableCoordsConverter {
    float getVisualX(float x) const override { return 100 + 10 * x; }

    float getVisualY(float y) const override { return 200 - 10 * y; }
};

/// World x from -10 to 30 and y from -10 to 20 on 400 x 300 pixels: 10 pixels a unit, the axes at 100 and
/// 200.
struct FiguresCoordsDrawerTest : testing::Test {
    FiguresCoordsDrawerTest() {
        converter.widgetWidth = 400;
        converter.widgetHeight = 300;
        converter.setBorder({-10, 30, -10, 20});
        converter.recalc();
        drawer.converter = &converter;
        drawer.setScrollInfo(view);
    }

    test::Picture paint() {
        return test::paint(400, 300, [this](const Context& context) { drawer.draw(context); });
    }

    Context makeContext() {
        const auto context = Cairo::Context::create(test::makeSurface(400, 300));
        context->set_font_size(12);
        return context;
    }

    View view{0, 0, 400, 300};
    ExactConverter converter;
    FiguresCoordsDrawer drawer;
};

struct Extents {
    Extents(const Context& context, const std::string& text) {
        Cairo::TextExtents extents;
        context->get_text_extents(text, extents);
        width = static_cast<float>(extents.width);
        height = static_cast<float>(extents.height);
    }

    float width;
    float height;
};

/// Where a drawer puts its numbers.
struct Texts {
    explicit Texts(FiguresCoordsDrawer& figures) : drawer(figures) {}

    /// The place where a number of the horizontal axis at pixel `x` ends up.
    Zel::PointF ofX(const Context& context, float x) {
        // Text leaves the current point behind it; a text without a width leaves it where it began.
        drawer._onDrawStepLineX(context, "", {x, 0}, {x, 300});
        return current(context);
    }

    Zel::PointF ofY(const Context& context, float y) {
        drawer._onDrawStepLineY(context, "", {0, y}, {400, y});
        return current(context);
    }

    static Zel::PointF current(const Context& context) {
        double x = -1;
        double y = -1;
        context->get_current_point(x, y);
        return {static_cast<float>(x), static_cast<float>(y)};
    }

    FiguresCoordsDrawer& drawer;
};

void number(cairo_t* cr, double x, double y, const char* text) {
    cairo_move_to(cr, x, y);
    cairo_show_text(cr, text);
}

void line(cairo_t* cr, double x1, double y1, double x2, double y2) {
    cairo_move_to(cr, x1, y1);
    cairo_line_to(cr, x2, y2);
}

/// The axes and the grid of 400 x 300 pixels, with the numbers of x on a baseline and those of y at a left
/// end.
void paintGrid(cairo_t* cr, double baselineX, double leftY, const std::set<std::string>& leftOutX = {},
               const std::set<std::string>& leftOutY = {}) {
    const double grey = 100 / 255.0;
    const double dash = 5;
    cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
    cairo_set_source_rgba(cr, grey, grey, grey, 1);
    cairo_set_font_size(cr, 12);
    cairo_set_line_width(cr, 2);
    line(cr, 0, 200, 400, 200);
    cairo_stroke(cr);
    line(cr, 100, 0, 100, 300);
    cairo_stroke(cr);
    cairo_set_line_width(cr, 1);
    cairo_set_dash(cr, &dash, 1, 0);
    for (int value = -15; value < 35; value += 5) {
        const double x = 100 + value * 10;
        line(cr, x, 0, x, 300);
        if (!leftOutX.count(std::to_string(value)))
            number(cr, x + 5, baselineX, std::to_string(value).c_str());
    }
    cairo_stroke(cr);
    for (int value = -15; value <= 25; value += 5) {
        const double y = 200 - value * 10;
        line(cr, 0, y, 400, y);
        if (!leftOutY.count(std::to_string(value)))
            number(cr, leftY, y - 10, std::to_string(value).c_str());
    }
    cairo_stroke(cr);
}

/// A name in bold; gives its extents.
cairo_text_extents_t beginHeader(cairo_t* cr, const char* text) {
    const double grey = 100 / 255.0;
    cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
    cairo_set_source_rgba(cr, grey, grey, grey, 1);
    cairo_set_font_size(cr, 14);
    cairo_select_font_face(cr, "", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
    cairo_text_extents_t extents;
    cairo_text_extents(cr, text, &extents);
    return extents;
}

void paintHeader(cairo_t* cr, double x, double y, const char* text) {
    cairo_font_face_t* const face = cairo_font_face_reference(cairo_get_font_face(cr));
    beginHeader(cr, text);
    number(cr, static_cast<float>(x), static_cast<float>(y), text);
    cairo_set_font_face(cr, face);
    cairo_font_face_destroy(face);
}

Extents headerExtents(const char* text) {
    const auto context = Cairo::Context::create(test::makeSurface(10, 10));
    beginHeader(context->cobj(), text);
    return {context, text};
}

} // namespace

TEST_F(FiguresCoordsDrawerTest, HasTheUsualValues) {
    const FiguresCoordsDrawerCfg& cfg = drawer.getFiguresCfg();
    EXPECT_EQ(&cfg, &drawer.figuresCfg);
    EXPECT_EQ(cfg.headerFontSize, 14);
    EXPECT_EQ(cfg.rightMargin, 10);
    EXPECT_EQ(cfg.bottomMargin, 10);
    EXPECT_EQ(cfg.leftMargin, 10);
    EXPECT_EQ(cfg.topMargin, 10);
    const FiguresCoordsDrawerCfg ordered{1, 2, 3, 4, 5};
    EXPECT_EQ(ordered.rightMargin, 2);
    EXPECT_EQ(ordered.bottomMargin, 3);
    EXPECT_EQ(ordered.leftMargin, 4);
    EXPECT_EQ(ordered.topMargin, 5);
    EXPECT_EQ(drawer.cfg.flags, 0xFFFFFFFFu);
    EXPECT_EQ(drawer.cfg.fontSize, 12);
    EXPECT_EQ(FiguresCoordsDrawer().scrollInfo, nullptr);
    EXPECT_EQ(drawer.scrollInfo, &view);

    CoordsDrawerCfg coordsCfg;
    coordsCfg.fontSize = 7;
    FiguresCoordsDrawer other(coordsCfg, ordered);
    EXPECT_EQ(other.cfg.fontSize, 7);
    EXPECT_EQ(other.getFiguresCfg().headerFontSize, 1);
    EXPECT_EQ(other.getFiguresCfg().topMargin, 5);
}

TEST_F(FiguresCoordsDrawerTest, HeadersAreEmptyAtFirstAndKeptWhenSet) {
    EXPECT_EQ(drawer.getHorizontalHeader(), "");
    EXPECT_EQ(drawer.getVerticalHeader(), "");
    drawer.setHorizontalHeader("R, Ом");
    drawer.setVerticalHeader("jX, Ом");
    EXPECT_EQ(drawer.getHorizontalHeader(), "R, Ом");
    EXPECT_EQ(drawer.getVerticalHeader(), "jX, Ом");
    EXPECT_EQ(drawer.horizontalHeaderRect.width, 0);
    drawer.draw(makeContext());
    EXPECT_GT(drawer.horizontalHeaderRect.width, 0);
    EXPECT_GT(drawer.verticalHeaderRect.height, 0);
    drawer.setHorizontalHeader("");
    drawer.setVerticalHeader("");
    drawer.draw(makeContext());
    for (const Zel::RectangleF& rect : {drawer.horizontalHeaderRect, drawer.verticalHeaderRect}) {
        EXPECT_EQ(rect.x, 0);
        EXPECT_EQ(rect.y, 0);
        EXPECT_EQ(rect.width, 0);
        EXPECT_EQ(rect.height, 0);
    }
}

TEST_F(FiguresCoordsDrawerTest, NumbersHangBelowTheirAxisAndRightOfIt) {
    const auto expected =
        test::paint(400, 300, [](const Context& context) { paintGrid(context->cobj(), 220, 110); });
    test::expectSame(paint(), expected);
    EXPECT_GT(expected.countPainted(), 2000);
}

TEST_F(FiguresCoordsDrawerTest, NumbersStickToTheViewportThatTheirAxisHasLeft) {
    view = {150, 20, 200, 150};
    test::expectSame(
        paint(), test::paint(400, 300, [](const Context& context) { paintGrid(context->cobj(), 160, 160); }));
    view = {0, 230, 80, 60};
    test::expectSame(
        paint(), test::paint(400, 300, [](const Context& context) { paintGrid(context->cobj(), 280, 10); }));
}

TEST_F(FiguresCoordsDrawerTest, ANumberSticksAsSoonAsItsOwnPlaceIsOutOfView) {
    const auto context = makeContext();
    Texts texts(drawer);
    view = {0, 0, 400, 220};
    EXPECT_EQ(texts.ofX(context, 50).y, 220) << "the edge belongs to the view";
    EXPECT_EQ(texts.ofX(context, 50).x, 55);
    view = {0, 0, 400, 219};
    EXPECT_EQ(texts.ofX(context, 50).y, 209);
    view = {0, 220, 400, 50};
    EXPECT_EQ(texts.ofX(context, 50).y, 220);
    view = {0, 221, 400, 50};
    EXPECT_EQ(texts.ofX(context, 50).y, 261);

    view = {110, 0, 100, 300};
    EXPECT_EQ(texts.ofY(context, 50).x, 110);
    EXPECT_EQ(texts.ofY(context, 50).y, 40);
    view = {111, 0, 100, 300};
    EXPECT_EQ(texts.ofY(context, 50).x, 121);
    view = {10, 0, 100, 300};
    EXPECT_EQ(texts.ofY(context, 50).x, 110);
    view = {10, 0, 99, 300};
    EXPECT_EQ(texts.ofY(context, 50).x, 20);
}

TEST_F(FiguresCoordsDrawerTest, OnlyTheFirstPointOfALineCounts) {
    const auto context = makeContext();
    drawer._onDrawStepLineX(context, "", {50, 7}, {90, 90});
    EXPECT_EQ(Texts::current(context).x, 55);
    EXPECT_EQ(Texts::current(context).y, 220);
    drawer._onDrawStepLineY(context, "", {7, 50}, {90, 90});
    EXPECT_EQ(Texts::current(context).x, 110);
    EXPECT_EQ(Texts::current(context).y, 40);
}

TEST_F(FiguresCoordsDrawerTest, UsesItsConfiguration) {
    drawer.cfg.stepTextXOffsetX = 1;
    drawer.cfg.stepTextXOffsetY = 2;
    drawer.cfg.stepTextYOffsetX = 3;
    drawer.cfg.stepTextYOffsetY = 4;
    drawer.getFiguresCfg().bottomMargin = 5;
    drawer.getFiguresCfg().leftMargin = 6;
    const auto context = makeContext();
    Texts texts(drawer);
    EXPECT_EQ(texts.ofX(context, 50).x, 51);
    EXPECT_EQ(texts.ofX(context, 50).y, 202);
    EXPECT_EQ(texts.ofY(context, 50).x, 103);
    EXPECT_EQ(texts.ofY(context, 50).y, 54);
    view = {200, 20, 100, 100};
    EXPECT_EQ(texts.ofX(context, 50).y, 115);
    EXPECT_EQ(texts.ofY(context, 50).x, 206);
    drawer.setHorizontalHeader("R");
    drawer.setVerticalHeader("X");
    drawer.getFiguresCfg().rightMargin = 7;
    drawer.getFiguresCfg().topMargin = 8;
    drawer.getFiguresCfg().headerFontSize = 30;
    drawer.draw(makeContext());
    EXPECT_EQ(drawer.horizontalHeaderRect.x + drawer.horizontalHeaderRect.width, 293);
    EXPECT_EQ(drawer.verticalHeaderRect.y - drawer.verticalHeaderRect.height, 28);
    EXPECT_GT(drawer.horizontalHeaderRect.height, headerExtents("R").height * 1.5f);
}

TEST_F(FiguresCoordsDrawerTest, HeadersNameTheAxesInBold) {
    drawer.cfg.flags = 0;
    drawer.setHorizontalHeader("R, Ом");
    drawer.setVerticalHeader("jX, Ом");
    const auto horizontal = headerExtents("R, Ом");
    const auto vertical = headerExtents("jX, Ом");
    const auto expected = test::paint(400, 300, [&](const Context& context) {
        paintHeader(context->cobj(), 390 - horizontal.width, 220, "R, Ом");
        paintHeader(context->cobj(), 110, 10 + vertical.height, "jX, Ом");
    });
    test::expectSame(paint(), expected);
    EXPECT_GT(expected.countPainted(), 100);
    EXPECT_EQ(drawer.horizontalHeaderRect.x, 390 - horizontal.width);
    EXPECT_EQ(drawer.horizontalHeaderRect.y, 220);
    EXPECT_EQ(drawer.horizontalHeaderRect.width, horizontal.width);
    EXPECT_EQ(drawer.horizontalHeaderRect.height, horizontal.height);
    EXPECT_EQ(drawer.verticalHeaderRect.x, 110);
    EXPECT_EQ(drawer.verticalHeaderRect.y, 10 + vertical.height);
    EXPECT_EQ(drawer.verticalHeaderRect.width, vertical.width);
    EXPECT_EQ(drawer.verticalHeaderRect.height, vertical.height);
}

TEST_F(FiguresCoordsDrawerTest, HeadersStickToTheViewportThatTheirAxisHasLeft) {
    drawer.cfg.flags = 0;
    drawer.setHorizontalHeader("R");
    drawer.setVerticalHeader("X");
    const auto horizontal = headerExtents("R");
    const auto vertical = headerExtents("X");
    const auto expectAt = [&](float horizontalY, float verticalX) {
        test::expectSame(paint(), test::paint(400, 300, [&](const Context& context) {
                             paintHeader(context->cobj(), view.x + view.width - 10 - horizontal.width,
                                         horizontalY, "R");
                             paintHeader(context->cobj(), verticalX, view.y + 10 + vertical.height, "X");
                         }));
    };
    view = {50, 100, 300, 150}; // both in view: 20 below the axis and 10 right of it
    expectAt(220, 110);
    view = {150, 20, 200, 150}; // below and left of the view
    expectAt(160, 160);
    view = {0, 230, 80, 60}; // above and right of the view
    expectAt(280, 10);
}

TEST_F(FiguresCoordsDrawerTest, LeavesTheFontFaceAsItWas) {
    drawer.setHorizontalHeader("R");
    const auto context = makeContext();
    const auto face =
        Cairo::ToyFontFace::create("monospace", Cairo::FONT_SLANT_ITALIC, Cairo::FONT_WEIGHT_NORMAL);
    context->set_font_face(face);
    drawer.draw(context);
    EXPECT_EQ(context->get_font_face()->cobj(), face->cobj());
}

TEST_F(FiguresCoordsDrawerTest, HeadersAndGridArePaintedInThisOrderAndOverlappedNumbersAreLeftOut) {
    drawer.setHorizontalHeader("R, Ом");
    drawer.setVerticalHeader("jX, Ом");
    const auto horizontal = headerExtents("R, Ом");
    const auto vertical = headerExtents("jX, Ом");
    drawer.getFiguresCfg().topMargin = 25;
    // The names lie over the places of 25, at 355 and 220, and of 15, at 110 and 40.
    ASSERT_GT(horizontal.width, 36);
    ASSERT_GT(vertical.height, 5);
    const auto expected = test::paint(400, 300, [&](const Context& context) {
        paintHeader(context->cobj(), 390 - horizontal.width, 220, "R, Ом");
        paintHeader(context->cobj(), 110, 25 + vertical.height, "jX, Ом");
        paintGrid(context->cobj(), 220, 110, {"25"}, {"15"});
    });
    test::expectSame(paint(), expected);
}

TEST_F(FiguresCoordsDrawerTest, ANumberIsDroppedWhenItsBoxMeetsAHeader) {
    const auto context = makeContext();
    const Extents label(context, "25");
    const auto isPainted = [&](Zel::PointF position) {
        context->begin_new_path();
        drawer._onDrawStepLine(context, "25", position);
        return context->has_current_point();
    };
    for (Zel::RectangleF* rect : {&drawer.horizontalHeaderRect, &drawer.verticalHeaderRect}) {
        *rect = {200, 100, 50, 20};
        EXPECT_FALSE(isPainted({210, 110}));
        // Touching is no overlap; a bit more is. The position is taken for the top left corner.
        EXPECT_TRUE(isPainted({200 - label.width, 110}));
        EXPECT_FALSE(isPainted({200 - label.width + 0.5f, 110}));
        EXPECT_TRUE(isPainted({250, 110}));
        EXPECT_FALSE(isPainted({249.5f, 110}));
        EXPECT_TRUE(isPainted({210, 100 - label.height}));
        EXPECT_FALSE(isPainted({210, 100 - label.height + 0.5f}));
        EXPECT_TRUE(isPainted({210, 120}));
        EXPECT_FALSE(isPainted({210, 119.5f}));
        // A header without a size drops nothing.
        *rect = {200, 100, 0, 20};
        EXPECT_TRUE(isPainted({195, 110}));
        *rect = {200, 100, 50, 0};
        EXPECT_TRUE(isPainted({210, 95}));
        *rect = {};
    }
}

TEST_F(FiguresCoordsDrawerTest, ATextWithoutAWidthIsNeverDropped) {
    const auto context = makeContext();
    drawer.horizontalHeaderRect = {0, 0, 400, 300};
    drawer._onDrawStepLine(context, "", {100, 100});
    EXPECT_EQ(Texts::current(context).x, 100);
    context->begin_new_path();
    drawer._onDrawStepLine(context, "1", {100, 100});
    EXPECT_FALSE(context->has_current_point());
}

TEST_F(FiguresCoordsDrawerTest, WithoutHeadersNoNumberIsMeasured) {
    // A font face that measures: each glyph that it is asked for is counted, whether to measure or to paint
    // it.
    struct Counter {
        static cairo_status_t render(cairo_scaled_font_t*, unsigned long, cairo_t*,
                                     cairo_text_extents_t* extents) {
            extents->x_advance = 1;
            return CAIRO_STATUS_SUCCESS;
        }

        static cairo_status_t toGlyphs(cairo_scaled_font_t*, const char*, int, cairo_glyph_t** glyphs,
                                       int* count, cairo_text_cluster_t**, int*,
                                       cairo_text_cluster_flags_t*) {
            ++calls();
            if (!*glyphs)
                *glyphs = cairo_glyph_allocate(1);
            (*glyphs)[0] = {33, 0, 0};
            *count = 1;
            return CAIRO_STATUS_SUCCESS;
        }

        static int& calls() {
            static int count = 0;
            return count;
        }
    };

    cairo_font_face_t* const face = cairo_user_font_face_create();
    cairo_user_font_face_set_render_glyph_func(face, &Counter::render);
    cairo_user_font_face_set_text_to_glyphs_func(face, &Counter::toGlyphs);
    const auto context = makeContext();
    cairo_set_font_face(context->cobj(), face);
    const auto countCalls = [&] {
        Counter::calls() = 0;
        drawer._onDrawStepLine(context, "5", {100, 100});
        return Counter::calls();
    };
    EXPECT_EQ(countCalls(), 1) << "painted";
    drawer.horizontalHeaderRect = {300, 200, 0, 10};
    drawer.verticalHeaderRect = {300, 200, 10, 0};
    EXPECT_EQ(countCalls(), 1) << "a header without a size is none";
    drawer.horizontalHeaderRect = {300, 200, 10, 10};
    EXPECT_EQ(countCalls(), 2) << "measured and painted";
    drawer.horizontalHeaderRect = {};
    drawer.verticalHeaderRect = {300, 200, 10, 10};
    EXPECT_EQ(countCalls(), 2);
    drawer.horizontalHeaderRect = {310, 200, 10, 10};
    EXPECT_EQ(countCalls(), 2) << "measured once for both";
    cairo_font_face_destroy(face);
}
