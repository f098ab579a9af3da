#include <ZelCommonView/common/NumericHelper.h>

#include <gtest/gtest.h>

#include "support/TemporaryLocales.h"

#include <clocale>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Zel::NumericHelper::isIncompleteNumericInput;
using Zel::NumericHelper::isNumericInput;

const std::vector<std::string> numbers = {"0",
                                          "007",
                                          "12",
                                          "-12",
                                          "+12",
                                          "1.5",
                                          "1.",
                                          ".5",
                                          "-.5",
                                          "+.5",
                                          "1e5",
                                          "1E5",
                                          "1e+5",
                                          "1e-5",
                                          "1.e5",
                                          ".5e1",
                                          "-1.5E-07",
                                          "1e999",
                                          "99999999999999999999",
                                          "nan",
                                          "NaN",
                                          "-nan",
                                          "-NAN",
                                          "inf",
                                          "INF",
                                          "-inf",
                                          "infinity",
                                          "Infinity",
                                          "-Infinity"};

const std::vector<std::string> beginnings = {"",    "-",   "+",   ".",    "-.",    "+.",     "1e",      "1E",
                                             "1e-", "1e+", "1.e", ".5e",  "n",     "-N",     "na",      "-na",
                                             "i",   "-i",  "In",  "infi", "INFIN", "infini", "-infinit"};

const std::vector<std::string> refused = {
    " ",    "1 ",  " 1",   "1 000",     "1,5",         "1..5", "1.5.", "--1",   "-+1",  "1-",   "1+",
    "e",    "e5",  ".e",   ".e5",       "-e",          "1e5.", "1e.5", "1ee5",  "1e5e", "1e--", "0x1",
    "0x",   "5x",  "x",    "+n",        "+nan",        "+i",   "+inf", "--inf", "nane", "nan1", "infx",
    "1nan", "inn", "nani", "infinityx", "infinityinf", "б",    "1б",   "٣",     "1\n",  "NaN.", "-nf"};

void expectAll() {
    for (const std::string& text : numbers) {
        EXPECT_TRUE(isNumericInput(text)) << '"' << text << '"';
        EXPECT_FALSE(isIncompleteNumericInput(text)) << '"' << text << '"';
    }
    for (const std::string& text : beginnings) {
        EXPECT_TRUE(isNumericInput(text)) << '"' << text << '"';
        EXPECT_TRUE(isIncompleteNumericInput(text)) << '"' << text << '"';
    }
    for (const std::string& text : refused) {
        EXPECT_FALSE(isNumericInput(text)) << '"' << text << '"';
        EXPECT_FALSE(isIncompleteNumericInput(text)) << '"' << text << '"';
    }
}

TEST(NumericHelper, TellsNumbersFromBeginningsAndFromOtherText) {
    expectAll();
}

TEST(NumericHelper, JudgesAllOfATextWithAZeroByteInIt) {
    EXPECT_FALSE(isNumericInput(std::string("1\0", 2)));
    EXPECT_FALSE(isNumericInput(std::string("\0", 1)));
    EXPECT_FALSE(isNumericInput(std::string("nan\0", 4)));
}

struct DecimalComma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }

    char do_thousands_sep() const override { return ' '; }

    std::string do_grouping() const override { return "\3"; }
};

TEST(NumericHelper, TheLocalePlaysNoPart) {
    if (!test::TemporaryLocales::canMake())
        GTEST_SKIP() << "the package \"locales\" is not installed";
    test::TemporaryLocales locales;
    ASSERT_TRUE(locales.make("ru_RU", "ru_RU.UTF-8"));
    ASSERT_TRUE(std::setlocale(LC_ALL, "ru_RU.UTF-8"));
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    // A locale of one facet has no name, so making it the global one leaves that of the C functions as it is.
    std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
    expectAll();
    std::locale::global(std::locale::classic());
}

bool isRead(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    double value = 0.0;
    stream >> value;
    return !stream.fail() && stream.eof();
}

// Every text of up to six of the characters that numbers are made of, against a stream's reading of it.
TEST(NumericHelper, AgreesWithWhatAStreamReadsAsANumber) {
    const std::string characters = "+-.0e";
    std::vector<std::string> level = {""};
    int numbersSeen = 0;
    for (int length = 0; length <= 6; ++length) {
        std::vector<std::string> next;
        for (const std::string& text : level) {
            const bool isNumber = isNumericInput(text) && !isIncompleteNumericInput(text);
            ASSERT_EQ(isNumber, isRead(text)) << '"' << text << '"';
            numbersSeen += isNumber;

            bool canGoOn = false;
            for (const char c : characters) {
                next.push_back(text + c);
                canGoOn = canGoOn || isNumericInput(next.back());
                ASSERT_TRUE(isNumericInput(text) || !isNumericInput(next.back()))
                    << '"' << next.back() << "\" can't be typed";
            }
            ASSERT_EQ(canGoOn, isNumericInput(text)) << '"' << text << "\" leads nowhere";
        }
        level = std::move(next);
    }
    EXPECT_GT(numbersSeen, 100);
}

} // namespace
