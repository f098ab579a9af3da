#include <ZelCommonView/entries/HexEntry.h>

#include "entries/EntryForm.h"
#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace {

using namespace Zel;
using Form = test::EntryForm<HexEntry>;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The text as a person leaves it: through the filter.
void enter(HexEntry& entry, const Glib::ustring& text) {
    entry.set_text("");
    entry.set_text(text);
}

std::vector<int>& collect(HexEntry& entry) {
    static std::vector<int> reported;
    reported.clear();
    entry.signalValueChanged().connect([](int value) { reported.push_back(value); });
    return reported;
}

struct Shown {
    int value;
    const char* text;
};

const Shown shownValues[] = {
    {0, "0"},
    {1, "1"},
    {9, "9"},
    {10, "A"},
    {15, "F"},
    {16, "10"},
    {255, "FF"},
    {0xabcdef, "ABCDEF"},
    {4096, "1000"},
    {0x12345678, "12345678"},
    {std::numeric_limits<int>::max(), "7FFFFFFF"},
    {-1, "FFFFFFFF"},
    {-2, "FFFFFFFE"},
    {-256, "FFFFFF00"},
    {std::numeric_limits<int>::min(), "80000000"},
};

struct Read {
    const char* text;
    int value;
};

const Read readings[] = {
    {"", 0},
    {"0", 0},
    {"00000000000", 0},
    {"a", 10},
    {"A", 10},
    {"ff", 255},
    {"Ff", 255},
    {"100", 256},
    {"7FFFFFFF", 0x7fffffff},
    {"7fffffff", 0x7fffffff},
    {"00007FFFFFFF", 0x7fffffff},
    {"80000000", 0},
    {"FFFFFFFF", 0},
    {"100000000", 0},
    {"FFFFFFFFFFFFFFFFFFFF", 0},
    {"DEADBEEF", 0},
};

} // namespace

TEST(HexEntry, StartsEmptyNarrowAndToTheRight) {
    HexEntry entry;
    EXPECT_EQ(entry.get_text(), "");
    EXPECT_EQ(entry.get_width_chars(), 1);
    EXPECT_EQ(entry.get_alignment(), 1.0F);
    EXPECT_EQ(entry.getValue(), 0);
    EXPECT_EQ(entry.getValueRange(), NumericRange(-1e16, 1e16, 1e-9));
    EXPECT_FALSE(entry.getAutoformat());
    EXPECT_EQ(entry.getCustomMenu(), nullptr);
    EXPECT_TRUE(entry.get_events() & Gdk::SCROLL_MASK);
    EXPECT_TRUE(entry.get_events() & Gdk::BUTTON_PRESS_MASK);
    EXPECT_EQ(&entry.signalValueChanged(), &entry.valueChanged);
}

// In every locale: digits that a locale grouped would not read back.
TEST(HexEntry, ShowsAValueInCapitalLettersWithoutGroups) {
    for (const Shown& row : shownValues) {
        HexEntry entry;
        entry.setValue(row.value);
        EXPECT_EQ(entry.get_text(), row.text);
        EXPECT_EQ(entry.get_width_chars(), static_cast<int>(std::string(row.text).size()));
        EXPECT_EQ(entry.getValue(), std::max(row.value, 0)) << "a negative value doesn't read back";
    }
}

TEST(HexEntry, ReadsUpToTheLargestNumber) {
    for (const Read& row : readings) {
        HexEntry entry;
        enter(entry, row.text);
        EXPECT_EQ(entry.get_text(), row.text);
        EXPECT_EQ(entry.getValue(), row.value) << row.text;
    }
}

TEST(HexEntry, ParsesOnlyWholeTexts) {
    int value = 5;
    EXPECT_TRUE(HexEntry::_tryParseHexValue("", value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(HexEntry::_tryParseHexValue("1F", value));
    EXPECT_EQ(value, 31);
    for (const char* text : {"g", "1g", "1 ", "-", "0x", "1.0", "80000000", "1000000000000000000000"})
        EXPECT_FALSE(HexEntry::_tryParseHexValue(text, value)) << text;
}

TEST(HexEntry, RefusesEveryCharacterThatIsNoHexadecimalDigit) {
    const Glib::ustring digits = "0123456789abcdefABCDEF";
    HexEntry entry;
    for (gunichar c = 0x20; c <= 0x44f; ++c) {
        if (!g_unichar_isdefined(c) || g_unichar_iscntrl(c))
            continue;
        const Glib::ustring text = Glib::ustring("1A") + c;
        enter(entry, "1A");
        entry.set_text(text);
        const bool isDigit = digits.find(c) != Glib::ustring::npos;
        ASSERT_EQ(entry.get_text(), isDigit ? text : "1A") << c;
        ASSERT_EQ(entry.lastAcceptedText, isDigit ? text.raw() : "1A");
    }
}

TEST(HexEntry, OtherHandlersNeverSeeARefusedText) {
    HexEntry entry;
    std::vector<std::string> seen;
    entry.signal_changed().connect([&] { seen.push_back(entry.get_text()); }, false);
    entry.set_text("1A");
    entry.set_text("g");
    for (const std::string& text : seen)
        EXPECT_EQ(text, "1A");
    EXPECT_FALSE(seen.empty());
}

TEST(HexEntry, NormalizesNothing) {
    EXPECT_EQ(HexEntry::_normalizeTextNumericSeparators("бюэ,<>'/1a"), "бюэ,<>'/1a");
}

TEST(HexEntry, ATextOutOfRangeStandsAndOnlyTheCursorIsReset) {
    struct Row {
        NumericRange range;
        const char* text;
        bool isInside;
    };

    const Row rows[] = {
        {{0, 255, 1}, "FF", true},
        {{0, 255, 1}, "100", false},
        {{0, 255, 1}, "", true},
        {{0, 255.9, 1}, "FF", true},
        {{0, 255.9, 1}, "100", false},
        {{16, 255, 1}, "F", false},
        {{16.9, 255, 1}, "10", true},
        {{16, 255, 1}, "", false},
        {{-0.9, 0.9, 1}, "0", true},
        {{-1e16, 1e16, 1}, "7FFFFFFF", true},
        {{-1e16, 1e16, 1}, "80000000", false},
        {{0, infinite, 1}, "7FFFFFFF", true},
        {{0, notANumber, 1}, "1", false},
        {{5, 4, 1}, "5", false},
        {{-5, -0.5, 1}, "0", true},
        {{-infinite, infinite, 1}, "80000000", true}, // no limits at all, so the value isn't looked at
    };
    for (const Row& row : rows) {
        HexEntry entry;
        entry.setValueRange(row.range);
        enter(entry, "");
        test::runPending();
        int position = 0;
        for (const char* digit = row.text; *digit; ++digit)
            entry.insert_text(digit, 1, position);
        if (!*row.text)
            entry.delete_text(0, -1);
        EXPECT_EQ(entry.get_text(), row.text);
        EXPECT_EQ(entry.lastAcceptedText, row.text);
        EXPECT_EQ(entry._isInRange(row.text) || entry.getValueRange().isFull(), row.isInside)
            << row.text << " in " << row.range.getMin() << " to " << row.range.getMax();
    }
}

TEST(HexEntry, TheWidthFollowsTheText) {
    HexEntry entry;
    enter(entry, "12345");
    EXPECT_EQ(entry.get_width_chars(), 5);
    entry.set_text("");
    EXPECT_EQ(entry.get_width_chars(), 1);
    entry.setAutoformat(true);
    enter(entry, "12");
    EXPECT_EQ(entry.get_width_chars(), 2) << "the flag plays no part";
}

TEST(HexEntry, SettingAValueKeepsTheLastAcceptedText) {
    HexEntry entry;
    entry.setValue(5);
    EXPECT_EQ(entry.lastAcceptedText, "");
    entry.set_text("g");
    EXPECT_EQ(entry.get_text(), "") << "nothing was ever typed";
    enter(entry, "12");
    entry.setValue(0x99);
    int position = 1;
    entry.insert_text("g", 1, position);
    EXPECT_EQ(entry.get_text(), "12") << "what was typed comes back, and not what was set";
}

TEST(HexEntry, AnotherRangeOrFlagShowsTheValueAnew) {
    HexEntry entry;
    enter(entry, "0ff");
    entry.setValueRange({-1e16, 1e16, 1e-9});
    entry.setAutoformat(false);
    EXPECT_EQ(entry.get_text(), "0ff") << "nothing has changed";
    entry.setValueRange({0, 3, 1});
    EXPECT_EQ(entry.get_text(), "FF");
    EXPECT_EQ(entry.getValueRange(), NumericRange(0, 3, 1));
    enter(entry, "0ff");
    entry.setAutoformat(true);
    EXPECT_EQ(entry.get_text(), "FF");
    EXPECT_TRUE(entry.getAutoformat());
    enter(entry, "");
    entry.setAutoformat(false);
    EXPECT_EQ(entry.get_text(), "0");
}

TEST(HexEntry, TheFocusRewritesTheText) {
    Form form;
    enter(form.entry, "0ff");
    form.focusEntry();
    EXPECT_EQ(form.entry.get_text(), "FF");
    form.entry.set_text("ee");
    form.focusOther();
    EXPECT_EQ(form.entry.get_text(), "ee") << "only the focus that comes does";
    form.entry.setValue(-1);
    EXPECT_EQ(form.entry.get_text(), "FFFFFFFF");
    form.focusEntry();
    EXPECT_EQ(form.entry.get_text(), "0") << "the value that FFFFFFFF has";
}

TEST(HexEntry, TheFocusReportsWhatItLeavesAndSelectsNothing) {
    Form form;
    std::vector<int>& reported = collect(form.entry);
    form.entry.setValue(0x12);
    form.focusEntry();
    test::runPending();
    EXPECT_EQ(form.entry.lastReportedValue, 0x12);
    form.focusOther();
    EXPECT_TRUE(reported.empty());
    form.focusEntry();
    test::runPending();
    form.entry.set_text("");
    form.focusOther();
    EXPECT_EQ(reported, std::vector<int>{0}) << "the empty text is 0";
    EXPECT_EQ(form.entry.get_text(), "");
    form.entry.select_region(0, -1);
    test::runPending();
    int start = 0;
    int end = 0;
    EXPECT_FALSE(form.entry.get_selection_bounds(start, end));
}

TEST(HexEntry, WithoutAListenerNothingCountsAsReported) {
    HexEntry entry;
    enter(entry, "5");
    entry._onSignalValueChanged();
    EXPECT_EQ(entry.lastReportedValue, 0);
    std::vector<int>& reported = collect(entry);
    entry._onSignalValueChanged();
    entry._onSignalValueChanged();
    EXPECT_EQ(reported, std::vector<int>{5});
    EXPECT_EQ(entry.lastReportedValue, 5);
    entry.setValue(6);
    EXPECT_EQ(reported.size(), 1U) << "setting reports nothing";
}

TEST(HexEntry, OnlyTheThreeKeysReportAndAllGoOn) {
    HexEntry entry;
    std::vector<int>& reported = collect(entry);
    int value = 0;
    for (guint key = 0xfe00; key <= 0xffff; ++key) {
        entry.setValue(++value);
        reported.clear();
        GdkEventKey event{};
        event.type = GDK_KEY_PRESS;
        event.keyval = key;
        EXPECT_FALSE(entry._keyPress(&event));
        const bool isEnd = key == 0xff09 || key == 0xff0d || key == 0xff8d;
        EXPECT_EQ(reported.size(), isEnd ? 1U : 0U) << std::hex << key;
    }
}

TEST(HexEntry, PendingHandlersDieWithTheirEntry) {
    test::Finalised finalised;
    sigc::connection pending;
    {
        Form form;
        finalised.watch(form.entry);
        form.focusEntry();
        enter(form.entry, "g");
        form.focusOther();
        form.focusEntry();
        pending = form.entry.focusInIdle;
        EXPECT_TRUE(pending.connected());
    }
    EXPECT_FALSE(pending.connected());
    EXPECT_TRUE(finalised.all());
    test::settle(); // the handlers of the cursor would run now
}

TEST(HexEntry, TheListenerMayEndTheEntry) {
    auto entry = std::make_unique<HexEntry>();
    entry->signalValueChanged().connect([&](int) { entry.reset(); });
    entry->setValue(5);
    GdkEventKey event{};
    event.keyval = 0xff0d;
    EXPECT_FALSE(entry->_keyPress(&event));
    EXPECT_FALSE(entry);
}

TEST(HexEntry, AThousandEntriesEnd) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        HexEntry entry;
        finalised.watch(entry);
        enter(entry, "g");
        entry.setValue(i);
    }
    test::settle();
    EXPECT_TRUE(finalised.all());
}
