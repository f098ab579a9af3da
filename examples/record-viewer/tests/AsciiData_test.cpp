#include "Samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using namespace record;
using test::Configuration;
using test::threeLines;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

Record read(const std::string& data, const Options& options = {}) {
    return test::read(Configuration().text(), data, options);
}

std::string refusal(const std::string& data) {
    return test::refusal(Configuration().text(), data);
}

/// The first of two values, for a channel with a range and under a revision.
float firstValue(const std::string& raw, const std::string& range, const std::string& revision = "1999") {
    Configuration configuration;
    configuration.station = "S,D," + revision;
    configuration.analogs[0] = "1,UA,A,,V,1,0,0," + range;
    return test::read(configuration.text(), "1,0," + raw + ",0,0\n").analogs[0].samples.at(0);
}

} // namespace

TEST(AsciiData, ValuesAreScaledAndStatesRead) {
    const Record record = read(threeLines);
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(10, 11, 12));
    EXPECT_THAT(record.analogs[1].samples, ElementsAre(0, 0.5, 1));
    EXPECT_THAT(record.binaries[0].samples.transitions(), ElementsAre(1u, 2u));
    EXPECT_DOUBLE_EQ(record.time.byStamps(2), 0.002);
    EXPECT_THAT(record.warnings, IsEmpty());
}

TEST(AsciiData, EveryLineEndAndEmptyLinesAreUnderstood) {
    for (const std::string end : {"\n", "\r\n", "\r\r\n", "\r", "\n\n", "\r\n\r\n"}) {
        const Record record = read("1,0,10,20,0" + end + "2,1000,11,21,1" + end + "3,2000,12,22,0" + end);
        EXPECT_THAT(record.analogs[0].samples, ElementsAre(10, 11, 12));
        EXPECT_THAT(record.warnings, IsEmpty());
    }
}

TEST(AsciiData, TheLastLineNeedsNoEndAndPaddingIsIgnored) {
    EXPECT_EQ(read("1,0,10,20,0\n2,1000,11,21,1\n3,2000,12,22,0").size(), 3u);
    EXPECT_THAT(read(threeLines + "\x1a\x1a").warnings, IsEmpty());
}

TEST(AsciiData, NumbersMayBePaddedSignedAndBroken) {
    const Record record = read("1, 0,+000571, -2.5e1 ,0\n000002,1000,-000012,21,1\n3,2000,.5,22, 0 \n");
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(571, -12, 0.5));
    EXPECT_THAT(record.analogs[1].samples, ElementsAre(-22.5, 0.5, 1));
}

TEST(AsciiData, SampleNumbersAreNotUsed) {
    const Record record = read("0,0,10,20,0\n7,1000,11,21,1\n,2000,12,22,0\n");
    EXPECT_EQ(record.size(), 3u);
    EXPECT_DOUBLE_EQ(record.time.at(2), 0.002);
}

TEST(AsciiData, EmptyFieldsAreMissingInEveryRevision) {
    for (const char* revision : {"1991", "1999", "2013"})
        EXPECT_TRUE(std::isnan(firstValue("", "-1,1", revision))) << revision;
}

TEST(AsciiData, NinesAreMissingAboveTheDeclaredRange) {
    for (const char* revision : {"1991", "1999", "2013"}) {
        EXPECT_TRUE(std::isnan(firstValue("99999", "-32767,32767", revision)));
        EXPECT_TRUE(std::isnan(firstValue("999999", "0,999900", revision)));
        EXPECT_EQ(firstValue("99999", "0,99999", revision), 99999);
        EXPECT_EQ(firstValue("999999", "-1000000,1000000", revision), 999999);
    }
    EXPECT_EQ(firstValue("9999", "-1,1"), 9999);
}

TEST(AsciiData, WithoutARangeOnlyTheCodeOfTheRevisionIsMissing) {
    EXPECT_TRUE(std::isnan(firstValue("99999", ",")));
    EXPECT_EQ(firstValue("999999", ","), 999999);
    EXPECT_TRUE(std::isnan(firstValue("999999", "0,0", "1991")));
    EXPECT_EQ(firstValue("99999", "0,0", "1991"), 99999);
}

TEST(AsciiData, CodesOfBinaryFormatsAreOrdinaryValues) {
    EXPECT_EQ(firstValue("-32768", "-32767,32767"), -32768);
}

TEST(AsciiData, EmptyStampsAndTheCodeOfOnesAreMissing) {
    const Record record = read("1,,10,20,0\n2,1000,11,21,1\n3,4294967295,12,22,0\n");
    EXPECT_EQ(record.time.missingStamps(), 2u);
    EXPECT_DOUBLE_EQ(record.time.byStamps(1), 0.001);
}

TEST(AsciiData, StampsMayBeNegativeAndBroken) {
    const Record record = read("1,-41663,10,20,0\n2,-41533.5,11,21,1\n3,2000,12,22,0\n");
    EXPECT_DOUBLE_EQ(record.time.byStamps(0), -0.041663);
    EXPECT_DOUBLE_EQ(record.time.byStamps(1), -0.0415335);
}

TEST(AsciiData, CommasTooManyAtTheEndsAreTold) {
    const Record record = read("1,0,10,20,0,\n2,1000,11,21,1,\n3,2000,12,22,0,\n");
    EXPECT_EQ(record.size(), 3u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("3 lines with a comma too many")));
}

TEST(AsciiData, ALastLineCutOffIsLeftOutAndTold) {
    const Record record = read("1,0,10,20,0\n2,1000,11,21,1\n3,2000,1");
    EXPECT_EQ(record.size(), 2u);
    EXPECT_THAT(record.warnings,
                ElementsAre(HasSubstr("last line (3) is cut off"), HasSubstr("3 samples promised, 2 there")));
}

TEST(AsciiData, EmptyStatesAreZeroAndTold) {
    const Record record = read("1,0,10,20,\n2,1000,11,21,1\n3,2000,12,22,0\n");
    EXPECT_FALSE(record.binaries[0].samples[0]);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("1 binary value empty")));
}

TEST(AsciiData, DamageIsRefusedWithItsLine) {
    EXPECT_EQ(refusal("1,0,10,20,0\n2,1000,zz,21,1\n3,2000,12,22,0\n"),
              "test.dat, line 2: expected a number, found \"zz\".");
    EXPECT_THAT(refusal("1,0,10,20,0\n2,1000,11\n3,2000,12,22,0\n"),
                HasSubstr("line 2: expected 5 values instead of 3, found \"2,1000,11\""));
    EXPECT_THAT(refusal("1,0,10,20,0\n2,1000,11,21,1,5\n"),
                HasSubstr("line 2: expected the end of the line"));
    EXPECT_THAT(refusal("1,0,10,20,0\n2,x,11,21,1\n"),
                HasSubstr("line 2: expected a time stamp, found \"x\""));
    EXPECT_THAT(refusal("1,0,10,20,2\n"), HasSubstr("line 1: expected 0 or 1, found \"2\""));
}

TEST(AsciiData, NoDataAreNoSamplesWithAWarning) {
    const Record record = read("");
    EXPECT_EQ(record.size(), 0u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("3 samples promised, 0 there")));
}

TEST(AsciiData, LeapsAndDisagreementsAreTold) {
    const Record record = read("1,0,10,20,0\n2,1000,11,21,1\n3,9000,12,22,0\n");
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("leap in 1 place, first by 0.008 s before sample 3"),
                                             HasSubstr("up to 7 samples")));
    EXPECT_DOUBLE_EQ(record.time.at(2), 0.002);
}

TEST(Salvage, DamagedValuesBecomeMissing) {
    const Record record = read("1,0,10,20,0\n2,1000,zz,21,9\n3,2000,12,22,1\n", test::salvage());
    ASSERT_EQ(record.size(), 3u);
    EXPECT_TRUE(std::isnan(record.analogs[0].samples[1]));
    EXPECT_EQ(record.analogs[1].samples[1], 0.5);
    EXPECT_FALSE(record.binaries[0].samples[1]);
    EXPECT_THAT(record.warnings,
                ElementsAre(HasSubstr(
                    "2 values that can't be understood left out. The first one: test.dat, line 2")));
}

TEST(Salvage, ADamagedLineKeepsItsPlaceInTime) {
    const Record record = read("1,0,10,20,1\n#garbage#garbage\n3,2000,12,22,1\n", test::salvage());
    ASSERT_EQ(record.size(), 3u);
    EXPECT_TRUE(std::isnan(record.analogs[0].samples[1]));
    EXPECT_EQ(record.analogs[0].samples[2], 12);
    EXPECT_EQ(record.binaries[0].samples.transitionCount(), 0u);
    EXPECT_DOUBLE_EQ(record.time.byStamps(1), 0.001);
    EXPECT_THAT(record.warnings,
                ElementsAre(HasSubstr("1 damaged line left out. The first one: test.dat, line 2")));
}

TEST(Salvage, ScrapsShorterThanAnySampleAreSkipped) {
    const Record record = read("1,0,10,20,0\nx\nx\nx\n2,1000,11,21,1\n3,2000,12,22,0\n", test::salvage());
    EXPECT_EQ(record.size(), 3u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("3 damaged lines")));
}

TEST(Salvage, TellsTextByItsFirstLine) {
    const std::string whole = Configuration().text();
    const Record record = test::read(whole.substr(0, whole.find("50\r\n")), threeLines, test::salvage());
    EXPECT_EQ(record.format, Format::Ascii);
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(10, 11, 12));
    EXPECT_EQ(record.time.rule(), TimeAxis::Rule::Stamps);
}

TEST(Progress, GoesFromNothingToAllAndCanStop) {
    std::string data;
    for (int i = 0; i < 5000; ++i)
        data += "1,0,10,20,0\n";
    std::vector<double> fractions;
    Options options;
    options.progress = [&](double fraction) {
        fractions.push_back(fraction);
        return true;
    };
    read(data, options);
    EXPECT_GT(fractions.size(), 3u);
    EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end()));
    EXPECT_GE(fractions.front(), 0);
    EXPECT_EQ(fractions.back(), 1);

    options.progress = [](double) { return false; };
    EXPECT_THROW(read(data, options), Cancelled);
}
