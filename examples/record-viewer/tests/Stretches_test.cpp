#include "impedance/Stretches.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using impedance::Stretch;
using impedance::Stretches;
using impedance::stretchesOf;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

record::Record makeRecord(std::size_t samples, std::vector<record::Rate> rates,
                          std::vector<double> ticks = {}, double unit = 1e-6) {
    record::Record record;
    record.rates = rates;
    record.time = record::TimeAxis(samples, rates, std::move(ticks), unit);
    return record;
}

std::vector<double> ticks(std::size_t samples, double step) {
    std::vector<double> result;
    for (std::size_t i = 0; i < samples; ++i)
        result.push_back(static_cast<double>(i) * step);
    return result;
}

std::vector<std::vector<std::size_t>> listOf(const Stretches& stretches) {
    std::vector<std::vector<std::size_t>> result;
    for (const Stretch& stretch : stretches.list)
        result.push_back({stretch.first, stretch.end, stretch.window});
    return result;
}

using List = std::vector<std::vector<std::size_t>>;

} // namespace

TEST(Stretches, OneRateIsOneStretch) {
    const Stretches stretches = stretchesOf(makeRecord(100, {{1000, 100}}), 50);
    EXPECT_EQ(listOf(stretches), (List{{0, 100, 20}}));
    EXPECT_THAT(stretches.remarks, IsEmpty());
}

TEST(Stretches, TakeTheNearestWholeNumberOfSamples) {
    EXPECT_EQ(listOf(stretchesOf(makeRecord(1000, {{7678.48, 1000}}), 60)), (List{{0, 1000, 128}}));
    EXPECT_EQ(listOf(stretchesOf(makeRecord(100, {{1000, 100}}), 60)), (List{{0, 100, 17}}));
}

TEST(Stretches, BeginAnewWhereTheRateChanges) {
    const Stretches stretches =
        stretchesOf(makeRecord(400, {{1000, 100}, {1000, 100}, {2000, 250}, {2000, 400}}), 50);
    EXPECT_EQ(listOf(stretches), (List{{0, 100, 20}, {100, 250, 40}, {250, 400, 40}}));
}

TEST(Stretches, GoOnWithTheLastRateBehindItsEnd) {
    EXPECT_EQ(listOf(stretchesOf(makeRecord(130, {{1000, 100}}), 50)), (List{{0, 130, 20}}));
}

TEST(Stretches, LeaveOutWhatIsSlowOrShort) {
    const Stretches stretches =
        stretchesOf(makeRecord(320, {{1000, 100}, {50, 200}, {1000, 219}, {1000, 320}}), 50);
    EXPECT_EQ(listOf(stretches), (List{{0, 100, 20}, {219, 320, 20}}));
    EXPECT_THAT(
        stretches.remarks,
        ElementsAre("Where the record has fewer than four samples in a cycle there are no impedances."));
}

TEST(Stretches, ExactlyOneCycleAndFourSamplesAreEnough) {
    EXPECT_EQ(listOf(stretchesOf(makeRecord(20, {{1000, 20}}), 50)), (List{{0, 20, 20}}));
    EXPECT_EQ(listOf(stretchesOf(makeRecord(10, {{200, 10}}), 50)), (List{{0, 10, 4}}));
}

TEST(Stretches, WithoutAWholeCycleSayWhy) {
    const Stretches stretches = stretchesOf(makeRecord(19, {{1000, 19}}), 50);
    EXPECT_THAT(stretches.list, IsEmpty());
    EXPECT_THAT(stretches.remarks, ElementsAre("The record has no whole cycle that is sampled evenly."));
    EXPECT_THAT(stretchesOf(makeRecord(0, {{1000, 0}}), 50).list, IsEmpty());
    EXPECT_THAT(stretchesOf(makeRecord(1, {{1000, 1}}), 50).list, IsEmpty());
}

TEST(Stretches, OfTimeStampsTakeTheirMeanStep) {
    EXPECT_EQ(listOf(stretchesOf(makeRecord(100, {{0, 100}}, ticks(100, 1249.2)), 50)), (List{{0, 100, 16}}));
}

TEST(Stretches, BeginAnewWhereTheTimeStampsLeap) {
    std::vector<double> stamps = ticks(300, 1000);
    for (std::size_t i = 100; i < 300; ++i)
        stamps[i] += 50000;
    for (std::size_t i = 200; i < 300; ++i)
        stamps[i] -= 90000;
    const List expected{{0, 100, 20}, {100, 200, 20}, {200, 300, 20}};
    EXPECT_EQ(listOf(stretchesOf(makeRecord(300, {{0, 300}}, stamps), 50)), expected);
    // Rates do not know of a pause, but the stamps do.
    EXPECT_EQ(listOf(stretchesOf(makeRecord(300, {{1000, 300}}, stamps), 50)), expected);
}

TEST(Stretches, NeedToKnowTheTime) {
    const Stretches stretches = stretchesOf(makeRecord(100, {}), 50);
    EXPECT_THAT(stretches.list, IsEmpty());
    EXPECT_THAT(stretches.remarks, ElementsAre("The record does not tell when its samples were taken."));
}

TEST(Stretches, EndWhereTheLeapsAreNoLongerKnown) {
    // A leap after every tenth sample.
    std::vector<double> stamps = ticks(20000, 1000);
    for (std::size_t i = 0; i < stamps.size(); ++i)
        stamps[i] += static_cast<double>(i / 10) * 10000;
    const record::Record record = makeRecord(20000, {{0, 20000}}, stamps);
    ASSERT_EQ(record.time.gapCount(), 1999u);
    const Stretches stretches = stretchesOf(record, 200);
    ASSERT_EQ(stretches.list.size(), 1000u);
    EXPECT_EQ(stretches.list.back().end, 10000u);
    EXPECT_THAT(stretches.remarks,
                ElementsAre("The time stamps leap 1999 times; impedances end at the leap number 1000."));
}
