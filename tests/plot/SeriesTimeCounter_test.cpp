#include "support/Hands.h"

#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <list>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using ZelView::SeriesTimeCounter;
using ZelView::TimeCounterManager;
using Times = std::vector<unsigned long>;

constexpr unsigned long hugest = std::numeric_limits<unsigned long>::max();

/// Writes down what a clock tells, in order.
struct Listener : sigc::trackable {
    explicit Listener(SeriesTimeCounter& clock) {
        clock.timeChanged.connect(sigc::track_obj(
            [this](unsigned long time) { heard.push_back("time " + std::to_string(time)); }, *this));
        clock.maxChanged.connect(sigc::track_obj(
            [this](unsigned long max) { heard.push_back("max " + std::to_string(max)); }, *this));
        clock.pausedChanged.connect(
            sigc::track_obj([this](bool paused) { heard.push_back(paused ? "paused" : "running"); }, *this));
    }

    std::vector<std::string> take() { return std::exchange(heard, {}); }

    std::vector<std::string> heard;
};

using Heard = std::vector<std::string>;

void tick(SeriesTimeCounter& clock, unsigned long milliseconds) {
    clock.manager.tick.emit(milliseconds);
}

} // namespace

TEST(TimeCounterManager, GathersUntilThePeriodAndPassesTheWholeSumOn) {
    TimeCounterManager manager(100);
    Times ticks;
    manager.tick.connect([&](unsigned long milliseconds) { ticks.push_back(milliseconds); });
    for (unsigned long milliseconds : {40, 59, 1, 99, 250, 100, 101, 99})
        manager._onSynced(milliseconds);
    EXPECT_EQ(ticks, (Times{100, 349, 100, 101}));
    EXPECT_EQ(manager.gathered, 99u);
}

TEST(TimeCounterManager, WithAPeriodOf0PassesEachTick) {
    TimeCounterManager manager(0);
    Times ticks;
    manager.tick.connect([&](unsigned long milliseconds) { ticks.push_back(milliseconds); });
    manager._onSynced(0);
    manager._onSynced(7);
    EXPECT_EQ(ticks, (Times{0, 7}));
}

TEST(TimeCounterManager, TellsTheSumBeforeItStartsAnew) {
    TimeCounterManager manager(100);
    std::uint64_t during = 0;
    manager.tick.connect([&](unsigned long) { during = manager.gathered; });
    manager._onSynced(120);
    EXPECT_EQ(during, 120u);
    EXPECT_EQ(manager.gathered, 0u);
}

TEST(TimeCounterManager, MayBeDestroyedByItsListener) {
    auto manager = std::make_unique<TimeCounterManager>(100);
    manager->tick.connect([&](unsigned long) { manager.reset(); });
    manager->_onSynced(120);
    EXPECT_EQ(manager, nullptr);
}

TEST(TimeCounterManager, HearsTheTicksOfTheProcess) {
    TimeCounterManager each(1);
    TimeCounterManager third(300);
    Times ticks;
    Times thirds;
    each.tick.connect([&](unsigned long milliseconds) { ticks.push_back(milliseconds); });
    third.tick.connect([&](unsigned long milliseconds) { thirds.push_back(milliseconds); });
    ASSERT_TRUE(test::waitFor([&] { return thirds.size() == 2; }));
    EXPECT_GE(ticks.size(), 4u);
    EXPECT_GE(thirds[0], 300u);
    EXPECT_GE(thirds[1], 300u);
    unsigned long sum = 0;
    for (unsigned long milliseconds : ticks)
        sum += milliseconds;
    EXPECT_EQ(thirds[0] + thirds[1], sum) << "nothing is lost and nothing told twice";
}

TEST(TimeCounterManager, ATickOnItsWayDoesNotReachOneThatIsGone) {
    auto manager = std::make_unique<TimeCounterManager>(1);
    int ticks = 0;
    manager->tick.connect([&](unsigned long) { ++ticks; });
    std::this_thread::sleep_for(std::chrono::milliseconds(250));
    const sigc::connection connection = manager->connection;
    manager.reset();
    EXPECT_FALSE(connection.connected());
    test::wait(250);
    EXPECT_EQ(ticks, 0);
}

TEST(SeriesTimeCounter, BeginsWithoutARecordAndNotPaused) {
    SeriesTimeCounter clock;
    EXPECT_EQ(clock.currentTime, 0u);
    EXPECT_EQ(clock.lastEmittedTime, 0u);
    EXPECT_FALSE(clock.getIsPaused());
    EXPECT_EQ(clock.getSpeed(), 1.0f);
    EXPECT_EQ(clock.getMax(), 0u);
    EXPECT_EQ(clock.manager.period, 100u);
}

TEST(SeriesTimeCounter, StandsWithoutARecord) {
    SeriesTimeCounter clock;
    Listener listener(clock);
    tick(clock, 100);
    clock.setTime(5);
    clock.reset();
    EXPECT_EQ(clock.currentTime, 0u);
    EXPECT_EQ(listener.take(), Heard{});
}

TEST(SeriesTimeCounter, RunsByTheTicksThatPassAndTellsEachNewTime) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    Listener listener(clock);
    tick(clock, 100);
    tick(clock, 104);
    EXPECT_EQ(listener.take(), (Heard{"time 100", "time 204"}));
}

TEST(SeriesTimeCounter, StartsOverPastTheEndAndNotAtIt) {
    SeriesTimeCounter clock;
    clock.setMax(250);
    clock.setTime(150);
    Listener listener(clock);
    tick(clock, 100);
    tick(clock, 1);
    EXPECT_EQ(listener.take(), (Heard{"time 250", "time 0"}));
    clock.setTime(250);
    EXPECT_EQ(clock.currentTime, 250u);
    clock.setTime(251);
    EXPECT_EQ(clock.currentTime, 0u);
    clock.setTime(hugest);
    EXPECT_EQ(listener.take(), (Heard{"time 250", "time 0"}));
}

TEST(SeriesTimeCounter, ATenthOfTheSpeedGivesATenthOfTheSteps) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    clock.setSpeed(0.1f);
    EXPECT_EQ(clock.getSpeed(), 0.1f);
    for (unsigned long i = 1; i <= 100; ++i) {
        tick(clock, 100);
        EXPECT_EQ(clock.currentTime, i * 10);
    }
}

TEST(SeriesTimeCounter, CutsOffFractionsOfAMillisecond) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    clock.setSpeed(1.5f);
    tick(clock, 101); // 151.5
    tick(clock, 101); // 302.5
    EXPECT_EQ(clock.currentTime, 302u);
}

TEST(SeriesTimeCounter, Beyond2To24TheSumDropsSingleMilliseconds) {
    constexpr unsigned long edge = 1ul << 24;
    SeriesTimeCounter clock;
    clock.setMax(hugest);
    clock.setTime(edge);
    tick(clock, 1); // a tie, which goes to the even one
    EXPECT_EQ(clock.currentTime, edge);
    tick(clock, 3);
    EXPECT_EQ(clock.currentTime, edge + 4);
    clock.setTime(edge + 1); // setting is exact, running is not
    EXPECT_EQ(clock.currentTime, edge + 1);
    tick(clock, 2);
    EXPECT_EQ(clock.currentTime, edge + 2);
    clock.setTime(1ul << 32);
    tick(clock, 255);
    EXPECT_EQ(clock.currentTime, 1ul << 32) << "a clock beyond 49 days stands";
    tick(clock, 257);
    EXPECT_EQ(clock.currentTime, (1ul << 32) + 512);
}

TEST(SeriesTimeCounter, DoesNotMoveWhilePaused) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    clock.setIsPaused(true);
    EXPECT_TRUE(clock.getIsPaused());
    tick(clock, 100);
    EXPECT_EQ(clock.currentTime, 0u);
    clock.setTime(70); // but can be set
    clock.setIsPaused(false);
    tick(clock, 100);
    EXPECT_EQ(clock.currentTime, 170u);
}

TEST(SeriesTimeCounter, TellsOfThePauseEachTime) {
    SeriesTimeCounter clock;
    Listener listener(clock);
    clock.setIsPaused(true);
    clock.setIsPaused(true);
    clock.setIsPaused(false);
    clock.setIsPaused(false);
    EXPECT_EQ(listener.take(), (Heard{"paused", "paused", "running", "running"}));
}

TEST(SeriesTimeCounter, TheSameTimeTwiceIsToldOnce) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    Listener listener(clock);
    clock.setTime(0);
    clock.setTime(40);
    clock.setTime(40);
    clock.reset();
    clock.reset();
    EXPECT_EQ(listener.take(), (Heard{"time 40", "time 0"}));
}

TEST(SeriesTimeCounter, ANewEndIsToldAfterTheTimeThatFallsTo0) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    clock.setTime(500);
    Listener listener(clock);
    clock.setMax(500);
    clock.setMax(499);
    clock.setMax(499);
    EXPECT_EQ(listener.take(), (Heard{"max 500", "time 0", "max 499", "max 499"}));
    EXPECT_EQ(clock.getMax(), 499u);
    clock.setTime(1);
    clock.setMax(0);
    EXPECT_EQ(listener.take(), (Heard{"time 1", "time 0", "max 0"}));
}

TEST(SeriesTimeCounter, RemembersWhatItToldOnlyAfterTelling) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    Times told;
    clock.timeChanged.connect([&](unsigned long time) {
        told.push_back(time);
        EXPECT_EQ(clock.currentTime, time);
        EXPECT_NE(clock.lastEmittedTime, time);
        if (time == 10)
            clock.setTime(20);
    });
    clock.setTime(10);
    EXPECT_EQ(told, (Times{10, 20}));
    EXPECT_EQ(clock.currentTime, 20u);
    EXPECT_EQ(clock.lastEmittedTime, 20u);
}

TEST(SeriesTimeCounter, WithANegativeSpeedRunsBackAndStandsAt0) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    clock.setTime(150);
    clock.setSpeed(-1);
    EXPECT_EQ(clock.getSpeed(), -1.0f);
    Listener listener(clock);
    for (int i = 0; i < 3; ++i)
        tick(clock, 100);
    EXPECT_EQ(listener.take(), (Heard{"time 50", "time 0"}));
}

TEST(SeriesTimeCounter, ASpeedThatIsNoNumberOrEndlessPutsItTo0) {
    for (float speed : {std::nanf(""), std::numeric_limits<float>::infinity(),
                        -std::numeric_limits<float>::infinity(), std::numeric_limits<float>::max()}) {
        SeriesTimeCounter clock;
        clock.setMax(1000);
        clock.setTime(150);
        clock.setSpeed(speed);
        tick(clock, 100);
        EXPECT_EQ(clock.currentTime, 0u) << speed;
    }
}

TEST(SeriesTimeCounter, WithASpeedOf0Stands) {
    SeriesTimeCounter clock;
    clock.setMax(1000);
    clock.setTime(150);
    clock.setSpeed(0);
    Listener listener(clock);
    tick(clock, 100);
    EXPECT_EQ(clock.currentTime, 150u);
    EXPECT_EQ(listener.take(), Heard{});
}

TEST(SeriesTimeCounter, MayBeDestroyedByAnyListener) {
    auto clock = std::make_unique<SeriesTimeCounter>();
    clock->timeChanged.connect([&](unsigned long) { clock.reset(); });
    clock->setMax(1000);
    tick(*clock, 100); // a tick that was passed on by the manager, which goes too
    EXPECT_EQ(clock, nullptr);

    clock = std::make_unique<SeriesTimeCounter>();
    clock->setMax(1000);
    clock->timeChanged.connect([&](unsigned long) { clock.reset(); });
    clock->manager._onSynced(100);
    EXPECT_EQ(clock, nullptr);

    clock = std::make_unique<SeriesTimeCounter>();
    clock->setMax(1000);
    clock->setTime(10);
    clock->timeChanged.connect([&](unsigned long) { clock.reset(); });
    clock->setMax(5);
    EXPECT_EQ(clock, nullptr);

    clock = std::make_unique<SeriesTimeCounter>();
    clock->pausedChanged.connect([&](bool) { clock.reset(); });
    clock->setIsPaused(true);
    EXPECT_EQ(clock, nullptr);

    clock = std::make_unique<SeriesTimeCounter>();
    clock->maxChanged.connect([&](unsigned long) { clock.reset(); });
    clock->setMax(5);
    EXPECT_EQ(clock, nullptr);
}

TEST(SeriesTimeCounter, ClocksOfOneProcessRunOnTheirOwn) {
    std::list<SeriesTimeCounter> clocks(3);
    for (SeriesTimeCounter& clock : clocks)
        clock.setMax(100000);
    auto clock = clocks.begin();
    SeriesTimeCounter& normal = *clock++;
    SeriesTimeCounter& fast = *clock++;
    SeriesTimeCounter& paused = *clock++;
    fast.setSpeed(8);
    paused.setIsPaused(true);
    ASSERT_TRUE(test::waitFor([&] { return normal.currentTime >= 300; }));
    EXPECT_EQ(fast.currentTime, normal.currentTime * 8);
    EXPECT_EQ(paused.currentTime, 0u);
}
