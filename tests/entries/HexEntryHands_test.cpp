// The entry for hexadecimal numbers as a person works it: by keys, pointer and clipboard.

#include <ZelCommonView/entries/HexEntry.h>

#include "entries/EntryWindow.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace Zel;

const NumericRange usual(-1e16, 1e16, 1e-9);
const NumericRange everything(-std::numeric_limits<double>::max(), std::numeric_limits<double>::max(), 1);
const NumericRange byte(0, 255, 1);

/// One window for all tests of a suite, since each takes its time to come up.
class HexEntryHands : public testing::Test {
protected:
    static void SetUpTestSuite() { form = std::make_unique<Form>(); }

    static void TearDownTestSuite() { form.reset(); }

    void SetUp() override {
        form->leave();
        HexEntry& entry = form->entry;
        entry.setAutoformat(false);
        entry.setValueRange(usual);
        entry.setCustomMenu(nullptr);
        entry.set_text("");
        entry.lastReportedValue = 0;
        form->wheelTurnsThatGotThrough = 0;
        listener = entry.signalValueChanged().connect([this](int value) { reported.push_back(value); });
    }

    void TearDown() override { listener.disconnect(); }

    using Form = test::EntryWindow<HexEntry>;
    static inline std::unique_ptr<Form> form;
    std::vector<int> reported;
    sigc::connection listener;
};

struct Typing {
    NumericRange range;
    const char* text;
    guint key;
    std::vector<const char*> results; ///< for each place of the cursor; null if the key is refused
    bool isInRange;                   ///< so that the cursor goes on
};

const Typing typings[] = {
    {usual, "", 'a', {"a"}, true},
    {usual, "", 'g', {nullptr}, true},
    {usual, "1A", 'g', {nullptr, nullptr, nullptr}, true},
    {usual, "1A", 'x', {nullptr, nullptr, nullptr}, true},
    {usual, "1A", '-', {nullptr, nullptr, nullptr}, true},
    {usual, "1A", ',', {nullptr, nullptr, nullptr}, true},
    {usual, "1A", '.', {nullptr, nullptr, nullptr}, true},
    {usual, "1A", ' ', {nullptr, nullptr, nullptr}, true},
    {usual, "1A", GDK_KEY_Cyrillic_be, {nullptr, nullptr, nullptr}, true},
    {usual, "1A", GDK_KEY_Cyrillic_a, {nullptr, nullptr, nullptr}, true}, // looks the same, but is no digit
    {usual, "1A", '0', {"01A", "10A", "1A0"}, true},
    {usual, "1A", 'f', {"f1A", "1fA", "1Af"}, true},
    {usual, "1A", 'F', {"F1A", "1FA", "1AF"}, true},
    {usual, "FFFFFFF", '8', {"8FFFFFFF"}, false},     // a number too large to be read
    {usual, "FFFFFFF", '7', {"7FFFFFFF"}, true},      // the largest one
    {everything, "FFFFFFF", '8', {"8FFFFFFF"}, true}, // without limits nobody reads it
    {byte, "10", '0', {"010"}, true},
    {byte, "10", '1', {"110", "110", "101"}, false}, // stands, but the cursor stays
    {{-5, -1, 1}, "", '0', {"0"}, false},
};

} // namespace

TEST_F(HexEntryHands, AKeyIsTakenOrRefusedAtEveryPlaceOfTheCursor) {
    for (const Typing& row : typings)
        for (int position = 0; position < static_cast<int>(row.results.size()); ++position) {
            form->entry.setValueRange(row.range);
            form->prepare(row.text, position);
            form->strike(row.key);
            const char* const result = row.results[position];
            EXPECT_EQ(form->entry.get_text(), result ? result : row.text)
                << "key " << row.key << " at " << position << " of " << row.text;
            EXPECT_EQ(form->entry.lastAcceptedText, result ? result : row.text);
            EXPECT_EQ(form->entry.get_position(), result && row.isInRange ? position + 1 : position)
                << "key " << row.key << " at " << position << " of " << row.text;
        }
    EXPECT_TRUE(reported.empty()) << "typing alone reports nothing";
}

TEST_F(HexEntryHands, TypedBeyondTheRangeTheDigitsStandInReverse) {
    form->entry.setValueRange(byte);
    form->prepare("", 0);
    form->typeText("100");
    EXPECT_EQ(form->entry.get_text(), "100");
    EXPECT_EQ(form->entry.getValue(), 256);
    EXPECT_EQ(form->entry.get_position(), 2);
    form->typeText("7");
    EXPECT_EQ(form->entry.get_text(), "1070") << "the cursor stood in front of the last digit";
    form->strike(GDK_KEY_Tab);
    EXPECT_EQ(reported, std::vector<int>{0x1070}) << "the owner is told, and may put it right";
}

TEST_F(HexEntryHands, ADeletionIsTaken) {
    form->prepare("12f", 2);
    form->strike(GDK_KEY_BackSpace);
    EXPECT_EQ(form->entry.get_text(), "1f");
    EXPECT_EQ(form->entry.get_position(), 1);
    form->strike(GDK_KEY_Delete);
    EXPECT_EQ(form->entry.get_text(), "1");
    form->strike(GDK_KEY_BackSpace);
    EXPECT_EQ(form->entry.get_text(), "");
    EXPECT_EQ(form->entry.lastAcceptedText, "");
}

TEST_F(HexEntryHands, TypingOverASelectionReplacesItAndARefusedKeyOnlyDeletes) {
    form->prepare("12F4", 0);
    form->entry.select_region(0, 2);
    form->strike('a');
    EXPECT_EQ(form->entry.get_text(), "aF4");
    EXPECT_EQ(form->entry.get_position(), 1);
    form->entry.select_region(1, 2);
    form->strike('x');
    EXPECT_EQ(form->entry.get_text(), "a4");
    EXPECT_EQ(form->entry.get_position(), 1);
}

TEST_F(HexEntryHands, PastesFromTheClipboard) {
    struct Row {
        const char* text;
        int position;
        const char* pasted;
        const char* result;
        int cursor;
    };

    const Row rows[] = {
        {"", 0, "1Fa", "1Fa", 3}, {"12", 1, "FF", "1FF2", 3}, {"12", 1, "0x1F", "12", 2},
        {"", 0, " 1F", "", 0},    {"12", 0, "g", "12", 1},    {"", 0, "FFFFFFFF", "FFFFFFFF", 8},
    };
    for (const Row& row : rows) {
        form->prepare(row.text, row.position);
        Gtk::Clipboard::get()->set_text(row.pasted);
        form->strike(GDK_KEY_Control_L, GDK_KEY_v);
        EXPECT_EQ(form->entry.get_text(), row.result) << row.pasted << " into " << row.text;
        EXPECT_EQ(form->entry.get_position(), row.cursor) << row.pasted << " into " << row.text;
    }
}

TEST_F(HexEntryHands, PastesByTheMiddleButton) {
    const std::pair<const char*, const char*> rows[] = {{"1F", "1F"}, {"g", ""}, {"ff", "ff"}, {"0x1", ""}};
    int x = 0;
    for (const auto& [pasted, result] : rows) {
        form->prepare("", 0);
        Gtk::Clipboard::get(GDK_SELECTION_PRIMARY)->set_text(pasted);
        // At one place the second click would make a double one.
        test::click(form->entry, x += 25, 10, 2);
        EXPECT_EQ(form->entry.get_text(), result);
    }
}

TEST_F(HexEntryHands, TheFocusBringsCapitalLettersAndTakesTheValueForReported) {
    form->focus();
    form->typeText("ff");
    form->leave();
    EXPECT_EQ(form->entry.get_text(), "ff");
    EXPECT_EQ(reported, std::vector<int>{255});
    form->focus();
    EXPECT_EQ(form->entry.get_text(), "FF");
    EXPECT_EQ(form->entry.lastReportedValue, 255);
    form->leave();
    EXPECT_EQ(form->selection(), std::make_pair(0, 0));
    EXPECT_EQ(reported.size(), 1U);
}

TEST_F(HexEntryHands, AClickSelectsNothing) {
    form->entry.setValue(255);
    test::click(form->entry);
    EXPECT_TRUE(form->entry.has_focus());
    EXPECT_EQ(form->selection(), std::make_pair(0, 0));
}

TEST_F(HexEntryHands, TheEmptyTextIsReportedAsZero) {
    form->entry.setValue(255);
    form->focus();
    form->entry.select_region(0, -1);
    form->strike(GDK_KEY_BackSpace);
    form->leave();
    EXPECT_EQ(reported, std::vector<int>{0});
    EXPECT_EQ(form->entry.get_text(), "") << "there is nothing to complete";
}

TEST_F(HexEntryHands, TabReportsOnceAlthoughTheFocusGoesToo) {
    form->focus();
    form->typeText("5");
    form->strike(GDK_KEY_Tab);
    EXPECT_TRUE(form->after.has_focus());
    EXPECT_EQ(reported, std::vector<int>{5});
    form->focus();
    form->strike(GDK_KEY_Shift_L, GDK_KEY_Tab);
    EXPECT_TRUE(form->before.has_focus());
    EXPECT_EQ(reported.size(), 1U);
}

TEST_F(HexEntryHands, BothEnterKeysReportAndActivate) {
    int activated = 0;
    sigc::connection connection = form->entry.signal_activate().connect([&] { ++activated; });
    form->prepare("1", 1);
    form->strike(GDK_KEY_Return);
    form->strike(GDK_KEY_Return);
    EXPECT_EQ(reported, std::vector<int>{1});
    form->typeText("0");
    form->strike(GDK_KEY_KP_Enter);
    EXPECT_EQ(reported, (std::vector<int>{1, 16}));
    EXPECT_EQ(activated, 3);
    connection.disconnect();
}

TEST_F(HexEntryHands, AValueSetWithTheFocusIsShownAsWithout) {
    form->focus();
    form->entry.setAutoformat(true);
    form->entry.setValue(-1);
    EXPECT_EQ(form->entry.get_text(), "FFFFFFFF");
    form->leave();
    form->entry.setValue(-2);
    EXPECT_EQ(form->entry.get_text(), "FFFFFFFE");
    EXPECT_TRUE(reported.empty()) << "it reads as 0, which is what was reported last";
}

TEST_F(HexEntryHands, TheWheelGoesThroughToTheParent) {
    form->entry.setValue(5);
    form->focus();
    form->turnWheel(4);
    EXPECT_EQ(form->entry.get_text(), "5");
    EXPECT_EQ(form->wheelTurnsThatGotThrough, 1);
}

TEST_F(HexEntryHands, TheRightButtonOpensTheMenuOfTheOwner) {
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

    form->entry.setCustomMenu(nullptr);
    test::click(form->entry, 3);
    EXPECT_TRUE(test::waitFor([&] { return usualMenus == 1; }));
    EXPECT_FALSE(menu.get_mapped());
    test::pressKey(GDK_KEY_Escape);
    test::settle();
    populated.disconnect();
}
