#include <ZelCommonView/plot/TimedSeriesIteratorCalc.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using ZelView::TimedSeriesIteratorCalc;
using Points = std::vector<Zel::TimedPointF>;

Points pointsAt(const std::vector<std::uint64_t>& times) {
    Points points;
    for (std::uint64_t time : times)
        points.push_back({{}, time});
    return points;
}

long reached(const TimedSeriesIteratorCalc& calc, const Points& points) {
    return calc.getIt() - points.begin();
}

} // namespace

TEST(TimedSeriesIteratorCalc, BeginsWithNoPointReached) {
    const Points points = pointsAt({0, 0, 10});
    const TimedSeriesIteratorCalc calc(points);
    EXPECT_EQ(reached(calc, points), 0);
    EXPECT_EQ(calc.time, 0u);
}

TEST(TimedSeriesIteratorCalc, SettingTheSameTimeChangesNothing) {
    const Points points = pointsAt({0, 10, 20});
    TimedSeriesIteratorCalc calc(points);
    EXPECT_FALSE(calc.setTime(0));
    EXPECT_EQ(reached(calc, points), 0) << "not even for the point of time 0";
    EXPECT_TRUE(calc.setTime(15));
    EXPECT_FALSE(calc.setTime(15));
    EXPECT_EQ(reached(calc, points), 2);
}

TEST(TimedSeriesIteratorCalc, AReturnTo0ReachesThePointsOfTime0) {
    const Points points = pointsAt({0, 0, 10, 20});
    TimedSeriesIteratorCalc calc(points);
    calc.setTime(20);
    EXPECT_TRUE(calc.setTime(0));
    EXPECT_EQ(reached(calc, points), 2);
    EXPECT_EQ(calc.time, 0u);
}

TEST(TimedSeriesIteratorCalc, ATimeEqualToThatOfAPointReachesIt) {
    const Points points = pointsAt({5, 10, 10, 20});
    TimedSeriesIteratorCalc calc(points);
    const std::vector<std::pair<unsigned long, long>> steps = {{4, 0},  {5, 1},  {9, 1},  {10, 3}, {20, 4},
                                                               {21, 4}, {20, 4}, {19, 3}, {10, 3}, {9, 1},
                                                               {5, 1},  {4, 0},  {1, 0}};
    for (const auto& [time, count] : steps) {
        EXPECT_TRUE(calc.setTime(time));
        EXPECT_EQ(reached(calc, points), count) << time;
    }
}

TEST(TimedSeriesIteratorCalc, TellsOfANewTimeEvenIfNoPointIsPassed) {
    const Points points = pointsAt({100});
    TimedSeriesIteratorCalc calc(points);
    EXPECT_TRUE(calc.setTime(10));
    EXPECT_TRUE(calc.setTime(20));
    EXPECT_TRUE(calc.setTime(0));
}

TEST(TimedSeriesIteratorCalc, BearsNoPoints) {
    const Points points;
    TimedSeriesIteratorCalc calc(points);
    for (unsigned long time : {5ul, 3ul, 0ul, ~0ul, 1ul})
        EXPECT_TRUE(calc.setTime(time));
    EXPECT_EQ(calc.getIt(), points.end());
}

TEST(TimedSeriesIteratorCalc, FromEverywhereReachesTheSamePlace) {
    std::mt19937 random(3);
    for (int round = 0; round < 50; ++round) {
        std::vector<std::uint64_t> times(40);
        for (std::uint64_t& time : times)
            time = random() % 60;
        std::sort(times.begin(), times.end());
        const Points points = pointsAt(times);
        TimedSeriesIteratorCalc calc(points);
        for (int step = 0; step < 100; ++step) {
            const unsigned long time = 1 + random() % 70;
            calc.setTime(time);
            EXPECT_EQ(reached(calc, points),
                      std::upper_bound(times.begin(), times.end(), time) - times.begin());
        }
    }
}

TEST(TimedSeriesIteratorCalc, WalksFromWhereItStands) {
    // A walk does not see behind a point that is still ahead; a search from the start would.
    const Points points = pointsAt({10, 50, 20, 30});
    TimedSeriesIteratorCalc calc(points);
    calc.setTime(40);
    EXPECT_EQ(reached(calc, points), 1);
    calc.setTime(50);
    EXPECT_EQ(reached(calc, points), 4);
    calc.setTime(40);
    EXPECT_EQ(reached(calc, points), 4);
}

TEST(TimedSeriesIteratorCalc, EachWayStopsAtItsEnd) {
    const Points points = pointsAt({10, 20});
    TimedSeriesIteratorCalc calc(points);
    calc._recalcItBackward(5);
    EXPECT_EQ(reached(calc, points), 0);
    calc._recalcItForward(100);
    calc._recalcItForward(200);
    EXPECT_EQ(reached(calc, points), 2);
    calc._recalcItZero(10);
    EXPECT_EQ(reached(calc, points), 1);
    EXPECT_EQ(calc.time, 0u) << "only setTime keeps the time";
}
