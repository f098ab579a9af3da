// The table of all channels, with their values in words.
#include "reader/Reader.h"
#include "support/Hands.h"
#include "support/TemporaryFolder.h"
#include "view/ChannelTable.h"
#include "view/Words.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using viewer::ChannelTable;

record::Record makeRecord() {
    record::Record record;
    const auto addAnalog = [&record](const char* name, const char* unit, std::vector<float> samples) {
        record::AnalogChannel& channel = record.analogs.emplace_back();
        channel.name = name;
        channel.unit = unit;
        channel.samples = std::move(samples);
    };
    addAnalog("UA", "V", {-63500, 12, 63000});
    addAnalog("IA", "A", {5, NAN, -2.5f, INFINITY});
    addAnalog("nothing", "Hz", {NAN, NAN});
    record::BinaryChannel& trip = record.binaries.emplace_back();
    trip.name = "Trip";
    for (const bool isSet : {false, true, true, false, true})
        trip.samples.append(isSet);
    return record;
}

class ChannelTableTest : public testing::Test {
protected:
    ~ChannelTableTest() override { lng::language = 0; }

    std::vector<std::string> rows(ChannelTable& shown) {
        std::vector<std::string> all;
        for (const Gtk::TreeModel::Row& row : shown.list.get_model()->children()) {
            std::string& line = all.emplace_back();
            for (const Gtk::TreeModelColumn<std::string>& column : shown.list.getColumns().texts)
                line += (line.empty() ? "" : "|") + row.get_value(column);
        }
        return all;
    }

    ChannelTable table;
};

} // namespace

TEST_F(ChannelTableTest, IsEmptyWithoutARecord) {
    EXPECT_TRUE(rows(table).empty());
}

TEST_F(ChannelTableTest, TellsTheExtremesInAUnitThatSuitsThemAndTheNumberOfChanges) {
    table.setRecord(makeRecord());
    EXPECT_EQ(rows(table), (std::vector<std::string>{"1|UA|kV|-63.5 … 63", "2|IA|mA|-2500 … 5000",
                                                     "3|nothing|Hz|", "4|Trip||changes: 3"}));
}

TEST_F(ChannelTableTest, AnotherRecordReplacesTheFirst) {
    table.setRecord(makeRecord());
    record::Record other = makeRecord();
    other.analogs.erase(other.analogs.begin(), other.analogs.begin() + 2);
    table.setRecord(other);
    EXPECT_EQ(rows(table), (std::vector<std::string>{"1|nothing|Hz|", "2|Trip||changes: 3"}));
}

TEST_F(ChannelTableTest, AClickOnTheHeadOfAColumnSortsByIt) {
    table.setRecord(makeRecord());
    test::OffscreenHost host(table, 400, 300);
    const auto numbersAfter = [&](int column) {
        table.list.get_column(column)->clicked();
        std::string numbers;
        for (const std::string& row : rows(table))
            numbers += row[0];
        return numbers;
    };
    EXPECT_EQ(numbersAfter(1), "2413");
    // The values by their extent and not by their letters.
    EXPECT_EQ(numbersAfter(3), "3421");
    EXPECT_EQ(numbersAfter(3), "1243");
    // Also what comes later.
    table.setRecord(makeRecord());
    EXPECT_EQ(rows(table).front(), "1|UA|kV|-63.5 … 63");
    EXPECT_EQ(rows(table).back(), "3|nothing|Hz|");
}

TEST_F(ChannelTableTest, NumbersAreSortedAsNumbers) {
    record::Record record;
    for (int i = 0; i < 12; ++i)
        record.binaries.emplace_back().name = std::string(1, static_cast<char>('l' - i));
    table.setRecord(record);
    const auto firstAfter = [&](int column) {
        table.list.get_column(column)->clicked();
        return rows(table).front() + " " + rows(table).back();
    };
    EXPECT_EQ(firstAfter(1), "12|a||changes: 0 1|l||changes: 0");
    EXPECT_EQ(firstAfter(0), "1|l||changes: 0 12|a||changes: 0");
    EXPECT_EQ(firstAfter(0), "12|a||changes: 0 1|l||changes: 0");
}

TEST_F(ChannelTableTest, SpeaksTheLanguage) {
    EXPECT_EQ(table.list.get_column(3)->get_title(), "Values");
    lng::language = 1;
    ChannelTable russian;
    russian.setRecord(makeRecord());
    EXPECT_EQ(russian.list.get_column(1)->get_title(), "Канал");
    EXPECT_EQ(rows(russian).back(), "4|Trip||изменений: 3");
}
