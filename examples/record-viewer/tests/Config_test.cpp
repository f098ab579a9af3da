#include "Samples.h"

#include "reader/Config.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using namespace record;
using test::Configuration;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

Config parse(const Configuration& configuration) {
    return parseConfig(configuration.text(), "test.cfg", false);
}

Config salvaged(const Configuration& configuration) {
    return parseConfig(configuration.text(), "test.cfg", true);
}

std::string refusal(const Configuration& configuration) {
    return test::refusal([&] { parse(configuration); });
}

int revisionOf(const std::string& year, const std::string& analog, const std::string& binary) {
    Configuration configuration;
    configuration.station = "S,D," + year;
    configuration.counts = analog.empty() ? "1,0A,1D" : "2,1A,1D";
    configuration.analogs = {analog};
    configuration.binaries = {binary};
    return parse(configuration).record.revision;
}

const std::string longAnalog = "1,U,,,V,1,0,0,-1,1,1,1,P";
const std::string shortAnalog = "1,U,,,V,1,0,0,-1,1";

} // namespace

TEST(Config, AllFieldsAreRead) {
    const Config config = parse({});
    const Record& record = config.record;
    EXPECT_EQ(record.station, "Hill");
    EXPECT_EQ(record.device, "Relay 7");
    EXPECT_EQ(record.revision, 1999);
    EXPECT_EQ(config.analogCount, 2u);
    EXPECT_EQ(config.binaryCount, 1u);
    ASSERT_EQ(record.analogs.size(), 2u);
    EXPECT_EQ(record.analogs[0].name, "UA");
    EXPECT_EQ(record.analogs[0].phase, "A");
    EXPECT_EQ(record.analogs[0].component, "Line");
    EXPECT_EQ(record.analogs[0].unit, "V");
    EXPECT_EQ(record.analogs[0].primary, 1000);
    EXPECT_EQ(record.analogs[0].secondary, 5);
    EXPECT_EQ(record.analogs[0].side, 'S');
    EXPECT_EQ(record.analogs[1].factor, 0.5);
    EXPECT_EQ(record.analogs[1].offset, -10);
    EXPECT_EQ(record.analogs[1].skew, 0);
    ASSERT_EQ(record.binaries.size(), 1u);
    EXPECT_EQ(record.binaries[0].name, "Trip");
    EXPECT_EQ(record.binaries[0].component, "Line");
    EXPECT_TRUE(record.binaries[0].normal);
    EXPECT_EQ(record.lineFrequency, 50);
    ASSERT_EQ(record.rates.size(), 1u);
    EXPECT_EQ(record.rates[0].hertz, 1000);
    EXPECT_EQ(record.declaredSamples, 3u);
    EXPECT_EQ(record.start->text(), "2020-02-01T03:04:05.000006000");
    EXPECT_NEAR(*record.triggerOffset(), 0.01, 1e-12);
    EXPECT_EQ(config.format, Format::Ascii);
    EXPECT_THAT(record.warnings, IsEmpty());
}

TEST(Config, BlanksAroundFieldsAndPaddingAreIgnored) {
    Configuration configuration;
    configuration.station = "Hill   , Relay 7 ,1999 ";
    configuration.counts = " 3, 2A , 1D ";
    configuration.format = "binary \x1a";
    configuration.tail = {" 1.00 ", "\x1a\x1a\x1a"};
    const Config config = parse(configuration);
    EXPECT_EQ(config.record.station, "Hill");
    EXPECT_EQ(config.format, Format::Binary);
    EXPECT_EQ(config.record.timeCode, "");
    EXPECT_THAT(config.record.warnings, IsEmpty());
}

TEST(Config, EveryLineEndAndEmptyLinesAreUnderstood) {
    for (const char* end : {"\n", "\r\n", "\r\r\n", "\r", "\n\n"}) {
        Configuration configuration;
        configuration.lineEnd = end;
        EXPECT_THAT(parse(configuration).record.warnings, IsEmpty());
    }
}

TEST(Config, TheLastLineNeedsNoEnd) {
    std::string text = Configuration().text();
    text.resize(text.size() - 2);
    EXPECT_EQ(parseConfig(text, "test.cfg", false).record.timeMultiplier, 1);
}

TEST(Config, FormatsAreKnownInAnyLetterCase) {
    EXPECT_EQ(formatOf("ascii"), Format::Ascii);
    EXPECT_EQ(formatOf(" Binary "), Format::Binary);
    EXPECT_EQ(formatOf("binary32"), Format::Binary32);
    EXPECT_EQ(formatOf("float32"), Format::Float32);
    EXPECT_FALSE(formatOf("BINARY16"));
    EXPECT_FALSE(formatOf(""));
}

TEST(Config, WithoutAYearTheRulesOf1991Apply) {
    Configuration configuration;
    configuration.station = "Hill,Relay 7";
    configuration.analogs = {"1,UA,A,,V,0.1,0,0,-1,1", "2,IA,A,,A,1,0,0,-1,1"};
    configuration.binaries = {"1,Trip,1"};
    configuration.start = "09/07/15,10:52:52.987545";
    configuration.tail = {};
    const Record record = parse(configuration).record;
    EXPECT_EQ(record.revision, 1991);
    EXPECT_EQ(record.start->text(), "2015-09-07T10:52:52.987545000");
    EXPECT_TRUE(record.binaries[0].normal);
    EXPECT_EQ(record.analogs[0].side, 0);
    EXPECT_THAT(record.warnings, IsEmpty());
    configuration.station = "Hill,Relay 7, ";
    EXPECT_EQ(parse(configuration).record.revision, 1991);
}

TEST(Config, AYearWithoutARevisionIsSettledByTheLayout) {
    EXPECT_EQ(revisionOf("2000", longAnalog, "1,T,,,0"), 1999);
    EXPECT_EQ(revisionOf("1997", longAnalog, "1,T,,,0"), 1999);
    EXPECT_EQ(revisionOf("1990", shortAnalog, "1,T,0"), 1991);
    EXPECT_EQ(revisionOf("2017", shortAnalog, "1,T,0"), 2013);
    EXPECT_EQ(revisionOf("text", longAnalog, "1,T,,,0"), 1999);
    EXPECT_EQ(revisionOf("2001", "", "1,T,,,0"), 1999);
    EXPECT_EQ(revisionOf("2001", "", "1,T,0"), 1991);
    Configuration configuration;
    configuration.station = "S,D,2000";
    EXPECT_THAT(parse(configuration).record.warnings, ElementsAre(HasSubstr("\"2000\"")));
}

TEST(Config, TheYearsOfRevisionsAreTakenAtTheirWord) {
    EXPECT_EQ(revisionOf("1991", longAnalog, "1,T,,,0"), 1991);
    EXPECT_EQ(revisionOf("1999", shortAnalog, "1,T,0"), 1999);
    EXPECT_EQ(revisionOf("2013", shortAnalog, "1,T,0"), 2013);
}

TEST(Config, BinaryLinesOfEitherRevisionAreAccepted) {
    Configuration configuration;
    configuration.counts = "5,2A,3D";
    configuration.binaries = {"1,A,1", "2,B,,,1", "3,C,,,"};
    const Record record = parse(configuration).record;
    EXPECT_TRUE(record.binaries[0].normal);
    EXPECT_TRUE(record.binaries[1].normal);
    EXPECT_FALSE(record.binaries[2].normal);
    EXPECT_THAT(record.warnings, IsEmpty());
}

TEST(Config, ChannelNumbersAreNotUsedAsPlaces) {
    Configuration configuration;
    configuration.analogs[1] = "900,IA,,,A,1,0,0,-1,1,1,1,P";
    configuration.binaries = {"38,Trip,,,0"};
    const Record record = parse(configuration).record;
    EXPECT_EQ(record.analogs[1].name, "IA");
    EXPECT_EQ(record.binaries[0].name, "Trip");
}

TEST(Config, RangesMayBeAbsentFloatingOrUpsideDown) {
    Configuration configuration;
    configuration.analogs = {"1,U,,,,1,0,,,", "2,I,,,A,-1,0,0.5,3.4e38,-1e3,1,1,p"};
    const Record record = parse(configuration).record;
    EXPECT_TRUE(std::isnan(record.analogs[0].rawMaximum));
    EXPECT_EQ(record.analogs[0].unit, "");
    EXPECT_EQ(record.analogs[1].rawMinimum, 3.4e38);
    EXPECT_EQ(record.analogs[1].rawMaximum, -1000);
    EXPECT_EQ(record.analogs[1].skew, 0.5);
    EXPECT_EQ(record.analogs[1].side, 'P');
}

TEST(Config, AWrongTotalIsToldAndTheSingleCountsWin) {
    Configuration configuration;
    configuration.counts = "90,2A,1D";
    const Record record = parse(configuration).record;
    EXPECT_EQ(record.analogs.size(), 2u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("\"90\"")));
}

TEST(Config, CommasTooManyAtTheEndsAreToldOnce) {
    Configuration configuration;
    for (std::string* line : {&configuration.station, &configuration.counts, &configuration.analogs[0],
                              &configuration.analogs[1], &configuration.binaries[0], &configuration.frequency,
                              &configuration.rates[0], &configuration.rates[1], &configuration.start,
                              &configuration.trigger, &configuration.format, &configuration.tail[0]})
        *line += ",";
    const Record record = parse(configuration).record;
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("12 lines with a comma too many")));
    EXPECT_EQ(record.format, Format::Ascii);
    EXPECT_TRUE(record.trigger);
    EXPECT_TRUE(record.binaries[0].normal);
}

TEST(Config, WithoutRatesOneLineStillHoldsTheCount) {
    Configuration configuration;
    configuration.rates = {"0", "0,1360"};
    const Record record = parse(configuration).record;
    EXPECT_EQ(record.declaredSamples, 1360u);
    EXPECT_EQ(record.rates[0].hertz, 0);
    EXPECT_TRUE(record.start);
}

TEST(Config, WithoutRatesThatLineMayBeLeftOut) {
    Configuration configuration;
    configuration.rates = {"0"};
    const Record record = parse(configuration).record;
    EXPECT_THAT(record.rates, IsEmpty());
    EXPECT_TRUE(record.start);
}

TEST(Config, RatesAndFrequencyMayBeFractions) {
    Configuration configuration;
    configuration.frequency = "50.000000";
    configuration.rates = {"2", "7678.4833984375,10", "15360.000000000,20"};
    const Record record = parse(configuration).record;
    EXPECT_EQ(record.rates[0].hertz, 7678.4833984375);
    EXPECT_EQ(record.declaredSamples, 20u);
}

TEST(Config, AnEndBeforeTheOneAboveIsTold) {
    Configuration configuration;
    configuration.rates = {"2", "1000,10", "1000,5"};
    EXPECT_THAT(parse(configuration).record.warnings, ElementsAre(HasSubstr("line 9")));
}

TEST(Config, AbsentOrImpossibleMomentsAreTold) {
    Configuration configuration;
    configuration.trigger = ",";
    EXPECT_FALSE(parse(configuration).record.trigger);
    configuration.trigger = "00/00/0000,00:00:00.000000";
    EXPECT_FALSE(parse(configuration).record.trigger);
    EXPECT_THAT(parse(configuration).record.warnings, ElementsAre(HasSubstr("00/00/0000")));
    configuration.trigger = "";
    const Config config = parse(configuration);
    EXPECT_FALSE(config.record.trigger);
    EXPECT_FALSE(config.record.triggerOffset());
    EXPECT_EQ(config.format, Format::Ascii);
    EXPECT_THAT(config.record.warnings, ElementsAre(HasSubstr("trigger is missing")));
}

TEST(Config, TheTriggerMayLieAnywhere) {
    Configuration configuration;
    configuration.trigger = "01/01/1970,00:00:00.000000";
    EXPECT_LT(*parse(configuration).record.triggerOffset(), -1e9);
    configuration.trigger = configuration.start;
    EXPECT_EQ(parse(configuration).record.triggerOffset(), 0);
}

TEST(Config, NineDigitsMeanTicksOfANanosecondSince2013) {
    Configuration configuration;
    configuration.start = "27/07/2023,09:19:53.156666511";
    EXPECT_EQ(parse(configuration).record.stampUnit, 1e-6);
    configuration.station = "S,D,2013";
    EXPECT_EQ(parse(configuration).record.stampUnit, 1e-9);
    configuration.start = "27/07/2023,09:19:53.15666651";
    EXPECT_EQ(parse(configuration).record.stampUnit, 1e-6);
}

TEST(Config, TheTimeMultiplierMayBeAbsentOrWrong) {
    Configuration configuration;
    configuration.tail = {};
    EXPECT_THAT(parse(configuration).record.warnings, ElementsAre(HasSubstr("time multiplier is missing")));
    configuration.tail = {"2.5"};
    EXPECT_EQ(parse(configuration).record.timeMultiplier, 2.5);
    configuration.tail = {"0"};
    EXPECT_EQ(parse(configuration).record.timeMultiplier, 1);
    EXPECT_THAT(parse(configuration).record.warnings, ElementsAre(HasSubstr("\"0\"")));
}

TEST(Config, TimeCodesAndClockQualityAreOptional) {
    Configuration configuration;
    configuration.station = "S,D,2013";
    EXPECT_THAT(parse(configuration).record.warnings, IsEmpty());
    configuration.tail = {"1", "-5h30,+3", "B,3"};
    const Record record = parse(configuration).record;
    EXPECT_EQ(record.timeCode, "-5h30");
    EXPECT_EQ(record.localCode, "+3");
    EXPECT_EQ(record.clockQuality, "B,3");
}

TEST(Config, WhatIsWrongIsNamedWithItsLine) {
    Configuration configuration;
    configuration.counts = "3,xA,1D";
    EXPECT_EQ(refusal(configuration),
              "test.cfg, line 2: expected the channel counts, such as 3,2A,1D, found \"3,xA,1D\".");
    configuration = {};
    configuration.analogs[1] = "2,IA,A";
    EXPECT_THAT(refusal(configuration), HasSubstr("test.cfg, line 4: expected an analog channel"));
    configuration = {};
    configuration.analogs[1] = "2,IA,A,,A,abc,0,0,0,1";
    EXPECT_THAT(refusal(configuration),
                HasSubstr("line 4: expected a number as the channel's factor, found \"abc\""));
    configuration = {};
    configuration.binaries = {"1,Trip"};
    EXPECT_THAT(refusal(configuration), HasSubstr("line 5: expected a binary channel"));
    configuration = {};
    configuration.frequency = "fifty";
    EXPECT_THAT(refusal(configuration), HasSubstr("line 6: expected the line frequency"));
    configuration = {};
    configuration.rates = {"x"};
    EXPECT_THAT(refusal(configuration), HasSubstr("line 7: expected the number of sampling rates"));
    configuration = {};
    configuration.rates = {"1", "-1000,3"};
    EXPECT_THAT(refusal(configuration), HasSubstr("line 8: expected a sampling rate"));
    configuration = {};
    configuration.start = "yesterday";
    EXPECT_THAT(refusal(configuration), HasSubstr("line 9: expected the date and time of the first sample"));
    configuration = {};
    configuration.format = "BINARY64";
    EXPECT_THAT(refusal(configuration), HasSubstr("line 11: expected a data format"));
}

TEST(Config, ATextThatEndsTooEarlyIsRefused) {
    EXPECT_THAT(test::refusal([] { parseConfig("", "test.cfg", false); }),
                HasSubstr("line 1: expected station"));
    Configuration configuration;
    configuration.rates = {"90000000", "1000,3"};
    EXPECT_NE(refusal(configuration), "nothing");
}

TEST(Config, WarningsAreCutShort) {
    Configuration configuration;
    configuration.counts = "252,2A,250D";
    configuration.binaries.assign(250, "1,Trip,,,on");
    const Record record = parse(configuration).record;
    ASSERT_EQ(record.warnings.size(), 101u);
    EXPECT_THAT(record.warnings[0],
                HasSubstr("line 5: the normal state of a binary channel is given as \"on\""));
    EXPECT_THAT(record.warnings[100], HasSubstr("150 more warnings"));
}

TEST(Config, CountsBeyondTheTextAreRefusedBeforeAnythingIsAllocated) {
    Configuration configuration;
    configuration.counts = "4000000000,4000000000A,0D";
    EXPECT_THAT(refusal(configuration), HasSubstr("bytes can describe"));
    configuration.counts = "99999999999999999999,99999999999999999999A,0D";
    EXPECT_THAT(refusal(configuration), HasSubstr("line 2"));
}

TEST(Salvage, KeepsWhatStandsBeforeTheDamage) {
    Configuration configuration;
    configuration.counts = "10,2A,8D";
    configuration.frequency = configuration.start = configuration.trigger = configuration.format = "";
    configuration.rates = configuration.tail = {};
    EXPECT_NE(refusal(configuration), "nothing");
    const Config config = salvaged(configuration);
    EXPECT_EQ(config.record.analogs.size(), 2u);
    EXPECT_EQ(config.record.binaries.size(), 1u);
    EXPECT_EQ(config.binaryCount, 8u);
    EXPECT_EQ(config.record.revision, 1999);
    EXPECT_FALSE(config.format);
    EXPECT_THAT(config.record.warnings, ElementsAre(HasSubstr("expected binary channel 2 of 8")));
}

TEST(Salvage, GoesOnWithRawValuesWhereAScaleIsDamaged) {
    Configuration configuration;
    configuration.analogs[0] = "1,UA,A,,V,?,?,0,-1,1";
    const Config config = salvaged(configuration);
    EXPECT_EQ(config.record.analogs[0].factor, 1);
    EXPECT_EQ(config.record.analogs[0].offset, 0);
    EXPECT_EQ(config.record.warnings.size(), 2u);
    EXPECT_EQ(config.format, Format::Ascii);
}
