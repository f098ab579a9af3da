// The entry for numbers as a person works it: by keys, pointer, wheel and clipboard.

#include <ZelCommonView/entries/NumericEntry.h>

#include "entries/EntryWindow.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>

namespace {

using namespace Zel;

const NumericRange usual(-1e16, 1e16, 1e-9);
const NumericRange hundredths(0, 100, 0.01);
const NumericRange whole(0, 100, 1);
const NumericRange tenths(0, 9, 0.1);

std::string fixed(double value, int decimals) {
    std::ostringstream stream;
    stream << std::fixed << std::setprecision(decimals) << value;
    return stream.str();
}

/// One window for all tests of a suite, since each takes its time to come up.
class NumericEntryHands : public testing::Test {
protected:
    static void SetUpTestSuite() { form = std::make_unique<Form>(); }

    static void TearDownTestSuite() { form.reset(); }

    void SetUp() override {
        form->leave();
        NumericEntry& entry = form->entry;
        entry.setAutoformat(false);
        entry.setValueRange(usual);
        entry.setScrollStep(0.1);
        entry.setUpdateOnScroll(false);
        entry.setCustomMenu(nullptr);
        entry.set_text("");
        entry.lastReportedValue = 0;
        form->wheelTurnsThatGotThrough = 0;
        listener = entry.signalValueChanged().connect([this](double value) { reported.push_back(value); });
    }

    void TearDown() override { listener.disconnect(); }

    using Form = test::EntryWindow<NumericEntry>;
    static inline std::unique_ptr<Form> form;
    std::vector<double> reported;
    sigc::connection listener;
};

struct Typing {
    NumericRange range;
    const char* text;
    guint key;
    std::vector<const char*> results; ///< for each place of the cursor; null if the key is refused
};

const Typing typings[] = {
    {usual, "", '5', {"5"}},
    {usual, "", '-', {"-"}},
    {usual, "", 'x', {nullptr}},
    {usual, "12", '5', {"512", "152", "125"}},
    {usual, "12", '-', {"-12", nullptr, nullptr}},
    {usual, "12", '+', {"+12", nullptr, nullptr}},
    {usual, "12", 'x', {nullptr, nullptr, nullptr}},
    {usual, "12", ' ', {nullptr, nullptr, nullptr}},
    {usual, "12", '.', {".12", "1.2", "12."}},
    {usual, "12", ',', {".12", "1.2", "12."}},
    {usual, "12", '<', {".12", "1.2", "12."}},
    {usual, "12", '>', {".12", "1.2", "12."}},
    {usual, "12", '\'', {".12", "1.2", "12."}},
    {usual, "12", '/', {".12", "1.2", "12."}},
    {usual, "12", GDK_KEY_Cyrillic_be, {".12", "1.2", "12."}},
    {usual, "12", GDK_KEY_Cyrillic_yu, {".12", "1.2", "12."}},
    {usual, "12", GDK_KEY_Cyrillic_e, {".12", "1.2", "12."}},
    {usual, "12", GDK_KEY_Cyrillic_zhe, {nullptr, nullptr, nullptr}},
    {usual, "1.5", '.', {nullptr, nullptr, nullptr, nullptr}},
    {usual, "1.5", ',', {nullptr, nullptr, nullptr, nullptr}},
    {usual, "1e5", '.', {".1e5", "1.e5", nullptr, nullptr}},
    {usual, "15", 'e', {nullptr, "1e5", "15e"}},
    {usual, "in", 'f', {nullptr, nullptr, "inf"}},
    {usual, "-5", '-', {nullptr, nullptr, nullptr}},
    {hundredths, "12", '-', {nullptr, nullptr, nullptr}},
    {hundredths, "12.34", '5', {"512.34", "152.34", "125.34", nullptr, nullptr, nullptr}},
    {hundredths, "999", '9', {nullptr, nullptr, nullptr, nullptr}},
    {hundredths, "999", '0', {"0999", nullptr, nullptr, nullptr}},
    {hundredths, "1.2", '3', {"31.2", "13.2", "1.32", "1.23"}},
    {whole, "12", '.', {nullptr, nullptr, nullptr}},
    {whole, "12", ',', {nullptr, nullptr, nullptr}},
    {whole, "12", '<', {nullptr, nullptr, nullptr}},
    {whole, "12", '>', {nullptr, nullptr, nullptr}},
    {whole, "12", '\'', {nullptr, nullptr, nullptr}},
    {whole, "12", '/', {nullptr, nullptr, nullptr}},
    {whole, "12", GDK_KEY_Cyrillic_be, {nullptr, nullptr, nullptr}},
    {whole, "12", GDK_KEY_Cyrillic_yu, {nullptr, nullptr, nullptr}},
    {whole, "12", GDK_KEY_Cyrillic_e, {nullptr, nullptr, nullptr}},
    {whole, "99", '9', {"999", "999", "999"}},
    {whole, "999", '1', {nullptr, nullptr, nullptr, nullptr}},
    {{-1, 1, 0.1}, "", '-', {"-"}},
};

} // namespace

TEST_F(NumericEntryHands, AKeyIsTakenOrRefusedAtEveryPlaceOfTheCursor) {
    for (const Typing& row : typings)
        for (int position = 0; position < static_cast<int>(row.results.size()); ++position) {
            form->entry.setValueRange(row.range);
            form->prepare(row.text, position);
            form->strike(row.key);
            const char* const result = row.results[position];
            EXPECT_EQ(form->entry.get_text(), result ? result : row.text)
                << "key " << row.key << " at " << position << " of " << row.text;
            EXPECT_EQ(form->entry.lastAcceptedText, result ? result : row.text);
            EXPECT_EQ(form->entry.get_position(), result ? position + 1 : position)
                << "key " << row.key << " at " << position << " of " << row.text;
        }
    EXPECT_TRUE(reported.empty()) << "typing alone reports nothing";
}

TEST_F(NumericEntryHands, ADeletionIsTakenOrRefusedAndTheCursorFollowsIt) {
    struct Row {
        NumericRange range;
        const char* text;
        guint key;
        int position;
        const char* result;
        int cursor;
    };

    const Row rows[] = {
        {usual, "12.5", GDK_KEY_BackSpace, 3, "125", 2},
        {usual, "12.5", GDK_KEY_Delete, 2, "125", 2},
        {usual, "1", GDK_KEY_BackSpace, 1, "", 0},
        {usual, "-1", GDK_KEY_Delete, 1, "-", 1},
        {usual, "1e5", GDK_KEY_BackSpace, 1, "1e5", 0}, // an exponent needs something in front of it
        {usual, "1e5", GDK_KEY_Delete, 0, "1e5", 0},
        {tenths, "1.5", GDK_KEY_BackSpace, 2, "1.5", 1}, // 15 would be too many digits
        {tenths, "1.5", GDK_KEY_Delete, 1, "1.5", 1},
    };
    for (const Row& row : rows) {
        form->entry.setValueRange(row.range);
        form->prepare(row.text, row.position);
        form->strike(row.key);
        EXPECT_EQ(form->entry.get_text(), row.result);
        EXPECT_EQ(form->entry.get_position(), row.cursor) << row.text << " key " << row.key;
    }
}

TEST_F(NumericEntryHands, TypingOverASelectionReplacesIt) {
    form->prepare("12.5", 0);
    form->entry.select_region(0, 2);
    form->strike('3');
    EXPECT_EQ(form->entry.get_text(), "3.5");
    EXPECT_EQ(form->entry.get_position(), 1);
    form->entry.select_region(0, -1);
    form->strike(',');
    EXPECT_EQ(form->entry.get_text(), ".");
    EXPECT_EQ(form->entry.get_position(), 1);
}

// It is two edits: the deletion stands, and only the character is refused.
TEST_F(NumericEntryHands, ARefusedKeyOverASelectionLeavesTheDeletion) {
    form->prepare("12.5", 0);
    form->entry.select_region(1, 3);
    form->strike('x');
    EXPECT_EQ(form->entry.get_text(), "15");
    EXPECT_EQ(form->entry.get_position(), 1);
    form->entry.select_region(0, -1);
    form->strike('x');
    EXPECT_EQ(form->entry.get_text(), "");
}

TEST_F(NumericEntryHands, ARefusedDeletionOfASelectionPutsTheTypedKeyInFront) {
    form->entry.setValueRange(tenths);
    form->prepare("1.5", 0);
    form->entry.select_region(1, 2);
    form->strike('0');
    EXPECT_EQ(form->entry.get_text(), "01.5");
    EXPECT_EQ(form->entry.get_position(), 1);
    form->prepare("1.5", 0);
    form->entry.select_region(1, 2);
    form->strike('7');
    EXPECT_EQ(form->entry.get_text(), "1.5") << "neither 15 nor 71.5 has room";
}

TEST_F(NumericEntryHands, PastesFromTheClipboard) {
    struct Row {
        NumericRange range;
        const char* text;
        int position;
        const char* pasted;
        const char* result;
        int cursor;
    };

    const Row rows[] = {
        {usual, "", 0, "12.5", "12.5", 4},
        {usual, "", 0, "12,5", "12.5", 4}, // behind the pasted text there is no place to shift the cursor to
        {usual, "99", 1, "1,5", "91.59", 5}, // but here it gets one too far
        {usual, "99", 1, "15", "9159", 3},
        {usual, "99", 1, "x", "99", 2}, // the cursor stands behind what was pasted when it is refused
        {usual, "99", 0, "x", "99", 1},
        {usual, "99", 0, "1.2.3", "99", 2},
        {usual, "", 0, "-Infinity", "-Infinity", 9},
        {usual, "", 0, "1 000", "", 0},
        {usual, "", 0, "\xd0\xb1", ".", 1},
        {whole, "", 0, "12.5", "", 0},
        {whole, "", 0, "1000", "", 0},
        {{0, 100, 10}, "", 0, "50", "50", 2},
    };
    for (const Row& row : rows) {
        form->entry.setValueRange(row.range);
        form->prepare(row.text, row.position);
        Gtk::Clipboard::get()->set_text(row.pasted);
        form->strike(GDK_KEY_Control_L, GDK_KEY_v);
        EXPECT_EQ(form->entry.get_text(), row.result) << row.pasted << " into " << row.text;
        EXPECT_EQ(form->entry.get_position(), row.cursor) << row.pasted << " into " << row.text;
    }
}

TEST_F(NumericEntryHands, PastesByTheMiddleButton) {
    const std::pair<const char*, const char*> rows[] = {{"12,5", "12.5"},
                                                        {"7", "7"},
                                                        {"x", ""},
                                                        {"1.2.3", ""},
                                                        {"\xd1\x8e"
                                                         "5",
                                                         ".5"}};
    int x = 0;
    for (const auto& [pasted, result] : rows) {
        form->prepare("", 0);
        Gtk::Clipboard::get(GDK_SELECTION_PRIMARY)->set_text(pasted);
        // At one place the second click would make a double one.
        test::click(form->entry, x += 25, 10, 2);
        EXPECT_EQ(form->entry.get_text(), result);
        EXPECT_EQ(form->entry.lastAcceptedText, result);
    }
}

// The button brings the focus along, and with it the plain form, before anything is pasted.
TEST_F(NumericEntryHands, TheMiddleButtonPastesIntoThePlainFormOfAFormattedValue) {
    form->entry.setAutoformat(true);
    form->entry.setValueRange({0, 1e6, 0.01});
    form->entry.setValue(1234.5);
    ASSERT_EQ(form->entry.get_text(), fixed(1234.5, 2));
    Gtk::Clipboard::get(GDK_SELECTION_PRIMARY)->set_text("7");
    test::click(form->entry, form->entry.get_allocated_width() - 12, 10, 2);
    EXPECT_EQ(form->entry.get_text(), "1234.57");
    EXPECT_EQ(form->entry.getValue(), 1234.57);
}

TEST_F(NumericEntryHands, TheFocusSelectsTheTextAndTakesTheValueForReported) {
    form->entry.setValue(12.5);
    form->entry.grab_focus();
    test::settle();
    EXPECT_EQ(form->selection(), std::make_pair(0, 4));
    EXPECT_EQ(form->entry.lastReportedValue, 12.5);
    form->leave();
    EXPECT_EQ(form->selection(), std::make_pair(0, 0));
    EXPECT_TRUE(reported.empty());
}

TEST_F(NumericEntryHands, AClickSelectsTheTextToo) {
    form->entry.setValue(12.5);
    test::click(form->entry);
    EXPECT_EQ(form->selection(), std::make_pair(0, 4));
    form->strike('7');
    EXPECT_EQ(form->entry.get_text(), "7");
    test::click(form->after);
    EXPECT_EQ(reported, std::vector<double>{7});
}

TEST_F(NumericEntryHands, TabReportsOnceAlthoughTheFocusGoesToo) {
    form->focus();
    form->typeText("12,5");
    form->strike(GDK_KEY_Tab);
    EXPECT_TRUE(form->after.has_focus());
    EXPECT_EQ(reported, std::vector<double>{12.5});
    form->focus();
    form->strike(GDK_KEY_Tab);
    EXPECT_EQ(reported.size(), 1U) << "nothing has changed";
}

TEST_F(NumericEntryHands, ShiftTabReportsByTheFocus) {
    form->focus();
    form->typeText("3");
    form->strike(GDK_KEY_Shift_L, GDK_KEY_Tab);
    EXPECT_TRUE(form->before.has_focus());
    EXPECT_EQ(reported, std::vector<double>{3});
}

TEST_F(NumericEntryHands, BothEnterKeysReportAndActivate) {
    int activated = 0;
    const sigc::connection connection = form->entry.signal_activate().connect([&] { ++activated; });
    form->focus();
    form->typeText("1");
    form->strike(GDK_KEY_Return);
    EXPECT_EQ(reported, std::vector<double>{1});
    form->strike(GDK_KEY_Return);
    EXPECT_EQ(reported.size(), 1U);
    form->typeText("2");
    form->strike(GDK_KEY_KP_Enter);
    EXPECT_EQ(reported, (std::vector<double>{1, 12}));
    EXPECT_TRUE(form->entry.has_focus());
    EXPECT_EQ(activated, 3) << "the keys go on to the entry's own handler";
    form->leave();
    EXPECT_EQ(reported.size(), 2U) << "what was reported isn't reported again";
    sigc::connection(connection).disconnect();
}

TEST_F(NumericEntryHands, ArrowAndPageKeysAreThoseOfEveryEntry) {
    form->prepare("12", 1);
    form->entry.lastReportedValue = 12;
    form->strike(GDK_KEY_Up);
    form->focus();
    form->strike(GDK_KEY_Page_Up);
    form->strike(GDK_KEY_Page_Down);
    EXPECT_EQ(form->entry.get_text(), "12");
    EXPECT_TRUE(reported.empty());
}

TEST_F(NumericEntryHands, WhatIsNoNumberYetBecomesZeroWithoutTheFocus) {
    for (const char* text : {"", "-", ".", "1e", "infi"}) {
        reported.clear();
        form->leave();
        form->entry.setValue(5);
        form->prepare("5", 1);
        form->entry.setValue(5);
        form->entry.lastReportedValue = 5;
        form->entry.set_text(text);
        form->leave();
        EXPECT_EQ(form->entry.get_text(), "0") << text;
        EXPECT_EQ(reported, std::vector<double>{0}) << text;
    }
    form->entry.setValueRange(hundredths);
    form->entry.setAutoformat(true);
    form->prepare("", 0);
    form->leave();
    EXPECT_EQ(form->entry.get_text(), fixed(0, 2)) << "the focus has gone by then, so the zero is formatted";
}

TEST_F(NumericEntryHands, AFormattedTextIsPlainOnlyWhileItIsEdited) {
    form->entry.setValueRange({0, 1e6, 0.01});
    form->entry.setAutoformat(true);
    form->entry.setValue(1234.5);
    EXPECT_EQ(form->entry.get_text(), fixed(1234.5, 2));
    form->focus();
    EXPECT_EQ(form->entry.get_text(), "1234.5");
    form->entry.setValue(7);
    EXPECT_EQ(form->entry.get_text(), "7") << "set while it is edited";
    form->leave();
    EXPECT_EQ(form->entry.get_text(), "7") << "the loss of the focus formats nothing";
    form->entry.setValue(7);
    EXPECT_EQ(form->entry.get_text(), fixed(7, 2));
}

TEST_F(NumericEntryHands, TheOwnersAnswerToTheLostFocusIsFormatted) {
    form->entry.setValueRange(hundredths);
    form->entry.setAutoformat(true);
    listener.disconnect();
    listener = form->entry.signalValueChanged().connect([](double value) { form->entry.setValue(value); });
    form->entry.setValue(0);
    form->focus();
    form->typeText("5");
    form->leave();
    EXPECT_EQ(form->entry.get_text(), fixed(5, 2));
    // Tab comes while the entry has the focus, so that its report is answered with a plain text.
    form->focus();
    form->typeText("6");
    form->strike(GDK_KEY_Tab);
    EXPECT_EQ(form->entry.get_text(), "6");
}

TEST_F(NumericEntryHands, AnotherWindowTakesTheFocusEventsButNotThePlainForm) {
    form->entry.setValueRange(hundredths);
    form->entry.setAutoformat(true);
    form->entry.setValue(1);
    form->focus();
    form->typeText("5");
    {
        Gtk::Window other;
        other.set_default_size(100, 100);
        test::present(other);
        ASSERT_TRUE(test::waitFor([] { return !form->entry.has_focus(); }));
        EXPECT_EQ(reported, std::vector<double>{5});
        form->entry.setValue(6);
        EXPECT_EQ(form->entry.get_text(), "6") << "it is still the focus of its window";
    }
    test::waitFor([] { return form->entry.has_focus(); });
    test::settle();
}

TEST_F(NumericEntryHands, WithoutAListenerAnEndOfInputDoesNotCount) {
    listener.disconnect();
    form->focus();
    form->typeText("5");
    form->strike(GDK_KEY_Tab);
    EXPECT_EQ(form->entry.lastReportedValue, 0.0);
    listener = form->entry.signalValueChanged().connect([this](double value) { reported.push_back(value); });
}

TEST_F(NumericEntryHands, TheWheelCountsOnlyWithTheFocusAndNeverGetsThrough) {
    form->entry.setScrollStep(0.5);
    form->entry.setValue(1);
    form->before.grab_focus();
    form->turnWheel(4);
    EXPECT_EQ(form->entry.get_text(), "1");
    form->focus();
    form->turnWheel(4);
    EXPECT_EQ(form->entry.get_text(), "1.5");
    form->turnWheel(5);
    form->turnWheel(5);
    EXPECT_EQ(form->entry.get_text(), "0.5");
    EXPECT_TRUE(reported.empty());
    form->entry.setUpdateOnScroll(true);
    form->turnWheel(4);
    EXPECT_EQ(form->entry.get_text(), "1");
    EXPECT_TRUE(reported.empty()) << "1 was the value when the focus came";
    form->turnWheel(4);
    EXPECT_EQ(reported, std::vector<double>{1.5});
    form->entry.setScrollStep(0);
    form->turnWheel(4);
    EXPECT_EQ(form->entry.get_text(), "1.5");
    EXPECT_EQ(form->wheelTurnsThatGotThrough, 0);
    test::movePointer(form->after, 20, 10);
    test::settle();
    test::pressButton(4);
    test::releaseButton(4);
    test::settle();
    EXPECT_EQ(form->wheelTurnsThatGotThrough, 1) << "that of another entry does";
}

TEST_F(NumericEntryHands, TheRightButtonOpensTheMenuOfTheOwner) {
    Gtk::Menu menu;
    Gtk::MenuItem item("Reset");
    menu.append(item);
    menu.show_all();
    int usualMenus = 0;
    sigc::connection populated =
        form->entry.signal_populate_popup().connect([&](Gtk::Menu*) { ++usualMenus; });
    form->entry.setCustomMenu(&menu);
    EXPECT_EQ(form->entry.getCustomMenu(), &menu);
    test::click(form->entry, 3);
    EXPECT_TRUE(menu.get_mapped());
    EXPECT_EQ(usualMenus, 0);
    test::pressKey(GDK_KEY_Escape);
    EXPECT_TRUE(test::waitFor([&] { return !menu.get_mapped(); }));

    test::click(form->entry, 1);
    EXPECT_FALSE(menu.get_mapped()) << "the other buttons keep their meaning";
    EXPECT_TRUE(form->entry.has_focus());

    form->entry.setCustomMenu(nullptr);
    test::click(form->entry, 3);
    EXPECT_TRUE(test::waitFor([&] { return usualMenus == 1; }));
    EXPECT_FALSE(menu.get_mapped());
    test::pressKey(GDK_KEY_Escape);
    test::settle();
    populated.disconnect();
}
