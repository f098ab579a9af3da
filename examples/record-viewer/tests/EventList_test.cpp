// The list of the changes of binary channels, without a hand on it.
#include "support/Finalised.h"
#include "support/Hands.h"
#include "view/EventList.h"

#include <ZelCommonView/common/Language.h>

#include <gtest/gtest.h>

#include <chrono>

namespace {

using viewer::EventList;

void addChannel(record::Record& record, const std::string& name, const std::string& phase,
                const std::string& states) {
    record::BinaryChannel& channel = record.binaries.emplace_back();
    channel.name = name;
    channel.phase = phase;
    for (const char state : states)
        channel.samples.append(state == '1');
    record.time = record::TimeAxis(states.size(), {{4, states.size()}}, {}, 1);
}

record::Record makeRecord() {
    record::Record record;
    addChannel(record, "Start", "A", "001100000000");
    addChannel(record, "Trip", "", "000111111110");
    return record;
}

/// One channel that changes at each sample, a thousand in a second.
record::Record makeRestless(std::size_t changes) {
    record::Record record;
    record::BitRow& row = record.binaries.emplace_back().samples;
    for (std::size_t i = 0; i <= changes; ++i)
        row.append(i % 2 == 1);
    record.time = record::TimeAxis(changes + 1, {{1000, changes + 1}}, {}, 1);
    return record;
}

class EventListTest : public testing::Test {
protected:
    EventListTest() {
        events.signalTimeChosen.connect([this](double time) { chosen.push_back(time); });
    }

    ~EventListTest() override { lng::language = 0; }

    static std::vector<std::string> rows(EventList& shown) {
        std::vector<std::string> all;
        for (const Gtk::TreeModel::Row& row : shown.list.get_model()->children()) {
            std::string& line = all.emplace_back();
            for (const Gtk::TreeModelColumn<std::string>& column : shown.list.getColumns().texts)
                line += (line.empty() ? "" : "|") + row.get_value(column);
        }
        return all;
    }

    /// Shows a record of so many changes; the seconds that a person waits for it.
    double timeFor(std::size_t changes) {
        const record::Record record = makeRestless(changes);
        const auto start = std::chrono::steady_clock::now();
        events.setRecord(record);
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        test::settle();
        return seconds;
    }

    std::vector<double> chosen;
    EventList events;
};

} // namespace

TEST_F(EventListTest, IsEmptyAndSilentWithoutARecord) {
    test::OffscreenHost host(events, 400, 300);
    EXPECT_TRUE(rows(events).empty());
    EXPECT_FALSE(events.problem.get_visible());
}

TEST_F(EventListTest, NumbersTheChangesInOrderOfTimeWithTimeChannelAndState) {
    events.setRecord(makeRecord());
    EXPECT_EQ(rows(events), (std::vector<std::string>{"1|0.500000|Start (A)|1", "2|0.750000|Trip|1",
                                                      "3|1.000000|Start (A)|0", "4|2.750000|Trip|0"}));
    EXPECT_FALSE(events.problem.get_visible());
}

TEST_F(EventListTest, ANewRecordChoosesNothing) {
    test::OffscreenHost host(events, 400, 300);
    for (int i = 0; i < 2; ++i) {
        events.setRecord(makeRecord());
        test::settle();
        EXPECT_TRUE(events.list.getSelection().empty());
        EXPECT_TRUE(chosen.empty());
    }
    events.list.get_selection()->select(Gtk::TreePath("0"));
    events.setRecord(makeRecord());
    test::settle();
    EXPECT_EQ(chosen, std::vector<double>{0.5});
    EXPECT_TRUE(events.list.getSelection().empty());
}

TEST_F(EventListTest, TellsTheTimeOfTheSelectedChangeWhateverTheOrder) {
    test::OffscreenHost host(events, 400, 300);
    events.setRecord(makeRecord());
    events.list.get_selection()->select(Gtk::TreePath("3"));
    events.list.get_column(1)->clicked();
    events.list.get_column(1)->clicked();
    EXPECT_EQ(rows(events).front(), "4|2.750000|Trip|0");
    EXPECT_EQ(chosen, std::vector<double>{2.75}) << "sorting is no choice";
    events.list.get_selection()->select(Gtk::TreePath("1"));
    EXPECT_EQ(chosen, (std::vector<double>{2.75, 1.0}));
}

TEST_F(EventListTest, SortsTimesAndNumbersAsNumbersAndKeepsThatForTheNextRecord) {
    test::OffscreenHost host(events, 400, 300);
    record::Record record = makeRestless(12);
    record.time = record::TimeAxis(13, {{1, 13}}, {}, 1);
    events.setRecord(record);
    for (const int column : {0, 1}) {
        events.list.get_column(column)->clicked();
        EXPECT_EQ(rows(events)[1], "2|2.000000||0") << column;
        EXPECT_EQ(rows(events).back(), "12|12.000000||0") << column;
        events.list.get_column(column)->clicked();
        EXPECT_EQ(rows(events).front(), "12|12.000000||0") << column;
        EXPECT_EQ(rows(events).back(), "1|1.000000||1") << column;
    }
    events.setRecord(makeRecord());
    EXPECT_EQ(rows(events).front(), "4|2.750000|Trip|0");
}

TEST_F(EventListTest, SaysWhyItIsEmptyAsLongAsItIs) {
    test::OffscreenHost host(events, 400, 300);
    const auto expectSaid = [&](const record::Record& record, const char* sentence) {
        events.setRecord(record);
        test::settle();
        EXPECT_TRUE(rows(events).empty());
        EXPECT_TRUE(events.problem.get_mapped());
        EXPECT_TRUE(events.list.get_mapped());
        EXPECT_EQ(events.problem.get_text(), sentence);
    };
    expectSaid({}, "The record has no binary channels.");
    record::Record still;
    addChannel(still, "Trip", "", "1111");
    expectSaid(still, "No binary channel of the record changes.");
    events.setRecord(makeRecord());
    test::settle();
    EXPECT_FALSE(events.problem.get_mapped());
    expectSaid({}, "The record has no binary channels.");
    EXPECT_TRUE(chosen.empty());
}

TEST_F(EventListTest, SpeaksTheLanguage) {
    lng::language = 1;
    EventList russian;
    EXPECT_EQ(russian.list.get_column(1)->get_title(), "Время, с");
    EXPECT_EQ(russian.list.get_column(3)->get_title(), "Состояние");
    russian.setRecord({});
    EXPECT_EQ(russian.problem.get_text(), "В записи нет дискретных каналов.");
}

// Row by row the list would take a hundred times as long for ten times as many.
TEST_F(EventListTest, AHundredThousandChangesComeInTimeThatGrowsWithTheirNumber) {
    test::OffscreenHost host(events, 400, 300);
    const double few = timeFor(10'000);
    const double many = timeFor(100'000);
    EXPECT_EQ(rows(events).size(), 100'000u);
    EXPECT_EQ(rows(events).back(), "100000|100.000000||0");
    EXPECT_LT(many, 40 * few) << few << " s and " << many << " s";
    RecordProperty("milliseconds", static_cast<int>(1000 * many));
    const double none = timeFor(0);
    EXPECT_TRUE(rows(events).empty());
    EXPECT_LT(none, 40 * few) << few << " s and " << none << " s to take them out";
}

TEST_F(EventListTest, AListenerMayShowAnotherRecord) {
    test::OffscreenHost host(events, 400, 300);
    events.setRecord(makeRecord());
    events.signalTimeChosen.connect([this](double /*time*/) { events.setRecord({}); });
    events.list.get_selection()->select(Gtk::TreePath("2"));
    EXPECT_EQ(chosen, std::vector<double>{1.0});
    EXPECT_TRUE(rows(events).empty());
}

TEST_F(EventListTest, AThousandLivesLeaveNoWidgetBehind) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        EventList shortLived;
        shortLived.setRecord(makeRecord());
        finalised.watch(shortLived);
        finalised.watch(shortLived.list);
    }
    test::settle();
    EXPECT_TRUE(finalised.all());
}
