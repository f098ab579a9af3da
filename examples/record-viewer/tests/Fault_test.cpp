#include "reader/Reader.h"
#include "view/Fault.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;

/// One current of 50 Hz at 1 kHz, 1 A and from sample 200 to 299 ten times as much.
record::Record makeRecord(const std::string& unit = "A", double during = 10) {
    record::Record record;
    record.lineFrequency = 50;
    record.rates = {{1000, 500}};
    record.time = record::TimeAxis(500, record.rates, {}, 1e-6);
    record::AnalogChannel channel;
    channel.unit = unit;
    for (int i = 0; i < 500; ++i)
        channel.samples.push_back(
            static_cast<float>((i >= 200 && i < 300 ? during : 1) * std::sin(2 * pi * 50 * i / 1000 + 0.3)));
    record.analogs.push_back(channel);
    return record;
}

} // namespace

TEST(Fault, IsWhereACurrentIsFarAboveItsBeginning) {
    const auto fault = viewer::findFault(makeRecord());
    ASSERT_TRUE(fault);
    EXPECT_NEAR(fault->from, 0.200, 0.005);
    EXPECT_NEAR(fault->to, 0.299, 0.005);
}

TEST(Fault, ThatLastsToTheEndEndsThere) {
    record::Record record = makeRecord();
    for (std::size_t i = 200; i < 500; ++i)
        record.analogs[0].samples[i] =
            static_cast<float>(10 * std::sin(2 * pi * 50 * static_cast<double>(i) / 1000));
    const auto fault = viewer::findFault(record);
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->to, record.time.at(499));
}

TEST(Fault, NeedsACurrentThatRisesAndALineFrequency) {
    EXPECT_FALSE(viewer::findFault(makeRecord("A", 1.5)));
    EXPECT_FALSE(viewer::findFault(makeRecord("V")));
    EXPECT_TRUE(viewer::findFault(makeRecord("kA")));
    record::Record record = makeRecord();
    record.lineFrequency = 0;
    EXPECT_FALSE(viewer::findFault(record));
    EXPECT_FALSE(viewer::findFault(record::Record()));
}

TEST(Fault, MissingSamplesDoNoHarm) {
    record::Record record = makeRecord();
    for (std::size_t i = 100; i < 150; ++i)
        record.analogs[0].samples[i] = NAN;
    const auto fault = viewer::findFault(record);
    ASSERT_TRUE(fault);
    EXPECT_NEAR(fault->from, 0.200, 0.005);
}

TEST(Fault, OfTheDemonstrationRecordIsFound) {
    const auto fault = viewer::findFault(record::open(DEMO_RECORD));
    ASSERT_TRUE(fault);
    EXPECT_NEAR(fault->from, 0.2, 0.01);
    EXPECT_NEAR(fault->to, 0.255, 0.02);
}
