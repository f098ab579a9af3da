#include <ZelCommonView/entries/NumericConversion.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <sstream>

namespace {

using namespace Zel;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double untouched = 12345.0;

std::uint64_t bitsOf(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

struct Shown {
    double value;
    int reserved;
    const char* text;
};

class ConvertToString : public testing::TestWithParam<Shown> {};

TEST_P(ConvertToString, ShowsTheValue) {
    EXPECT_EQ((convertToString<double, true>(GetParam().value, GetParam().reserved)), GetParam().text);
}

constexpr Shown nearZero[] = {
    {0.0, 2, "0"},       {-0.0, 2, "0"},      {1e-14, 2, "0"},         {-1e-14, 2, "0"},
    {9.99e-14, 2, "0"},  {-9.99e-14, 2, "0"}, {1.1e-13, 2, "1.1e-13"}, {-1.1e-13, 2, "-1.1e-13"},
    {1e-12, 2, "1e-12"}, {5e-324, 2, "0"},    {9e-16, 0, "0"},         {1.1e-15, 0, "1.1e-15"},
    {0.09, 14, "0"},     {0.5, 14, "0.5"},    {0.9, 15, "0"},          {1.0, 15, "1"},
};
INSTANTIATE_TEST_SUITE_P(NearZero, ConvertToString, testing::ValuesIn(nearZero));

// With 2 digits reserved: 13 below 10, 14 from 10 on, 15 from 100 on.
constexpr Shown positive[] = {
    {1.0, 2, "1"},
    {5.0, 2, "5"},
    {0.5, 2, "0.5"},
    {0.1, 2, "0.1"},
    {0.1 + 0.2, 2, "0.3"},
    {1.1 + 2.2, 2, "3.3"},
    {1.0 / 3, 2, "0.3333333333333"},
    {2.0 / 3, 2, "0.6666666666667"},
    {1.0 / 300, 2, "0.003333333333333"},
    {1.0 / 30000, 2, "3.333333333333e-05"},
    {10.0 / 3, 2, "3.333333333333"},
    {9.99999999999, 2, "9.99999999999"},
    {9.99999999999999, 2, "10"},
    {100.0 / 3, 2, "33.333333333333"},
    {12.345678901234, 2, "12.345678901234"},
    {99.5, 2, "99.5"},
    {1000.0 / 3, 2, "333.333333333333"},
    {10000.0 / 3, 2, "3333.33333333333"},
    {123456.789, 2, "123456.789"},
    {1234567.0, 2, "1234567"},
    {1e14 / 3, 2, "33333333333333.3"},
    {1e15 / 3, 2, "333333333333333"},
    {123456789012345.0, 2, "123456789012345"},
    {1e15, 2, "1e+15"},
    {1234567890123456.0, 2, "1.23456789012346e+15"},
    {1e16, 2, "1e+16"},
    {1e17, 2, "1e+17"},
    {1e100, 2, "1e+100"},
    {1e300 / 3, 2, "3.33333333333333e+299"},
    {std::numeric_limits<double>::max(), 2, "1.79769313486232e+308"},
};
INSTANTIATE_TEST_SUITE_P(Positive, ConvertToString, testing::ValuesIn(positive));

// The logarithm of a negative value is none, so that the stream's own six digits apply.
constexpr Shown negative[] = {
    {-1.0, 2, "-1"},
    {-0.5, 2, "-0.5"},
    {-1.0 / 3, 2, "-0.333333"},
    {-10.0 / 3, 2, "-3.33333"},
    {-100.0 / 3, 2, "-33.3333"},
    {-12.3456789, 2, "-12.3457"},
    {-123456.0, 2, "-123456"},
    {-1234567.0, 2, "-1.23457e+06"},
    {-1e16, 2, "-1e+16"},
    {-1e-5, 2, "-1e-05"},
    {-1.0 / 3, 0, "-0.333333"},
    {-1.0 / 3, 10, "-0.333333"},
};
INSTANTIATE_TEST_SUITE_P(NegativeHasSixDigits, ConvertToString, testing::ValuesIn(negative));

constexpr Shown otherReserves[] = {
    {1.0 / 3, 0, "0.333333333333333"},
    {10.0 / 3, 0, "3.33333333333333"},
    {1000.0 / 3, 0, "333.333333333333"},
    {10.0 / 3, 5, "3.333333333"},
    {1000.0 / 3, 5, "333.333333333"},
    {10.0 / 3, 12, "3.33"},
    {1000.0 / 3, 12, "333.33"},
    {10.0 / 3, 14, "3"},
    {100.0 / 3, 14, "33"},
    {10.0 / 3, 15, "3"}, // no digit is left, of which the stream makes one
    {1000.0 / 3, 15, "3.3e+02"},
    {1000.0 / 3, 16, "3e+02"},
    {10.0 / 3, 16, "0"},
    {10.0 / 3, -1, "3.33333333333333"},
    {1000.0 / 3, -9, "333.333333333333"},
    {0.5, std::numeric_limits<int>::min(), "0.5"},
    {1e300, std::numeric_limits<int>::max(), "0"},
};
INSTANTIATE_TEST_SUITE_P(OtherReserves, ConvertToString, testing::ValuesIn(otherReserves));

constexpr Shown notFinite[] = {
    {infinite, 2, "inf"},
    {-infinite, 2, "-inf"},
    {notANumber, 2, "nan"},
    {infinite, std::numeric_limits<int>::max(), "inf"},
    {notANumber, std::numeric_limits<int>::min(), "nan"},
};
INSTANTIATE_TEST_SUITE_P(NotFinite, ConvertToString, testing::ValuesIn(notFinite));

struct Read {
    const char* text;
    bool isNumber;
    double value;
};

class TryConvert : public testing::TestWithParam<Read> {};

TEST_P(TryConvert, ReadsTheWholeTextOrNothing) {
    double value = untouched;
    EXPECT_EQ((tryConvert<double, true>(GetParam().text, value)), GetParam().isNumber);
    EXPECT_EQ(bitsOf(value), bitsOf(GetParam().isNumber ? GetParam().value : untouched)) << value;
}

constexpr Read numbers[] = {
    {"0", true, 0.0},
    {"-0", true, -0.0},
    {"1", true, 1.0},
    {"+1", true, 1.0},
    {"-1", true, -1.0},
    {"007", true, 7.0},
    {"1.5", true, 1.5},
    {"-1.5", true, -1.5},
    {".5", true, 0.5},
    {"-.5", true, -0.5},
    {"5.", true, 5.0},
    {"-5.", true, -5.0},
    {"1e5", true, 1e5},
    {"1E5", true, 1e5},
    {"1e+5", true, 1e5},
    {"1e-5", true, 1e-5},
    {"-2.5e-3", true, -2.5e-3},
    {".5e1", true, 5.0},
    {"5.e1", true, 50.0},
    {"0.1", true, 0.1},
    {"123456789012345678", true, 123456789012345678.0},
    {"1.7976931348623157e+308", true, std::numeric_limits<double>::max()},
    {"2.2250738585072014e-308", true, std::numeric_limits<double>::min()},
    {" 5", true, 5.0},
    {"\t5", true, 5.0},
};
INSTANTIATE_TEST_SUITE_P(Numbers, TryConvert, testing::ValuesIn(numbers));

constexpr Read notNumbers[] = {
    {"", false, 0},
    {" ", false, 0},
    {"-", false, 0},
    {"+", false, 0},
    {".", false, 0},
    {"-.", false, 0},
    {"e", false, 0},
    {"e5", false, 0},
    {"1e", false, 0},
    {"1e+", false, 0},
    {"1e-", false, 0},
    {"5x", false, 0},
    {"5 ", false, 0},
    {"5 6", false, 0},
    {"1.2.3", false, 0},
    {"1,5", false, 0},
    {"1,000", false, 0},
    {"1.000,5", false, 0},
    {"1'000", false, 0},
    {"--1", false, 0},
    {"+-1", false, 0},
    {"1-", false, 0},
    {"0x10", false, 0},
    {"0x", false, 0},
    {"1e400", false, 0},
    {"-1e400", false, 0},
    {"abc", false, 0},
    {"б", false, 0},
    {"1\xc2\xa0"
     "000",
     false, 0},
};
INSTANTIATE_TEST_SUITE_P(NotNumbers, TryConvert, testing::ValuesIn(notNumbers));

constexpr Read words[] = {
    {"nan", true, notANumber},
    {"NaN", true, notANumber},
    {"NAN", true, notANumber},
    {"-nan", true, -notANumber},
    {"inf", true, infinite},
    {"INF", true, infinite},
    {"Inf", true, infinite},
    {"-inf", true, -infinite},
    {"infinity", true, infinite},
    {"Infinity", true, infinite},
    {"-Infinity", true, -infinite},
    {"INFINITY", true, infinite},
    {"+inf", false, 0},
    {"+nan", false, 0},
    {"-+inf", false, 0},
    {"--inf", false, 0},
    {"in", false, 0},
    {"na", false, 0},
    {"infi", false, 0},
    {"infinit", false, 0},
    {"infinityx", false, 0},
    {"nanx", false, 0},
    {"xnan", false, 0},
    {"x-nan", false, 0},
    {"naninf", false, 0},
    {"infnan", false, 0},
    {"nan(1)", false, 0},
    {" inf", false, 0},
    {"inf ", false, 0},
    {"5inf", false, 0},
    {"-5inf", false, 0},
    {"in f", false, 0},
};
INSTANTIATE_TEST_SUITE_P(Words, TryConvert, testing::ValuesIn(words));

struct Extracted {
    const char* text;
    std::size_t from;
    std::size_t position;
    double value; ///< if the position moves
};

class TryExtractSpecialFloating : public testing::TestWithParam<Extracted> {};

TEST_P(TryExtractSpecialFloating, FindsTheWord) {
    const Extracted& row = GetParam();
    double value = untouched;
    EXPECT_EQ(tryExtractSpecialFloating<double>(row.text, row.from, value), row.position);
    EXPECT_EQ(bitsOf(value), bitsOf(row.position == row.from ? untouched : row.value));
}

constexpr Extracted extracted[] = {
    {"nan", 0, 3, notANumber},
    {"-nan", 0, 4, -notANumber},
    {"inf", 0, 3, infinite},
    {"-inf", 0, 4, -infinite},
    {"infinity", 0, 8, infinite},
    {"-INFINITY", 0, 9, -infinite},
    {"infinite", 0, 3, infinite},
    {"inf rest", 0, 3, infinite},
    {"12nan", 2, 5, notANumber},
    {"12-inf", 2, 6, -infinite},
    {"12-inf", 3, 6, infinite},
    {"", 0, 0, 0},
    {"inf", 3, 3, 0},
    {"inf", 4, 4, 0},
    {"inf", 1, 1, 0},
    {"-", 0, 0, 0},
    {"5-", 1, 1, 0},
    {"-x", 0, 0, 0},
    {"--", 0, 0, 0},
    {"+inf", 0, 3, infinite}, // no sign, but a character in front of the word, which is
                              // found all the same
    {"x inf", 0, 3, infinite},
    {"inf nan", 0, 3, notANumber}, // the order of the words decides, not that of the text
    {"12", 0, 0, 0},
};
INSTANTIATE_TEST_SUITE_P(Places, TryExtractSpecialFloating, testing::ValuesIn(extracted));

} // namespace

TEST(NumericConversion, WordsHaveTheBitsOfTheirValues) {
    double value = 0;
    ASSERT_TRUE((tryConvert<double, true>("nan", value)));
    EXPECT_EQ(bitsOf(value), 0x7ff8000000000000U);
    ASSERT_TRUE((tryConvert<double, true>("-nan", value)));
    EXPECT_EQ(bitsOf(value), 0xfff8000000000000U);
    ASSERT_TRUE((tryConvert<double, true>("infinity", value)));
    EXPECT_EQ(bitsOf(value), 0x7ff0000000000000U);
}

struct Grouped : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }

    char do_thousands_sep() const override { return '.'; }

    std::string do_grouping() const override { return "\3"; }
};

TEST(NumericConversion, TheGlobalLocalePlaysNoPart) {
    const std::locale former = std::locale::global(std::locale(std::locale::classic(), new Grouped));
    std::ostringstream proof;
    proof << 1234.5;
    EXPECT_EQ(proof.str(), "1.234,5");
    EXPECT_EQ((convertToString<double, true>(1234567.5, 2)), "1234567.5");
    double value = 0;
    EXPECT_TRUE((tryConvert<double, true>("1234.5", value)));
    EXPECT_EQ(value, 1234.5);
    EXPECT_FALSE((tryConvert<double, true>("1.234,5", value)));
    std::locale::global(former);
}

TEST(NumericConversion, WhatIsShownReadsBackWithinItsDigits) {
    std::mt19937_64 random(20240607);
    for (int i = 0; i < 200000; ++i) {
        const double exponent = std::uniform_real_distribution<double>(-12, 300)(random);
        const double value = std::pow(10.0, exponent);
        double read = 0;
        ASSERT_TRUE((tryConvert<double, true>(convertToString<double, true>(value, 2), read))) << value;
        ASSERT_NEAR(read, value, value * 5.1e-13);
        ASSERT_TRUE((tryConvert<double, true>(convertToString<double, true>(-value, 2), read))) << value;
        ASSERT_NEAR(read, -value, value * 5.1e-6);
    }
}
