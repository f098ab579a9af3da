#include "reader/TimeAxis.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace record;

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
using Rule = TimeAxis::Rule;

TimeAxis stamped(std::vector<double> ticks, double unit = 1) {
    const std::size_t count = ticks.size();
    return TimeAxis(count, {}, std::move(ticks), unit);
}

} // namespace

TEST(Rates, TimeCountsByPosition) {
    const TimeAxis axis(4, {{1000, 4}}, {}, 1e-6);
    EXPECT_EQ(axis.rule(), Rule::Rates);
    EXPECT_FALSE(axis.hasStamps());
    EXPECT_EQ(axis.at(0), 0);
    EXPECT_DOUBLE_EQ(axis.at(3), 0.003);
}

TEST(Rates, EachStretchGoesOnWhereTheOneBeforeEnded) {
    const TimeAxis axis(8, {{1000, 2}, {100, 4}, {1000, 8}}, {}, 1e-6);
    const double expected[] = {0, 0.001, 0.002, 0.012, 0.022, 0.023, 0.024, 0.025};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_NEAR(axis.at(i), expected[i], 1e-12) << i;
}

TEST(Rates, RepeatedEndsAreEmptyStretches) {
    const TimeAxis axis(4, {{1000, 2}, {1, 2}, {1, 1}, {100, 4}}, {}, 1e-6);
    EXPECT_NEAR(axis.at(3), 0.012, 1e-12);
}

TEST(Rates, SamplesBeyondTheLastStretchKeepItsRate) {
    const TimeAxis axis(5, {{600, 3}}, {}, 1e-6);
    EXPECT_DOUBLE_EQ(axis.at(4), 4 / 600.0);
}

TEST(Rates, AStretchWithoutARateLeavesItToTheStamps) {
    const TimeAxis axis(3, {{1000, 2}, {0, 3}}, {0, 10, 20}, 0.5);
    EXPECT_FALSE(axis.hasRates());
    EXPECT_EQ(axis.rule(), Rule::Stamps);
    EXPECT_EQ(axis.at(2), 10);
}

TEST(Rates, AStretchWithoutARateBehindTheLastSampleDoesNotMatter) {
    EXPECT_TRUE(TimeAxis(2, {{1000, 2}, {0, 9}}, {}, 1).hasRates());
}

TEST(Stamps, MayBeginBelowZeroAndAnywhere) {
    const TimeAxis axis = stamped({-41663, -41533}, 1e-6);
    EXPECT_DOUBLE_EQ(axis.at(0), -0.041663);
}

TEST(Stamps, MissingOnesLieBetweenTheirNeighbours) {
    const TimeAxis axis = stamped({nothing, 10, nothing, nothing, 40, nothing});
    EXPECT_EQ(axis.missingStamps(), 4u);
    const double expected[] = {0, 10, 20, 30, 40, 50};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_DOUBLE_EQ(axis.at(i), expected[i]) << i;
}

TEST(Stamps, ASingleOneStandsForAll) {
    const TimeAxis axis = stamped({nothing, 7, nothing});
    EXPECT_EQ(axis.at(0), 7);
    EXPECT_EQ(axis.at(2), 7);
}

TEST(Stamps, AllMissingCountAsNone) {
    const TimeAxis axis = stamped({nothing, nothing});
    EXPECT_FALSE(axis.hasStamps());
    EXPECT_EQ(axis.rule(), Rule::Numbers);
    EXPECT_EQ(axis.at(1), 1);
}

TEST(Stamps, ACounterOf32BitsThatStartsOverGoesOn) {
    const TimeAxis axis = stamped({4294967000.0, 4294967200.0, 104, 304, nothing, 704}, 1e-9);
    EXPECT_DOUBLE_EQ(axis.at(2), 4294967400.0e-9);
    EXPECT_DOUBLE_EQ(axis.at(5), 4294968000.0e-9);
    EXPECT_EQ(axis.gapCount(), 0u);
}

TEST(Stamps, ACounterOf32BitsMayStartOverManyTimes) {
    std::vector<double> ticks;
    for (int i = 0; i < 12; ++i)
        ticks.push_back(std::fmod(i * 1.5e9, 4294967296.0));
    EXPECT_DOUBLE_EQ(stamped(ticks, 1e-9).at(11), 16.5);
}

TEST(Stamps, ACounterOf16BitsThatStartsOverGoesOn) {
    std::vector<double> ticks;
    for (int i = 0; i < 100; ++i)
        ticks.push_back((i * 1000) % 65536);
    const TimeAxis axis = stamped(ticks);
    EXPECT_EQ(axis.at(99), 99000);
    EXPECT_EQ(axis.gapCount(), 0u);
}

TEST(Stamps, AFallThatIsNoWrapStaysAFall) {
    const TimeAxis axis = stamped({60000, 60010, 20000, 20010});
    EXPECT_EQ(axis.at(2), 20000);
    const TimeAxis wide = stamped({0, 16893000, 16694000, 16695000});
    EXPECT_EQ(wide.at(2), 16694000);
}

TEST(Stamps, AWildLeapOfAWideCounterIsNoWrap) {
    const TimeAxis axis = stamped({0, 1000, 4200000000.0, 3000, 4000});
    EXPECT_EQ(axis.at(4), 4000);
}

TEST(Gaps, PausesAndStepsBackAreMarked) {
    const TimeAxis axis = stamped({0, 1, 2, 12, 13, 9, 10, 11});
    ASSERT_EQ(axis.gapCount(), 2u);
    EXPECT_EQ(axis.gaps()[0].position, 3u);
    EXPECT_EQ(axis.gaps()[0].seconds, 10);
    EXPECT_EQ(axis.gaps()[1].position, 5u);
    EXPECT_EQ(axis.gaps()[1].seconds, -4);
}

TEST(Gaps, ASlowStretchIsNoPause) {
    const TimeAxis axis(6, {{1000, 2}, {10, 4}, {1000, 6}}, {0, 1, 2, 102, 202, 203}, 1e-3);
    EXPECT_EQ(axis.gapCount(), 0u);
    EXPECT_LT(axis.worstDifference(), 1e-6);
}

TEST(Gaps, NoMoreThanAThousandAreKept) {
    std::vector<double> ticks;
    for (int i = 0; i < 4000; ++i)
        ticks.push_back(i % 2 == 0 ? i : i - 3);
    const TimeAxis axis = stamped(ticks);
    EXPECT_EQ(axis.gaps().size(), 1000u);
    EXPECT_GT(axis.gapCount(), 1000u);
}

TEST(BothAxes, AreOfferedAndCompared) {
    TimeAxis axis(5, {{1000, 5}}, {100, 1100, 2100, 3100, 9100}, 1e-6);
    EXPECT_EQ(axis.rule(), Rule::Rates);
    EXPECT_NEAR(axis.worstDifference(), 5, 1e-9);
    axis.setRule(Rule::Stamps);
    EXPECT_NEAR(axis.at(4), 0.0091, 1e-12);
    axis.setRule(Rule::Rates);
    EXPECT_NEAR(axis.at(4), 0.004, 1e-12);
}

TEST(BothAxes, ARuleThatCannotBeServedIsIgnored) {
    TimeAxis axis(2, {{1000, 2}}, {}, 1);
    axis.setRule(Rule::Stamps);
    EXPECT_EQ(axis.rule(), Rule::Rates);
    axis.setRule(Rule::Numbers);
    EXPECT_EQ(axis.at(1), 1);
}

TEST(Positions, AreFoundByTime) {
    const TimeAxis axis(4, {{1000, 4}}, {}, 1);
    EXPECT_EQ(axis.positionAt(-1), 0u);
    EXPECT_EQ(axis.positionAt(0.001), 1u);
    EXPECT_EQ(axis.positionAt(0.0011), 2u);
    EXPECT_EQ(axis.positionAt(9), 4u);
}

TEST(Positions, AnEmptyAxisHasNone) {
    EXPECT_EQ(TimeAxis().positionAt(0), 0u);
    EXPECT_EQ(TimeAxis(0, {{1000, 5}}, {}, 1).size(), 0u);
}
