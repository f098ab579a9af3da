#include "reader/Reader.h"
#include "reader/Source.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace record;

namespace {

std::vector<std::string> linesOf(const std::string& text) {
    MemorySource source("text", text);
    Lines lines(source);
    std::vector<std::string> result;
    while (const auto line = lines.next())
        result.emplace_back(*line);
    return result;
}

std::vector<std::string> filledLinesOf(const std::string& text) {
    MemorySource source("text", text);
    Lines lines(source);
    std::vector<std::string> result;
    while (const auto line = lines.nextFilled())
        result.emplace_back(*line);
    return result;
}

} // namespace

TEST(Lines, EveryKindOfLineEndIsUnderstood) {
    for (const char* end : {"\n", "\r\n", "\r\r\n", "\r"})
        EXPECT_THAT(filledLinesOf(std::string("a") + end + "b" + end), testing::ElementsAre("a", "b")) << end;
}

TEST(Lines, ALineEndOfSeveralCharactersIsOne) {
    EXPECT_THAT(linesOf("a\r\nb\r\r\nc\n\nd"), testing::ElementsAre("a", "b", "c", "", "d"));
}

TEST(Lines, TheLastLineNeedsNoEnd) {
    EXPECT_THAT(linesOf("a\nb"), testing::ElementsAre("a", "b"));
    EXPECT_THAT(linesOf(""), testing::IsEmpty());
}

TEST(Lines, LinesOfPaddingAreSkipped) {
    EXPECT_THAT(filledLinesOf("a\n\n \x1a\x1a\nb\n\x1a"), testing::ElementsAre("a", "b"));
}

TEST(Lines, NumbersAndOffsetsFollowTheText) {
    MemorySource source("text", "ab\r\ncd\nx");
    Lines lines(source);
    lines.next();
    EXPECT_EQ(lines.number(), 1u);
    EXPECT_EQ(lines.offset(), 4u);
    lines.next();
    EXPECT_EQ(lines.number(), 2u);
    EXPECT_EQ(lines.offset(), 7u);
}

TEST(Lines, LinesLongerThanAPieceAndEndsBetweenPiecesStayWhole) {
    for (const std::size_t length : {65534u, 65535u, 65536u, 65537u, 200000u}) {
        const std::string longLine(length, 'x');
        EXPECT_THAT(linesOf(longLine + "\r\nb\r\n"), testing::ElementsAre(longLine, "b")) << length;
    }
}

TEST(Lines, AnEndlessLineIsRefused) {
    const std::string endless(17 * 1024 * 1024, 'x');
    EXPECT_THROW(linesOf(endless), Error);
}

TEST(CountingLines, IsNeverLessThanTheLinesThatAreThere) {
    for (const char* text : {"", "a", "a\nb", "a\r\nb\r\n", "a\r\r\nb", "a\rb\rc\r", "a\rb\rc\rd\n"}) {
        MemorySource source("text", text);
        EXPECT_GE(countLines(source), filledLinesOf(text).size()) << text;
    }
    MemorySource source("text", "1\r\n2\r\n3\r\n");
    EXPECT_LE(countLines(source), 4u);
}

TEST(Parts, AreLimitedToTheirOwnBytes) {
    MemorySource all("text", "abcdef");
    PartSource part(all, 2, 3);
    char bytes[8] = {};
    EXPECT_EQ(part.read(0, bytes, 8), 3u);
    EXPECT_STREQ(bytes, "cde");
    EXPECT_EQ(part.read(2, bytes, 8), 1u);
    EXPECT_EQ(part.read(3, bytes, 8), 0u);
}

TEST(Files, FoldersAndMissingFilesAreRefusedByName) {
    EXPECT_THROW(FileSource(std::filesystem::temp_directory_path()), Error);
    try {
        FileSource source("/no/such/file.dat");
        FAIL();
    } catch (const Error& error) {
        EXPECT_STREQ(error.what(), "/no/such/file.dat does not exist.");
    }
}

TEST(Files, TextsOverTheLimitAreNotLoaded) {
    MemorySource source("text", "abcdef");
    EXPECT_EQ(source.readAll(6), "abcdef");
    EXPECT_THROW(source.readAll(5), Error);
}
