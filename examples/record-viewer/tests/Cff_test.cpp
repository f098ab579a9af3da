#include "Samples.h"

#include "reader/Cff.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace record;
using test::Bytes;
using test::Configuration;
using test::threeLines;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::string configuration(const std::string& format) {
    Configuration parts;
    parts.station = "Hill,Relay 7,2013";
    parts.format = format;
    return parts.text();
}

std::string binaryData() {
    Bytes bytes;
    for (std::uint32_t i = 0; i < 3; ++i)
        bytes << i + 1 << i * 1000 << std::int16_t(i) << std::int16_t(20) << std::uint16_t(i & 1);
    return bytes.text;
}

Record read(const std::string& text, const Options& options = {}) {
    MemorySource source("test.cff", text);
    return readCombined(source, options);
}

std::string refusal(const std::string& text) {
    return test::refusal([&] { read(text); });
}

const std::string configMark = "--- file type: CFG ---\r\n";

} // namespace

TEST(CombinedFile, AllSectionsAreFound) {
    const Record record =
        read(configMark + configuration("ASCII") + "--- file type: INF ---\r\n[Public]\r\nKey=1\r\n" +
             "--- file type: HDR ---\r\nA header\r\nwith --- a dash line\r\n---\r\n--- file type: DAT ASCII "
             "---\r\n" +
             threeLines);
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(10, 11, 12));
    EXPECT_EQ(record.information, "[Public]\nKey=1\n");
    EXPECT_EQ(record.header, "A header\nwith --- a dash line\n---\n");
    EXPECT_THAT(record.warnings, IsEmpty());
}

TEST(CombinedFile, MarksAreUnderstoodInManyForms) {
    for (const std::string mark :
         {"--- file type: DAT ASCII ---", "--- FILE TYPE: dat ascii ---", "--- file type DAT ASCII ---",
          "-- file type: DAT ASCII --", "---file type:DAT ASCII---", "--- file type: DAT ---"}) {
        const Record record =
            read("-- file type CFG --\n" + configuration("ASCII") + mark + "\n" + threeLines);
        EXPECT_THAT(record.analogs[0].samples, ElementsAre(10, 11, 12)) << mark;
    }
}

TEST(CombinedFile, BinaryDataFollowTheLineEndOfTheirMark) {
    for (const std::string end : {"\n", "\r\n"}) {
        const Record record = read(configMark + configuration("BINARY") +
                                   "--- file type: DAT BINARY: 42 ---" + end + binaryData());
        EXPECT_THAT(record.analogs[0].samples, ElementsAre(0, 1, 2));
        EXPECT_THAT(record.warnings, IsEmpty());
    }
}

TEST(CombinedFile, TheCountWinsOverBytesThatLookLikeAMark) {
    std::string data = binaryData();
    data.replace(8, 28, "\n--- file type: INF ---\n12345");
    const Record record =
        read(configMark + configuration("BINARY") + "--- file type: DAT BINARY: 42 ---\n" + data);
    EXPECT_EQ(record.size(), 3u);
    EXPECT_EQ(record.information, "");
}

TEST(CombinedFile, BytesBehindTheCountAreNotData) {
    const Record record =
        read(configMark + configuration("BINARY") + "--- file type: DAT BINARY: 28 ---\n" + binaryData());
    EXPECT_EQ(record.size(), 2u);
}

TEST(CombinedFile, ACountTooLargeReadsToTheEnd) {
    const Record record =
        read(configMark + configuration("BINARY") + "--- file type: DAT BINARY: 4200 ---\n" + binaryData());
    EXPECT_EQ(record.size(), 3u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("promises 4200 bytes, but only 42 are there")));
}

TEST(CombinedFile, AMissingCountReadsToTheEnd) {
    const Record record =
        read(configMark + configuration("BINARY") + "--- file type: DAT BINARY ---\n" + binaryData());
    EXPECT_EQ(record.size(), 3u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("no count of bytes")));
}

TEST(CombinedFile, TheMarkNamesTheFormatAndAContradictionIsTold) {
    const Record record =
        read(configMark + configuration("ASCII") + "--- file type: DAT BINARY: 42 ---\n" + binaryData());
    EXPECT_EQ(record.format, Format::Binary);
    EXPECT_EQ(record.size(), 3u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("says ASCII")));
}

TEST(CombinedFile, AnUnknownFormatInTheMarkIsTold) {
    const Record record =
        read(configMark + configuration("BINARY") + "--- file type: DAT BINARY64: 42 ---\n" + binaryData());
    EXPECT_EQ(record.size(), 3u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("\"BINARY64\"")));
}

TEST(CombinedFile, AByteOrderMarkBeforeTheFirstMarkIsIgnored) {
    EXPECT_EQ(read("\xEF\xBB\xBF" + configMark + configuration("ASCII") + "--- file type: DAT ASCII ---\n" +
                   threeLines)
                  .size(),
              3u);
}

TEST(CombinedFile, AnEndlessConfigurationIsRefused) {
    const std::string endless(17 * 1024 * 1024, '\n');
    EXPECT_THAT(refusal(configMark + endless + "--- file type: DAT ASCII ---\n"),
                HasSubstr("a configuration of at most 16777216 bytes"));
}

TEST(CombinedFile, EmptySectionsAreAllowed) {
    const Record record = read(
        configMark + configuration("ASCII") +
        "--- file type: INF ---\r\n--- file type: HDR ---\r\n--- file type: DAT ASCII ---\r\n" + threeLines);
    EXPECT_EQ(record.header, "");
    EXPECT_EQ(record.size(), 3u);
}

TEST(CombinedFile, LinesOfTheConfigurationAreNamedWithinIt) {
    EXPECT_THAT(refusal(configMark + "S,D,2013\nnonsense\n--- file type: DAT ASCII ---\n"),
                HasSubstr("test.cff (CFG section), line 2: expected the channel counts"));
}

TEST(CombinedFile, WhatDoesNotBeginWithAConfigurationIsRefused) {
    EXPECT_THAT(refusal("Hill,Relay\n"), HasSubstr("line 1: expected the mark of the configuration section"));
    EXPECT_THAT(refusal(""), HasSubstr("expected a configuration section, found none"));
    EXPECT_THAT(refusal("--- file type: DAT ASCII ---\n" + threeLines), HasSubstr("none before the data"));
}

TEST(CombinedFile, WithoutDataItIsRefusedOrSalvaged) {
    const std::string text = configMark + configuration("ASCII");
    EXPECT_THAT(refusal(text), HasSubstr("expected a data section, found none"));
    const Record record = read(text, test::salvage());
    EXPECT_EQ(record.analogs.size(), 2u);
    EXPECT_EQ(record.size(), 0u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("no data section")));
}
