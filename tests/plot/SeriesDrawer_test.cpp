#include "support/Pictures.h"

#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <cmath>
#include <list>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

constexpr int width = 160;
constexpr int height = 100;

template <typename TConverter>
TConverter makeConverter() {
    TConverter converter;
    converter.widgetWidth = width;
    converter.widgetHeight = height;
    converter.setBorder({0, 16, -5, 5});
    converter.offset = {3, 5, 7, 2};
    converter.recalc();
    return converter;
}

const auto stretchable = makeConverter<StretchableCoordsConverter>();
const auto proportional = makeConverter<ProportionalCoordsConverter>();

test::Picture paintSeries(BaseFragmentableDrawer&& drawer, const Zel::Series& series,
                          const CoordsConverter& converter = stretchable) {
    drawer.converter = &converter;
    return test::paint(width, height,
                       [&](const Context& context) { drawer.drawFragmentable(context, series); });
}

Zel::Series analog(std::vector<Zel::PointF> points) {
    Zel::Series series;
    series.points = std::move(points);
    series.color = {200, 30, 60, 128};
    series.thickness = 3;
    return series;
}

Zel::Series binary(std::vector<Zel::PointF> points) {
    Zel::Series series = analog(std::move(points));
    series.type = Zel::SeriesType::Binary;
    series.index = 2;
    return series;
}

std::vector<Zel::PointF> noise(int count) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> y(-6, 6);
    std::vector<Zel::PointF> points;
    for (int i = 0; i < count; ++i)
        points.push_back({static_cast<float>(i) * 16 / static_cast<float>(count - 1), y(random)});
    return points;
}

/// The same curve made by bare calls, with every point through the virtual operations.
test::Picture bareCurve(const Zel::Series& series, const CoordsConverter& converter) {
    return test::paint(width, height, [&](const Context& context) {
        cairo_t* cr = context->cobj();
        cairo_set_line_width(cr, series.thickness);
        cairo_set_source_rgba(cr, series.color.r / 255.0, series.color.g / 255.0, series.color.b / 255.0,
                              series.color.a / 255.0);
        cairo_move_to(cr, converter.getVisualX(series.points[0].x), converter.getVisualY(series.points[0].y));
        for (std::size_t i = 1; i < series.points.size(); ++i) {
            const double x = converter.getVisualX(series.points[i].x);
            const double y = converter.getVisualY(series.points[i].y);
            cairo_line_to(cr, x, y);
            cairo_move_to(cr, x, y);
        }
        cairo_stroke(cr);
    });
}

struct Run {
    bool isOn;
    float from;
    float to;
};

/// Rows made by bare calls from a list of runs.
test::Picture bareRow(const Zel::Series& series, const std::vector<Run>& runs,
                      const CoordsConverter& converter = stretchable) {
    return test::paint(width, height, [&](const Context& context) {
        cairo_t* cr = context->cobj();
        const double r = series.color.r / 255.0, g = series.color.g / 255.0, b = series.color.b / 255.0;
        for (const Run& run : runs) {
            const double from = converter.getVisualX(run.from);
            const double to = converter.getVisualX(run.to);
            const double low = converter.getOneVisualY(series.index, false);
            const double high = converter.getOneVisualY(series.index, true);
            const double middle = converter.getZeroVisualY(series.index);
            cairo_set_line_width(cr, series.thickness);
            cairo_set_source_rgba(cr, r, g, b, series.color.a / 255.0);
            if (!run.isOn) {
                cairo_move_to(cr, from, middle);
                cairo_line_to(cr, to, middle);
                cairo_stroke(cr);
                continue;
            }
            cairo_move_to(cr, from, low);
            cairo_line_to(cr, to, low);
            cairo_line_to(cr, to, high);
            cairo_line_to(cr, from, high);
            cairo_line_to(cr, from, low); // not closed: the last corner has no join
            cairo_stroke_preserve(cr);
            cairo_set_source_rgba(cr, r, g, b, 0.4980392156862745);
            cairo_fill(cr);
        }
    });
}

void expectBlank(const test::Picture& picture) {
    EXPECT_EQ(picture.countPainted(), 0);
}

struct OtherFragment : Zel::IFragmentable {
    const std::string& getName() const override { return name; }

    Zel::Color getColor() const override { return {}; }

    std::string name;
};

const float notANumber = std::nanf("");

} // namespace

TEST(AnalogSeriesDrawer, PaintsEachSegmentAsAPathElementOfItsOwn) {
    const Zel::Series series = analog(noise(40));
    test::expectSame(paintSeries(AnalogSeriesDrawer(), series), bareCurve(series, stretchable));
    test::expectSame(paintSeries(AnalogSeriesDrawer(), series, proportional),
                     bareCurve(series, proportional));
}

TEST(AnalogSeriesDrawer, HasNoJoinsBetweenSegments) {
    // A sharp peak with a thick line: a joined path would have a mitre above the peak.
    Zel::Series series = analog({{2, -4}, {8, 0}, {14, -4}});
    series.thickness = 12;
    const auto joined = test::paint(width, height, [&](const Context& context) {
        context->set_line_width(12);
        context->set_source_rgba(200 / 255.0, 30 / 255.0, 60 / 255.0, 128 / 255.0);
        for (const Zel::PointF& p : series.points)
            context->line_to(stretchable.getVisualX(p.x), stretchable.getVisualY(p.y));
        context->stroke();
    });
    EXPECT_NE(paintSeries(AnalogSeriesDrawer(), series).bytes, joined.bytes);
}

TEST(AnalogSeriesDrawer, DropsNoPointOfADenseCurve) {
    const Zel::Series series = analog(noise(20000));
    test::expectSame(paintSeries(AnalogSeriesDrawer(), series), bareCurve(series, stretchable));
}

TEST(AnalogSeriesDrawer, NeedsTwoPoints) {
    expectBlank(paintSeries(AnalogSeriesDrawer(), analog({})));
    expectBlank(paintSeries(AnalogSeriesDrawer(), analog({{8, 0}})));
    EXPECT_GT(paintSeries(AnalogSeriesDrawer(), analog({{2, 0}, {14, 1}})).countPainted(), 100);
}

TEST(AnalogSeriesDrawer, DeclinesBinarySeries) {
    expectBlank(paintSeries(AnalogSeriesDrawer(), binary({{2, 0}, {14, 1}})));
}

TEST(AnalogSeriesDrawer, WithAConverterOfAnotherKindLeavesOutAllButTheFirstPoint) {
    struct Other : CoordsConverter {
        float getVisualX(float x) const override { return x; }

        float getVisualY(float y) const override { return y; }

        float getZeroVisualY(unsigned long) const override { return 0; }

        float getOneVisualY(unsigned long, bool) const override { return 0; }

        float getRealX(float v) const override { return v; }

        float getRealY(float v) const override { return v; }

        float getCenterVisualX() const override { return 0; }

        float getCenterVisualY() const override { return 0; }
    } other;

    expectBlank(paintSeries(AnalogSeriesDrawer(), analog({{2, 2}, {14, 14}}), other));
}

TEST(AnalogSeriesDrawer, TakesTheColourAtEachPaint) {
    Zel::Series series = analog({{0, 0}, {16, 0}});
    series.color = {255, 0, 0, 255};
    AnalogSeriesDrawer drawer;
    drawer.converter = &stretchable;
    const auto paintAgain = [&] {
        return test::paint(width, height, [&](const Context& context) { drawer._draw(context, series); });
    };
    const int y = static_cast<int>(stretchable.getVisualY(0));
    EXPECT_EQ(paintAgain().at(80, y), (std::vector<int>{255, 0, 0, 255}));
    series.color = {0, 0, 255, 255};
    EXPECT_EQ(paintAgain().at(80, y), (std::vector<int>{0, 0, 255, 255}));
}

TEST(AnalogSeriesDrawer, LeavesNoPathBehind) {
    AnalogSeriesDrawer drawer;
    drawer.converter = &stretchable;
    const auto context = Cairo::Context::create(test::makeSurface(width, height));
    drawer._draw(context, analog(noise(10)));
    EXPECT_FALSE(context->has_current_point());
}

TEST(BinarySeriesDrawer, PaintsABoxForEachRunOfOnAndALineForEachRunOfOff) {
    const Zel::Series series = binary({{1, 0}, {2, 0}, {4, 1}, {5, 1}, {8, -3}, {9, 0}, {12, 0.5f}, {15, 1}});
    test::expectSame(paintSeries(BinarySeriesDrawer(), series),
                     bareRow(series, {{false, 1, 4}, {true, 4, 9}, {false, 9, 12}, {true, 12, 15}}));
}

TEST(BinarySeriesDrawer, ASeriesThatIsOnThroughoutIsOneBox) {
    const Zel::Series series = binary({{1, 1}, {7, 1}, {15, 2}});
    test::expectSame(paintSeries(BinarySeriesDrawer(), series), bareRow(series, {{true, 1, 15}}));
}

TEST(BinarySeriesDrawer, ATransitionAtTheLastPointEndsTheRunAndPaintsNothingAfterIt) {
    const Zel::Series series = binary({{1, 0}, {7, 0}, {15, 1}});
    test::expectSame(paintSeries(BinarySeriesDrawer(), series), bareRow(series, {{false, 1, 15}}));
}

TEST(BinarySeriesDrawer, AnEmptyRunPaintsNothing) {
    expectBlank(paintSeries(BinarySeriesDrawer(), binary({{3, 1}, {3, 1}})));
    expectBlank(paintSeries(BinarySeriesDrawer(), binary({{3, 0}, {9, 0}, {3, 0}})));
}

TEST(BinarySeriesDrawer, WhatIsNotANumberIsOn) {
    const Zel::Series series = binary({{1, notANumber}, {5, notANumber}, {9, 0}, {15, 0}});
    test::expectSame(paintSeries(BinarySeriesDrawer(), series),
                     bareRow(series, {{true, 1, 9}, {false, 9, 15}}));
}

TEST(BinarySeriesDrawer, AnEndThatIsNotANumberDiffersFromTheStart) {
    struct Counter : BinarySeriesDrawer {
        using BinarySeriesDrawer::BinarySeriesDrawer;
    } drawer;

    drawer.converter = &stretchable;
    const auto context = Cairo::Context::create(test::makeSurface(width, height));
    context->set_line_width(99);
    // Painting the run strokes and so clears the path; leaving it out would keep the point.
    context->move_to(1, 1);
    drawer._draw(context, binary({{notANumber, 0}, {notANumber, 0}}));
    EXPECT_FALSE(context->has_current_point());
}

TEST(BinarySeriesDrawer, RowsFollowTheIndex) {
    Zel::Series series = binary({{1, 1}, {15, 1}});
    for (std::uint64_t row : {0, 1, 4}) {
        series.index = row;
        test::expectSame(paintSeries(BinarySeriesDrawer(), series), bareRow(series, {{true, 1, 15}}));
    }
}

TEST(BinarySeriesDrawer, AnOffRunIsTranslucentOnceAndABoxIsFilledWithHalf) {
    Zel::Series series = binary({{1, 1}, {15, 1}});
    series.color = {0, 0, 0, 255};
    series.thickness = 1;
    const auto picture = paintSeries(BinarySeriesDrawer(), series);
    const int y = static_cast<int>(stretchable.getZeroVisualY(2));
    EXPECT_EQ(picture.at(80, y), (std::vector<int>{128, 128, 128, 255})); // 127/255 of black on white
}

TEST(BinarySeriesDrawer, NeedsTwoPointsAndDeclinesAnalogSeries) {
    expectBlank(paintSeries(BinarySeriesDrawer(), binary({{1, 1}})));
    expectBlank(paintSeries(BinarySeriesDrawer(), binary({})));
    expectBlank(paintSeries(BinarySeriesDrawer(), analog({{1, 1}, {15, 1}})));
}

TEST(BinarySeriesDrawer, CollapsesToTheTopEdgeOnAProportionalConverter) {
    const Zel::Series series = binary({{1, 1}, {15, 1}});
    test::expectSame(paintSeries(BinarySeriesDrawer(), series, proportional),
                     bareRow(series, {{true, 1, 15}}, proportional));
    EXPECT_EQ(proportional.getZeroVisualY(2), 0);
}

TEST(BinarySeriesDrawer, RepaintsTheBinariesOfItsAreaInListOrder) {
    Zel::Series first = binary({});
    Zel::Series curve = analog({});
    Zel::Series second = binary({});
    OtherFragment other;
    std::vector<std::string> heard;
    first.changed.connect([&] { heard.push_back("first"); });
    curve.changed.connect([&] { heard.push_back("curve"); });
    second.changed.connect([&] { heard.push_back("second"); });
    other.changed.connect([&] { heard.push_back("other"); });

    BinarySeriesDrawer drawer;
    std::list<const Zel::IFragmentable*> all{&second, &other, &curve, &first};
    drawer.fragmentables = &all;
    // A listener may take itself out of the list.
    second.changed.connect([&] { all.clear(); });
    drawer._callRedraw();
    EXPECT_EQ(heard, (std::vector<std::string>{"second", "first"}));
}

TEST(BinarySeriesDrawer, WithoutAWidgetSaysSo) {
    BinarySeriesDrawer drawer;
    try {
        drawer.initDrawArea();
        FAIL();
    } catch (const char* text) {
        EXPECT_STREQ(text, "getDrawArea");
    }
}

TEST(BinarySeriesDrawer, WatchesThePointerOfItsWidget) {
    Gtk::DrawingArea widget;
    BinarySeriesDrawer drawer;
    drawer.drawArea = &widget;
    drawer.initDrawArea();
    EXPECT_TRUE(widget.get_events() & Gdk::ENTER_NOTIFY_MASK);
    EXPECT_TRUE(widget.get_events() & Gdk::LEAVE_NOTIFY_MASK);
}

TEST(BinarySeriesDrawer, HelpersReadTheSeries) {
    const BinarySeriesDrawer drawer;
    EXPECT_EQ(drawer._getSeriesThickness(binary({})), 3);
    EXPECT_EQ(drawer._getFirstNonZeroY(binary({{0, 0}, {1, 0}, {2, 2.5f}, {3, 4}})), 2.5f);
    EXPECT_TRUE(std::isnan(drawer._getFirstNonZeroY(binary({{0, 0}, {1, notANumber}}))));
    EXPECT_EQ(drawer._getFirstNonZeroY(binary({{0, 0}})), 0);
    EXPECT_EQ(drawer._getFirstNonZeroY(binary({})), 0);
}

TEST(SeriesDrawer, IsADrawerOfSeries) {
    static_assert(std::is_base_of_v<FragmentableDrawer<Zel::Series>, SeriesDrawer>);
    static_assert(sizeof(SeriesDrawer) == sizeof(FragmentableDrawer<Zel::Series>));
    static_assert(sizeof(AnalogSeriesDrawer) == sizeof(SeriesDrawer));
    static_assert(sizeof(BinarySeriesDrawer) == sizeof(SeriesDrawer));
    OtherFragment other;
    AnalogSeriesDrawer drawer;
    drawer.converter = &stretchable;
    expectBlank(
        test::paint(width, height, [&](const Context& context) { drawer.drawFragmentable(context, other); }));
}
