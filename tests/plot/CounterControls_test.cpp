#include "support/Hands.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/plot/CounterControls.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using ZelView::CounterControls;
using ZelView::SeriesTimeCounter;
using Heard = std::vector<std::string>;

/// A window as a host would make it.
struct Host {
    explicit Host(CounterControls& controls) {
        grid.attach(controls.getRunButton(), 0, 0, 1, 1);
        grid.attach(controls.getSpeedSlider(), 0, 1, 1, 1);
        grid.attach(controls.getTimeSlider(), 0, 2, 1, 1);
        controls.getTimeSlider().set_size_request(400, -1);
        window.add(grid);
        window.show_all_children();
        test::present(window);
    }

    Gtk::Window window;
    Gtk::Grid grid;
};

double lowerOf(Gtk::Scale& slider) {
    return slider.get_adjustment()->get_lower();
}

double upperOf(Gtk::Scale& slider) {
    return slider.get_adjustment()->get_upper();
}

} // namespace

TEST(CounterControls, SetTheSlidersUpByTheClock) {
    SeriesTimeCounter clock;
    clock.setMax(5000);
    clock.setTime(700);
    clock.setSpeed(2.5f);
    CounterControls controls(clock);
    EXPECT_EQ(lowerOf(controls.getSpeedSlider()), 0.1);
    EXPECT_EQ(upperOf(controls.getSpeedSlider()), 10.0);
    EXPECT_EQ(controls.getSpeedSlider().get_value(), 2.5);
    EXPECT_EQ(controls.getTimeSlider().get_digits(), 0);
    EXPECT_EQ(lowerOf(controls.getTimeSlider()), 0);
    EXPECT_EQ(upperOf(controls.getTimeSlider()), 5000);
    EXPECT_EQ(controls.getTimeSlider().get_value(), 0) << "until the next change of the time";
    EXPECT_EQ(clock.currentTime, 700u);
}

TEST(CounterControls, LetTheClockRun) {
    SeriesTimeCounter clock;
    clock.setIsPaused(true);
    Heard heard;
    clock.pausedChanged.connect([&](bool paused) { heard.push_back(paused ? "paused" : "running"); });
    CounterControls controls(clock);
    EXPECT_FALSE(clock.getIsPaused());
    EXPECT_EQ(heard, Heard{"running"});
    EXPECT_EQ(controls.getRunButton().get_label(), "Пауза");
}

TEST(CounterControls, TheButtonReadsTheSameInBothLanguages) {
    for (int language : {0, 1}) {
        lng::language = language;
        SeriesTimeCounter clock;
        CounterControls controls(clock);
        EXPECT_EQ(controls.getRunButton().get_label(), "Пауза");
        clock.setIsPaused(true);
        EXPECT_EQ(controls.getRunButton().get_label(), "Старт");
        clock.setIsPaused(false);
        EXPECT_EQ(controls.getRunButton().get_label(), "Пауза");
    }
    lng::language = 0;
}

TEST(CounterControls, ASpeedBeyondTheSliderStaysTheClocks) {
    SeriesTimeCounter clock;
    clock.setSpeed(40);
    CounterControls controls(clock);
    EXPECT_EQ(controls.getSpeedSlider().get_value(), 10);
    EXPECT_EQ(clock.getSpeed(), 40);
}

TEST(CounterControls, TheSpeedSliderSetsTheSpeed) {
    SeriesTimeCounter clock;
    CounterControls controls(clock);
    controls.getSpeedSlider().set_value(0.3);
    EXPECT_EQ(clock.getSpeed(), 0.3f);
    EXPECT_FALSE(clock.getIsPaused());
}

TEST(CounterControls, TheTimeSliderPausesAndThenSetsTheTime) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    CounterControls controls(clock);
    Heard heard;
    clock.pausedChanged.connect([&](bool paused) { heard.push_back(paused ? "paused" : "running"); });
    clock.timeChanged.connect([&](unsigned long time) { heard.push_back(std::to_string(time)); });
    controls.getTimeSlider().set_value(123);
    EXPECT_EQ(heard, (Heard{"paused", "123"}));
    EXPECT_EQ(controls.getRunButton().get_label(), "Старт");
    controls.getTimeSlider().set_value(456.9);
    EXPECT_EQ(clock.currentTime, 456u);
    EXPECT_EQ(controls.getTimeSlider().get_value(), 456) << "the slider shows the clock's time";
}

TEST(CounterControls, FollowTheClockWithoutPausingIt) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    CounterControls controls(clock);
    clock.manager.tick.emit(100);
    clock.manager.tick.emit(100);
    EXPECT_EQ(controls.getTimeSlider().get_value(), 200);
    EXPECT_FALSE(clock.getIsPaused());
    EXPECT_FALSE(controls.timeConnection.blocked());
    controls.getTimeSlider().set_value(700);
    EXPECT_TRUE(clock.getIsPaused());
}

TEST(CounterControls, FollowTheEndOfTheRecord) {
    SeriesTimeCounter clock;
    CounterControls controls(clock);
    EXPECT_EQ(upperOf(controls.getTimeSlider()), 0);
    clock.setMax(1000);
    EXPECT_EQ(upperOf(controls.getTimeSlider()), 1000);
    clock.setTime(900);
    EXPECT_EQ(controls.getTimeSlider().get_value(), 900);
    // The clock falls to 0 and tells so before it tells its end, so the slider has nothing to cut off.
    clock.setMax(500);
    EXPECT_EQ(controls.getTimeSlider().get_value(), 0);
    EXPECT_EQ(upperOf(controls.getTimeSlider()), 500);
    EXPECT_FALSE(clock.getIsPaused());
    clock.setMax(0);
    EXPECT_EQ(upperOf(controls.getTimeSlider()), 0);
}

TEST(CounterControls, AnEndThatCutsOffTheSlidersValueCountsAsAMove) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    CounterControls controls(clock);
    controls._onTimeChanged(900); // ahead of the clock
    Heard heard;
    clock.pausedChanged.connect([&](bool) { heard.push_back("paused"); });
    clock.timeChanged.connect([&](unsigned long time) { heard.push_back(std::to_string(time)); });
    clock.maxChanged.connect([&](unsigned long) { heard.push_back("max"); });
    clock.setMax(500);
    EXPECT_EQ(heard, (Heard{"paused", "500", "max"}));
}

TEST(CounterControls, BearTheLongestRecord) {
    SeriesTimeCounter clock;
    clock.setMax(std::numeric_limits<unsigned long>::max());
    CounterControls controls(clock);
    controls.getTimeSlider().set_value(upperOf(controls.getTimeSlider())); // 2^64, which no unsigned holds
    EXPECT_EQ(clock.currentTime, std::numeric_limits<unsigned long>::max());
}

TEST(CounterControls, MayGoBeforeTheClock) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    {
        const CounterControls controls(clock);
        EXPECT_EQ(clock.timeChanged.size(), 1u);
    }
    EXPECT_EQ(clock.timeChanged.size(), 0u);
    EXPECT_EQ(clock.maxChanged.size(), 0u);
    EXPECT_EQ(clock.pausedChanged.size(), 0u);
    clock.setTime(5);
    clock.setMax(4);
    clock.setIsPaused(true);
}

TEST(CounterControls, MayOutliveTheClock) {
    auto clock = std::make_unique<SeriesTimeCounter>();
    clock->setMax(1000);
    CounterControls controls(*clock);
    clock->setTime(300);
    clock.reset();
    EXPECT_FALSE(controls.timeConnection.connected());
    controls.getSpeedSlider().set_value(7);
    controls.getTimeSlider().set_value(600);
    controls.getRunButton().clicked();
    EXPECT_EQ(controls.getRunButton().get_label(), "Пауза");
    EXPECT_EQ(controls.getTimeSlider().get_value(), 600);
}

TEST(CounterControls, WidgetsThatGoMayStillMoveTheClock) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    auto controls = std::make_unique<CounterControls>(clock);
    Gtk::Grid grid;
    grid.add(controls->getTimeSlider());
    grid.add(controls->getRunButton());
    int removed = 0;
    grid.signal_remove().connect([&](Gtk::Widget*) {
        ++removed;
        clock.setTime(clock.currentTime + 1);
        clock.setMax(clock.getMax() + 1);
        clock.setIsPaused(!clock.getIsPaused());
    });
    controls.reset();
    EXPECT_EQ(removed, 2);
    EXPECT_EQ(clock.currentTime, 2u);
}

TEST(CounterControls, TheListenerToAPauseMayDestroyTheClockOrTheControls) {
    auto clock = std::make_unique<SeriesTimeCounter>();
    clock->setMax(1000);
    auto controls = std::make_unique<CounterControls>(*clock);
    clock->pausedChanged.connect([&](bool) { clock.reset(); });
    controls->getTimeSlider().set_value(600);
    EXPECT_EQ(clock, nullptr);

    clock = std::make_unique<SeriesTimeCounter>();
    controls = std::make_unique<CounterControls>(*clock);
    clock->pausedChanged.connect([&](bool) { controls.reset(); });
    controls->getRunButton().clicked();
    EXPECT_EQ(controls, nullptr);
    EXPECT_TRUE(clock->getIsPaused());
}

TEST(CounterControls, BearASpeedThatIsNoNumber) {
    SeriesTimeCounter clock;
    clock.setSpeed(std::nanf(""));
    CounterControls controls(clock);
    Host host(controls);
    controls.getSpeedSlider().set_value(2);
    EXPECT_EQ(clock.getSpeed(), 2);
}

TEST(CounterControls, SteerOneClockTogether) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    CounterControls one(clock);
    CounterControls other(clock);
    one.getTimeSlider().set_value(300);
    EXPECT_EQ(other.getTimeSlider().get_value(), 300);
    EXPECT_EQ(other.getRunButton().get_label(), "Старт");
    other.getRunButton().clicked();
    EXPECT_EQ(one.getRunButton().get_label(), "Пауза");
}

TEST(CounterControls, LeaveNoWidgetBehind) {
    SeriesTimeCounter clock;
    int finalised = 0;
    const auto count = [](gpointer data, GObject*) { ++*static_cast<int*>(data); };
    for (int i = 0; i < 1000; ++i) {
        CounterControls controls(clock);
        g_object_weak_ref(G_OBJECT(controls.getRunButton().gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(controls.getSpeedSlider().gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(controls.getTimeSlider().gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 3000);
    EXPECT_EQ(clock.timeChanged.size(), 0u);
}

TEST(CounterControls, APersonPausesAndRunsWithTheButton) {
    SeriesTimeCounter clock;
    clock.setMax(100000);
    CounterControls controls(clock);
    Host host(controls);
    ASSERT_TRUE(test::waitFor([&] { return controls.getTimeSlider().get_value() > 0; }));
    EXPECT_FALSE(clock.getIsPaused());

    test::click(controls.getRunButton());
    ASSERT_TRUE(test::waitFor([&] { return clock.getIsPaused(); }));
    EXPECT_EQ(controls.getRunButton().get_label(), "Старт");
    const auto stopped = clock.currentTime;
    test::wait(300);
    EXPECT_EQ(clock.currentTime, stopped);

    test::click(controls.getRunButton());
    ASSERT_TRUE(test::waitFor([&] { return clock.currentTime > stopped; }));
    EXPECT_EQ(controls.getRunButton().get_label(), "Пауза");
}

TEST(CounterControls, APersonWhoDragsTheTimePausesTheReplayThere) {
    SeriesTimeCounter clock;
    clock.setMax(100000);
    CounterControls controls(clock);
    Host host(controls);
    Gtk::Scale& slider = controls.getTimeSlider();
    const int y = slider.get_allocated_height() * 3 / 4;
    test::drag(slider, 12, y, 200, y);
    ASSERT_TRUE(test::waitFor([&] { return clock.getIsPaused(); }));
    test::settle();
    EXPECT_GT(clock.currentTime, 30000u);
    EXPECT_LT(clock.currentTime, 70000u);
    EXPECT_EQ(slider.get_value(), static_cast<double>(clock.currentTime));
    const auto left = clock.currentTime;
    test::wait(300);
    EXPECT_EQ(clock.currentTime, left);
    EXPECT_EQ(controls.getRunButton().get_label(), "Старт");
}
