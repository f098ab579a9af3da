#include "entries/TimeTexts.h"
#include "support/Finalised.h"

#include <cstring>

namespace {

using namespace test;

/// Without a place on the screen.
struct TimeEntryTest : testing::Test {
    TimeEntryTest() {
        entry->signalDataChanged().connect(
            [this](bool isValid, const std::string& text) { told.emplace_back(isValid, text); });
    }

    Place selection() const {
        int from = 0;
        int to = 0;
        if (!entry->get_selection_bounds(from, to))
            from = to = entry->get_position();
        return {from, to};
    }

    AllTold told;
    std::unique_ptr<TimeEntry> entry = std::make_unique<TimeEntry>();
};

/// The place of an operation among the virtual ones.
template <typename TOperation>
std::size_t slotOf(TOperation operation) {
    std::size_t place = 0;
    std::memcpy(&place, &operation, sizeof place);
    return (place - 1) / sizeof(void*);
}

} // namespace

TEST(IStringView, HasItsOperationsInOrderBehindTheDestructors) {
    static_assert(std::is_base_of_v<Zel::IView, ZelTree::IStringView>);
    EXPECT_EQ(slotOf(&ZelTree::IStringView::setData), 2u);
    EXPECT_EQ(slotOf(&ZelTree::IStringView::getData), 3u);
    EXPECT_EQ(slotOf(&ZelTree::IStringView::setContextMenu), 4u);
}

TEST_F(TimeEntryTest, ShowsMidnightAtFirst) {
    static_assert(std::is_base_of_v<Zel::StringEntry, TimeEntry>);
    static_assert(std::is_base_of_v<ZelTree::IStringView, TimeEntry>);
    const void* const fields[] = {&entry->customMenu, &entry->dataChanged, &entry->changedConnection,
                                  &entry->lastValidTime};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
    EXPECT_EQ(&entry->signalDataChanged(), &entry->dataChanged);
    EXPECT_EQ(entry->lastValidTime, "0:0:0");
    EXPECT_EQ(entry->getData(), "0:0:0");
    EXPECT_EQ(entry->get_text(), "0:0:0");
    EXPECT_EQ(entry->get_width_chars(), 6);
    EXPECT_EQ(entry->get_max_length(), 8);
    EXPECT_EQ(entry->get_input_purpose(), Gtk::INPUT_PURPOSE_NUMBER);
    EXPECT_TRUE(entry->changedConnection.connected());
    EXPECT_EQ(told, AllTold{});
}

TEST_F(TimeEntryTest, JudgesEachText) {
    const std::string last = "1:2:3";

    const struct {
        std::string text;
        std::string result; ///< empty for the last time, without a word
        AllTold told;
    } cases[] = {
        {"12:34:56", "12:34:56", {{true, "12:34:56"}}},
        {"0:0:0", "0:0:0", {{true, "0:0:0"}}},
        {"23:59:59", "23:59:59", {{true, "23:59:59"}}},
        {"9:10:9", "9:10:9", {{true, "9:10:9"}}},
        // Too many characters: the first 8 count.
        {"12:34:567", "12:34:56", {{true, "12:34:56"}}},
        {"10:0:0trash", "", {{true, last}}},
        // No time at all.
        {"", "", {}},
        {"5", "", {}},
        {"1:2", "", {}},
        {"1:2:3:4", "", {}},
        {":::", "", {}},
        {"123456", "", {}},
        {"1;2;3", "", {}},
        // A part that is none.
        {"24:0:0", "", {{true, last}}},
        {"99:0:0", "", {{true, last}}},
        {"100:0:0", "", {{true, last}}},
        {"9999:0:0", "", {{true, last}}},
        {"0:60:0", "", {{true, last}}},
        {"0:99:0", "", {{true, last}}},
        {"0:0:60", "", {{true, last}}},
        {"0:0:9999", "", {{true, last}}},
        {"05:0:0", "", {{true, last}}},
        {"0:05:0", "", {{true, last}}},
        {"0:0:05", "", {{true, last}}},
        {"00:0:0", "", {{true, last}}},
        {"00:00:00", "", {{true, last}}},
        {"a:0:0", "", {{true, last}}},
        {"0:0:a", "", {{true, last}}},
        {" 1:0:0", "", {{true, last}}},
        {"1 :0:0", "", {{true, last}}},
        {"-1:0:0", "", {{true, last}}},
        {"+1:0:0", "", {{true, last}}},
        {"1.:0:0", "", {{true, last}}},
        {"1e0:0:0", "", {{true, last}}},
        {"0x1:0:0", "", {{true, last}}},
        // Digits of other scripts.
        {"٣:0:0", "", {{true, last}}},
        {"１:0:0", "", {{true, last}}},
        {"²:0:0", "", {{true, last}}},
        // A missing part waits for more.
        {"::", "::", {}},
        {":1:2", ":1:2", {}},
        {"1::2", "1::2", {}},
        {"1:2:", "1:2:", {}},
        {"12::", "12::", {}},
        // Unless another one is bad.
        {":60:0", "", {{true, last}}},
        {":0:05", "", {{true, last}}},
        {"24::", "", {{true, last}}},
        {"::x", "", {{true, last}}},
        // No Unicode, and no text.
        {"\xff:0:0", "", {{true, last}}},
        {"1:2:3\xe2", "", {{true, last}}},
        {std::string("1:2:4\0", 6), "", {{true, last}}},
    };

    for (const auto& each : cases) {
        entry->setData("0:0:1");
        entry->setData(last);
        told.clear();
        entry->setData(each.text);
        EXPECT_EQ(entry->getData(), each.result.empty() ? last : each.result) << each.text;
        EXPECT_EQ(told, each.told) << each.text;
        EXPECT_EQ(entry->lastValidTime, !each.told.empty() && !each.result.empty() ? each.result : last)
            << each.text;
    }
}

TEST_F(TimeEntryTest, EverySecondOfTheDayIsATime) {
    entry->setData("0:0:1");
    for (int second = 0; second < 24 * 60 * 60; ++second) {
        const std::string text = std::to_string(second / 3600) + ":" + std::to_string(second / 60 % 60) +
                                 ":" + std::to_string(second % 60);
        told.clear();
        entry->setData(text);
        ASSERT_EQ(told, (AllTold{{true, text}}));
        ASSERT_EQ(entry->getData(), text);
    }
}

TEST_F(TimeEntryTest, EachNumberHasItsLimitInEachPart) {
    for (std::size_t part = 0; part < 3; ++part)
        for (int number = 0; number < 1100; ++number) {
            std::string numbers[] = {"7", "7", "7"};
            numbers[part] = std::to_string(number);
            const std::string text = numbers[0] + ":" + numbers[1] + ":" + numbers[2];
            entry->setData("0:0:0");
            told.clear();
            entry->setData(text);
            const bool isGood = number < (part == 0 ? 24 : 60);
            ASSERT_EQ(told, (AllTold{{true, isGood ? text : "0:0:0"}}));
        }
}

TEST_F(TimeEntryTest, TheSameTextAgainIsNoChange) {
    entry->setData("1:2:3");
    told.clear();
    entry->setData("1:2:3");
    EXPECT_EQ(told, AllTold{});
}

TEST_F(TimeEntryTest, IsJudgedBeforeOthersHearOfTheChange) {
    std::vector<std::string> seen;
    entry->signal_changed().connect([&] { seen.push_back(entry->getData()); }, false);
    entry->setData("24:0:0");
    EXPECT_FALSE(seen.empty());
    for (const std::string& text : seen)
        EXPECT_EQ(text, "0:0:0");
}

TEST_F(TimeEntryTest, TheSignalOfTheInterfaceIsNotEmitted) {
    int count = 0;
    entry->signalTextChanged.connect([&](bool, const std::string&) { ++count; });
    ZelTree::IStringView& view = *entry;
    view.setData("1:2:3");
    view.setData("99:2:3");
    EXPECT_EQ(view.getData(), "1:2:3");
    EXPECT_EQ(told.size(), 2u);
    EXPECT_EQ(count, 0);
}

TEST_F(TimeEntryTest, TheMenuOfTheInterfaceIsTheCustomMenu) {
    struct NoMenu : Zel::IView {
    } noMenu;

    MenuView menu;
    ZelTree::IStringView& view = *entry;
    view.setContextMenu(&menu);
    EXPECT_EQ(entry->getCustomMenu(), &menu);
    view.setContextMenu(nullptr);
    EXPECT_EQ(entry->getCustomMenu(), nullptr);
    view.setContextMenu(&menu);
    view.setContextMenu(&noMenu);
    EXPECT_EQ(entry->getCustomMenu(), nullptr);
}

TEST_F(TimeEntryTest, SelectsThePartAtAPlace) {
    const struct {
        const char* text;
        int pos;
        Place selected;
    } cases[] = {
        {"1:2:3", 0, {0, 1}},    {"1:2:3", 1, {0, 1}},    {"1:2:3", 2, {2, 3}},    {"1:2:3", 3, {2, 3}},
        {"1:2:3", 4, {4, 5}},    {"1:2:3", 5, {4, 5}},    {"12:34:56", 0, {0, 2}}, {"12:34:56", 1, {0, 2}},
        {"12:34:56", 2, {0, 2}}, {"12:34:56", 3, {3, 5}}, {"12:34:56", 4, {3, 5}}, {"12:34:56", 5, {3, 5}},
        {"12:34:56", 6, {6, 8}}, {"12:34:56", 7, {6, 8}}, {"12:34:56", 8, {6, 8}}, {"::", 0, {0, 0}},
        {"::", 1, {1, 1}},       {"::", 2, {2, 2}},       {"1::", 1, {0, 1}},      {"12:34:56", 9, {6, 8}},
    };

    for (const auto& each : cases) {
        entry->setData(each.text);
        entry->_selectTimePartAtPosition(each.pos);
        EXPECT_EQ(selection(), each.selected) << each.text << ' ' << each.pos;
    }
}

TEST_F(TimeEntryTest, AReleaseShrinksASelectionThatCrossesParts) {
    for (const std::string text : {"1:2:3", "12:34:56", "1:23:4", ":2:", "::", "12::34"}) {
        const int length = static_cast<int>(text.size());
        for (int from = 0; from <= length; ++from)
            for (int to = 0; to <= length; ++to) {
                entry->setData(text);
                ASSERT_EQ(entry->getData(), text);
                entry->select_region(from, to);
                const int first = std::min(from, to);
                const int last = std::max(from, to);
                const std::string selected =
                    text.substr(static_cast<std::size_t>(first), static_cast<std::size_t>(last - first));
                const bool shrinks = selected.find(':') != std::string::npos && selected != text;
                GdkEventButton event{};
                EXPECT_EQ(entry->_onTimeButtonRelease(&event), shrinks) << text << from << to;
                const Place expected = shrinks      ? partsOf(text)[partAt(text, first)]
                                       : from == to ? Place(to, to)
                                                    : Place(first, last);
                EXPECT_EQ(selection(), expected) << text << ' ' << from << ' ' << to;
            }
    }
}

TEST_F(TimeEntryTest, TheCopyAndTheCutKeyCopyOnly) {
    test::OffscreenHost host(*entry, 200, 40);
    entry->grab_focus();
    test::sendFocus(*entry, true);
    test::settle();
    entry->setData("12:34:56");
    told.clear();
    const unsigned int copyKey = 0x1008ff57;
    const unsigned int cutKey = 0x1008ff58;
    for (const auto& [key, from, text] : {std::tuple(copyKey, 0, "12"), std::tuple(cutKey, 3, "34")}) {
        entry->select_region(from, from + 2);
        EXPECT_TRUE(test::sendKey(*entry, key));
        EXPECT_EQ(Gtk::Clipboard::get()->wait_for_text(), text);
        EXPECT_EQ(entry->getData(), "12:34:56");
        EXPECT_EQ(selection(), Place(from, from + 2));
    }
    EXPECT_EQ(told, AllTold{});
}

TEST_F(TimeEntryTest, TheJumpToTheNextPartEndsWithTheEntry) {
    auto host = std::make_unique<test::OffscreenHost>(*entry, 200, 40);
    entry->grab_focus();
    test::sendFocus(*entry, true);
    test::settle();
    entry->select_region(1, 1);
    test::sendKey(*entry, GDK_KEY_BackSpace);
    test::sendKey(*entry, GDK_KEY_1);
    test::sendKey(*entry, GDK_KEY_2);
    EXPECT_EQ(entry->getData(), "12:0:0");
    EXPECT_EQ(selection(), Place(2, 2));
    host.reset();
    entry.reset();
    test::settle();
    EXPECT_EQ(told.back(), Told(true, "12:0:0"));
}

TEST_F(TimeEntryTest, JumpsAtIdleTime) {
    test::OffscreenHost host(*entry, 200, 40);
    entry->grab_focus();
    test::sendFocus(*entry, true);
    test::settle();
    entry->setData("1:0:0");
    entry->select_region(1, 1);
    test::sendKey(*entry, GDK_KEY_2);
    EXPECT_EQ(selection(), Place(2, 2));
    std::vector<Place> seen;
    for (const int priority : {199, 201})
        Glib::signal_idle().connect_once([&] { seen.push_back(selection()); }, priority);
    test::settle();
    EXPECT_EQ(seen, (std::vector<Place>{{2, 2}, {3, 4}}));
}

TEST_F(TimeEntryTest, AThousandLivesLeaveNothingBehind) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        TimeEntry shortLived;
        finalised.watch(shortLived);
        shortLived.setData("1:2:3");
        shortLived.setData("99:2:3");
    }
    EXPECT_TRUE(finalised.all());
}
