#include "view/Signals.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

record::AnalogChannel analog(const std::string& name, const std::string& unit, std::vector<float> samples) {
    record::AnalogChannel channel;
    channel.name = name;
    channel.unit = unit;
    channel.samples = std::move(samples);
    return channel;
}

record::BinaryChannel binary(const std::string& name, const std::vector<bool>& samples) {
    record::BinaryChannel channel;
    channel.name = name;
    for (bool isOn : samples)
        channel.samples.append(isOn);
    return channel;
}

/// Four samples at 1 kHz.
record::Record makeRecord() {
    record::Record record;
    record.rates = {{1000, 4}};
    record.time = record::TimeAxis(4, record.rates, {}, 1e-6);
    return record;
}

} // namespace

TEST(Signals, GroupsCurvesByUnitInTheOrderOfTheRecord) {
    record::Record record = makeRecord();
    record.analogs = {analog("Ia", "A", {1, 2, 3, 4}), analog("Ua", "V", {5, 6, 7, 8}),
                      analog("Ib", "A", {9, 9, 9, 9})};
    const auto sections = viewer::makeSections(record);
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(sections[0].title, "A");
    ASSERT_EQ(sections[0].series.size(), 2u);
    EXPECT_EQ(sections[0].series[0]->name, "Ia");
    EXPECT_EQ(sections[0].series[1]->name, "Ib");
    EXPECT_EQ(sections[1].title, "V");
    EXPECT_EQ(sections[1].series[0]->points[3].x, 0.003f);
    EXPECT_EQ(sections[1].series[0]->points[3].y, 8);
    EXPECT_EQ(sections[0].xMin, 0);
    EXPECT_EQ(sections[0].xMax, 0.003f);
    EXPECT_TRUE(record.analogs[0].samples.empty()); // not held twice
}

TEST(Signals, AMissingSampleHasNoPoint) {
    record::Record record = makeRecord();
    record.analogs = {analog("Ia", "A", {1, NAN, 3, 4})};
    const auto sections = viewer::makeSections(record);
    ASSERT_EQ(sections[0].series[0]->points.size(), 3u);
    EXPECT_EQ(sections[0].series[0]->points[1].x, 0.002f);
}

TEST(Signals, ABinaryHasPointsAtItsEndsAndWhereItChanges) {
    record::Record record = makeRecord();
    record.binaries = {binary("Trip", {false, true, true, false}), binary("Spare", {true, true, true, true})};
    const auto sections = viewer::makeSections(record);
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].type, Zel::SeriesType::Binary);
    const Zel::Series& trip = *sections[0].series[0];
    EXPECT_EQ(trip.type, Zel::SeriesType::Binary);
    EXPECT_EQ(trip.index, 0u);
    ASSERT_EQ(trip.points.size(), 4u);
    EXPECT_EQ(trip.points[1].x, 0.001f);
    EXPECT_EQ(trip.points[1].y, 1);
    EXPECT_EQ(trip.points[2].x, 0.003f);
    EXPECT_EQ(trip.points[2].y, 0);
    EXPECT_EQ(sections[0].series[1]->index, 1u);
    EXPECT_EQ(sections[0].series[1]->points.size(), 2u);
}

TEST(Signals, ManyBinariesAreDividedSoThatAPlotStaysPaintable) {
    record::Record record = makeRecord();
    for (int i = 0; i < 1201; ++i)
        record.binaries.push_back(binary("B", {false, true, false, true}));
    const auto sections = viewer::makeSections(record);
    ASSERT_EQ(sections.size(), 3u);
    EXPECT_EQ(sections[2].series.size(), 201u);
    EXPECT_EQ(sections[2].series[0]->index, 0u);
}

TEST(Signals, ARecordWithoutSamplesStillHasLimits) {
    record::Record record;
    record.analogs = {analog("Ia", "A", {})};
    record.binaries = {binary("Trip", {})};
    const auto sections = viewer::makeSections(record);
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_LT(sections[0].xMin, sections[0].xMax);
    EXPECT_TRUE(sections[1].series[0]->points.empty());
}

TEST(Signals, AddsThePhaseToANameThatDoesNotTellIt) {
    record::Record record = makeRecord();
    record.analogs = {analog("Line 1", "A", {1, 2, 3, 4}), analog("IA", "A", {1, 2, 3, 4})};
    record.analogs[0].phase = "A";
    record.analogs[1].phase = "A";
    const auto sections = viewer::makeSections(record);
    EXPECT_EQ(sections[0].series[0]->name, "Line 1 (A)");
    EXPECT_EQ(sections[0].series[1]->name, "IA");
}

TEST(Oscillogram, PutsVoltagesAboveAndEverythingElseBelow) {
    record::Record record = makeRecord();
    record.analogs = {analog("Ia", "A", {20, 30, 40, 50}), analog("F", "Hz", {50, 50, 50, 50}),
                      analog("Ua", "V", {5000, 60000, 7, 8})};
    record.binaries = {binary("Trip", {false, true, true, false}), binary("Start", {true, true, true, true})};
    const viewer::Oscillogram oscillogram = viewer::makeOscillogram(record);
    ASSERT_EQ(oscillogram.series.size(), 5u);
    EXPECT_EQ(oscillogram.series[0]->drawAreaIndex, 1u);
    EXPECT_EQ(oscillogram.series[1]->drawAreaIndex, 1u);
    EXPECT_EQ(oscillogram.series[2]->drawAreaIndex, 0u);
    EXPECT_EQ(oscillogram.series[2]->name, "Ua, kV");
    EXPECT_EQ(oscillogram.series[2]->points[1].y, 60);
    EXPECT_EQ(oscillogram.series[0]->name, "Ia, A");
    EXPECT_EQ(oscillogram.series[3]->type, Zel::SeriesType::Binary);
    EXPECT_EQ(oscillogram.series[4]->index, 1u);
    EXPECT_EQ(oscillogram.duration, 0.003f);
    EXPECT_FALSE(oscillogram.fault);
}

TEST(Oscillogram, WithoutVoltagesTheFirstQuantityStandsAbove) {
    record::Record record = makeRecord();
    record.analogs = {analog("F", "Hz", {50, 50, 50, 50}), analog("Ia", "A", {2, 3, 4, 5})};
    const viewer::Oscillogram oscillogram = viewer::makeOscillogram(record);
    EXPECT_EQ(oscillogram.series[0]->drawAreaIndex, 0u);
    EXPECT_EQ(oscillogram.series[1]->drawAreaIndex, 1u);
    EXPECT_EQ(oscillogram.series[1]->name, "Ia, mA");
    EXPECT_EQ(oscillogram.series[1]->points[0].y, 2000);
}

TEST(Oscillogram, CountsTimeFromTheEarliestSample) {
    record::Record record;
    record.time = record::TimeAxis(3, {}, {-2000, -1000, 500}, 1e-6);
    record.analogs = {analog("Ia", "A", {20, 30, 40})};
    const viewer::Oscillogram oscillogram = viewer::makeOscillogram(record);
    EXPECT_EQ(oscillogram.series[0]->points.front().x, 0);
    EXPECT_FLOAT_EQ(oscillogram.series[0]->points.back().x, 0.0025f);
    EXPECT_FLOAT_EQ(oscillogram.duration, 0.0025f);
}
