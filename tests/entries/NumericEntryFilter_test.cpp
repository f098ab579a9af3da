// Which texts the entry for numbers accepts.

#include <ZelCommonView/entries/NumericEntry.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace Zel;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
const NumericRange anyNumber(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max(), 1);

/// The text as a person leaves it: through the filter.
void enter(NumericEntry& entry, const Glib::ustring& text) {
    entry.set_text("");
    entry.set_text(text);
}

struct Edit {
    NumericRange range;
    const char* text;
    bool isAccepted;
};

class NumericEntryEdits : public testing::TestWithParam<Edit> {};

TEST_P(NumericEntryEdits, AcceptsOrRefusesTheText) {
    NumericEntry entry;
    entry.setValueRange(GetParam().range);
    enter(entry, GetParam().text);
    EXPECT_EQ(entry.get_text(), GetParam().isAccepted ? GetParam().text : "");
    EXPECT_EQ(entry.lastAcceptedText, GetParam().isAccepted ? GetParam().text : "");
}

const NumericRange usual(-1e16, 1e16, 1e-9);
const Edit texts[] = {
    {usual, "", true},       {usual, "-", true},    {usual, "+", true},         {usual, ".", true},
    {usual, "-.", true},     {usual, "1e", true},   {usual, "1e5", true},       {usual, "1e-5", true},
    {usual, "i", true},      {usual, "inf", true},  {usual, "-Infinity", true}, {usual, "NaN", true},
    {usual, "x", false},     {usual, "1x", false},  {usual, "1 ", false},       {usual, " 1", false},
    {usual, "1.2.3", false}, {usual, "--1", false}, {usual, "infx", false},
};
INSTANTIATE_TEST_SUITE_P(WhatMayBecomeANumber, NumericEntryEdits, testing::ValuesIn(texts));

const Edit signs[] = {
    {{0, 10, 0.1}, "-", false},          {{0, 10, 0.1}, "-1", false},    {{0, 10, 0.1}, "-0", false},
    {{0, 10, 0.1}, "-inf", false},       {{-0.0, 10, 0.1}, "-", false},  {{1, 10, 0.1}, "-", false},
    {{notANumber, 10, 0.1}, "-", false}, {{-1, 10, 0.1}, "-", true},     {{-1, 10, 0.1}, "-1", true},
    {{-1, 10, 0.1}, "-nan", true},       {{-1e-9, 10, 0.1}, "-9", true}, {{0, 10, 0.1}, "+1", true},
    {{0, 10, 0.1}, "1e-1", true},
};
INSTANTIATE_TEST_SUITE_P(Sign, NumericEntryEdits, testing::ValuesIn(signs));

const Edit points[] = {
    {{0, 100, 1}, "1.", false},    {{0, 100, 1}, ".", false},          {{0, 100, 10}, "0.", false},
    {{0, 100, 2}, "1.", false},    {{0, 100, 1 + 1e-12}, "1.", false}, {{0, 100, infinite}, "1.", false},
    {{0, 100, -1}, "1.", false},   {{0, 100, 0.5}, "1.", true},        {{0, 100, 1.5}, "1.", true},
    {{0, 100, 0}, "1.", true},     {{0, 100, notANumber}, "1.", true}, {{0, 100, 1e-11}, "1.", true},
    {{0, 100, 1e-19}, "1.", true}, {{0, 100, 1e-21}, "1.", false}, // so small that it counts as no more than
                                                                   // a whole 0
};
INSTANTIATE_TEST_SUITE_P(PointOnlyWithinSteps, NumericEntryEdits, testing::ValuesIn(points));

const NumericRange hundredths(0, 100, 0.01);
const Edit digits[] = {
    {hundredths, "999.99", true},
    {hundredths, "1000", false},
    {hundredths, "1000.0", false},
    {hundredths, "0999", true},
    {hundredths, "00000999.99", true},
    {hundredths, "1.234", false},
    {hundredths, "1.230", false}, // a zero is a digit, too
    {hundredths, "1.000", false},
    {hundredths, "1.23", true},
    {hundredths, "1e2", true},
    {hundredths, "1e3", false},
    {hundredths, "1e-2", true},
    {hundredths, "1e-3", false},
    {hundredths, "1.e2", true},
    {hundredths, "1.e1", true},
    {hundredths, "1.5e1", false}, // all characters behind the point count
    {hundredths, "inf", true},
    {hundredths, "nan", true},
    {hundredths, "1e400", true}, // no number for lack of room, so there is none to limit
    {{0, 100, 1}, "999", true},
    {{0, 100, 1}, "1000", false},
    {{0, 99, 1}, "99", true},
    {{0, 99, 1}, "100", false},
    {{-1000, 5, 1}, "9999", true}, // the larger of both limits counts
    {{-1000, 5, 1}, "-9999", true},
    {{-1000, 5, 1}, "10000", false},
    {{0, 0.5, 0.01}, "0.99", true},
    {{0, 0.5, 0.01}, "1", false},
    {{0, 100, 0.25}, "1.2", true}, // a step of 0.25 has one decimal
    {{0, 100, 0.25}, "1.25", false},
    {{0, 100, 0.5}, "1.3", true}, // and the step itself does not count, only its decimals
    {{0, 100, 0.001}, "999.999", true},
    {{0, 100, 0.001}, "1000", false},
    {{0, 100, 10}, "10", true}, // steps of 10 admit multiples of 10
    {{0, 100, 10}, "1", false},
    {{0, 100, 10}, "990", true},
    {{0, 100, 10}, "15", false},
    {{0, 100000, 1000}, "999000", true},
    {{0, 100000, 1000}, "999100", false},
    {{0, 100000, 1500}, "2000", true},
    {{0, 100, 0}, "1.23456789012345", true}, // a step of 0 limits only the digits in front
    {{0, 100, 0}, "999.9", true},
    {{0, 100, 0}, "1000", true}, // 10 to the power of 3 itself, since nothing is taken off
    {{0, 100, 0}, "1000.1", false},
    {{0, 100, notANumber}, "1.23456", true},
    {{0, 100, notANumber}, "123456", true},
    {{0, infinite, 0.1}, "1e300", true},
    {{0, infinite, 0.1}, "1.25", false},
    {{0, 0, 1}, "0", false}, // nothing but 0 has no digits at all
    {anyNumber, "1e300", true},
    {anyNumber, "123456789", true},
    {anyNumber, "1.5", false}, // the whole step still admits no point
    {usual, "1e16", true},
    {usual, "99999999999999999", true},
    {usual, "1e17", true}, // so large that the step no longer makes a difference
    {usual, "1.1e17", false},
    {usual, "0.123456789", true},
    {usual, "0.1234567891", false},
    {usual, "1234567.123456789", true},
    {usual, "1.0000000000", false},
    {usual, "1e-9", true},
    {usual, "1e-10", false},
};
INSTANTIATE_TEST_SUITE_P(Digits, NumericEntryEdits, testing::ValuesIn(digits));

// 1000 lies no more than one step beyond the largest number that two decimals and three digits make.
TEST(NumericEntryFilter, OneStepBeyondTheLargestNumberIsTooMuchUpToNineDigits) {
    for (int decimals = 0; decimals <= 8; ++decimals)
        for (int whole = 1; whole + decimals <= 9; ++whole) {
            NumericEntry entry;
            entry.setValueRange({0, std::pow(10.0, whole - 1), std::pow(10.0, -decimals)});
            const std::string nines =
                std::string(whole, '9') + (decimals ? "." + std::string(decimals, '9') : "");
            enter(entry, nines);
            EXPECT_EQ(entry.get_text(), nines);
            enter(entry, "1" + std::string(whole, '0'));
            EXPECT_EQ(entry.get_text(), "") << whole << " digits and " << decimals << " decimals";
        }
}

// The digit limit compares to ten digits, so a step of the eleventh counts as a rounding error.
TEST(NumericEntryFilter, WithMoreDigitsOneStepBeyondTheLargestNumberIsWithinTheTolerance) {
    NumericEntry entry;
    entry.setValueRange({0, 100000, 1e-5});
    enter(entry, "1000000");
    EXPECT_EQ(entry.get_text(), "1000000");
    enter(entry, "1000001");
    EXPECT_EQ(entry.get_text(), "");
}

class NumericEntrySeparators : public testing::TestWithParam<const char*> {};

TEST_P(NumericEntrySeparators, BecomeThePoint) {
    NumericEntry entry;
    enter(entry, Glib::ustring("12") + GetParam() + "5");
    EXPECT_EQ(entry.get_text(), "12.5");
    EXPECT_EQ(entry.lastAcceptedText, "12.5");
    EXPECT_EQ(entry.getValue(), 12.5);
    entry.setValueRange({0, 100, 1});
    enter(entry, Glib::ustring("12") + GetParam());
    EXPECT_EQ(entry.get_text(), "") << "whole steps";
}

INSTANTIATE_TEST_SUITE_P(All, NumericEntrySeparators,
                         testing::Values("б", "ю", "э", ",", "<", ">", "'", "/"));

TEST(NumericEntryFilter, NormalizesEverySeparatorAndNothingElse) {
    NumericEntry entry;
    EXPECT_EQ(entry._normalizeTextNumericSeparators("бюэ,<>'/"), "........");
    EXPECT_EQ(entry._normalizeTextNumericSeparators("ж1;2\"3[4]Б5Ю6Э7?"), "ж1;2\"3[4]Б5Ю6Э7?");
    EXPECT_EQ(entry._normalizeTextNumericSeparators(""), "");
    EXPECT_EQ(entry._normalizeTextNumericSeparators("яб1ю"), "я.1.");
}

} // namespace
