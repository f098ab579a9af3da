#include <ZelCommonView/entries/StringEntry.h>

#include "entries/EntryHands.h"
#include "support/Finalised.h"

namespace {

using Texts = std::vector<std::string>;
using Zel::StringEntry;

struct StringEntryOnScreen : test::EntryOnScreen<StringEntry> {
    void listen() {
        entry.signalValueChanged().connect([this](const std::string& text) { told.push_back(text); });
    }

    /// Lets the entry go when it reports, as an application may that rebuilds its form.
    void deleteWhenTold() {
        entry.signalValueChanged().connect([this](const std::string& text) {
            told.push_back(text);
            owned.reset();
        });
        entry.signalValueChanged().connect([this](const std::string& text) { told.push_back("2" + text); });
    }

    Texts told;
};

struct Menu {
    Menu() {
        menu.append(item);
        menu.show_all();
    }

    Gtk::Menu menu;
    Gtk::MenuItem item{"own"};
};

} // namespace

TEST(StringEntry, IsAGtkEntryWithItsFieldsInOrder) {
    StringEntry entry;
    static_assert(std::is_base_of_v<Gtk::Entry, StringEntry>);
    const void* const fields[] = {&entry.focusInIdle, &entry.focusOutIdle, &entry.lastReportedText,
                                  &entry.autosize,    &entry.valueChanged, &entry.customMenu};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
    EXPECT_TRUE(entry.focusInIdle.empty());
    EXPECT_TRUE(entry.focusOutIdle.empty());
    EXPECT_EQ(entry.lastReportedText, "");
    EXPECT_TRUE(entry.getAutosize());
    EXPECT_TRUE(entry.signalValueChanged().empty());
    EXPECT_EQ(&entry.signalValueChanged(), &entry.valueChanged);
    EXPECT_EQ(entry.getCustomMenu(), nullptr);
    EXPECT_TRUE(entry.get_events() & Gdk::BUTTON_PRESS_MASK);
}

TEST(StringEntry, IsOneCharacterWiderThanItsText) {
    const std::pair<const char*, int> cases[] = {{"abc", 4},     {"", 2},    {"a", 2}, {"абвгд", 6},
                                                 {"a\u0301", 3}, {"№ 1", 4}, {"", 2}};
    StringEntry entry;
    for (const auto& [text, width] : cases) {
        entry.set_text(text);
        EXPECT_EQ(entry.get_width_chars(), width) << text;
    }
}

TEST(StringEntry, HasGtksOwnWidthUntilTheTextChanges) {
    StringEntry entry;
    EXPECT_EQ(entry.get_width_chars(), -1);
    entry.set_text("a");
    entry.set_text("");
    EXPECT_EQ(entry.get_width_chars(), 2);
}

TEST(StringEntry, WithoutAutosizeGtkHasTheWidth) {
    StringEntry entry;
    entry.set_text("abc");
    entry.setAutosize(false);
    EXPECT_FALSE(entry.getAutosize());
    EXPECT_EQ(entry.get_width_chars(), -1);
    entry.set_text("abcdef");
    EXPECT_EQ(entry.get_width_chars(), -1);
    entry.setAutosize(true);
    EXPECT_EQ(entry.get_width_chars(), 7);
    entry.set_text("");
    entry.setAutosize(false);
    entry.setAutosize(true);
    EXPECT_EQ(entry.get_width_chars(), 2);
}

TEST(StringEntry, TheSameAutosizeAgainChangesNothing) {
    StringEntry entry;
    entry.set_text("abc");
    entry.set_width_chars(20);
    entry.setAutosize(true);
    EXPECT_EQ(entry.get_width_chars(), 20);
    entry.setAutosize(false);
    entry.set_width_chars(20);
    entry.setAutosize(false);
    EXPECT_EQ(entry.get_width_chars(), 20);
}

TEST(StringEntry, HasItsWidthBeforeOthersHearOfTheChange) {
    StringEntry entry;
    int width = 0;
    entry.signal_changed().connect([&] { width = entry.get_width_chars(); }, false);
    entry.set_text("abcd");
    EXPECT_EQ(width, 5);
}

TEST(StringEntry, AThousandLivesLeaveNothingBehind) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        StringEntry entry;
        finalised.watch(entry);
        entry.set_text("a");
    }
    EXPECT_TRUE(finalised.all());
}

TEST(StringEntry, WhatWaitsForItsTurnEndsWithIt) {
    Gtk::OffscreenWindow window;
    auto entry = std::make_unique<StringEntry>();
    window.add(*entry);
    window.show_all();
    test::settle();
    test::sendFocus(*entry, true);
    test::sendFocus(*entry, false);
    const sigc::connection in = entry->focusInIdle;
    const sigc::connection out = entry->focusOutIdle;
    EXPECT_TRUE(in.connected());
    EXPECT_TRUE(out.connected());
    entry.reset();
    EXPECT_FALSE(in.connected());
    EXPECT_FALSE(out.connected());
    test::settle();
}

TEST_F(StringEntryOnScreen, TabReturnAndTheKeypadsEnterReportOnce) {
    listen();
    for (const unsigned int value : {GDK_KEY_Tab, GDK_KEY_Return, GDK_KEY_KP_Enter}) {
        entry.set_text("");
        focus();
        told.clear();
        typeText("ab");
        EXPECT_EQ(told, Texts{}) << value;
        key(value);
        EXPECT_EQ(told, Texts{"ab"}) << value;
        EXPECT_EQ(behind.has_focus(), value == GDK_KEY_Tab);
        before.grab_focus();
        test::settle();
        EXPECT_EQ(told, Texts{"ab"}) << value;
    }
}

TEST_F(StringEntryOnScreen, OtherKeysReportNothing) {
    listen();
    focus();
    typeText("ab");
    for (const unsigned int value :
         {GDK_KEY_Escape, GDK_KEY_space, GDK_KEY_BackSpace, GDK_KEY_Left, GDK_KEY_Home, GDK_KEY_F2})
        key(value);
    EXPECT_EQ(told, Texts{});
    EXPECT_EQ(entry.get_text(), "ab");
}

TEST_F(StringEntryOnScreen, ReportsBeforeGtkTakesReturn) {
    listen();
    Texts atActivation;
    entry.signal_activate().connect([&] { atActivation = told; }, false);
    focus();
    typeText("a");
    key(GDK_KEY_Return);
    EXPECT_EQ(atActivation, Texts{"a"});
}

TEST_F(StringEntryOnScreen, AnUnchangedTextIsNotReported) {
    listen();
    entry.set_text("ab");
    focus();
    key(GDK_KEY_Return);
    key(GDK_KEY_KP_Enter);
    key(GDK_KEY_Tab);
    EXPECT_EQ(told, Texts{});

    focus();
    typeText("xy");
    key(GDK_KEY_Return);
    key(GDK_KEY_Return);
    typeText("z");
    key(GDK_KEY_BackSpace);
    key(GDK_KEY_Return);
    EXPECT_EQ(told, Texts{"xy"});
}

TEST_F(StringEntryOnScreen, ATextSetWithoutTheFocusIsNoEdit) {
    listen();
    focus();
    before.grab_focus();
    test::settle();
    entry.set_text("set");
    focus();
    EXPECT_EQ(entry.lastReportedText, "set");
    key(GDK_KEY_Return);
    EXPECT_EQ(told, Texts{});
}

TEST_F(StringEntryOnScreen, WhatNobodyHeardIsReportedLater) {
    focus();
    typeText("ab");
    key(GDK_KEY_Return);
    EXPECT_EQ(entry.lastReportedText, "");
    listen();
    key(GDK_KEY_Return);
    EXPECT_EQ(told, Texts{"ab"});
    EXPECT_EQ(entry.lastReportedText, "ab");
}

TEST_F(StringEntryOnScreen, ReportsWhenTheFocusGoesByPointerKeyOrWindow) {
    listen();
    focus();
    typeText("a");
    test::click(behind);
    EXPECT_EQ(told, Texts{"a"});

    focus();
    typeText("b");
    keyWith(GDK_KEY_Shift_L, GDK_KEY_Tab);
    EXPECT_EQ(told, (Texts{"a", "b"}));
    EXPECT_TRUE(before.has_focus());

    focus();
    typeText("c");
    Gtk::Window otherWindow;
    test::present(otherWindow);
    EXPECT_TRUE(test::waitFor([this] { return told == Texts({"a", "b", "c"}); }));
}

TEST_F(StringEntryOnScreen, ReportsBeforeTheSelectionIsTakenBack) {
    bool isUnselecting = true;
    focus();
    typeText("a");
    entry.signalValueChanged().connect(
        [&](const std::string&) { isUnselecting = entry.focusOutIdle.connected(); });
    before.grab_focus();
    EXPECT_FALSE(isUnselecting);
    EXPECT_TRUE(entry.focusOutIdle.connected());
}

TEST_F(StringEntryOnScreen, SelectsEverythingWhenTheFocusComes) {
    entry.set_text("некий text");
    const std::pair<int, int> all(0, 10);
    // By Tab.
    key(GDK_KEY_Tab);
    EXPECT_TRUE(entry.has_focus());
    EXPECT_EQ(selection(), all);
    // By a click in the middle of the text, which places the cursor first.
    test::click(before);
    test::click(entry, xOf(4), entry.get_allocated_height() / 2);
    EXPECT_TRUE(entry.has_focus());
    EXPECT_EQ(selection(), all);
    // A second click places the cursor.
    test::wait(500);
    test::click(entry, xOf(4), entry.get_allocated_height() / 2);
    EXPECT_EQ(selection(), (std::pair<int, int>(4, 4)));
}

TEST_F(StringEntryOnScreen, SelectsAtIdleTimeOnly) {
    entry.set_text("abc");
    entry.grab_focus_without_selecting();
    EXPECT_TRUE(entry.focusInIdle.connected());
    int from = 0;
    int to = 0;
    EXPECT_FALSE(entry.get_selection_bounds(from, to));
    // What has a higher priority than 200 comes before it, what has a lower one after it.
    std::vector<bool> selected;
    for (const int priority : {199, 201})
        Glib::signal_idle().connect_once([&] { selected.push_back(entry.get_selection_bounds(from, to)); },
                                         priority);
    test::settle();
    EXPECT_EQ(selected, (std::vector<bool>{false, true}));
    EXPECT_FALSE(entry.focusInIdle.connected());
}

TEST_F(StringEntryOnScreen, LosesItsSelectionWhenTheFocusGoes) {
    entry.set_text("abc");
    focus();
    EXPECT_EQ(selection(), (std::pair<int, int>(0, 3)));
    // An empty entry takes the focus and no selection, which would end this one.
    behind.grab_focus();
    EXPECT_EQ(selection(), (std::pair<int, int>(0, 3)));
    EXPECT_TRUE(entry.focusOutIdle.connected());
    std::vector<int> ends;
    for (const int priority : {199, 201})
        Glib::signal_idle().connect_once([&] { ends.push_back(selection().second); }, priority);
    test::settle();
    EXPECT_EQ(ends, (std::vector<int>{3, 0}));
    EXPECT_EQ(selection(), (std::pair<int, int>(0, 0)));
    EXPECT_FALSE(entry.focusOutIdle.connected());
}

TEST_F(StringEntryOnScreen, GtkLearnsOfTheFocusToo) {
    focus();
    // Gtk's own handler lets the cursor be seen and takes the keys.
    typeText("a");
    EXPECT_EQ(entry.get_text(), "a");
    before.grab_focus();
    test::settle();
    typeText("b");
    EXPECT_EQ(entry.get_text(), "a");
}

TEST_F(StringEntryOnScreen, TypingOverTheSelectionReplacesIt) {
    listen();
    entry.set_text("old");
    focus();
    typeText("n");
    EXPECT_EQ(entry.get_text(), "n");
    key(GDK_KEY_Return);
    EXPECT_EQ(told, Texts{"n"});
}

TEST_F(StringEntryOnScreen, APastedTextIsReportedWhenTheEditIsFinished) {
    listen();
    focus();
    pasteByKeys("some text");
    EXPECT_EQ(entry.get_text(), "some text");
    EXPECT_EQ(entry.get_width_chars(), 10);
    test::click(before);
    EXPECT_EQ(told, Texts{"some text"});
    pasteByPointer("more ", xOf(5));
    EXPECT_EQ(entry.get_text(), "some more text");
    EXPECT_EQ(told.size(), 1u);
    key(GDK_KEY_Return);
    EXPECT_EQ(told, (Texts{"some text", "some more text"}));
}

TEST_F(StringEntryOnScreen, AListenerMayAnswerWithAText) {
    listen();
    entry.signalValueChanged().connect([this](const std::string& text) { entry.set_text("<" + text + ">"); });
    focus();
    typeText("a");
    key(GDK_KEY_Return);
    EXPECT_EQ(entry.get_text(), "<a>");
    EXPECT_EQ(entry.lastReportedText, "a");
    // What was answered differs from what was reported.
    key(GDK_KEY_Return);
    EXPECT_EQ(told, (Texts{"a", "<a>"}));
}

TEST_F(StringEntryOnScreen, TheRightButtonShowsTheCustomMenuInPlaceOfGtksOwn) {
    Menu custom;
    int populated = 0;
    entry.signal_populate_popup().connect([&](Gtk::Menu* menu) {
        ++populated;
        Glib::signal_idle().connect_once([menu] { menu->popdown(); });
    });
    entry.setCustomMenu(&custom.menu);
    EXPECT_EQ(entry.getCustomMenu(), &custom.menu);
    test::click(entry, 3);
    EXPECT_TRUE(test::waitFor([&] { return custom.menu.get_mapped(); }));
    EXPECT_EQ(populated, 0);
    key(GDK_KEY_Escape);
    EXPECT_TRUE(test::waitFor([&] { return !custom.menu.get_mapped(); }));

    for (const unsigned int button : {1u, 2u}) {
        test::click(entry, button);
        EXPECT_FALSE(custom.menu.get_mapped()) << button;
    }
    EXPECT_TRUE(entry.has_focus());

    entry.setCustomMenu(nullptr);
    EXPECT_EQ(entry.getCustomMenu(), nullptr);
    test::click(entry, 3);
    EXPECT_TRUE(test::waitFor([&] { return populated == 1; }));
    EXPECT_FALSE(custom.menu.get_mapped());
}

TEST_F(StringEntryOnScreen, ACustomMenuThatDiedIsForgotten) {
    auto custom = std::make_unique<Menu>();
    entry.setCustomMenu(&custom->menu);
    custom.reset();
    EXPECT_EQ(entry.getCustomMenu(), nullptr);
    int populated = 0;
    entry.signal_populate_popup().connect([&](Gtk::Menu* menu) {
        ++populated;
        Glib::signal_idle().connect_once([menu] { menu->popdown(); });
    });
    test::click(entry, 3);
    EXPECT_TRUE(test::waitFor([&] { return populated == 1; }));
}

TEST_F(StringEntryOnScreen, TheCustomMenuMayOutliveTheEntry) {
    Menu custom;
    entry.setCustomMenu(&custom.menu);
    test::click(entry, 3);
    EXPECT_TRUE(test::waitFor([&] { return custom.menu.get_mapped(); }));
    owned.reset();
    test::settle();
    key(GDK_KEY_Escape);
    EXPECT_TRUE(test::waitFor([&] { return !custom.menu.get_mapped(); }));
}

TEST_F(StringEntryOnScreen, AListenerMayDeleteItAtReturn) {
    deleteWhenTold();
    focus();
    typeText("a");
    key(GDK_KEY_Return);
    EXPECT_EQ(owned, nullptr);
    EXPECT_EQ(told, (Texts{"a", "2a"}));
}

TEST_F(StringEntryOnScreen, AListenerMayDeleteItAtTab) {
    deleteWhenTold();
    focus();
    typeText("a");
    key(GDK_KEY_Tab);
    EXPECT_EQ(owned, nullptr);
    EXPECT_EQ(told, (Texts{"a", "2a"}));
}

TEST_F(StringEntryOnScreen, AListenerMayDeleteItWhenTheFocusGoes) {
    deleteWhenTold();
    focus();
    typeText("a");
    test::click(behind);
    EXPECT_EQ(owned, nullptr);
    EXPECT_EQ(told, (Texts{"a", "2a"}));
    EXPECT_TRUE(behind.has_focus());
}
