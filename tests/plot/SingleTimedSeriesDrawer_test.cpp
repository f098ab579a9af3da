#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/SingleTimedSeriesDrawer.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

constexpr int width = 200;
constexpr int height = 120;

template <typename TConverter>
TConverter makeConverter(CoordsConverter::Border border) {
    TConverter converter;
    converter.widgetWidth = width;
    converter.widgetHeight = height;
    converter.setBorder(border);
    converter.recalc();
    return converter;
}

/// World units are pixels with y upward from the bottom.
const auto plain = makeConverter<StretchableCoordsConverter>({0, width, 0, height});
const auto proportional = makeConverter<ProportionalCoordsConverter>({-3, 3, -2, 2});

const float notANumber = std::nanf("");
const float endless = std::numeric_limits<float>::infinity();

/// One point each 10 milliseconds, the first at 10.
std::unique_ptr<Zel::TimedSeries> makeSeries(const std::vector<Zel::PointF>& points) {
    auto series = std::make_unique<Zel::TimedSeries>();
    series->color = {200, 30, 60, 160};
    for (const Zel::PointF& point : points)
        series->points.push_back({point, (series->points.size() + 1) * 10});
    return series;
}

test::Picture paintAt(unsigned long time, std::unique_ptr<Zel::TimedSeries> series,
                      const CoordsConverter& converter = plain) {
    SingleTimedSeriesDrawer drawer(std::move(series));
    drawer.setConverter(converter);
    drawer.setTime(time);
    return test::paint(width, height, [&](const Context& context) { drawer.draw(context); });
}

void bareSetup(cairo_t* cr) {
    cairo_set_line_width(cr, 1);
    cairo_set_source_rgba(cr, 200 / 255.0, 30 / 255.0, 60 / 255.0, 160 / 255.0);
}

void bareCurve(cairo_t* cr, const std::vector<Zel::PointF>& points, std::size_t count,
               const CoordsConverter& converter) {
    for (std::size_t i = 1; i < count; ++i) {
        cairo_move_to(cr, converter.getVisualX(points[i - 1].x), converter.getVisualY(points[i - 1].y));
        cairo_line_to(cr, converter.getVisualX(points[i].x), converter.getVisualY(points[i].y));
    }
    cairo_stroke(cr);
}

void bareTriangle(cairo_t* cr, const std::vector<Zel::PointF>& corners) {
    for (const Zel::PointF& corner : corners)
        cairo_line_to(cr, corner.x, corner.y);
    cairo_fill(cr);
}

/// The curve by bare calls and the arrow by its corners, in pixels.
test::Picture bare(const std::vector<Zel::PointF>& points, const std::vector<Zel::PointF>& corners,
                   const CoordsConverter& converter = plain) {
    return test::paint(width, height, [&](const Context& context) {
        bareSetup(context->cobj());
        bareCurve(context->cobj(), points, points.size(), converter);
        bareTriangle(context->cobj(), corners);
    });
}

std::vector<Zel::PointF> noise(std::size_t count) {
    std::mt19937 random(11);
    std::uniform_real_distribution<float> x(-3.5f, 3.5f);
    std::uniform_real_distribution<float> y(-2.5f, 2.5f);
    std::vector<Zel::PointF> points;
    while (points.size() < count)
        points.push_back({x(random), y(random)});
    return points;
}

} // namespace

TEST(SingleTimedSeriesDrawer, StartsWithThinLinesAndASmallArrow) {
    const SingleTimedSeriesDrawer drawer(makeSeries({}));
    EXPECT_EQ(drawer.lineWidth, 1.0f);
    EXPECT_EQ(drawer.arrowLength, 12.0f);
    EXPECT_EQ(drawer.arrowWidthFactor, 0.4f);
    EXPECT_EQ(drawer.converter, nullptr);
    EXPECT_EQ(drawer.drawArea, nullptr);
    EXPECT_EQ(drawer.iterator.getIt(), drawer.series->points.begin());
}

TEST(SingleTimedSeriesDrawer, PaintsNothingBeforeAPointIsReached) {
    EXPECT_EQ(paintAt(0, makeSeries({{20, 60}, {100, 60}})).countPainted(), 0);
    EXPECT_EQ(paintAt(9, makeSeries({{20, 60}, {100, 60}})).countPainted(), 0);

    auto fromZero = makeSeries({{20, 60}, {100, 60}});
    fromZero->points[0].time = 0;
    EXPECT_EQ(paintAt(0, std::move(fromZero)).countPainted(), 0);
}

TEST(SingleTimedSeriesDrawer, NeedsTwoPoints) {
    EXPECT_EQ(paintAt(100, makeSeries({})).countPainted(), 0);
    EXPECT_EQ(paintAt(100, makeSeries({{20, 60}})).countPainted(), 0);
}

TEST(SingleTimedSeriesDrawer, NeedsAConverter) {
    SingleTimedSeriesDrawer drawer(makeSeries({{20, 60}, {100, 60}}));
    drawer.setTime(20);
    EXPECT_EQ(
        test::paint(width, height, [&](const Context& context) { drawer.draw(context); }).countPainted(), 0);
}

TEST(SingleTimedSeriesDrawer, OfTheFirstPointAloneNothingIsSeen) {
    for (const CoordsConverter* converter :
         std::initializer_list<const CoordsConverter*>{&plain, &proportional})
        EXPECT_EQ(paintAt(10, makeSeries({{2, 1}, {1, 1}}), *converter).countPainted(), 0);
}

TEST(SingleTimedSeriesDrawer, PaintsTheCurveUpToTheTimeInSeparateSegments) {
    const std::vector<Zel::PointF> points = noise(200);
    for (std::size_t count : {2, 57, 200}) {
        SingleTimedSeriesDrawer drawer(makeSeries(points));
        drawer.setConverter(proportional);
        drawer.arrowLength = 0; // no area, no arrow
        drawer.setTime(count * 10 + 9);
        const auto expected = test::paint(width, height, [&](const Context& context) {
            bareSetup(context->cobj());
            bareCurve(context->cobj(), points, count, proportional);
        });
        test::expectSame(test::paint(width, height, [&](const Context& context) { drawer.draw(context); }),
                         expected);
        EXPECT_GT(expected.countPainted(), 20);
    }
}

TEST(SingleTimedSeriesDrawer, TheArrowPointsAlongTheLastSegmentAndTurnsAroundItsMiddle) {
    // Unturned: corners at 5.5 pixels behind the point and 4.8 above and below, the tip at 6.5 before it; the
    // middle is thus 1.5 pixels behind the point.
    const float x = 100;
    const float y = height - 60;
    test::expectSame(
        paintAt(20, makeSeries({{20, 60}, {100, 60}})), // to the right
        bare({{20, 60}, {100, 60}}, {{x - 5.5f, y - 4.8f}, {x - 5.5f, y + 4.8f}, {x + 6.5f, y}}));
    test::expectSame(
        paintAt(20, makeSeries({{180, 60}, {100, 60}})), // to the left
        bare({{180, 60}, {100, 60}}, {{x + 2.5f, y + 4.8f}, {x + 2.5f, y - 4.8f}, {x - 9.5f, y}}));
    const float middle = x - 1.5f;
    test::expectSame(
        paintAt(20, makeSeries({{100, 110}, {100, 60}})), // downward
        bare({{100, 110}, {100, 60}}, {{middle + 4.8f, y - 4}, {middle - 4.8f, y - 4}, {middle, y + 8}}));
    test::expectSame(
        paintAt(20, makeSeries({{100, 10}, {100, 60}})), // upward
        bare({{100, 10}, {100, 60}}, {{middle - 4.8f, y + 4}, {middle + 4.8f, y + 4}, {middle, y - 8}}));
}

TEST(SingleTimedSeriesDrawer, TheArrowIsPaintedOverTheCurveInTheSameColour) {
    const auto picture = paintAt(20, makeSeries({{20, 60}, {100, 60}}));
    const auto channel = [](int colour) { return colour * 160 / 255 + 255 * 95 / 255; };
    const std::vector<int> arrow = picture.at(97, height - 60 - 3); // beside the curve
    EXPECT_NEAR(arrow[0], channel(200), 1);
    EXPECT_NEAR(arrow[1], channel(30), 1);
    EXPECT_NEAR(arrow[2], channel(60), 1);
    EXPECT_LT(picture.at(97, height - 60)[1], arrow[1] - 5) << "where both lie it is darker";
}

TEST(SingleTimedSeriesDrawer, TheArrowMovesWithTheTime) {
    const std::vector<Zel::PointF> points = {{20, 60}, {60, 60}, {100, 60}};
    const float y = height - 60;
    SingleTimedSeriesDrawer drawer(makeSeries(points));
    drawer.setConverter(plain);
    const auto picture = [&] {
        return test::paint(width, height, [&](const Context& context) { drawer.draw(context); });
    };
    drawer.setTime(30);
    const auto atEnd = picture();
    drawer.setTime(29);
    test::expectSame(picture(),
                     bare({{20, 60}, {60, 60}}, {{54.5f, y - 4.8f}, {54.5f, y + 4.8f}, {66.5f, y}}));
    drawer.setTime(1000);
    test::expectSame(picture(), atEnd);
}

TEST(SingleTimedSeriesDrawer, AnArrowWithoutADirectionIsNotSeenAndSpoilsNothing) {
    // The same pixel twice, and coordinates that are no numbers or beyond all.
    const std::vector<std::vector<Zel::PointF>> all = {
        {{100, 60}, {100, 60}},
        {{100, 60}, {notANumber, 60}},
        {{100, 60}, {100, notANumber}},
        {{notANumber, 60}, {100, 60}},
        {{100, 60}, {endless, 60}},
        {{100, 60}, {100, endless}},
        {{100, 60}, {-endless, -endless}},
    };
    for (const std::vector<Zel::PointF>& points : all) {
        SingleTimedSeriesDrawer drawer(makeSeries(points));
        drawer.setConverter(plain);
        drawer.setTime(20);
        const auto arrow = test::paint(width, height, [&](const Context& context) {
            context->set_source_rgb(0, 0, 0);
            drawer._drawPointArrow(context);
            EXPECT_EQ(cairo_status(context->cobj()), CAIRO_STATUS_SUCCESS);
            EXPECT_FALSE(context->has_current_point()) << "nothing is left for the next fill";
        });
        EXPECT_EQ(arrow.countPainted(), 0);

        // What is painted afterwards is painted as ever.
        const auto square = [](const Context& context) {
            context->rectangle(3, 3, 5, 5);
            context->fill();
        };
        const auto after = test::paint(width, height, [&](const Context& context) {
            drawer._drawPointArrow(context);
            square(context);
        });
        test::expectSame(after, test::paint(width, height, square));
    }
}

TEST(SingleTimedSeriesDrawer, LeavesNoPathBehind) {
    SingleTimedSeriesDrawer drawer(makeSeries({{20, 60}, {100, 60}, {100, 60}}));
    drawer.setConverter(plain);
    for (unsigned long time : {0, 10, 20, 30}) {
        drawer.setTime(time);
        test::paint(width, height, [&](const Context& context) {
            drawer.draw(context);
            EXPECT_FALSE(context->has_current_point()) << time;
        });
    }
}

TEST(SingleTimedSeriesDrawer, FollowsAnyConverter) {
    struct Mirror : StretchableCoordsConverter {
        float getVisualX(float x) const override { return width - x; }
    };

    const auto mirror = makeConverter<Mirror>({0, width, 0, height});
    const float y = height - 60;
    test::expectSame(paintAt(20, makeSeries({{180, 60}, {100, 60}}), mirror),
                     bare({{20, 60}, {100, 60}}, {{94.5f, y - 4.8f}, {94.5f, y + 4.8f}, {106.5f, y}}));
}

TEST(SingleTimedSeriesDrawer, TakesTheAngleOfADirectionAllAround) {
    const auto angle = SingleTimedSeriesDrawer::_getAngleBetweenPoints;
    constexpr float quarter = static_cast<float>(M_PI / 4);
    EXPECT_FLOAT_EQ(angle(1, 1, 2, 1), 0);
    EXPECT_FLOAT_EQ(angle(1, 1, 2, 2), quarter);
    EXPECT_FLOAT_EQ(angle(1, 1, 1, 2), 2 * quarter);
    EXPECT_FLOAT_EQ(angle(1, 1, 1, 0), -2 * quarter);
    EXPECT_FLOAT_EQ(angle(1, 1, 2, 0), -quarter);
    EXPECT_FLOAT_EQ(angle(1, 1, 0, 1), -4 * quarter);
    EXPECT_FLOAT_EQ(angle(1, 1, 0, 2), -5 * quarter);
    EXPECT_FLOAT_EQ(angle(1, 1, 0, 0), -3 * quarter);
    EXPECT_TRUE(std::isnan(angle(1, 1, 1, 1)));
}

TEST(SingleTimedSeriesDrawer, TurnsAroundACentre) {
    EXPECT_EQ(SingleTimedSeriesDrawer::_toRadians(180), static_cast<float>(M_PI));
    EXPECT_EQ(SingleTimedSeriesDrawer::_toRadians(-45), static_cast<float>(-M_PI / 4));
    float x = 13;
    float y = 20;
    SingleTimedSeriesDrawer::_rotate(x, y, 10, 20, static_cast<float>(M_PI / 2));
    EXPECT_FLOAT_EQ(x, 10);
    EXPECT_FLOAT_EQ(y, 23) << "y grows downward, so this is clockwise";
    SingleTimedSeriesDrawer::_rotate(x, y, 10, 20, static_cast<float>(M_PI / 6));
    EXPECT_FLOAT_EQ(x, 8.5f);
    EXPECT_FLOAT_EQ(y, 20 + 3 * std::sqrt(3.0f) / 2);
}

TEST(SingleTimedSeriesDrawer, AsksForARepaintOnlyWhenTheTimeIsAnother) {
    Gtk::DrawingArea widget;
    test::OffscreenHost host(widget, 50, 50);
    int repaints = 0;
    widget.signal_draw().connect(
        [&](const Context&) {
            ++repaints;
            return false;
        },
        false);
    SingleTimedSeriesDrawer drawer(makeSeries({{20, 60}, {100, 60}}));
    drawer.setDrawArea(widget);
    const auto repaintsOf = [&](unsigned long time) {
        test::settle();
        repaints = 0;
        drawer.setTime(time);
        test::settle();
        return repaints;
    };
    EXPECT_EQ(repaintsOf(0), 0);
    EXPECT_EQ(repaintsOf(10), 1);
    EXPECT_EQ(repaintsOf(10), 0);
    EXPECT_EQ(repaintsOf(11), 1) << "even if no point was passed";
    EXPECT_EQ(repaintsOf(0), 1);
}

TEST(SingleTimedSeriesDrawer, RefusesNull) {
    try {
        SingleTimedSeriesDrawer drawer(nullptr);
        FAIL();
    } catch (const char* text) {
        EXPECT_STREQ(text, "SingleTimedSeriesDrawer");
    }
}
