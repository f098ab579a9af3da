#include "reader/Moment.h"

#include <gtest/gtest.h>

using namespace record;

namespace {

std::string text(const char* date, const char* time, bool isMonthFirst = false) {
    const auto moment = parseMoment(date, time, isMonthFirst);
    return moment ? moment->text() : "none";
}

} // namespace

TEST(Moments, TheDayStandsFirstSince1999AndTheMonthBefore) {
    EXPECT_EQ(text("08/04/2016", "04:39:50.598100"), "2016-04-08T04:39:50.598100000");
    EXPECT_EQ(text("02/12/11", "11:41:11.081315", true), "2011-02-12T11:41:11.081315000");
}

TEST(Moments, AMonthAboveTwelveIsSwappedWithTheDay) {
    EXPECT_EQ(text("12/13/2015", "00:00:00"), "2015-12-13T00:00:00.000000000");
    EXPECT_EQ(text("09/17/2015", "00:00:00"), "2015-09-17T00:00:00.000000000");
    EXPECT_EQ(text("17/09/2015", "00:00:00", true), "2015-09-17T00:00:00.000000000");
}

TEST(Moments, TwoDigitYearsFrom70OnBelongToTheLastCentury) {
    EXPECT_EQ(text("01/02/70", "0:0:0"), "1970-02-01T00:00:00.000000000");
    EXPECT_EQ(text("01/02/99", "0:0:0"), "1999-02-01T00:00:00.000000000");
    EXPECT_EQ(text("01/02/69", "0:0:0"), "2069-02-01T00:00:00.000000000");
}

TEST(Moments, FractionsHaveUpToNineDigits) {
    EXPECT_EQ(text("01/02/2020", "03:04:05.5"), "2020-02-01T03:04:05.500000000");
    EXPECT_EQ(text("01/02/2020", "03:04:05.12345"), "2020-02-01T03:04:05.123450000");
    EXPECT_EQ(text("27/07/2023", "09:19:53.156666511"), "2023-07-27T09:19:53.156666511");
    EXPECT_EQ(parseMoment("27/07/2023", "09:19:53.156666511", false)->fractionDigits, 9);
    EXPECT_EQ(parseMoment("27/07/2023", "09:19:53.156666", false)->fractionDigits, 6);
}

TEST(Moments, OneDigitSecondsAndAColonBeforeTheFractionAreUnderstood) {
    EXPECT_EQ(text("1/2/2020", "3:4:5.5"), "2020-02-01T03:04:05.500000000");
    EXPECT_EQ(text("01/02/2020", "03:04:05:250"), "2020-02-01T03:04:05.250000000");
}

TEST(Moments, ADateWithItsYearFirstIsUnderstood) {
    EXPECT_EQ(text("2014-12-04", "07:01:48", true), "2014-12-04T07:01:48.000000000");
}

TEST(Moments, ImpossibleOnesAreNone) {
    for (const char* date : {"", "00/00/0000", "09/44/2025", "31/04/2020", "29/02/2021", "13/13/2020", "1/2",
                             "a/b/c", "01/02/20200", "-1/02/2020"})
        EXPECT_EQ(text(date, "00:00:00"), "none") << date;
    for (const char* time : {"", "24:00:00", "00:60:00", "00:00:61", "00:00", "00:00:00.x"})
        EXPECT_EQ(text("01/02/2020", time), "none") << time;
    EXPECT_EQ(text("29/02/2020", "00:00:00"), "2020-02-29T00:00:00.000000000");
}

TEST(Moments, SecondsBetweenThemCrossMidnightAndLeapDays) {
    const auto moment = [](const char* date, const char* time) { return *parseMoment(date, time, false); };
    EXPECT_NEAR(secondsBetween(moment("31/12/2019", "23:59:59.995"), moment("01/01/2020", "00:00:00.005")),
                0.01, 1e-12);
    EXPECT_DOUBLE_EQ(secondsBetween(moment("28/02/2020", "00:00:00"), moment("01/03/2020", "00:00:00")),
                     2 * 86400.0);
    EXPECT_DOUBLE_EQ(secondsBetween(moment("01/01/2000", "00:00:00"), moment("01/01/1970", "00:00:00")),
                     -946684800.0);
}
