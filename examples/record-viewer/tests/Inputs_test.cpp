#include "impedance/Inputs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace impedance;

namespace {

record::AnalogChannel channel(const std::string& name, const std::string& unit,
                              const std::string& phase = "") {
    record::AnalogChannel result;
    result.name = name;
    result.unit = unit;
    result.phase = phase;
    result.samples = {1, 2};
    return result;
}

record::Record makeRecord(std::vector<record::AnalogChannel> channels) {
    record::Record record;
    record.rates = {{1000, 2}};
    record.time = record::TimeAxis(2, record.rates, {}, 1e-6);
    record.analogs = std::move(channels);
    return record;
}

std::vector<record::AnalogChannel> named(const std::vector<std::string>& names, const std::string& unit) {
    std::vector<record::AnalogChannel> channels;
    for (const std::string& name : names)
        channels.push_back(channel(name, unit));
    return channels;
}

std::vector<record::AnalogChannel> operator+(std::vector<record::AnalogChannel> a,
                                             const std::vector<record::AnalogChannel>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

int phase(const std::string& name, const std::string& told = "") {
    const auto found = phaseOf(channel(name, "A", told));
    return found ? static_cast<int>(*found) : -1;
}

/// Voltages in kilovolts and currents in amperes with ratios of 1100 and 120.
record::Record withRatios(char side) {
    record::Record record = makeRecord(named({"UA", "UB", "UC"}, "kV") + named({"IA", "IB", "IC"}, "A"));
    for (record::AnalogChannel& each : record.analogs) {
        each.side = side;
        each.primary = each.unit == "A" ? 600 : 110000;
        each.secondary = each.unit == "A" ? 5 : 100;
    }
    return record;
}

constexpr Inputs inOrder{{0, 1, 2}, {3, 4, 5}};

} // namespace

TEST(Inputs, AUnitTellsVoltsAndAmperesWithAnyPrefix) {
    EXPECT_EQ(measureOf("V")->quantity, Quantity::Voltage);
    EXPECT_EQ(measureOf("V")->factor, 1);
    EXPECT_EQ(measureOf("kV")->factor, 1000);
    EXPECT_EQ(measureOf("KV")->factor, 1000);
    EXPECT_EQ(measureOf("mV")->factor, 0.001);
    EXPECT_EQ(measureOf("kA")->quantity, Quantity::Current);
    EXPECT_EQ(measureOf("A")->factor, 1);
    for (const char* unit : {"", "W", "VA", "kVA", "Hz", "none", "kkV"})
        EXPECT_FALSE(measureOf(unit)) << unit;
}

TEST(Inputs, ThePhaseIsToldByTheRecordFirst) {
    EXPECT_EQ(phase("whatever", "A"), 0);
    EXPECT_EQ(phase("whatever", " b "), 1);
    EXPECT_EQ(phase("whatever", "L3"), 2);
    for (const char* told : {"N", "AB", "G", "_", "3U0", "ABC"})
        EXPECT_EQ(phase("IA", told), -1) << told;
}

TEST(Inputs, ThePhaseIsElseToldByTheEndOfTheName) {
    EXPECT_EQ(phase("IA"), 0);
    EXPECT_EQ(phase("VB(kV)"), 1);
    EXPECT_EQ(phase("Uc (kV) "), 2);
    EXPECT_EQ(phase("LINE ULC"), 2);
    EXPECT_EQ(phase("UL2"), 1);
    EXPECT_EQ(phase("Van"), 0);
    EXPECT_EQ(phase("ICG"), 2);
    for (const char* name : {"", "IN", "IG", "IAL", "Vab Mag", "L1 current", "I2", "LINE", "VN"})
        EXPECT_EQ(phase(name), -1) << name;
}

TEST(Inputs, TakesThreePhasesInARowWithTheNeutralLeftOut) {
    const auto record = makeRecord(named({"F1-IA", "F2-IB", "F3-IC", "F4-IG"}, "A") +
                                   named({"F5-VA", "F6-VB", "F7-VC", "F8-VN"}, "V"));
    const Choice choice = chooseInputs(record);
    ASSERT_TRUE(choice.inputs);
    EXPECT_EQ(choice.inputs->currents, (Triple{0, 1, 2}));
    EXPECT_EQ(choice.inputs->voltages, (Triple{4, 5, 6}));
    EXPECT_EQ(choice.problem, "");
}

TEST(Inputs, OtherQuantitiesMayStandBetween) {
    const auto record =
        makeRecord(named({"UA"}, "V") + named({"IA"}, "A") + named({"UB"}, "V") + named({"IB"}, "A") +
                   named({"f"}, "Hz") + named({"UC"}, "V") + named({"IC"}, "A"));
    const Choice choice = chooseInputs(record);
    ASSERT_TRUE(choice.inputs);
    EXPECT_EQ(choice.inputs->voltages, (Triple{0, 2, 5}));
    EXPECT_EQ(choice.inputs->currents, (Triple{1, 3, 6}));
}

TEST(Inputs, OfSeveralLinesTheFirstWhoseVoltagesAndCurrentsShareAName) {
    const auto record = makeRecord(
        named({"Bus_Ua", "Bus_Ub", "Bus_Uc"}, "V") + named({"East_Ua", "East_Ub", "East_Uc"}, "V") +
        named({"Tie_Ia", "Tie_Ib", "Tie_Ic"}, "A") + named({"East_Ia", "East_Ib", "East_Ic"}, "A"));
    const Choice choice = chooseInputs(record);
    ASSERT_TRUE(choice.inputs);
    EXPECT_EQ(choice.inputs->voltages, (Triple{3, 4, 5}));
    EXPECT_EQ(choice.inputs->currents, (Triple{9, 10, 11}));
    EXPECT_EQ(triplesOf(record, Quantity::Voltage).size(), 2u);
    EXPECT_EQ(triplesOf(record, Quantity::Current).size(), 2u);
}

TEST(Inputs, OfSeveralLinesWithoutACommonNameTheFirstOfEach) {
    const auto record =
        makeRecord(named({"Bus_Ua", "Bus_Ub", "Bus_Uc"}, "V") + named({"Tie_Ia", "Tie_Ib", "Tie_Ic"}, "A") +
                   named({"East_Ia", "East_Ib", "East_Ic"}, "A"));
    const Choice choice = chooseInputs(record);
    ASSERT_TRUE(choice.inputs);
    EXPECT_EQ(choice.inputs->voltages, (Triple{0, 1, 2}));
    EXPECT_EQ(choice.inputs->currents, (Triple{3, 4, 5}));
}

TEST(Inputs, WithoutARowTakesTheFirstOfEachPhase) {
    const auto record = makeRecord(named({"IA", "IA", "IC", "IB", "IB"}, "A"));
    EXPECT_EQ(triplesOf(record, Quantity::Current), (std::vector<Triple>{{0, 3, 2}}));
}

TEST(Inputs, VoltagesBetweenPhasesAndOtherUnitsAreNoSet) {
    EXPECT_TRUE(triplesOf(makeRecord({channel("Uab", "V", "AB"), channel("Ubc", "V", "BC"),
                                      channel("Uca", "V", "CA")}),
                          Quantity::Voltage)
                    .empty());
    EXPECT_TRUE(triplesOf(makeRecord(named({"PA", "PB", "PC"}, "W")), Quantity::Voltage).empty());
}

TEST(Inputs, AChannelWithoutItsSamplesIsLeftOut) {
    record::Record record = makeRecord(named({"IA", "IB", "IC"}, "A"));
    record.analogs[1].samples.clear();
    EXPECT_TRUE(triplesOf(record, Quantity::Current).empty());
}

TEST(Inputs, WhatIsMissingIsSaid) {
    const auto problem = [](std::vector<record::AnalogChannel> channels) {
        const Choice choice = chooseInputs(makeRecord(std::move(channels)));
        EXPECT_FALSE(choice.inputs);
        return choice.problem;
    };
    EXPECT_EQ(problem(named({"IA", "IB", "IC"}, "A")),
              "The record has no voltages of the three phases, so there is no impedance to compute.");
    EXPECT_EQ(problem(named({"UA", "UB", "UC"}, "V") + named({"IA", "IB"}, "A")),
              "The record has no currents of the three phases, so there is no impedance to compute.");
    EXPECT_EQ(problem({}),
              "The record has no voltages and currents of the three phases, so there is no impedance to "
              "compute.");
}

TEST(Conversion, BringsPrimaryValuesToTheSecondarySideAndBack) {
    LineSettings line;
    const Conversion toSecondary = convert(withRatios('P'), inOrder, line);
    EXPECT_DOUBLE_EQ(toSecondary.voltages[1], 1000.0 / 1100);
    EXPECT_DOUBLE_EQ(toSecondary.currents[2], 1.0 / 120);
    EXPECT_EQ(toSecondary.side, Side::Secondary);
    EXPECT_EQ(toSecondary.remark, "");
    line.side = Side::Primary;
    const Conversion toPrimary = convert(withRatios('S'), inOrder, line);
    EXPECT_DOUBLE_EQ(toPrimary.voltages[0], 1100000);
    EXPECT_DOUBLE_EQ(toPrimary.currents[0], 120);
    EXPECT_EQ(toPrimary.side, Side::Primary);
}

TEST(Conversion, LeavesValuesThatAreOnTheSideAlready) {
    record::Record record = withRatios('S');
    record.analogs[4].primary = 0; // no ratio is needed
    const Conversion conversion = convert(record, inOrder, {});
    EXPECT_EQ(conversion.voltages[0], 1000);
    EXPECT_EQ(conversion.currents[1], 1);
    EXPECT_EQ(conversion.side, Side::Secondary);
    EXPECT_EQ(conversion.remark, "");
}

TEST(Conversion, OfAnUnknownRatioLeavesAllAsRecordedAndSaysSo) {
    record::Record record = withRatios('P');
    record.analogs[4].primary = record.analogs[4].secondary = 1;
    Conversion conversion = convert(record, inOrder, {});
    EXPECT_EQ(conversion.voltages[0], 1000);
    EXPECT_EQ(conversion.currents[0], 1);
    EXPECT_EQ(conversion.side, Side::Primary);
    EXPECT_EQ(conversion.remark,
              "The ratios of the transformers are not known, so the impedances are in primary ohms.");
    record.analogs[4].side = 0;
    conversion = convert(record, inOrder, {});
    EXPECT_EQ(conversion.currents[0], 1);
    EXPECT_FALSE(conversion.side);
    EXPECT_EQ(conversion.remark,
              "The record does not tell which side of the transformers its values are on, so "
              "the impedances are in ohms of the values as recorded.");
}

TEST(Conversion, SettingsSupplyWhatTheRecordLacks) {
    record::Record record = withRatios(0);
    LineSettings line;
    line.recordedSide = Side::Primary;
    line.currentRatio = 240;
    line.voltageRatio = 600;
    const Conversion conversion = convert(record, inOrder, line);
    EXPECT_DOUBLE_EQ(conversion.voltages[0], 1000.0 / 600);
    EXPECT_DOUBLE_EQ(conversion.currents[0], 1.0 / 240);
    EXPECT_EQ(conversion.side, Side::Secondary);
    EXPECT_EQ(conversion.remark, "");
}
