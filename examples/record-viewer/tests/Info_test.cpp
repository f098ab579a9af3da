#include "Samples.h"

#include "info/Info.h"
#include "info/Table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace record;
using test::Configuration;
using test::threeLines;
using testing::HasSubstr;
using testing::Not;

namespace {

Record sample() {
    return test::read(Configuration().text(), "1,0,10,20,0\n2,1000,,21,1\n3,9000,12,22,0\n");
}

} // namespace

TEST(Json, HoldsEverythingThatIsKnown) {
    const nlohmann::ordered_json json = toJson(sample());
    EXPECT_EQ(json["station"], "Hill");
    EXPECT_EQ(json["device"], "Relay 7");
    EXPECT_EQ(json["revision"], 1999);
    EXPECT_EQ(json["format"], "ASCII");
    EXPECT_EQ(json["encoding"], "ASCII");
    EXPECT_EQ(json["samples"], 3);
    EXPECT_EQ(json["declaredSamples"], 3);
    EXPECT_EQ(json["rates"][0]["hertz"], 1000);
    EXPECT_EQ(json["rates"][0]["end"], 3);
    EXPECT_EQ(json["start"], "2020-02-01T03:04:05.000006000");
    EXPECT_NEAR(json["triggerOffset"].get<double>(), 0.01, 1e-12);
    EXPECT_EQ(json["time"]["rule"], "rates");
    EXPECT_NEAR(json["time"]["last"].get<double>(), 0.002, 1e-12);
    EXPECT_NEAR(json["time"]["byRates"]["last"].get<double>(), 0.002, 1e-12);
    EXPECT_NEAR(json["time"]["byStamps"]["last"].get<double>(), 0.009, 1e-12);
    EXPECT_EQ(json["time"]["gapCount"], 1);
    EXPECT_EQ(json["time"]["gaps"][0]["sample"], 2);
    ASSERT_EQ(json["analogs"].size(), 2u);
    EXPECT_EQ(json["analogs"][0]["name"], "UA");
    EXPECT_EQ(json["analogs"][0]["side"], "S");
    EXPECT_EQ(json["analogs"][0]["minimum"], 10);
    EXPECT_EQ(json["analogs"][0]["maximum"], 12);
    EXPECT_EQ(json["analogs"][0]["mean"], 11);
    EXPECT_EQ(json["analogs"][0]["missing"], 1);
    ASSERT_EQ(json["binaries"].size(), 1u);
    EXPECT_EQ(json["binaries"][0]["name"], "Trip");
    EXPECT_EQ(json["binaries"][0]["normal"], 1);
    EXPECT_EQ(json["binaries"][0]["first"], 0);
    EXPECT_EQ(json["binaries"][0]["transitions"], 2);
    EXPECT_EQ(json["warnings"].size(), 2u);
}

TEST(Json, WhatIsNotKnownIsNull) {
    Configuration configuration;
    configuration.trigger = ",";
    configuration.frequency = "0";
    configuration.analogs[0] = "1,UA,A,,V,1,0,0,-1,1";
    const nlohmann::ordered_json json = toJson(test::read(configuration.text(), "1,0,,20,0\n"));
    EXPECT_TRUE(json["trigger"].is_null());
    EXPECT_TRUE(json["triggerOffset"].is_null());
    EXPECT_TRUE(json["lineFrequency"].is_null());
    EXPECT_TRUE(json["analogs"][0]["minimum"].is_null());
    EXPECT_TRUE(json["analogs"][0]["primary"].is_null());
    EXPECT_TRUE(json["analogs"][0]["side"].is_null());
    const nlohmann::ordered_json empty = toJson(test::read(configuration.text(), ""));
    EXPECT_TRUE(empty["time"]["first"].is_null());
    EXPECT_TRUE(empty["binaries"][0]["first"].is_null());
}

TEST(Json, EndlessNumbersBecomeNullInTheText) {
    Record record = sample();
    record.analogs[0].factor = INFINITY;
    record.analogs[1].offset = NAN;
    const nlohmann::json json = nlohmann::json::parse(jsonText(record));
    EXPECT_TRUE(json["analogs"][0]["factor"].is_null());
    EXPECT_TRUE(json["analogs"][1]["offset"].is_null());
}

TEST(Json, BytesThatAreNoUtf8NeverThrow) {
    Record record = sample();
    record.path = "/tmp/\xff\xfe.cfg";
    EXPECT_EQ(nlohmann::json::parse(jsonText(record))["path"], "/tmp/\uFFFD\uFFFD.cfg");
}

TEST(Description, TellsTheFactsTheChannelsAndTheWarnings) {
    const std::string text = describe(sample());
    EXPECT_THAT(text, HasSubstr("Station         Hill\n"));
    EXPECT_THAT(text, HasSubstr("Revision        1999\n"));
    EXPECT_THAT(text, HasSubstr("Samples         3\n"));
    EXPECT_THAT(text, HasSubstr("Rates           1000 Hz up to sample 3\n"));
    EXPECT_THAT(text, HasSubstr("Time by stamps  0 to 0.009 s, 1 leap\n"));
    EXPECT_THAT(text, HasSubstr("(0.01 s from the start)"));
    EXPECT_THAT(text, HasSubstr("UA      A      V          10       12    11        1\n"));
    EXPECT_THAT(text, HasSubstr("Trip    1       0      2        0.001, 0.002\n"));
    EXPECT_THAT(text, HasSubstr("Warnings\n  test.dat: the time stamps leap in 1 place"));
}

TEST(Description, ManyRatesAndTransitionsAreCutShort) {
    Configuration configuration;
    configuration.rates = {"7"};
    std::string data;
    for (int i = 1; i <= 7; ++i) {
        configuration.rates.push_back("1000," + std::to_string(i));
        data += std::to_string(i) + ",,0,0," + std::to_string(i % 2) + "\n";
    }
    const std::string text = describe(test::read(configuration.text(), data));
    EXPECT_THAT(text, HasSubstr("up to sample 5, and 2 more"));
    EXPECT_THAT(text, HasSubstr("0.001, 0.002, 0.003, 0.004, ...\n"));
    EXPECT_THAT(text, Not(HasSubstr("Warnings")));
}

TEST(Description, ARecordCannotSendControlCharactersToTheTerminal) {
    Record record = sample();
    record.station = "a\x1b[2J\x07";
    record.analogs[0].name = "b\nc\u009b";
    record.warnings = {"d\x1b"};
    record.path = "e\xff\x1b";
    const std::string text = describe(record);
    EXPECT_EQ(text.find_first_of("\x1b\x07"), std::string::npos);
    EXPECT_EQ(text.find("\u009b"), std::string::npos);
    EXPECT_THAT(text, HasSubstr("b\uFFFDc\uFFFD"));
    EXPECT_THAT(text, HasSubstr("e\uFFFD\uFFFD"));
}

TEST(AlignedText, WideCharactersTakeTwoColumns) {
    EXPECT_EQ(displayWidth("Ua"), 2u);
    EXPECT_EQ(displayWidth("Пуск"), 4u);
    EXPECT_EQ(displayWidth("线路"), 4u);
    Table table(1);
    table.add({"线", "1"});
    table.add({"abcd", "22"});
    EXPECT_EQ(table.text("> "), "> 线     1\n> abcd  22\n");
}
