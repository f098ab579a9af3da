#include "Samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>

using namespace record;
using test::Bytes;
using test::Configuration;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

Configuration binary(const std::string& format = "BINARY") {
    Configuration configuration;
    configuration.format = format;
    return configuration;
}

template <class Raw>
std::string threeSamples(Raw middle, std::uint32_t middleStamp = 1000) {
    Bytes bytes;
    bytes << std::uint32_t(1) << std::uint32_t(0) << Raw(-5) << Raw(20) << std::uint16_t(1);
    bytes << std::uint32_t(2) << middleStamp << middle << Raw(21) << std::uint16_t(0);
    bytes << std::uint32_t(3) << std::uint32_t(2000) << Raw(7) << Raw(22) << std::uint16_t(1);
    return bytes.text;
}

/// The first channel, which has the factor 1.
std::vector<float> firstChannel(const std::string& format, const std::string& data) {
    return test::read(binary(format).text(), data).analogs[0].samples;
}

} // namespace

TEST(BinaryData, ValuesAreScaledAndStatesPicked) {
    const Record record = test::read(binary().text(), threeSamples<std::int16_t>(300));
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(-5, 300, 7));
    EXPECT_THAT(record.analogs[1].samples, ElementsAre(0, 0.5, 1));
    EXPECT_THAT(record.binaries[0].samples.transitions(), ElementsAre(1u, 2u));
    EXPECT_TRUE(record.binaries[0].samples[0]);
    EXPECT_DOUBLE_EQ(record.time.byStamps(2), 0.002);
    EXPECT_THAT(record.warnings, IsEmpty());
}

TEST(BinaryData, FourByteFormatsAreRead) {
    EXPECT_THAT(firstChannel("BINARY32", threeSamples<std::int32_t>(100000)), ElementsAre(-5, 100000, 7));
    EXPECT_THAT(firstChannel("FLOAT32", threeSamples<float>(0.25f)), ElementsAre(-5, 0.25, 7));
}

TEST(BinaryData, ScaleAppliesToFloatsToo) {
    const Record record = test::read(binary("FLOAT32").text(), threeSamples<float>(1));
    EXPECT_THAT(record.analogs[1].samples, ElementsAre(0, 0.5, 1));
}

TEST(BinaryData, EachFormatHasItsCodeForAMissingValue) {
    EXPECT_TRUE(std::isnan(firstChannel("BINARY", threeSamples<std::int16_t>(-32768))[1]));
    EXPECT_TRUE(std::isnan(firstChannel("BINARY32", threeSamples<std::int32_t>(INT32_MIN))[1]));
    EXPECT_TRUE(std::isnan(firstChannel("FLOAT32", threeSamples<float>(-FLT_MAX))[1]));
}

TEST(BinaryData, ValuesWithoutAnEndAreMissing) {
    EXPECT_TRUE(std::isnan(firstChannel("FLOAT32", threeSamples<float>(INFINITY))[1]));
    EXPECT_TRUE(std::isnan(firstChannel("FLOAT32", threeSamples<float>(NAN))[1]));
    Configuration configuration = binary();
    configuration.analogs[0] = "1,UA,A,,V,1e38,0,0,-1,1";
    EXPECT_TRUE(
        std::isnan(test::read(configuration.text(), threeSamples<std::int16_t>(300)).analogs[0].samples[1]));
}

TEST(BinaryData, CodesOfOneFormatAreOrdinaryValuesInAnother) {
    EXPECT_EQ(firstChannel("BINARY32", threeSamples<std::int32_t>(-32768))[1], -32768);
    EXPECT_EQ(firstChannel("FLOAT32", threeSamples<float>(-32768))[1], -32768);
    EXPECT_EQ(firstChannel("BINARY", threeSamples<std::int16_t>(-1))[1], -1);
}

TEST(BinaryData, DeclaredRangesDoNotClip) {
    Configuration configuration = binary();
    configuration.analogs[0] = "1,UA,A,,V,1,0,0,-1,1";
    EXPECT_EQ(test::read(configuration.text(), threeSamples<std::int16_t>(300)).analogs[0].samples[1], 300);
}

TEST(BinaryData, AStampOfOnesIsMissing) {
    const Record record = test::read(binary().text(), threeSamples<std::int16_t>(0, 0xFFFFFFFF));
    EXPECT_EQ(record.time.missingStamps(), 1u);
    EXPECT_DOUBLE_EQ(record.time.byStamps(1), 0.001);
}

TEST(BinaryData, StampsAloneMakeTheAxisWithoutRates) {
    Configuration configuration = binary();
    configuration.rates = {"0", "0,3"};
    configuration.tail = {"2"};
    const Record record = test::read(configuration.text(), threeSamples<std::int16_t>(0));
    EXPECT_EQ(record.time.rule(), TimeAxis::Rule::Stamps);
    EXPECT_DOUBLE_EQ(record.time.at(2), 0.004);
}

TEST(BinaryData, WithoutRatesAndStampsTheAxisCounts) {
    Configuration configuration = binary();
    configuration.rates = {"0", "0,1"};
    Bytes bytes;
    bytes << std::uint32_t(1) << std::uint32_t(0xFFFFFFFF) << std::int16_t(0) << std::int16_t(0)
          << std::uint16_t(1);
    const Record record = test::read(configuration.text(), bytes.text);
    EXPECT_EQ(record.time.rule(), TimeAxis::Rule::Numbers);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("counts samples")));
}

TEST(BinaryData, SixteenStatesShareAWordLowestFirst) {
    Configuration configuration = binary();
    configuration.counts = "20,0A,20D";
    configuration.analogs.clear();
    configuration.binaries.clear();
    for (int i = 0; i < 20; ++i)
        configuration.binaries.push_back(std::to_string(i) + ",D" + std::to_string(i) + ",,,0");
    Bytes bytes;
    for (std::uint32_t i = 0; i < 200; ++i)
        bytes << i << i * 1000 << std::uint16_t(i == 100 ? 0x8001 : 0)
              << std::uint16_t(i >= 64 && i < 130 ? 0x8 : 0);
    const Record record = test::read(configuration.text(), bytes.text);
    ASSERT_EQ(record.size(), 200u);
    EXPECT_THAT(record.binaries[0].samples.transitions(), ElementsAre(100u, 101u));
    EXPECT_THAT(record.binaries[15].samples.transitions(), ElementsAre(100u, 101u));
    EXPECT_THAT(record.binaries[19].samples.transitions(), ElementsAre(64u, 130u));
    EXPECT_THAT(record.binaries[16].samples.transitions(), IsEmpty());
}

TEST(BinaryData, WithoutBinariesThereAreNoWords) {
    Configuration configuration = binary();
    configuration.counts = "2,2A,0D";
    configuration.binaries.clear();
    Bytes bytes;
    for (std::uint32_t i = 0; i < 3; ++i)
        bytes << i + 1 << i * 1000 << std::int16_t(i) << std::int16_t(0);
    EXPECT_THAT(test::read(configuration.text(), bytes.text).analogs[0].samples, ElementsAre(0, 1, 2));
}

TEST(BinaryData, LongRecordsAreReadPieceByPiece) {
    Configuration configuration = binary();
    configuration.rates = {"1", "1000,20000"};
    Bytes bytes;
    for (std::uint32_t i = 0; i < 20000; ++i)
        bytes << i + 1 << i * 1000 << std::int16_t(i % 30000) << std::int16_t(0) << std::uint16_t(i >= 12345);
    const Record record = test::read(configuration.text(), bytes.text);
    ASSERT_EQ(record.size(), 20000u);
    for (std::size_t i = 0; i < 20000; ++i)
        ASSERT_EQ(record.analogs[0].samples[i], static_cast<float>(i));
    EXPECT_THAT(record.binaries[0].samples.transitions(), ElementsAre(12345u));
    EXPECT_THAT(record.warnings, IsEmpty());
}

TEST(BinaryData, ASampleCutOffAtTheEndIsLeftOutAndTold) {
    std::string data = threeSamples<std::int16_t>(0);
    data.resize(data.size() - 3);
    const Record record = test::read(binary().text(), data);
    EXPECT_EQ(record.size(), 2u);
    EXPECT_THAT(record.warnings,
                ElementsAre(HasSubstr("11 bytes after the last whole sample are left out; they are part"),
                            HasSubstr("3 samples promised, 2 there")));
}

TEST(BinaryData, PaddingAtTheEndIsTold) {
    const Record record = test::read(binary().text(), threeSamples<std::int16_t>(0) + "\x1a\x1a");
    EXPECT_EQ(record.size(), 3u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("padding")));
}

TEST(BinaryData, MoreSamplesThanPromisedAreAllKept) {
    Configuration configuration = binary();
    configuration.rates = {"1", "1000,2"};
    const Record record = test::read(configuration.text(), threeSamples<std::int16_t>(0));
    EXPECT_EQ(record.size(), 3u);
    EXPECT_DOUBLE_EQ(record.time.at(2), 0.002);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("2 samples promised, 3 there")));
}

TEST(BinaryData, NoDataAreNoSamplesWithAWarning) {
    const Record record = test::read(binary().text(), "");
    EXPECT_EQ(record.size(), 0u);
    EXPECT_EQ(record.analogs.size(), 2u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("3 samples promised, 0 there")));
}

TEST(BinaryData, WrongPromisesAllocateNothing) {
    Configuration configuration = binary();
    configuration.rates = {"1", "1000,99999999999999999"};
    EXPECT_EQ(test::read(configuration.text(), threeSamples<std::int16_t>(0)).size(), 3u);
}

TEST(Salvage, TellsTheFormatByTheNumbersOfTheSamples) {
    Configuration configuration = binary();
    const std::string whole = configuration.text();
    const std::string cut = whole.substr(0, whole.find("50\r\n"));
    const Record record = test::read(cut, threeSamples<std::int16_t>(300), test::salvage());
    EXPECT_EQ(record.format, Format::Binary);
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(-5, 300, 7));
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("line 6"), HasSubstr("taken to be BINARY")));
}

TEST(Salvage, ReadsTheKnownChannelsOfAListThatWasCutOff) {
    Configuration configuration = binary();
    const std::string whole = configuration.text();
    const std::string cut = whole.substr(0, whole.find("2,IA"));
    const Record record = test::read(cut, threeSamples<std::int16_t>(300), test::salvage());
    ASSERT_EQ(record.analogs.size(), 1u);
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(-5, 300, 7));
    EXPECT_EQ(record.binaries.size(), 0u);
}

TEST(Salvage, ReadsNoSampleWhereTheFormatCannotBeTold) {
    const std::string whole = binary().text();
    const std::string cut = whole.substr(0, whole.find("50\r\n"));
    const Record record = test::read(cut, threeSamples<float>(300), test::salvage());
    EXPECT_EQ(record.size(), 0u);
    EXPECT_EQ(record.analogs.size(), 2u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("line 6"), HasSubstr("can't be told")));
}
