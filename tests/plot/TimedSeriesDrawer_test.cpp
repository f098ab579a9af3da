#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/CounterControls.h>
#include <ZelCommonView/plot/TimedSeriesDrawer.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;
using Heard = std::vector<std::string>;

constexpr int width = 200;
constexpr int height = 120;

StretchableCoordsConverter makeConverter(CoordsConverter::Border border) {
    StretchableCoordsConverter converter;
    converter.widgetWidth = width;
    converter.widgetHeight = height;
    converter.setBorder(border);
    converter.recalc();
    return converter;
}

const auto converter = makeConverter({0, width, 0, height});
const auto otherConverter = makeConverter({-width, width, 0, height});

std::unique_ptr<Zel::TimedSeries> makeSeries(float y, const std::vector<std::uint64_t>& times) {
    auto series = std::make_unique<Zel::TimedSeries>();
    for (std::uint64_t time : times)
        series->points.push_back({{20 + 30 * static_cast<float>(series->points.size()), y}, time});
    return series;
}

/// A drawer on a draw area, as its host sets it up.
struct Hosted {
    Hosted() {
        drawer.converter = &converter;
        drawer.drawArea = &widget;
        drawer.initDrawArea();
    }

    test::Picture picture() {
        return test::paint(width, height, [&](const Context& context) { drawer.draw(context); });
    }

    std::vector<long> reached() const {
        std::vector<long> counts;
        for (const SingleTimedSeriesDrawer& single : drawer.drawers)
            counts.push_back(single.iterator.getIt() - single.series->points.begin());
        return counts;
    }

    Gtk::DrawingArea widget;
    TimedSeriesDrawer drawer;
};

void expectThrows(TimedSeriesDrawer& drawer, std::unique_ptr<Zel::TimedSeries> series, const char* expected) {
    try {
        drawer.addSeries(std::move(series));
        FAIL() << "nothing was thrown";
    } catch (const char* text) {
        EXPECT_STREQ(text, expected);
    }
}

} // namespace

TEST(TimedSeriesDrawer, BeginsWithoutATrajectory) {
    TimedSeriesDrawer drawer;
    EXPECT_EQ(drawer.maxDuration, 0u);
    EXPECT_TRUE(drawer.drawers.empty());
    EXPECT_EQ(&drawer.getCounter(), &drawer.counter);
    EXPECT_EQ(drawer.getCounter().getMax(), 0u);
    drawer.drawerConverterChanged.emit();
    EXPECT_EQ(test::paint(9, 9, [&](const Context& context) { drawer.draw(context); }).countPainted(), 0);
}

TEST(TimedSeriesDrawer, TheLongestTrajectoryIsTheEndOfTheClock) {
    Hosted hosted;
    Heard heard;
    hosted.drawer.getCounter().maxChanged.connect(
        [&](unsigned long max) { heard.push_back(std::to_string(max)); });
    hosted.drawer.addSeries(makeSeries(60, {0, 10, 20}));
    hosted.drawer.addSeries(makeSeries(50, {0, 15}));
    hosted.drawer.addSeries(makeSeries(50, {}));
    hosted.drawer.addSeries(makeSeries(50, {0, 20}));
    hosted.drawer.addSeries(makeSeries(40, {5, 40, 30})); // the largest, wherever it stands
    EXPECT_EQ(heard, (Heard{"20", "40"}));
    EXPECT_EQ(hosted.drawer.maxDuration, 40u);
    EXPECT_EQ(hosted.drawer.drawers.size(), 5u);
}

TEST(TimedSeriesDrawer, ATrajectoryAllAtTime0NeverAdvances) {
    Hosted hosted;
    hosted.drawer.addSeries(makeSeries(60, {0, 0}));
    hosted.drawer.getCounter().manager.tick.emit(100);
    EXPECT_EQ(hosted.drawer.getCounter().getMax(), 0u);
    EXPECT_EQ(hosted.reached(), (std::vector<long>{0}));
    EXPECT_EQ(hosted.picture().countPainted(), 0);
}

TEST(TimedSeriesDrawer, TheClockMovesAllTrajectories) {
    Hosted hosted;
    hosted.drawer.addSeries(makeSeries(60, {0, 100, 200, 300}));
    hosted.drawer.addSeries(makeSeries(30, {50, 150}));
    SeriesTimeCounter& clock = hosted.drawer.getCounter();
    EXPECT_EQ(hosted.reached(), (std::vector<long>{0, 0}));
    clock.manager.tick.emit(100);
    EXPECT_EQ(hosted.reached(), (std::vector<long>{2, 1}));
    clock.manager.tick.emit(100);
    EXPECT_EQ(hosted.reached(), (std::vector<long>{3, 2})) << "the shorter one has run out of points";
    clock.manager.tick.emit(100);
    EXPECT_EQ(hosted.reached(), (std::vector<long>{4, 2}));
    clock.manager.tick.emit(100);
    EXPECT_EQ(hosted.reached(), (std::vector<long>{1, 0})) << "from the start, where time 0 is reached now";
}

TEST(TimedSeriesDrawer, PaintsInTheOrderOfAddingWithoutSavingTheContext) {
    Hosted hosted;
    auto below = makeSeries(60, {10, 20, 30});
    below->color = {255, 0, 0, 255};
    auto above = makeSeries(60, {10, 20, 30});
    above->color = {0, 0, 255, 255};
    hosted.drawer.addSeries(std::move(below));
    hosted.drawer.addSeries(std::move(above));
    hosted.drawer.getCounter().setTime(30);
    EXPECT_EQ(hosted.picture().at(80, height - 60), (std::vector<int>{0, 0, 255, 255}));
    test::paint(width, height, [&](const Context& context) {
        context->set_line_width(5);
        hosted.drawer.draw(context);
        EXPECT_EQ(context->get_line_width(), 1);
    });
}

TEST(TimedSeriesDrawer, ANewConverterReachesAllTrajectories) {
    Hosted hosted;
    hosted.drawer.addSeries(makeSeries(60, {10, 20}));
    hosted.drawer.addSeries(makeSeries(30, {10, 20}));
    hosted.drawer.getCounter().setTime(20);
    for (const SingleTimedSeriesDrawer& single : hosted.drawer.drawers)
        EXPECT_EQ(single.converter, &converter);
    hosted.drawer.converter = &otherConverter;
    hosted.drawer.drawerConverterChanged.emit();
    for (const SingleTimedSeriesDrawer& single : hosted.drawer.drawers)
        EXPECT_EQ(single.converter, &otherConverter);
    EXPECT_EQ(hosted.picture().at(20, height - 60), (std::vector<int>{255, 255, 255, 255}));
    hosted.drawer.converter = nullptr;
    hosted.drawer.drawerConverterChanged.emit(); // nothing to pass on
}

TEST(TimedSeriesDrawer, WithoutADrawAreaSaysSoAndBearsWhatFollows) {
    TimedSeriesDrawer drawer;
    expectThrows(drawer, makeSeries(60, {10, 20}), "getDrawArea");
    EXPECT_EQ(drawer.maxDuration, 20u) << "the clock was set before";
    EXPECT_EQ(drawer.drawers.size(), 1u);
    drawer.getCounter().setTime(15);
    const auto paint = [&] {
        return test::paint(width, height, [&](const Context& context) { drawer.draw(context); });
    };
    EXPECT_EQ(paint().countPainted(), 0);
    // A host that comes late shows it.
    drawer.converter = &converter;
    drawer.drawerConverterChanged.emit();
    drawer.getCounter().setTime(20);
    EXPECT_GT(paint().countPainted(), 0);
}

TEST(TimedSeriesDrawer, WithADrawAreaButNoConverterWaitsForIt) {
    Gtk::DrawingArea widget;
    TimedSeriesDrawer drawer;
    drawer.drawArea = &widget;
    drawer.addSeries(makeSeries(60, {10, 20}));
    drawer.getCounter().setTime(20);
    EXPECT_EQ(test::paint(9, 9, [&](const Context& context) { drawer.draw(context); }).countPainted(), 0);
}

TEST(TimedSeriesDrawer, RefusesNull) {
    Hosted hosted;
    expectThrows(hosted.drawer, nullptr, "addSeries");
    EXPECT_TRUE(hosted.drawer.drawers.empty());
}

TEST(TimedSeriesDrawer, WithoutTrajectoriesTheClockStandsAt0) {
    Hosted hosted;
    hosted.drawer.addSeries(makeSeries(60, {0, 100}));
    hosted.drawer.addSeries(makeSeries(60, {0, 200}));
    SeriesTimeCounter& clock = hosted.drawer.getCounter();
    clock.setTime(150);
    Heard heard;
    clock.timeChanged.connect([&](unsigned long time) { heard.push_back("time " + std::to_string(time)); });
    clock.maxChanged.connect([&](unsigned long max) { heard.push_back("max " + std::to_string(max)); });
    hosted.drawer.deleteSeries();
    EXPECT_EQ(heard, (Heard{"time 0", "max 0"}));
    EXPECT_EQ(hosted.drawer.maxDuration, 0u);
    EXPECT_TRUE(hosted.drawer.drawers.empty());
    clock.manager.tick.emit(100);
    EXPECT_EQ(clock.currentTime, 0u);
    EXPECT_EQ(hosted.picture().countPainted(), 0);

    hosted.drawer.addSeries(makeSeries(60, {0, 50})); // a shorter one counts again
    EXPECT_EQ(clock.getMax(), 50u);
}

TEST(TimedSeriesDrawer, AListenerToTheClockMayDeleteTheTrajectories) {
    Hosted hosted;
    hosted.drawer.addSeries(makeSeries(60, {0, 100}));
    hosted.drawer.getCounter().timeChanged.connect([&](unsigned long) { hosted.drawer.deleteSeries(); });
    hosted.drawer.getCounter().setTime(50);
    EXPECT_TRUE(hosted.drawer.drawers.empty());
    EXPECT_EQ(hosted.drawer.getCounter().currentTime, 0u);
}

TEST(TimedSeriesDrawer, AListenerToTheClockMayDestroyTheDrawer) {
    Gtk::DrawingArea widget;
    auto drawer = std::make_unique<TimedSeriesDrawer>();
    drawer->drawArea = &widget;
    drawer->addSeries(makeSeries(60, {0, 100}));
    drawer->getCounter().timeChanged.connect([&](unsigned long) { drawer.reset(); });
    drawer->getCounter().manager._onSynced(100);
    EXPECT_EQ(drawer, nullptr);

    drawer = std::make_unique<TimedSeriesDrawer>();
    drawer->drawArea = &widget;
    drawer->getCounter().maxChanged.connect([&](unsigned long) { drawer.reset(); });
    drawer->addSeries(makeSeries(60, {0, 100}));
    EXPECT_EQ(drawer, nullptr);
}

TEST(TimedSeriesDrawer, EndsWithItsSlotsInEitherOrderWithControls) {
    auto drawer = std::make_unique<TimedSeriesDrawer>();
    EXPECT_EQ(drawer->drawerConverterChanged.size(), 1u);
    EXPECT_EQ(drawer->getCounter().timeChanged.size(), 1u);
    auto controls = std::make_unique<CounterControls>(drawer->getCounter());
    drawer.reset(); // the clock goes first, as in a host that owns the drawer by its draw area
    controls->getTimeSlider().set_value(0);
    controls->getRunButton().clicked();
    controls.reset();

    drawer = std::make_unique<TimedSeriesDrawer>();
    controls = std::make_unique<CounterControls>(drawer->getCounter());
    controls.reset();
    EXPECT_EQ(drawer->getCounter().timeChanged.size(), 1u);
    drawer.reset();
    test::wait(250); // ticks that were on their way
}

TEST(TimedSeriesDrawer, ReplaysByItself) {
    Hosted hosted;
    test::OffscreenHost host(hosted.widget, width, height);
    int repaints = 0;
    hosted.widget.signal_draw().connect(
        [&](const Context& context) {
            ++repaints;
            hosted.drawer.draw(context);
            return false;
        },
        false);
    hosted.drawer.addSeries(makeSeries(60, {0, 200, 400, 60000}));
    test::settle();
    repaints = 0;
    ASSERT_TRUE(test::waitFor([&] { return hosted.reached() == std::vector<long>{3}; }));
    EXPECT_GE(repaints, 2);
    hosted.drawer.getCounter().setIsPaused(true);
    test::settle();
    repaints = 0;
    test::wait(250);
    EXPECT_EQ(repaints, 0);
}
