// Impedances of recorded faults, compared with what other means have found in them.

#include "impedance/Trajectory.h"
#include "impedance/Zones.h"
#include "reader/Reader.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

namespace {

namespace fs = std::filesystem;
using namespace impedance;
using nlohmann::json;

fs::path recordsFolder() {
    const char* chosen = std::getenv("ZEL_RECORDS");
    return chosen ? chosen : ZEL_RECORDS_DIR;
}

struct Expected {
    json trajectories;
    record::Record record;
    Inputs inputs;
    LineSettings line;
};

std::size_t channelNamed(const record::Record& record, const std::string& name) {
    for (std::size_t i = 0; i < record.analogs.size(); ++i)
        if (record.analogs[i].name == name)
            return i;
    ADD_FAILURE() << "there is no channel " << name;
    return 0;
}

/// The limit that the expectation was made with, which it tells in a sentence.
double currentLimit(const std::string& rule) {
    return 0.05 * std::stod(rule.substr(rule.rfind('(') + 1));
}

/// Empty when the records are not there.
std::optional<Expected> read(const std::string& expectation, const std::string& path) {
    const fs::path file = recordsFolder() / "oracle" / "rx" / expectation;
    if (!fs::exists(file))
        return std::nullopt;
    Expected expected;
    std::ifstream stream(file);
    expected.trajectories = json::parse(stream);
    record::Options options;
    options.codePage = "GB18030";
    expected.record = record::open(recordsFolder() / path, options);
    for (std::size_t i = 0; i < 3; ++i) {
        expected.inputs.voltages[i] =
            channelNamed(expected.record, expected.trajectories["channels"]["V"][i]);
        expected.inputs.currents[i] =
            channelNamed(expected.record, expected.trajectories["channels"]["I"][i]);
    }
    // The expectations were made without regard to the skew.
    for (record::AnalogChannel& channel : expected.record.analogs)
        channel.skew = 0;
    expected.line.recordedSide = expected.line.side;
    expected.line.minimumCurrent = currentLimit(expected.trajectories["null_rule"]);
    return expected;
}

/// Every point of a loop up to the end of what was computed, within a part of its distance from the origin.
void compare(const Expected& expected, Loop loop, double tolerance) {
    SCOPED_TRACE(name(loop));
    const json& wanted = expected.trajectories["loops"][name(loop)];
    const std::size_t first = expected.trajectories["first_window_end_sample"];
    const Trajectories all = trajectories(expected.record, expected.inputs, expected.line);
    std::map<std::size_t, Complex> found;
    for (const Point& point : all.of(loop))
        found[point.position] = {point.r, point.x};
    std::size_t differing = 0;
    double worst = 0;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const auto point = found.find(first + i);
        if (wanted[i].is_null() != (point == found.end())) {
            ++differing;
            continue;
        }
        if (wanted[i].is_null())
            continue;
        const Complex z(wanted[i][0], wanted[i][1]);
        worst = std::max(worst, std::abs(point->second - z) / std::abs(z));
    }
    EXPECT_LT(worst, tolerance);
    EXPECT_EQ(differing, 0u) << "one of the two has a point";
}

void compareAll(const Expected& expected, double tolerance) {
    for (const Loop loop : {Loop::AE, Loop::BE, Loop::CE, Loop::AB, Loop::BC, Loop::CA})
        compare(expected, loop, tolerance);
}

/// The relay's own settings for this line.
std::optional<Expected> relayRecord() {
    auto expected = read("1991-ascii-sel_rx.json", "comtrade-jl/1991-ascii-sel.cfg");
    if (!expected)
        return std::nullopt;
    expected->line.z1 = fromAngle(1.78, 75.10);
    expected->line.z0 = fromAngle(5.71, 72.10);
    expected->line.currentRatio = 240;
    expected->line.voltageRatio = 600;
    expected->line.recordedSide = Side::Primary;
    expected->line.minimumCurrent /= 240;
    return expected;
}

} // namespace

TEST(ImpedanceOracle, ALineWithRatesAndSettings) {
    const auto expected = relayRecord();
    if (!expected)
        GTEST_SKIP() << recordsFolder() << " is not there";
    compareAll(*expected, 1e-5);
}

TEST(ImpedanceOracle, ALineWithTimeStampsAlone) {
    const auto expected = read("wisp_3_rx.json", "wisp/3.cfg");
    if (!expected)
        GTEST_SKIP() << recordsFolder() << " is not there";
    compareAll(*expected, 1e-5);
}

TEST(ImpedanceOracle, ALineOfPrimaryValues) {
    const auto expected = read("go_test1_rx.json", "go-comtrade/test1.cfg");
    if (!expected)
        GTEST_SKIP() << recordsFolder() << " is not there";
    compareAll(*expected, 1e-5);
}

TEST(ImpedanceOracle, TheFirstRateOfSeveral) {
    for (const auto& [expectation, path] : {std::pair("xtz_xyx213_rx.json", "py3comtrade/xtz.cfg"),
                                            {"ygz_xgx214_rx.json", "py3comtrade/ygz.cfg"}}) {
        SCOPED_TRACE(path);
        const auto expected = read(expectation, path);
        if (!expected)
            GTEST_SKIP() << recordsFolder() << " is not there";
        compareAll(*expected, 1e-5);
    }
}

TEST(ImpedanceOracle, TheRelaysOwnLocationComesOut) {
    const auto expected = relayRecord();
    if (!expected)
        GTEST_SKIP() << recordsFolder() << " is not there";
    const Trajectories all = trajectories(expected->record, expected->inputs, expected->line);
    Complex sum;
    int count = 0;
    for (const Point& point : all.of(Loop::CE))
        if (point.position >= 83 && point.position <= 99) {
            sum += Complex(point.r, point.x);
            ++count;
        }
    ASSERT_EQ(count, 17);
    const Complex z = sum / 17.0;
    EXPECT_NEAR(z.real(), 0.7190, 0.0001);
    EXPECT_NEAR(z.imag(), 1.4437, 0.0001);
    EXPECT_NEAR(z.imag() / expected->line.z1.imag(), 0.84, 0.001);
}

TEST(ImpedanceOracle, TheFaultEntersTheZonesThatTheRelaySaw) {
    const auto expected = relayRecord();
    if (!expected)
        GTEST_SKIP() << recordsFolder() << " is not there";
    const Trajectories all = trajectories(expected->record, expected->inputs, expected->line);
    const auto inside = [&](const Area& area) {
        std::vector<std::size_t> positions;
        for (const Point& point : all.of(Loop::CE))
            if (contains(area, {point.r, point.x}))
                positions.push_back(point.position);
        return positions;
    };
    const json& zones = expected->trajectories["settings"]["mho"];
    const auto wanted = [&](const char* zone) {
        return zones[zone]["CE_inside_samples"].get<std::vector<std::size_t>>();
    };
    const std::size_t last = 15 + expected->trajectories["time"].size() - 1;
    const auto upToLast = [&](std::vector<std::size_t> positions) {
        positions.erase(std::remove_if(positions.begin(), positions.end(),
                                       [&](std::size_t position) { return position > last; }),
                        positions.end());
        return positions;
    };
    EXPECT_EQ(upToLast(inside(mho(fromAngle(1.43, 75.10)))), wanted("Z1"));
    EXPECT_EQ(upToLast(inside(mho(fromAngle(2.67, 75.10)))), wanted("Z2"));
    EXPECT_TRUE(upToLast(inside(mho(-fromAngle(1.25, 75.10)))).empty());
}

TEST(ImpedanceOracle, TheChannelsOfALineAreFoundWithoutHelp) {
    for (const auto& [expectation, path] :
         {std::pair("1991-ascii-sel_rx.json", "comtrade-jl/1991-ascii-sel.cfg"),
          {"wisp_3_rx.json", "wisp/3.cfg"},
          {"go_test1_rx.json", "go-comtrade/test1.cfg"},
          {"ygz_xgx214_rx.json", "py3comtrade/ygz.cfg"}}) {
        SCOPED_TRACE(path);
        const auto expected = read(expectation, path);
        if (!expected)
            GTEST_SKIP() << recordsFolder() << " is not there";
        const Choice choice = chooseInputs(expected->record);
        ASSERT_TRUE(choice.inputs);
        EXPECT_EQ(choice.inputs->voltages, expected->inputs.voltages);
        EXPECT_EQ(choice.inputs->currents, expected->inputs.currents);
    }
}
