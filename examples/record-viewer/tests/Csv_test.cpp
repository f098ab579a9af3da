#include "Samples.h"

#include "reader/Csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using namespace record;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

Record read(const std::string& text, const Options& options = {}) {
    MemorySource source("test.csv", text);
    return readCsv(source, options);
}

std::string refusal(const std::string& text) {
    return test::refusal([&] { read(text); });
}

} // namespace

TEST(Tables, TwoRowsOfTextAreNamesAndUnits) {
    const Record record = read("x-axis,1\nsecond,Volt\n-0.001,2\n0,3\n0.001,4\n");
    ASSERT_EQ(record.analogs.size(), 1u);
    EXPECT_EQ(record.analogs[0].name, "1");
    EXPECT_EQ(record.analogs[0].unit, "Volt");
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(2, 3, 4));
    EXPECT_EQ(record.format, Format::Csv);
    EXPECT_DOUBLE_EQ(record.time.at(0), -0.001);
    EXPECT_DOUBLE_EQ(record.time.at(2), 0.001);
    EXPECT_THAT(record.warnings, IsEmpty());
}

TEST(Tables, OneRowOfTextNamesColumnsWithUnitsInBrackets) {
    const Record record = read("Time (ms), Ua(V), Ia [A], P\n0,1,2,3\n1,4,5,6\n");
    ASSERT_EQ(record.analogs.size(), 3u);
    EXPECT_EQ(record.analogs[0].name, "Ua");
    EXPECT_EQ(record.analogs[0].unit, "V");
    EXPECT_EQ(record.analogs[1].name, "Ia");
    EXPECT_EQ(record.analogs[1].unit, "A");
    EXPECT_EQ(record.analogs[2].unit, "");
    EXPECT_DOUBLE_EQ(record.time.at(1), 0.001);
}

TEST(Tables, UnitsOfTimeBecomeSeconds) {
    const std::pair<const char*, double> units[] = {
        {"s", 1}, {"ms", 1e-3}, {"us", 1e-6}, {"\u00b5s", 1e-6}, {"ns", 1e-9}};
    for (const auto& [unit, seconds] : units)
        EXPECT_DOUBLE_EQ(read(std::string("t,a\n") + unit + ",V\n0,1\n2,1\n").time.at(1), 2 * seconds)
            << unit;
}

TEST(Tables, WithoutATimeColumnTheAxisCountsSamples) {
    const Record record = read("Ua(V),Ub(V)\n1,2\n3,4\n");
    ASSERT_EQ(record.analogs.size(), 2u);
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(1, 3));
    EXPECT_EQ(record.time.rule(), TimeAxis::Rule::Numbers);
    EXPECT_EQ(record.time.at(1), 1);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("no column holds the time")));
}

TEST(Tables, WithoutNamesAColumnThatGrowsIsTheTime) {
    const Record record = read("0,5\n0.1,6\n0.2,7\n");
    EXPECT_DOUBLE_EQ(record.time.at(2), 0.2);
    ASSERT_EQ(record.analogs.size(), 1u);
    EXPECT_EQ(record.analogs[0].name, "Column 2");
}

TEST(Tables, WithoutNamesAColumnThatDoesNotGrowIsAChannel) {
    const Record record = read("0,5\n0.1,6\n0.1,7\n");
    ASSERT_EQ(record.analogs.size(), 2u);
    EXPECT_EQ(record.analogs[0].name, "Column 1");
    EXPECT_THAT(record.analogs[0].samples, ElementsAre(0.0f, 0.1f, 0.1f));
    EXPECT_THAT(record.analogs[1].samples, ElementsAre(5, 6, 7));
    EXPECT_EQ(record.time.rule(), TimeAxis::Rule::Numbers);
}

TEST(Tables, ASingleColumnIsAChannel) {
    const Record record = read("time\n1\n2\n3\n");
    ASSERT_EQ(record.analogs.size(), 1u);
    EXPECT_EQ(record.analogs[0].name, "time");
}

TEST(Tables, SemicolonsTabsAndQuotesSeparate) {
    EXPECT_THAT(read("t;a\n0;1\n1;2\n").analogs[0].samples, ElementsAre(1, 2));
    EXPECT_THAT(read("t\ta\n0\t1\n1\t2\n").analogs[0].samples, ElementsAre(1, 2));
    EXPECT_EQ(read("\"t\",\"Ch, 1\"\n0,1\n1,2\n").analogs[0].name, "Ch, 1");
}

TEST(Tables, RowsAboveTheNamesAreIgnored) {
    const Record record = read("Scope 7\nRecord Length,2\n\nt,a\ns,V\n0,1\n1,2\n");
    EXPECT_EQ(record.analogs[0].name, "a");
    EXPECT_EQ(record.analogs[0].unit, "V");
}

TEST(Tables, EmptyCellsAndWordsForNothingAreMissing) {
    const Record record = read("t,a\n0,\n1,nan\n2,inf\n3,1e300\n4,5\n");
    ASSERT_EQ(record.size(), 5u);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_TRUE(std::isnan(record.analogs[0].samples[i])) << i;
    EXPECT_EQ(record.analogs[0].samples[4], 5);
}

TEST(Tables, ACommaAtTheEndsOfRowsIsNoColumn) {
    const Record record = read("t,a,\n0,1,\n1,2,\n");
    EXPECT_EQ(record.analogs.size(), 1u);
    EXPECT_EQ(record.size(), 2u);
}

TEST(Tables, NamesGoThroughTheCodePage) {
    Options options;
    options.codePage = "CP1251";
    const Record record = read("t,\xD2\xEE\xEA\n0,1\n1,2\n", options);
    EXPECT_EQ(record.analogs[0].name, "Ток");
    EXPECT_EQ(record.encoding, "CP1251");
    EXPECT_EQ(read("\xEF\xBB\xBFt,a\n0,1\n1,2\n").time.rule(), TimeAxis::Rule::Stamps);
}

TEST(Tables, ALastRowCutOffIsLeftOutAndTold) {
    const Record record = read("t,a,b\n0,1,2\n1,2");
    EXPECT_EQ(record.size(), 1u);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("last row is cut off")));
}

TEST(Tables, DamageIsRefusedWithItsLine) {
    EXPECT_THAT(refusal("t,a\n0,1\n1,x\n2,3\n"),
                HasSubstr("test.csv, line 3: expected a number, found \"x\""));
    EXPECT_THAT(refusal("t,a\n0,1\n1\n2,3\n"), HasSubstr("line 3: expected 2 columns instead of 1"));
    EXPECT_THAT(refusal("t,a\n0,1\n1,2,3\n"),
                HasSubstr("line 3: expected the end of the line after 2 columns"));
    EXPECT_THAT(refusal(""), HasSubstr("expected a row of numbers"));
    EXPECT_THAT(refusal("only,words\n"), HasSubstr("expected a row of numbers"));
}

TEST(Tables, SalvageLeavesOutWhatIsDamaged) {
    const Record record = read("t,a\n0,1\n1,x\nscrap\n2,3,4\n3,5\n", test::salvage());
    EXPECT_EQ(record.size(), 4u);
    EXPECT_TRUE(std::isnan(record.analogs[0].samples[1]));
    EXPECT_EQ(record.analogs[0].samples[3], 5);
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("1 damaged row"), HasSubstr("2 cells")));
}

TEST(Tables, TimeThatGoesBackIsTold) {
    const Record record = read("t,a\n0,1\n1,2\n2,2\n1,3\n2,3\n");
    EXPECT_THAT(record.warnings, ElementsAre(HasSubstr("leaps in 1 place, first by -1 s before row 4")));
}
