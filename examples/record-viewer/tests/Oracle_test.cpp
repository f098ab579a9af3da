// Reads recorded signals of many devices and compares them with what other means have found in them.

#include "reader/Reader.h"
#include "reader/Statistics.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;

fs::path recordsFolder() {
    const char* chosen = std::getenv("ZEL_RECORDS");
    return chosen ? chosen : ZEL_RECORDS_DIR;
}

/// An expected reading. Endless numbers, which JSON has no word for, become null.
json readExpectation(const fs::path& path) {
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    std::string content = text.str();
    for (const std::string word : {"-Infinity", "Infinity", "NaN"})
        for (std::size_t at = content.find(": " + word); at != std::string::npos;
             at = content.find(": " + word, at))
            content.replace(at + 2, word.size(), "null");
    return json::parse(content);
}

/// The code page that the expectation was made with, by the name that iconv knows.
std::string codePageOf(const std::string& encoding) {
    if (encoding == "latin-1")
        return "ISO-8859-1";
    return encoding == "ascii" || encoding.substr(0, 5) == "utf-8" ? "CP1251" : encoding;
}

bool isAscii(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return std::all_of(std::istreambuf_iterator<char>(file), {}, [](char c) { return c >= 0; });
}

std::string expectedEncoding(const std::string& encoding, const fs::path& path) {
    // A text of ASCII characters alone reads the same in every code page.
    if (encoding == "latin-1" && isAscii(path))
        return "ASCII";
    if (encoding == "utf-8")
        return "UTF-8";
    if (encoding == "utf-8-sig")
        return "UTF-8 with BOM";
    return encoding == "ascii" ? "ASCII" : codePageOf(encoding);
}

std::vector<std::string> expectations() {
    std::vector<std::string> paths;
    std::error_code problem;
    for (fs::recursive_directory_iterator entry(recordsFolder() / "oracle", problem), last; entry != last;
         ++entry)
        if (entry->path().extension() == ".json" && entry->path().parent_path().filename() != "rx")
            paths.push_back(entry->path().string());
    std::sort(paths.begin(), paths.end());
    return paths;
}

/// The file of the record that one would open: its configuration, or the combined file.
fs::path recordOf(const fs::path& expectationPath, const json& expected) {
    const fs::path folder = recordsFolder() / expectationPath.parent_path().filename();
    for (const auto& file : expected["files"].items()) {
        std::string extension = fs::path(file.key()).extension().string();
        std::transform(extension.begin(), extension.end(), extension.begin(),
                       [](unsigned char c) { return std::tolower(c); });
        if (extension == ".cfg" || extension == ".cff")
            return folder / file.key();
    }
    return {};
}

void expectNear(const json& expected, double value, double tolerance, const std::string& what) {
    if (expected.is_null())
        EXPECT_TRUE(std::isnan(value)) << what << " is " << value;
    else
        EXPECT_NEAR(value, expected.get<double>(), tolerance) << what;
}

void compareHead(const json& expected, const record::Record& record) {
    EXPECT_EQ(record.station, expected["station"]);
    EXPECT_EQ(record.device, expected["device"]);
    EXPECT_EQ(record.revisionText, expected["rev_text"].is_null() ? "" : expected["rev_text"]);
    EXPECT_EQ(record.revision, expected["rev_effective"]);
    std::string format = expected["format"];
    format.erase(std::remove(format.begin(), format.end(), ','), format.end());
    EXPECT_EQ(record::name(record.format), format);
    EXPECT_EQ(record.encoding, expectedEncoding(expected["encoding"], record.path));
    EXPECT_EQ(record.size(), expected["samples"]);
    EXPECT_EQ(record.declaredSamples, expected["samples_by_cfg"]);
    EXPECT_EQ(record.lineFrequency, expected["line_freq"]);
    EXPECT_EQ(record.timeMultiplier, expected["timemult"]);
    EXPECT_EQ(record.stampUnit, expected["stamp_unit_s"]);
    EXPECT_EQ(record.start ? record.start->text() : "", expected["start"]);
    EXPECT_EQ(record.trigger ? record.trigger->text() : "", expected["trigger"]);
    EXPECT_EQ(record.timeCode.empty() ? "" : record.timeCode + "," + record.localCode,
              expected["tail"].empty() ? "" : expected["tail"][0]);
    EXPECT_EQ(record.clockQuality, expected["tail"].size() < 2 ? "" : expected["tail"][1]);

    ASSERT_EQ(record.rates.size(), expected["rates"].size());
    for (std::size_t i = 0; i < record.rates.size(); ++i) {
        EXPECT_EQ(record.rates[i].hertz, expected["rates"][i][0]);
        EXPECT_EQ(record.rates[i].end, expected["rates"][i][1]);
    }
}

void compareTime(const json& expected, const record::TimeAxis& time) {
    const std::size_t last = time.size() - 1;
    EXPECT_EQ(time.rule(),
              expected["rule"] == "rates" ? record::TimeAxis::Rule::Rates : record::TimeAxis::Rule::Stamps);
    EXPECT_EQ(time.hasRates(), !expected["by_rates"].is_null());
    EXPECT_EQ(time.hasStamps(), !expected["by_stamps"].is_null());
    if (time.size() == 0)
        return;
    expectNear(expected["first"], time.at(0), 1e-9, "first time");
    expectNear(expected["last"], time.at(last), 1e-9, "last time");
    if (time.hasRates()) {
        expectNear(expected["by_rates"]["first"], time.byRates(0), 1e-9, "first by rates");
        expectNear(expected["by_rates"]["last"], time.byRates(last), 1e-9, "last by rates");
    }
    if (time.hasStamps()) {
        const json& stamps = expected["by_stamps"];
        // A counter that started over is made continuous.
        const bool isWrapped = stamps.contains("unwrapped_last");
        expectNear(stamps["first"], time.byStamps(0), 1e-9, "first by stamps");
        expectNear(stamps[isWrapped ? "unwrapped_last" : "last"], time.byStamps(last), 1e-9,
                   "last by stamps");
        EXPECT_EQ(time.missingStamps(), stamps["missing"]);
    }
}

void compareAnalog(const json& expected, const record::AnalogChannel& channel) {
    SCOPED_TRACE("analog " + channel.name);
    EXPECT_EQ(channel.name, expected["name"]);
    EXPECT_EQ(channel.phase, expected["phase"]);
    EXPECT_EQ(channel.component, expected["ccbm"]);
    EXPECT_EQ(channel.unit, expected["unit"]);
    EXPECT_EQ(channel.factor, expected["a"]);
    EXPECT_EQ(channel.offset, expected["b"]);
    EXPECT_EQ(channel.skew, expected["skew_us"]);
    EXPECT_EQ(channel.rawMinimum, expected["decl_min"]);
    EXPECT_EQ(channel.rawMaximum, expected["decl_max"]);
    EXPECT_EQ(channel.primary, expected["primary"].is_null() ? 0 : expected["primary"].get<double>());
    EXPECT_EQ(channel.secondary, expected["secondary"].is_null() ? 0 : expected["secondary"].get<double>());
    const std::string side = expected["ps"].is_null() ? "" : expected["ps"];
    EXPECT_EQ(channel.side == 'S', side == "S" || side == "s");
    EXPECT_EQ(channel.side == 'P', side == "P" || side == "p");

    const record::Statistics found = record::statistics(channel.samples);
    if (expected.contains("max") && expected["max"].is_null()) {
        // The expectation took an endless value for an ordinary one; it is missing for us.
        EXPECT_EQ(found.missing, expected["missing"].get<std::size_t>() + 1);
        EXPECT_NEAR(found.minimum, expected["min"].get<double>(), 1e-5 * std::abs(found.minimum));
        return;
    }
    EXPECT_EQ(found.valid, expected["valid"]);
    EXPECT_EQ(found.missing, expected["missing"]);
    if (found.valid == 0)
        return;
    const double magnitude = std::max(std::abs(found.minimum), std::abs(found.maximum));
    const auto compare = [&](const char* key, double value) {
        // A mean of nearly nothing inherits the rounding of the large values it comes from.
        const double wanted = expected[key];
        EXPECT_NEAR(value, wanted, 1e-5 * std::abs(wanted) + 1e-7 * magnitude) << key;
    };
    compare("min", found.minimum);
    compare("max", found.maximum);
    compare("mean", found.mean);
    compare("rms", found.rms);
}

void compareBinary(const json& expected, const record::BinaryChannel& channel) {
    SCOPED_TRACE("binary " + channel.name);
    EXPECT_EQ(channel.name, expected["name"]);
    EXPECT_EQ(channel.phase, expected["phase"]);
    EXPECT_EQ(channel.component, expected["ccbm"]);
    EXPECT_EQ(channel.normal ? "1" : "0", expected["normal"] == "" ? "0" : expected["normal"]);
    if (channel.samples.size() == 0)
        return;
    EXPECT_EQ(channel.samples[0], expected["first"] == 1);
    EXPECT_EQ(channel.samples[channel.samples.size() - 1], expected["last"] == 1);
    std::size_t ones = 0;
    for (std::size_t i = 0; i < channel.samples.size(); ++i)
        ones += channel.samples[i];
    EXPECT_EQ(ones, expected["ones"]);
    EXPECT_EQ(channel.samples.transitionCount(), expected["transitions"]);
    const std::vector<std::size_t> transitions = channel.samples.transitions();
    EXPECT_EQ(transitions.size(), expected["transitions"]);
    if (!transitions.empty()) {
        EXPECT_EQ(transitions[0], expected["first_transition_sample"]);
    }
}

void compareChannels(const json& expected, const record::Record& record) {
    ASSERT_EQ(record.analogs.size(), expected["analog"].size());
    for (std::size_t i = 0; i < record.analogs.size(); ++i)
        compareAnalog(expected["analog"][i], record.analogs[i]);
    ASSERT_EQ(record.binaries.size(), expected["digital"].size());
    for (std::size_t i = 0; i < record.binaries.size(); ++i)
        compareBinary(expected["digital"][i], record.binaries[i]);
}

/// What a refused record still gives: its channels, and their samples where there are any.
void compareSalvaged(const json& expected, const fs::path& path, record::Options options) {
    options.salvage = true;
    const record::Record record = record::open(path, options);
    EXPECT_FALSE(record.warnings.empty());
    EXPECT_EQ(record.size(), expected["samples"]);
    ASSERT_EQ(record.analogs.size(), expected["analog"].size());
    for (std::size_t i = 0; i < record.analogs.size(); ++i)
        compareAnalog(expected["analog"][i], record.analogs[i]);
    EXPECT_GT(record.binaries.size(), 0u);
    for (std::size_t i = 0; i < record.binaries.size(); ++i)
        compareBinary(expected["digital"][i], record.binaries[i]);
}

class Oracle : public testing::TestWithParam<std::string> {};

TEST_P(Oracle, TheRecordReadsAsExpected) {
    const json expected = readExpectation(GetParam());
    const fs::path path = recordOf(GetParam(), expected);
    ASSERT_FALSE(path.empty());
    record::Options options;
    options.codePage = codePageOf(expected["encoding"]);
    const std::string verdict = expected.value("expect", "open");

    if (verdict.substr(0, 6) == "reject") {
        try {
            record::open(path, options);
            ADD_FAILURE() << "the record was not refused";
        } catch (const record::Error& error) {
            EXPECT_NE(std::string(error.what()).find(path.filename().string()), std::string::npos)
                << error.what();
        }
        compareSalvaged(expected, path, options);
        return;
    }

    const record::Record record = record::open(path, options);
    compareHead(expected, record);
    compareTime(expected["time"], record.time);
    compareChannels(expected, record);
    if (verdict.find("warning") != std::string::npos) {
        EXPECT_FALSE(record.warnings.empty());
    }
}

std::string nameOf(const testing::TestParamInfo<std::string>& info) {
    const fs::path path = info.param;
    std::string text = path.parent_path().filename().string() + "_" + path.stem().string();
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return text;
}

INSTANTIATE_TEST_SUITE_P(Records, Oracle, testing::ValuesIn(expectations()), nameOf);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Oracle);

TEST(Records, ATableWithATimeColumnOpens) {
    const fs::path path = recordsFolder() / "csv" / "scope_10_1.csv";
    if (!fs::exists(path))
        GTEST_SKIP() << path << " is not there";
    const record::Record record = record::open(path);
    ASSERT_EQ(record.analogs.size(), 1u);
    EXPECT_EQ(record.analogs[0].name, "1");
    EXPECT_EQ(record.analogs[0].unit, "Volt");
    EXPECT_EQ(record.size(), 1000u);
    EXPECT_DOUBLE_EQ(record.time.at(0), -0.001);
    EXPECT_DOUBLE_EQ(record.time.at(999), 0.000998);
    EXPECT_EQ(record.analogs[0].samples[999], 2.49975f);
    EXPECT_TRUE(record.warnings.empty());
}

TEST(Records, ATableWithoutATimeColumnCountsItsSamples) {
    const fs::path path = recordsFolder() / "csv" / "sgah_2-data.csv";
    if (!fs::exists(path))
        GTEST_SKIP() << path << " is not there";
    const record::Record record = record::open(path);
    ASSERT_EQ(record.analogs.size(), 6u);
    EXPECT_EQ(record.analogs[5].name, "Ic");
    EXPECT_EQ(record.analogs[5].unit, "A");
    EXPECT_EQ(record.size(), 7000u);
    EXPECT_EQ(record.time.at(6999), 6999);
    EXPECT_EQ(record.analogs[5].samples[0], 0.54838f);
    EXPECT_EQ(record.warnings.size(), 1u);
}

TEST(Records, AreThere) {
    if (!fs::exists(recordsFolder()))
        GTEST_SKIP() << "there are no records at " << recordsFolder();
    EXPECT_GT(expectations().size(), 40u);
}

} // namespace
