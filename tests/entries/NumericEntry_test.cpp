#include <ZelCommonView/entries/NumericEntry.h>

#include "entries/EntryForm.h"
#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <memory>
#include <sstream>

namespace {

using namespace Zel;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The text as a person leaves it: through the filter.
void enter(NumericEntry& entry, const Glib::ustring& text) {
    entry.set_text("");
    entry.set_text(text);
}

/// What a stream of the program shows, in its locale.
std::string fixed(double value, int decimals) {
    std::ostringstream stream;
    stream << std::fixed << std::setprecision(decimals) << value;
    return stream.str();
}

using Form = test::EntryForm<NumericEntry>;

std::vector<double>& collect(NumericEntry& entry) {
    static std::vector<double> reported;
    reported.clear();
    entry.signalValueChanged().connect([](double value) { reported.push_back(value); });
    return reported;
}

} // namespace

TEST(NumericEntry, StartsEmptyNarrowAndToTheRight) {
    NumericEntry entry;
    EXPECT_EQ(entry.get_text(), "");
    EXPECT_EQ(entry.get_width_chars(), 1);
    EXPECT_EQ(entry.get_alignment(), 1.0F);
    EXPECT_EQ(entry.getValue(), 0.0);
    EXPECT_EQ(entry.getValueRange(), NumericRange(-1e16, 1e16, 1e-9));
    EXPECT_FALSE(entry.getAutoformat());
    EXPECT_EQ(entry.getScrollStep(), 0.1);
    EXPECT_FALSE(entry.getUpdateOnScroll());
    EXPECT_EQ(entry.getCustomMenu(), nullptr);
    EXPECT_TRUE(entry.get_events() & Gdk::SCROLL_MASK);
    EXPECT_TRUE(entry.get_events() & Gdk::BUTTON_PRESS_MASK);
    EXPECT_TRUE(entry.signalValueChanged().empty());
    EXPECT_EQ(&entry.signalValueChanged(), &entry.valueChanged);
}

TEST(NumericEntry, ShowsAValueInItsPlainForm) {
    NumericEntry entry;
    const std::pair<double, const char*> rows[] = {
        {0, "0"},           {1e-14, "0"},
        {0.1 + 0.2, "0.3"}, {1.0 / 3, "0.3333333333333"},
        {1234.5, "1234.5"}, {-1.0 / 3, "-0.333333"},
        {1e16, "1e+16"},    {-1234567, "-1.23457e+06"},
        {infinite, "inf"},  {notANumber, "nan"},
    };
    for (const auto& [value, text] : rows) {
        entry.setValue(value);
        EXPECT_EQ(entry.get_text(), text);
        EXPECT_EQ(entry.get_width_chars(), static_cast<int>(std::string(text).size()));
    }
}

TEST(NumericEntry, NothingLimitsAValueThatIsSet) {
    NumericEntry entry;
    entry.setValueRange({0, 100, 1});
    entry.setValue(-12345.678);
    EXPECT_EQ(entry.get_text(), "-12345.7");
    entry.setValue(12345.678);
    EXPECT_EQ(entry.getValue(), 12345.678);
}

TEST(NumericEntry, SettingAValueKeepsTheLastAcceptedText) {
    NumericEntry entry;
    entry.setValue(5);
    EXPECT_EQ(entry.lastAcceptedText, "");
    entry.set_text("x");
    EXPECT_EQ(entry.get_text(), "") << "nothing was ever typed";

    enter(entry, "12");
    entry.setValue(99);
    EXPECT_EQ(entry.lastAcceptedText, "12");
    int position = 1;
    entry.insert_text("x", 1, position);
    EXPECT_EQ(entry.get_text(), "12") << "what was typed comes back, and not what was set";

    entry.setValue(99);
    position = 2;
    entry.insert_text("5", 1, position);
    EXPECT_EQ(entry.get_text(), "995");
    EXPECT_EQ(entry.lastAcceptedText, "995");
}

TEST(NumericEntry, SettingNeverReports) {
    NumericEntry entry;
    std::vector<double>& reported = collect(entry);
    entry.setValue(5);
    entry.setValueRange({0, 10, 1});
    entry.setAutoformat(true);
    enter(entry, "7");
    EXPECT_TRUE(reported.empty());
    EXPECT_EQ(entry.lastReportedValue, 0.0);
}

TEST(NumericEntry, TextThatIsNoNumberYetHasTheValueZero) {
    NumericEntry entry;
    for (const char* text : {"", "-", "+", ".", "-.", "1e", "1e-", "na", "infi", "1e400"}) {
        enter(entry, "5");
        entry.set_text(text);
        EXPECT_EQ(entry.get_text(), text);
        EXPECT_EQ(entry.getValue(), 0.0) << text;
    }
}

TEST(NumericEntry, AnotherRangeShowsTheValueAnew) {
    NumericEntry entry;
    enter(entry, "005.50");
    entry.setValueRange({-1e16, 1e16, 1e-9});
    EXPECT_EQ(entry.get_text(), "005.50") << "the same range";
    entry.setValueRange({0, 3, 1});
    EXPECT_EQ(entry.get_text(), "5.5") << "nothing brings the value into the range";
    EXPECT_EQ(entry.getValueRange(), NumericRange(0, 3, 1));
    enter(entry, "");
    entry.setValueRange({0, 4, 1});
    EXPECT_EQ(entry.get_text(), "0");
}

TEST(NumericEntry, AChangeOfAutoformatShowsTheValueAnew) {
    NumericEntry entry;
    entry.setValueRange({0, 100, 0.01});
    enter(entry, "05.5");
    entry.setAutoformat(false);
    EXPECT_EQ(entry.get_text(), "05.5");
    entry.setAutoformat(true);
    EXPECT_EQ(entry.get_text(), fixed(5.5, 2));
    EXPECT_TRUE(entry.getAutoformat());
    entry._setText("7");
    entry.setAutoformat(true);
    EXPECT_EQ(entry.get_text(), "7");
    entry.setValue(5.5);
    entry.setAutoformat(false);
    EXPECT_EQ(entry.get_text(), "5.5");
}

TEST(NumericEntry, AutoformatShowsTheDecimalsOfTheStep) {
    struct Row {
        double step;
        double value;
        int decimals;
    };

    const Row rows[] = {
        {0.01, 1.239, 2}, {0.1, -1.26, 1},    {1, 12.6, 0},     {0.25, 3, 1},    {0.5, 0.125, 1},
        {2, 7, 0},        {0.001, 1000, 3},   {1e-9, 1.5, 9},   {10, 1234, 6},   {1000, 1234, 6},
        {infinite, 5, 6}, {notANumber, 5, 6}, {-0.01, 5.25, 6}, {0.01, 1e15, 2}, {0.01, 1234567.5, 2},
    };
    for (const Row& row : rows) {
        NumericEntry entry;
        entry.setAutoformat(true);
        entry.setValueRange({-1e6, 1e6, row.step});
        entry.setValue(row.value);
        EXPECT_EQ(entry.get_text(), fixed(row.value, row.decimals)) << "step " << row.step;
    }
}

TEST(NumericEntry, AStepOfZeroIsNotFormatted) {
    NumericEntry entry;
    entry.setAutoformat(true);
    entry.setValueRange({0, 100, 0});
    EXPECT_FALSE(entry._isNeedTextFormat());
    entry.setValue(1.25);
    EXPECT_EQ(entry.get_text(), "1.25");
    EXPECT_EQ(entry.get_width_chars(), 4);
}

TEST(NumericEntry, NotANumberAsAStepIsFormatted) {
    NumericEntry entry;
    entry.setAutoformat(true);
    entry.setValueRange({0, 100, notANumber});
    EXPECT_TRUE(entry._isNeedTextFormat());
}

// The form of the locale is for the eye; whatever it is made of, the value stays.
TEST(NumericEntry, AFormattedValueKeepsItsValueInEveryLocale) {
    for (const double value : {0.0, 1.25, -1.25, 1234.0, 1234.5, 1234567.75, -1e9}) {
        Form form;
        form.entry.setAutoformat(true);
        form.entry.setValueRange({-1e10, 1e10, 0.01});
        form.entry.setValue(value);
        EXPECT_EQ(form.entry.get_text(), fixed(value, 2));
        EXPECT_EQ(form.entry.getValue(), value);
        form.entry.setValueRange({-1e10, 1e10, 1e-3});
        EXPECT_EQ(form.entry.get_text(), fixed(value, 3));
        form.focusEntry();
        EXPECT_EQ(form.entry.getValue(), value) << form.entry.get_text();
        EXPECT_EQ(form.entry.get_text().raw().find(','), std::string::npos);
        form.focusOther();
        EXPECT_EQ(form.entry.getValue(), value);
        form.entry.setValue(form.entry.getValue());
        EXPECT_EQ(form.entry.get_text(), fixed(value, 3));
        form.entry.setAutoformat(false);
        EXPECT_EQ(form.entry.getValue(), value);
    }
}

TEST(NumericEntry, AFormattedWholeNumberKeepsItsValueInEveryLocale) {
    NumericEntry entry;
    entry.setAutoformat(true);
    entry.setValueRange({0, 1e6, 1});
    entry.setValue(1234);
    EXPECT_EQ(entry.get_text(), fixed(1234, 0));
    EXPECT_EQ(entry.getValue(), 1234.0) << "a point that groups is no decimal point";
    // The same characters that a person typed are read as they stand.
    entry.setValueRange({0, 1e6, 0.001});
    enter(entry, "1.234");
    EXPECT_EQ(entry.getValue(), 1.234);
}

TEST(NumericEntry, TypedTextIsReadAsItStandsThoughTheSameWasFormattedBefore) {
    NumericEntry entry;
    entry.setAutoformat(true);
    entry.setValueRange({0, 1e6, 1});
    entry.setValue(1234);
    const Glib::ustring formatted = entry.get_text();
    entry._setText("1.234");
    EXPECT_EQ(entry.getValue(), 1.234) << formatted;
}

TEST(NumericEntry, TheWidthFollowsTheTextWithoutFormat) {
    NumericEntry entry;
    enter(entry, "12345");
    EXPECT_EQ(entry.get_width_chars(), 5);
    entry.set_text("");
    EXPECT_EQ(entry.get_width_chars(), 1);
    enter(entry, "1,5");
    EXPECT_EQ(entry.get_width_chars(), 3);
}

// The width has no room for the digit that the exponent leaves out: it is meant to be one too narrow.
TEST(NumericEntry, TheWidthIsThatOfTheRangeWithFormat) {
    struct Row {
        NumericRange range;
        int width;
    };

    const Row rows[] = {
        {{0, 100, 0.01}, 5},
        {{-100, 100, 0.01}, 6},
        {{-100, -10, 0.01}, 6},
        {{0, -5, 1}, 1},
        {{0, 100, 1}, 2},
        {{0, 99, 1}, 1},
        {{0, 9, 1}, 1},
        {{-9, 9, 1}, 1},
        {{0, 9, 0.1}, 2},
        {{0, 0.5, 0.01}, 2},
        {{0, 0.5, 1}, 1},
        {{0, 1e6, 1000}, 6},
        {{0, 0, 1}, 1},
        {{0, infinite, 1}, 1},
        {{notANumber, notANumber, 1}, 1},
        {{0, 100, notANumber}, 2},
        {{-1e16, 1e16, 1e-9}, 27},
    };
    for (const Row& row : rows) {
        NumericEntry entry;
        entry.setAutoformat(true);
        entry.setValueRange(row.range);
        entry._setCharWidth(1000);
        EXPECT_EQ(entry.get_width_chars(), row.width)
            << row.range.getMin() << " to " << row.range.getMax() << " by " << row.range.getStep();
    }
}

TEST(NumericEntry, TheWheelStepIsNeverBelowTheStepOfTheRange) {
    NumericEntry entry;
    entry.setValueRange({0, 100, 5});
    EXPECT_EQ(entry.getScrollStep(), 5.0);
    entry.setScrollStep(10);
    EXPECT_EQ(entry.getScrollStep(), 10.0);
    entry.setScrollStep(0);
    EXPECT_EQ(entry.getScrollStep(), 0.0);
    entry.setScrollStep(-1);
    EXPECT_EQ(entry.getScrollStep(), 5.0);
}

namespace {

bool scroll(NumericEntry& entry, GdkScrollDirection direction) {
    GdkEventScroll event{};
    event.type = GDK_SCROLL;
    event.direction = direction;
    return entry._scroll(&event);
}

} // namespace

TEST(NumericEntry, TheWheelMovesTheValueWithinTheRange) {
    Form form;
    form.focusEntry();
    form.entry.setValueRange({-1, 1, 0.5});
    form.entry.setScrollStep(0.75);
    const std::pair<GdkScrollDirection, const char*> steps[] = {
        {GDK_SCROLL_UP, "0.75"},   {GDK_SCROLL_UP, "1"},      {GDK_SCROLL_UP, "1"},
        {GDK_SCROLL_DOWN, "0.25"}, {GDK_SCROLL_DOWN, "-0.5"}, {GDK_SCROLL_DOWN, "-1"},
        {GDK_SCROLL_LEFT, "-1"},   {GDK_SCROLL_RIGHT, "-1"},  {GDK_SCROLL_SMOOTH, "-1"},
    };
    form.entry.setValue(0);
    for (const auto& [direction, text] : steps) {
        EXPECT_TRUE(scroll(form.entry, direction));
        EXPECT_EQ(form.entry.get_text(), text);
    }
    form.entry.setValue(50);
    scroll(form.entry, GDK_SCROLL_UP);
    EXPECT_EQ(form.entry.get_text(), "1") << "what lies beyond comes back";
    form.entry.setValue(-50);
    scroll(form.entry, GDK_SCROLL_DOWN);
    EXPECT_EQ(form.entry.get_text(), "-1");
}

TEST(NumericEntry, TheWheelIsSwallowedWithoutTheFocusAndWithAStepOfZero) {
    Form form;
    form.entry.setUpdateOnScroll(true);
    std::vector<double>& reported = collect(form.entry);
    enter(form.entry, "5");
    EXPECT_TRUE(scroll(form.entry, GDK_SCROLL_UP));
    EXPECT_EQ(form.entry.get_text(), "5");
    EXPECT_TRUE(reported.empty());
    form.focusEntry();
    form.entry.setScrollStep(0);
    EXPECT_TRUE(scroll(form.entry, GDK_SCROLL_UP));
    EXPECT_EQ(form.entry.get_text(), "5");
    EXPECT_TRUE(reported.empty());
}

TEST(NumericEntry, TheWheelIsSwallowedAheadOfOtherHandlers) {
    Form form;
    int turns = 0;
    form.entry.signal_scroll_event().connect(
        [&](GdkEventScroll*) {
            ++turns;
            return false;
        },
        false);
    form.scroll(GDK_SCROLL_UP);
    EXPECT_EQ(turns, 0);
}

TEST(NumericEntry, OtherHandlersNeverSeeARefusedText) {
    NumericEntry entry;
    std::vector<std::string> seen;
    entry.signal_changed().connect([&] { seen.push_back(entry.get_text()); }, false);
    entry.set_text("1,5");
    entry.set_text("x");
    for (const std::string& text : seen)
        EXPECT_EQ(text, "1.5");
    EXPECT_FALSE(seen.empty());
}

TEST(NumericEntry, TheWheelReportsOnlyIfItShould) {
    Form form;
    form.focusEntry();
    std::vector<double>& reported = collect(form.entry);
    form.entry.setScrollStep(1);
    form.entry.setValueRange({-2, 2, 1});
    form.entry.setValue(0);
    scroll(form.entry, GDK_SCROLL_UP);
    EXPECT_TRUE(reported.empty());
    form.entry.setUpdateOnScroll(true);
    EXPECT_TRUE(form.entry.getUpdateOnScroll());
    scroll(form.entry, GDK_SCROLL_UP);
    EXPECT_EQ(reported, std::vector<double>{2});
    scroll(form.entry, GDK_SCROLL_UP);
    EXPECT_EQ(reported.size(), 1U) << "the value stood at its limit";
    form.entry.setValue(1);
    scroll(form.entry, GDK_SCROLL_LEFT);
    EXPECT_EQ(reported, (std::vector<double>{2, 1})) << "the other directions report, too";
}

TEST(NumericEntry, WithoutAListenerNothingCountsAsReported) {
    NumericEntry entry;
    enter(entry, "5");
    entry._onSignalValueChanged();
    EXPECT_EQ(entry.lastReportedValue, 0.0);
    std::vector<double>& reported = collect(entry);
    entry._onSignalValueChanged();
    EXPECT_EQ(reported, std::vector<double>{5});
    EXPECT_EQ(entry.lastReportedValue, 5.0);
    entry._onSignalValueChanged();
    EXPECT_EQ(reported.size(), 1U);
}

TEST(NumericEntry, NotANumberIsReportedEachTime) {
    NumericEntry entry;
    std::vector<double>& reported = collect(entry);
    enter(entry, "nan");
    entry._onSignalValueChanged();
    entry._onSignalValueChanged();
    EXPECT_EQ(reported.size(), 2U);
}

TEST(NumericEntry, OnlyTheThreeKeysReportAndAllGoOn) {
    NumericEntry entry;
    std::vector<double>& reported = collect(entry);
    double value = 0;
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

TEST(NumericEntry, TheListenerMayAnswerWithAnotherValue) {
    NumericEntry entry;
    std::vector<double> reported;
    entry.signalValueChanged().connect([&](double value) {
        reported.push_back(value);
        entry.setValue(std::min(value, 10.0));
    });
    enter(entry, "50");
    entry._onSignalValueChanged();
    EXPECT_EQ(entry.get_text(), "10");
    entry._onSignalValueChanged();
    EXPECT_EQ(reported, (std::vector<double>{50, 10})) << "what was answered differs from what was reported";
    entry._onSignalValueChanged();
    EXPECT_EQ(reported.size(), 2U);
}

TEST(NumericEntry, PendingHandlersDieWithTheirEntry) {
    test::Finalised finalised;
    sigc::connection pending;
    {
        Form form;
        finalised.watch(form.entry);
        form.focusEntry();
        enter(form.entry, "x");
        enter(form.entry, "1,5");
        form.focusOther();
        form.focusEntry();
        pending = form.entry.focusInIdle;
        EXPECT_TRUE(pending.connected());
    }
    EXPECT_FALSE(pending.connected());
    EXPECT_TRUE(finalised.all());
    test::settle(); // the handlers of the cursor would run now
}

TEST(NumericEntry, TheListenerMayEndTheEntry) {
    auto entry = std::make_unique<NumericEntry>();
    entry->signalValueChanged().connect([&](double) { entry.reset(); });
    entry->setValue(5);
    GdkEventKey event{};
    event.keyval = 0xff0d;
    EXPECT_FALSE(entry->_keyPress(&event));
    EXPECT_FALSE(entry);
}

TEST(NumericEntry, AThousandEntriesEnd) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        NumericEntry entry;
        finalised.watch(entry);
        enter(entry, "x");
        entry.setValue(i);
    }
    test::settle();
    EXPECT_TRUE(finalised.all());
}
