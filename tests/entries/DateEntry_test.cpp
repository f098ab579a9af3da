#include <ZelCommonView/entries/DateEntry.h>

#include "entries/EntryHands.h"
#include "support/Finalised.h"

namespace {

using Texts = std::vector<std::string>;
using Zel::DateEntry;

struct DateEntryOnScreen : test::EntryOnScreen<DateEntry> {
    DateEntryOnScreen() {
        entry.signalValueChanged().connect([this](const std::string& text) { told.push_back(text); });
    }

    void clickIcon(Gtk::EntryIconPosition position = Gtk::ENTRY_ICON_SECONDARY) {
        const Gdk::Rectangle icon = owned->get_icon_area(position);
        test::click(*owned, icon.get_x() + icon.get_width() / 2, icon.get_y() + icon.get_height() / 2);
    }

    bool isOpen() { return owned->popover.get_visible(); }

    void expectOpen(bool expected) {
        EXPECT_TRUE(test::waitFor([&] { return isOpen() == expected; }, 1000)) << expected;
        test::wait(100);
        EXPECT_EQ(isOpen(), expected);
    }

    Texts told;
};

} // namespace

TEST(DateEntry, IsATextEntryWithACalendarInAPopover) {
    DateEntry entry;
    static_assert(std::is_base_of_v<Zel::StringEntry, DateEntry>);
    const void* const fields[] = {&entry.customMenu, &entry.box, &entry.popover, &entry.calendar};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
    EXPECT_TRUE(entry.calendar.get_style_context()->has_class("DateEntryCalendar"));
    EXPECT_EQ(entry.get_input_purpose(), Gtk::INPUT_PURPOSE_NUMBER);
    EXPECT_EQ(entry.get_icon_name(Gtk::ENTRY_ICON_SECONDARY), "x-office-calendar");
    EXPECT_EQ(entry.get_icon_storage_type(Gtk::ENTRY_ICON_PRIMARY), Gtk::IMAGE_EMPTY);
    EXPECT_EQ(entry.box.get_orientation(), Gtk::ORIENTATION_VERTICAL);
    EXPECT_EQ(entry.box.get_children(), std::vector<Gtk::Widget*>{&entry.calendar});
    EXPECT_TRUE(entry.box.child_property_expand(entry.calendar).get_value());
    EXPECT_TRUE(entry.box.child_property_fill(entry.calendar).get_value());
    EXPECT_EQ(entry.box.child_property_padding(entry.calendar).get_value(), 0u);
    EXPECT_TRUE(entry.box.get_visible());
    EXPECT_TRUE(entry.calendar.get_visible());
    EXPECT_EQ(entry.popover.get_child(), &entry.box);
    EXPECT_EQ(entry.popover.get_relative_to(), &entry);
    EXPECT_EQ(entry.popover.get_position(), Gtk::POS_BOTTOM);
    EXPECT_FALSE(entry.popover.get_visible());
    EXPECT_TRUE(entry.get_visible());
    EXPECT_EQ(entry.get_text(), "");
}

TEST(DateEntry, ADayBecomesDayMonthAndYear) {
    const struct {
        unsigned year, month, day;
        const char* text;
    } cases[] = {
        {2024, 2, 7, "07:03:2024"},
        {2024, 0, 1, "01:01:2024"},
        {1999, 11, 31, "31:12:1999"},
        {2024, 1, 29, "29:02:2024"},
        {9, 8, 10, "10:09:9"},
        {0, 9, 20, "20:10:0"},
        {12345, 5, 15, "15:06:12345"},
        // Gtk's calendar counts a day from 1; 0 means that none is chosen.
        {2024, 2, 0, "00:03:2024"},
    };

    DateEntry entry;
    for (const auto& each : cases) {
        entry._updateDateEntry(each.year, each.month, each.day);
        EXPECT_EQ(entry.get_text(), each.text);
    }
    EXPECT_EQ(entry.get_width_chars(), 11);
}

TEST(DateEntry, TheTextFollowsTheCalendar) {
    DateEntry entry;
    entry.calendar.select_month(2, 2024);
    entry.calendar.select_day(7);
    EXPECT_EQ(entry.get_text(), "07:03:2024");
    entry.calendar.select_day(31);
    EXPECT_EQ(entry.get_text(), "31:03:2024");
}

TEST(DateEntry, TheCalendarDoesNotFollowTheText) {
    DateEntry entry;
    entry.calendar.select_month(2, 2024);
    entry.calendar.select_day(7);
    for (const char* const text : {"01:01:2020", "nonsense", ""}) {
        entry.set_text(text);
        EXPECT_EQ(entry.get_text(), text);
        unsigned year = 0;
        unsigned month = 0;
        unsigned day = 0;
        entry.calendar.get_date(year, month, day);
        EXPECT_EQ((std::vector<unsigned>{year, month, day}), (std::vector<unsigned>{2024, 2, 7}));
    }
}

TEST(DateEntry, CanBePaintedWithoutAScreenWhereverItStands) {
    Gtk::Grid grid;
    Gtk::Label label("date");
    DateEntry entry;
    grid.attach(label, 0, 0);
    grid.attach(entry, 1, 1);
    for (int i = 0; i < 2; ++i) {
        {
            test::OffscreenHost host(grid, 300, 100);
            entry._onCalendarClick(Gtk::ENTRY_ICON_SECONDARY, nullptr);
            EXPECT_TRUE(entry.popover.get_visible());
            entry._updateDateEntry(2024, 2, 7);
            EXPECT_TRUE(host.picture());
            entry._onCalendarClick(Gtk::ENTRY_ICON_SECONDARY, nullptr);
            EXPECT_FALSE(entry.popover.get_visible());
        }
        // Elsewhere it has its calendar again.
        EXPECT_EQ(entry.popover.get_relative_to(), &entry);
    }
}

TEST(DateEntry, AThousandLivesLeaveNothingBehind) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        DateEntry entry;
        finalised.watch(entry);
        finalised.watch(entry.box);
        finalised.watch(entry.popover);
        finalised.watch(entry.calendar);
        if (i % 2)
            entry._updateDateEntry(2024, 2, 7);
    }
    EXPECT_TRUE(finalised.all());
}

TEST_F(DateEntryOnScreen, TheIconOpensTheCalendarAndClosesItAgain) {
    for (const bool isAnimated : {false, true}) {
        Gtk::Settings::get_default()->property_gtk_enable_animations() = isAnimated;
        for (int i = 0; i < 3; ++i) {
            clickIcon();
            expectOpen(true);
            EXPECT_TRUE(entry.calendar.get_mapped());
            clickIcon();
            expectOpen(false);
        }
    }
    Gtk::Settings::get_default()->property_gtk_enable_animations() = false;
}

TEST_F(DateEntryOnScreen, TheCalendarAppearsBelowTheEntry) {
    clickIcon();
    expectOpen(true);
    int x = 0;
    int y = 0;
    ASSERT_TRUE(entry.calendar.translate_coordinates(entry, 0, 0, x, y));
    EXPECT_GT(y, entry.get_allocated_height());
}

TEST_F(DateEntryOnScreen, EscapeAndAClickElsewhereCloseIt) {
    clickIcon();
    expectOpen(true);
    key(GDK_KEY_Escape);
    expectOpen(false);
    clickIcon();
    expectOpen(true);
    test::click(before);
    expectOpen(false);
}

TEST_F(DateEntryOnScreen, AnotherIconOnlyCloses) {
    entry.set_icon_from_icon_name("edit-find", Gtk::ENTRY_ICON_PRIMARY);
    test::settle();
    clickIcon(Gtk::ENTRY_ICON_PRIMARY);
    expectOpen(false);
    clickIcon();
    expectOpen(true);
    entry._onCalendarClick(Gtk::ENTRY_ICON_PRIMARY, nullptr);
    expectOpen(false);
    entry._onCalendarClick(Gtk::ENTRY_ICON_SECONDARY, nullptr);
    expectOpen(true);
    entry._onCalendarClick(Gtk::ENTRY_ICON_SECONDARY, nullptr);
    expectOpen(false);
}

TEST_F(DateEntryOnScreen, ADayThatIsClickedBecomesTheTextAndTheCalendarStaysOpen) {
    entry.calendar.select_month(2, 2024);
    entry.calendar.select_day(7);
    entry.set_text("");
    clickIcon();
    expectOpen(true);
    // Somewhere in the middle of the days.
    test::click(entry.calendar, entry.calendar.get_allocated_width() / 2,
                entry.calendar.get_allocated_height() * 2 / 3);
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    entry.calendar.get_date(year, month, day);
    ASSERT_NE(day, 7u);
    EXPECT_EQ(entry.get_text(), (day < 10 ? "0" : "") + std::to_string(day) + ":03:2024");
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(entry.get_width_chars(), 11);
}

TEST_F(DateEntryOnScreen, TheCalendarCanBeWalkedByKeys) {
    entry.calendar.select_month(2, 2024);
    entry.calendar.select_day(7);
    clickIcon();
    expectOpen(true);
    entry.calendar.grab_focus();
    key(GDK_KEY_Down);
    key(GDK_KEY_space);
    const std::string first = entry.get_text();
    key(GDK_KEY_Up);
    key(GDK_KEY_space);
    EXPECT_EQ(first.size(), 10u) << first;
    EXPECT_NE(first, "07:03:2024");
    EXPECT_NE(entry.get_text(), first);
    EXPECT_TRUE(isOpen());
}

TEST_F(DateEntryOnScreen, TypedTextIsTakenAsItIsAndReported) {
    focus();
    typeText("any 32:13");
    key(GDK_KEY_Return);
    EXPECT_EQ(entry.get_text(), "any 32:13");
    EXPECT_EQ(told, Texts{"any 32:13"});
}

TEST_F(DateEntryOnScreen, OpeningTheCalendarFinishesTheEdit) {
    focus();
    typeText("text");
    clickIcon();
    expectOpen(true);
    EXPECT_EQ(told, Texts{"text"});
}

TEST_F(DateEntryOnScreen, AChosenDayIsReportedWhenTheCalendarCloses) {
    entry.calendar.select_month(2, 2024);
    entry.calendar.select_day(7);
    entry.set_text("");
    const std::function<void()> waysToClose[] = {[this] { clickIcon(); }, [this] { key(GDK_KEY_Escape); },
                                                 [this] { test::click(before); }};
    unsigned day = 10;
    for (Gtk::Entry* const focused : {static_cast<Gtk::Entry*>(&entry), &before})
        for (const auto& close : waysToClose) {
            focused->grab_focus();
            test::settle();
            clickIcon();
            expectOpen(true);
            entry.calendar.select_day(day);
            entry.calendar.select_day(day + 1);
            EXPECT_EQ(told, Texts{});
            close();
            expectOpen(false);
            EXPECT_EQ(told, Texts{std::to_string(day + 1) + ":03:2024"});
            key(GDK_KEY_Return);
            before.grab_focus();
            test::settle();
            EXPECT_EQ(told.size(), 1u);
            told.clear();
            ++day;
        }
}

TEST_F(DateEntryOnScreen, AnUnchangedTextIsNotReportedWhenTheCalendarCloses) {
    entry.set_text("same");
    focus();
    clickIcon();
    expectOpen(true);
    clickIcon();
    expectOpen(false);
    EXPECT_EQ(told, Texts{});
}

TEST_F(DateEntryOnScreen, AListenerMayDeleteItWhenTheCalendarCloses) {
    const std::function<void()> waysToClose[] = {[this] { clickIcon(); }, [this] { key(GDK_KEY_Escape); },
                                                 [this] { test::click(before); }};
    for (const auto& close : waysToClose) {
        owned = std::make_unique<DateEntry>();
        box.pack_start(*owned, Gtk::PACK_SHRINK);
        test::settle();
        owned->signalValueChanged().connect([this](const std::string& text) {
            told.push_back(text);
            owned.reset();
        });
        owned->grab_focus();
        test::settle();
        clickIcon();
        expectOpen(true);
        owned->calendar.select_month(2, 2024);
        owned->calendar.select_day(7);
        close();
        EXPECT_EQ(owned, nullptr);
        EXPECT_EQ(told, Texts{"07:03:2024"});
        told.clear();
        // The pointer and the keys are free again.
        test::click(behind);
        typeText("a");
        EXPECT_EQ(behind.get_text(), "a");
        behind.set_text("");
    }
}

TEST_F(DateEntryOnScreen, MayDieWithItsCalendarOpen) {
    test::Finalised finalised;
    finalised.watch(entry);
    finalised.watch(entry.calendar);
    clickIcon();
    expectOpen(true);
    entry.calendar.select_month(2, 2024);
    entry.calendar.select_day(7);
    owned.reset();
    test::settle();
    EXPECT_TRUE(finalised.all());
    EXPECT_EQ(told, Texts{});
    // The pointer and the keys are free again.
    test::click(behind);
    typeText("a");
    EXPECT_EQ(behind.get_text(), "a");
}
