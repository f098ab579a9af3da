#include "reader/Reader.h"
#include "reader/Text.h"
#include "support/TemporaryLocales.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>

using namespace record;

TEST(Decoding, PlainTextIsAscii) {
    const DecodedText decoded = decode("Line 1", "CP1251");
    EXPECT_EQ(decoded.text, "Line 1");
    EXPECT_EQ(decoded.encoding, "ASCII");
}

TEST(Decoding, AByteOrderMarkDecidesAndIsRemoved) {
    const DecodedText decoded = decode("\xEF\xBB\xBF\xD0\x9F", "CP1251");
    EXPECT_EQ(decoded.text, "П");
    EXPECT_EQ(decoded.encoding, "UTF-8 with BOM");
}

TEST(Decoding, AByteOrderMarkOfSixteenBitsIsUnderstood) {
    EXPECT_EQ(decode(std::string("\xFF\xFE\x1F\x04", 4), "CP1251").text, "П");
    EXPECT_EQ(decode(std::string("\xFE\xFF\x04\x1F", 4), "CP1251").text, "П");
}

TEST(Decoding, ValidUtf8WinsOverTheCodePage) {
    const DecodedText decoded = decode("Пуск", "CP1251");
    EXPECT_EQ(decoded.text, "Пуск");
    EXPECT_EQ(decoded.encoding, "UTF-8");
}

TEST(Decoding, TheRestGoesThroughTheChosenCodePage) {
    EXPECT_EQ(decode("\xCF\xF3\xF1\xEA", "CP1251").text, "Пуск");
    EXPECT_EQ(decode("\x8F\xE3\xE1\xAA", "CP866").text, "Пуск");
    EXPECT_EQ(decode("\xF0\xD5\xD3\xCB", "KOI8-R").text, "Пуск");
    EXPECT_EQ(decode("Esta\xE7\xE3o", "ISO-8859-1").text, "Estação");
    const DecodedText decoded = decode("\xCF\xDF\xC2\xB7", "GB18030");
    EXPECT_EQ(decoded.text, "线路");
    EXPECT_EQ(decoded.encoding, "GB18030");
    EXPECT_EQ(decoded.replaced, 0u);
}

TEST(Decoding, BytesThatTheCodePageLacksAreReplacedOneByOne) {
    const DecodedText decoded = decode("a\x98\x98z", "CP1251");
    EXPECT_EQ(decoded.text, "a\uFFFD\uFFFDz");
    EXPECT_EQ(decoded.replaced, 2u);
}

TEST(Decoding, ACharacterCutOffAtTheEndIsReplaced) {
    EXPECT_EQ(decode("\xCF\xDF\xC2", "GB18030").text, "线\uFFFD");
}

TEST(Decoding, AnUnknownCodePageIsAnError) {
    EXPECT_THROW(decode("\xCF", "NO-SUCH-PAGE"), Error);
}

TEST(Decoding, LongTextsAreConvertedPieceByPiece) {
    const std::string bytes(10000, '\xCF');
    EXPECT_EQ(decode(bytes, "CP1251").text.size(), 20000u);
}

TEST(Utf8, OverlongFormsSurrogatesAndStrayBytesAreRefused) {
    EXPECT_TRUE(isUtf8("a\u00e9\u7ebf\U0001F50C"));
    for (const char* bad : {"\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF0\x80\x80\xAF",
                            "\xF4\x90\x80\x80", "\x80", "\xC3", "\xFF", "\xE2\x82"})
        EXPECT_FALSE(isUtf8(bad)) << bad;
}

TEST(Trimming, BlanksZeroBytesAndEndOfFileMarksGoAtBothEnds) {
    EXPECT_EQ(trim(std::string("\x1a \t\0a b\r\n\x1a", 10)), "a b");
    EXPECT_EQ(trim("\x1a\x1a"), "");
}

TEST(Splitting, FieldsAreTrimmedAndEmptyOnesKept) {
    EXPECT_THAT(split(" 1, Ia ,,x,"), testing::ElementsAre("1", "Ia", "", "x", ""));
    EXPECT_THAT(split(""), testing::ElementsAre(""));
}

TEST(Numbers, AllFormsOfDecimalNumbersAreRead) {
    EXPECT_EQ(toNumber("+1.5E-03"), 0.0015);
    EXPECT_EQ(toNumber("-.25e+1"), -2.5);
    EXPECT_EQ(toNumber("2.836798e+000"), 2.836798);
    EXPECT_EQ(toNumber("000571"), 571);
    EXPECT_EQ(toNumber("-000001"), -1);
    EXPECT_EQ(toNumber(" 50.000000 "), 50);
}

TEST(Numbers, WhatIsNoFiniteDecimalNumberIsRefused) {
    for (const char* bad :
         {"", "x", "1x", "+-1", "++1", "nan", "inf", "-inf", "0x10", "1e999", "1,5", "-", "."})
        EXPECT_FALSE(toNumber(bad)) << bad;
}

TEST(Numbers, TheLocaleHasNoSay) {
    if (!test::TemporaryLocales::canMake())
        GTEST_SKIP() << "the package \"locales\" is not installed";
    test::TemporaryLocales locales;
    ASSERT_TRUE(locales.make("de_DE", "de_DE.UTF-8"));
    ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(toNumber("3.14"), 3.14);
    EXPECT_FALSE(toNumber("3,14"));
    EXPECT_EQ(numberText(3.14), "3.14");
}

TEST(Counts, SignsFractionsAndOverflowAreRefused) {
    EXPECT_EQ(toCount("0024"), 24u);
    for (const char* bad : {"", "-1", "+1", "1.0", "99999999999999999999"})
        EXPECT_FALSE(toCount(bad)) << bad;
}

TEST(Quoting, MessagesStayShortValidAndVisible) {
    EXPECT_EQ(inQuotes("a\x1b[1m\xff"), "\"a\uFFFD[1m\uFFFD\"");
    EXPECT_EQ(inQuotes(std::string(41, 'x')), "\"" + std::string(40, 'x') + "\u2026\"");
    EXPECT_EQ(inQuotes(std::string(40, 'x')), "\"" + std::string(40, 'x') + "\"");
}
