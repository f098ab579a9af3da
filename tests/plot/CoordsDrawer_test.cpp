#include "support/Pictures.h"

#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/CoordsStepsCalc.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

/// Notes the numbers in place of painting them.
struct Recorder : CoordsDrawer {
    using CoordsDrawer::CoordsDrawer;

    struct Number {
        std::string text;
        Zel::PointF from;
        Zel::PointF to;
    };

    void _onDrawStepLineX(const Context&, const std::string& text, Zel::PointF from,
                          Zel::PointF to) override {
        x.push_back({text, from, to});
    }

    void _onDrawStepLineY(const Context&, const std::string& text, Zel::PointF from,
                          Zel::PointF to) override {
        y.push_back({text, from, to});
    }

    std::vector<std::string> textsX() const { return texts(x); }

    std::vector<std::string> textsY() const { return texts(y); }

    static std::vector<std::string> texts(const std::vector<Number>& numbers) {
        std::vector<std::string> result;
        for (const Number& number : numbers)
            result.push_back(number.text);
        return result;
    }

    std::vector<Number> x;
    std::vector<Number> y;
};

StretchableCoordsConverter makeConverter(float size, CoordsConverter::Border border) {
    StretchableCoordsConverter converter;
    converter.widgetWidth = converter.widgetHeight = size;
    converter.setBorder(border);
    converter.recalc();
    return converter;
}

test::Picture paintGrid(const CoordsDrawerCfg& cfg, const CoordsConverter& converter, int size) {
    return test::paint(size, size, [&](const Context& context) {
        CoordsDrawer drawer(cfg);
        drawer.converter = &converter;
        drawer.draw(context);
    });
}

void line(cairo_t* cr, double x1, double y1, double x2, double y2) {
    cairo_move_to(cr, x1, y1);
    cairo_line_to(cr, x2, y2);
}

void number(cairo_t* cr, double x, double y, const char* text) {
    cairo_move_to(cr, x, y);
    cairo_show_text(cr, text);
}

std::string stepText(float step, float value) {
    return CoordsDrawer::_getStepText(CoordsDrawer::_getPrecision(step), step, value);
}

const float notANumber = std::numeric_limits<float>::quiet_NaN();
const float infinity = std::numeric_limits<float>::infinity();

} // namespace

TEST(CoordsDrawerCfg, HasTheUsualValuesInOrder) {
    const CoordsDrawerCfg cfg;
    EXPECT_EQ(cfg.flags, 0xFFFFFFFFu);
    EXPECT_EQ(cfg.fontSize, 12);
    EXPECT_EQ(cfg.axisLineWidth, 2);
    EXPECT_EQ(cfg.stepTextXOffsetX, 5);
    EXPECT_EQ(cfg.stepTextXOffsetY, 20);
    EXPECT_EQ(cfg.stepTextYOffsetX, 10);
    EXPECT_EQ(cfg.stepTextYOffsetY, -10);
    EXPECT_EQ(cfg.minStepPixelsX, 50);
    EXPECT_EQ(cfg.minStepPixelsY, 50);
    EXPECT_EQ(cfg.color.r, 100);
    EXPECT_EQ(cfg.color.g, 100);
    EXPECT_EQ(cfg.color.b, 100);
    EXPECT_EQ(cfg.color.a, 255);
    const CoordsDrawerCfg ordered{1, 2, 3, 4, 5, 6, 7, 8, 9, {1, 2, 3, 4}};
    EXPECT_EQ(ordered.minStepPixelsY, 9);
    EXPECT_EQ(ordered.color.a, 4);
}

TEST(CoordsDrawer, CutsNumbersAndNeverRounds) {
    EXPECT_EQ(stepText(0.25f, 1.5f), "1.50");
    EXPECT_EQ(stepText(0.25f, -0.25f), "-0.25");
    EXPECT_EQ(stepText(0.25f, 12.5f), "12.50");
    EXPECT_EQ(stepText(0.25f, -12.5f), "-12.50");
    EXPECT_EQ(stepText(0.5f, 0), "0.0");
    EXPECT_EQ(stepText(0.5f, 1), "1.0");
    EXPECT_EQ(stepText(0.5f, 1.99f), "1.9");
    EXPECT_EQ(stepText(0.5f, 10), "10.0");
    EXPECT_EQ(stepText(0.5f, 100.5f), "100.5");
    EXPECT_EQ(stepText(0.002f, 0.004f), "0.004");
}

TEST(CoordsDrawer, AStepOfOneOrMoreGivesWholeNumbers) {
    EXPECT_EQ(stepText(1, 7), "7");
    EXPECT_EQ(stepText(2, -8), "-8");
    EXPECT_EQ(stepText(5, 2000000000), "2000000000");
    EXPECT_EQ(stepText(1, 1.9f), "1");
    // What an int can't hold keeps its digits.
    EXPECT_EQ(stepText(1e9f, 5e9f), "5000000000");
    EXPECT_EQ(stepText(1e9f, -5e9f), "-5000000000");
}

TEST(CoordsDrawer, TheBitOfPrecisionComesFromTheStepsLastDigit) {
    EXPECT_EQ(CoordsDrawer::_getPrecision(0.25f), 4u);
    EXPECT_EQ(CoordsDrawer::_getPrecision(0.5f), 3u);
    EXPECT_EQ(CoordsDrawer::_getPrecision(0.02f), 4u);
    EXPECT_EQ(CoordsDrawer::_getPrecision(2), 2u);
    EXPECT_EQ(CoordsDrawer::_getPrecision(0), 2u);
}

TEST(CoordsDrawer, ANumberShorterThanItsPrecisionThrows) {
    try {
        CoordsDrawer::_getStepText(40, 0.5f, 0.5f);
        FAIL() << "there are no 40 characters to keep";
    } catch (const std::out_of_range& error) {
        EXPECT_NE(std::string(error.what()).find("basic_string::erase"), std::string::npos);
    }
}

TEST(CoordsDrawer, VerticalLinesStopBeforeTheLastAndHorizontalOnesIncludeIt) {
    const auto converter = makeConverter(300, {0, 10, 0, 10});
    Recorder drawer;
    drawer.converter = &converter;
    drawer.draw(Cairo::Context::create(test::makeSurface(300, 300)));
    EXPECT_EQ(drawer.textsX(), (std::vector<std::string>{"-2", "0", "2", "4", "6", "8", "10"}));
    EXPECT_EQ(drawer.textsY(), (std::vector<std::string>{"-2", "0", "2", "4", "6", "8", "10", "12"}));
    EXPECT_EQ(drawer.x[3].from.x, 120);
    EXPECT_EQ(drawer.x[3].from.y, 0);
    EXPECT_EQ(drawer.x[3].to.x, 120);
    EXPECT_EQ(drawer.x[3].to.y, 300);
    EXPECT_EQ(drawer.y[3].from.x, 0);
    EXPECT_EQ(drawer.y[3].from.y, 180);
    EXPECT_EQ(drawer.y[3].to.x, 300);
    EXPECT_EQ(drawer.y[3].to.y, 180);
}

TEST(CoordsDrawer, FractionalStepsAreNumberedWithTheirDigits) {
    const auto converter = makeConverter(300, {0, 1, -0.2f, 0.8f});
    Recorder drawer;
    drawer.converter = &converter;
    drawer.draw(Cairo::Context::create(test::makeSurface(300, 300)));
    EXPECT_EQ(drawer.textsX(), (std::vector<std::string>{"-0.2", "0.0", "0.2", "0.4", "0.6", "0.8", "1.0"}));
    EXPECT_EQ(drawer.textsY().front(), "-0.4");
}

TEST(CoordsDrawer, PaintsAxesGridAndNumbersInThisOrder) {
    const auto converter = makeConverter(200, {-3, 7, -4, 6});
    const CoordsDrawerCfg cfg;
    const auto expected = test::paint(200, 200, [](const Context& context) {
        cairo_t* cr = context->cobj();
        const double grey = 100 / 255.0;
        const double dash = 5;
        cairo_set_antialias(cr, CAIRO_ANTIALIAS_NONE);
        cairo_set_source_rgba(cr, grey, grey, grey, 1);
        cairo_set_font_size(cr, 12);
        cairo_set_line_width(cr, 2);
        line(cr, 0, 120, 200, 120);
        cairo_stroke(cr);
        line(cr, 60, 0, 60, 200);
        cairo_stroke(cr);
        cairo_set_line_width(cr, 1);
        cairo_set_dash(cr, &dash, 1, 0);
        // 200 pixels make 4 steps; a span of 10 gives 5; lines -1 to 1 for x and -1 to 2 for y.
        line(cr, -40, 0, -40, 200);
        number(cr, -35, 20, "-5");
        line(cr, 60, 0, 60, 200);
        number(cr, 65, 20, "0");
        line(cr, 160, 0, 160, 200);
        number(cr, 165, 20, "5");
        cairo_stroke(cr);
        line(cr, 0, 220, 200, 220);
        number(cr, 10, 210, "-5");
        line(cr, 0, 120, 200, 120);
        number(cr, 10, 110, "0");
        line(cr, 0, 20, 200, 20);
        number(cr, 10, 10, "5");
        line(cr, 0, -80, 200, -80);
        number(cr, 10, -90, "10");
        cairo_stroke(cr);
    });
    test::expectSame(paintGrid(cfg, converter, 200), expected);
    EXPECT_GT(expected.countPainted(), 500);
}

TEST(CoordsDrawer, EachBitStandsForItsPart) {
    const auto converter = makeConverter(200, {-3, 7, -4, 6});
    const auto blank = test::paint(200, 200, [](const Context&) {});
    CoordsDrawerCfg cfg;
    const auto with = [&](std::uint32_t flags) {
        cfg.flags = flags;
        return paintGrid(cfg, converter, 200);
    };
    test::expectSame(with(0), blank);
    test::expectSame(with(0xFFFFFFC0), blank);

    const auto axisX = with(1);
    EXPECT_NE(axisX.at(5, 120), blank.at(0, 0));
    EXPECT_NE(axisX.at(195, 119), blank.at(0, 0));
    EXPECT_EQ(axisX.countPainted(), 2 * 200);
    const auto axisY = with(2);
    EXPECT_NE(axisY.at(60, 5), blank.at(0, 0));
    EXPECT_EQ(axisY.countPainted(), 2 * 200);
    const auto linesX = with(4);
    EXPECT_NE(linesX.at(159, 2), blank.at(0, 0)); // a dash of five painted, then five left out
    EXPECT_EQ(linesX.at(159, 7), blank.at(0, 0));
    EXPECT_EQ(linesX.countPainted(), 2 * 100) << "two lines in view";
    const auto linesY = with(8);
    EXPECT_NE(linesY.at(2, 19), blank.at(0, 0));
    EXPECT_EQ(linesY.at(7, 19), blank.at(0, 0));
    EXPECT_EQ(linesY.countPainted(), 2 * 100);
    const auto textX = with(16);
    const auto textY = with(32);
    EXPECT_GT(textX.countPainted(), 10);
    EXPECT_GT(textY.countPainted(), 10);
    EXPECT_NE(textX.bytes, textY.bytes);
}

TEST(CoordsDrawer, FlagsOfZeroStillStrokeAnEmptyPathAndLeaveNone) {
    const auto converter = makeConverter(200, {-3, 7, -4, 6});
    const auto context = Cairo::Context::create(test::makeSurface(200, 200));
    context->move_to(10, 10);
    context->line_to(20, 20);
    CoordsDrawerCfg cfg;
    cfg.flags = 0;
    CoordsDrawer drawer(cfg);
    drawer.converter = &converter;
    drawer.draw(context);
    EXPECT_FALSE(context->has_current_point());
}

TEST(CoordsDrawer, UsesItsConfiguration) {
    const auto converter = makeConverter(200, {-3, 7, -4, 6});
    CoordsDrawerCfg cfg;
    cfg.color = {255, 0, 0, 255};
    cfg.axisLineWidth = 6;
    cfg.flags = CoordsDrawerCfg::AxisX;
    const auto picture = paintGrid(cfg, converter, 200);
    EXPECT_EQ(picture.at(10, 117), (std::vector<int>{255, 0, 0, 255}));
    EXPECT_EQ(picture.countPainted(), 6 * 200);

    CoordsDrawerCfg moved;
    moved.flags = CoordsDrawerCfg::StepTextX;
    const auto before = paintGrid(moved, converter, 200);
    moved.stepTextXOffsetY = 60;
    EXPECT_NE(paintGrid(moved, converter, 200).bytes, before.bytes);
    moved.stepTextXOffsetY = 20;
    moved.fontSize = 20;
    EXPECT_NE(paintGrid(moved, converter, 200).bytes, before.bytes);
}

TEST(CoordsDrawer, AnAxisOutsideTheViewIsCut) {
    const auto converter = makeConverter(200, {3, 7, 4, 6});
    CoordsDrawerCfg cfg;
    cfg.flags = CoordsDrawerCfg::AxisX | CoordsDrawerCfg::AxisY;
    EXPECT_EQ(paintGrid(cfg, converter, 200).countPainted(), 0);
}

TEST(CoordsDrawer, AHeightWithoutASpanShowsTheOneLineAtZero) {
    const auto converter = makeConverter(300, {5, 5, 5, 5});
    Recorder drawer;
    drawer.converter = &converter;
    drawer.draw(Cairo::Context::create(test::makeSurface(300, 300)));
    EXPECT_TRUE(drawer.x.empty());
    EXPECT_EQ(drawer.textsY(), std::vector<std::string>{"0."});
}

TEST(CoordsDrawer, HostileLimitsEndInBoundedTime) {
    const float values[] = {
        0, 1, -1, 1e-40f, 1e30f, -1e30f, 3.4e38f, -3.4e38f, 2147483648.0f, notANumber, infinity, -infinity};
    for (float min : values)
        for (float max : values) {
            const auto converter = makeConverter(300, {min, max, min, max});
            Recorder drawer;
            drawer.converter = &converter;
            drawer.draw(Cairo::Context::create(test::makeSurface(300, 300)));
            EXPECT_LT(drawer.x.size() + drawer.y.size(), 100u) << min << " " << max;
        }
}

TEST(CoordsDrawer, HelpersGiveTheEndsOfTheOutermostAndTheMiddleLines) {
    const auto converter = makeConverter(300, {0, 10, -1, 9});
    CoordsDrawer drawer;
    drawer.converter = &converter;
    Zel::PointF from, to;
    const auto expectLine = [&](float fromX, float fromY, float toX, float toY) {
        EXPECT_FLOAT_EQ(from.x, fromX);
        EXPECT_FLOAT_EQ(from.y, fromY);
        EXPECT_FLOAT_EQ(to.x, toX);
        EXPECT_FLOAT_EQ(to.y, toY);
    };
    drawer._getFirstStepLineXPos(from, to); // -1 * 2
    expectLine(-60, 0, -60, 300);
    drawer._getLastStepLineXPos(from, to); // 6 * 2
    expectLine(360, 0, 360, 300);
    drawer._getCenterStepLineXPos(from, to);
    expectLine(0, 0, 0, 300);
    drawer._getFirstStepLineYPos(from, to); // trunc(-1 / 2 - 1) * 2 = -2
    expectLine(0, 330, 300, 330);
    drawer._getLastStepLineYPos(from, to); // trunc(9 / 2 + 1) * 2 = 10
    expectLine(0, -30, 300, -30);
    drawer._getCenterStepLineYPos(from, to);
    expectLine(0, 270, 300, 270);
}

TEST(CoordsDrawer, TheHookForAllAxesIsNeverCalled) {
    struct Watcher : CoordsDrawer {
        void _onDrawAxis(const Context&, Zel::PointF, Zel::PointF, Zel::PointF, Zel::PointF,
                         Zel::PointF) override {
            FAIL();
        }
    } drawer;

    const auto converter = makeConverter(200, {-3, 7, -4, 6});
    drawer.converter = &converter;
    const auto context = Cairo::Context::create(test::makeSurface(200, 200));
    drawer.draw(context);
    CoordsDrawer base;
    base._onDrawAxis(context, {}, {}, {}, {}, {});
    EXPECT_FALSE(context->has_current_point());
}
