// A million things that a person or a program does with an entry for hexadecimal numbers, in no order at all.

#include <ZelCommonView/entries/HexEntry.h>

#include "entries/EntryForm.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

namespace {

using namespace Zel;

const Glib::ustring digits = "0123456789abcdefABCDEF";

bool isHexadecimal(const Glib::ustring& text) {
    return std::all_of(text.begin(), text.end(),
                       [](gunichar c) { return digits.find(c) != Glib::ustring::npos; });
}

/// The value by adding up the digits: 0 beyond the largest one and of what is no number.
int valueOf(const Glib::ustring& text) {
    if (!isHexadecimal(text))
        return 0;
    long long value = 0;
    for (const gunichar c : text) {
        value = value * 16 + g_unichar_xdigit_value(c);
        if (value > 0x7fffffff)
            return 0;
    }
    return static_cast<int>(value);
}

bool isReadable(const Glib::ustring& text) {
    const std::size_t start = text.find_first_not_of('0');
    return start == Glib::ustring::npos || text.size() - start < 8 ||
           (text.size() - start == 8 && text[start] < '8');
}

/// Does one thing after another and looks each time whether the entry kept its rules:
/// - the text consists of hexadecimal digits, and its value is that of the digits;
/// - a typed digit stands whatever the range, any other character brings back the last accepted text, and the
///   cursor stays where it was for the latter and for a value out of range;
/// - setting never touches the last accepted text;
/// - a value is reported at the end of an input only, and never twice in a row;
/// - cursor and selection lie within the text.
class Editing {
public:
    Editing(unsigned int seed, bool hasPicture) : form(hasPicture), random(seed) {
        form.entry.signalValueChanged().connect(sigc::mem_fun(*this, &Editing::_onReported));
    }

    void run(int count) {
        for (int i = 0; i < count && !testing::Test::HasFailure(); ++i) {
            step = i;
            _step();
            _check();
        }
    }

    int accepted = 0;
    int refused = 0;
    int outOfRange = 0;
    int reportedCount = 0;
    int focused = 0;

private:
    void _onReported(int value) {
        ++reportedCount;
        ++reports;
        EXPECT_EQ(value, form.entry.getValue());
        EXPECT_NE(value, formerReport) << "reported twice";
        if (_isOneIn(2)) {
            form.entry.setValue(value / 2);
            isWritten = true;
        }
    }

    void _step() {
        text = form.entry.get_text();
        last = form.entry.lastAcceptedText;
        formerReport = form.entry.lastReportedValue;
        reports = 0;
        const int choice = _below(1000);
        if (choice < 360)
            _typeKey();
        else if (choice < 720)
            _editKey();
        else if (choice < 740)
            _paste();
        else if (choice < 810)
            _endInput();
        else if (choice < 870)
            _moveFocus();
        else if (choice < 890)
            _typeCarefully();
        else if (choice < 985)
            _set();
        else
            _pump();
    }

    gunichar _key() {
        static const Glib::ustring keys = "0123456789abcdefABCDEFgGxh .,-б";
        return keys[_below(static_cast<int>(keys.size()))];
    }

    Glib::ustring _inserted(gunichar key) {
        Glib::ustring candidate = text;
        candidate.insert(form.entry.get_position(), 1, key);
        return candidate;
    }

    void _typeKey() {
        const gunichar key = _key();
        int from = 0;
        int to = 0;
        const bool isSelected = form.entry.get_selection_bounds(from, to);
        const Glib::ustring candidate = _inserted(key);
        form.press(gdk_unicode_to_keyval(key));
        EXPECT_EQ(reports, 0);
        if (!isSelected)
            _judge(candidate);
    }

    void _judge(const Glib::ustring& candidate) {
        const bool isAccepted = isHexadecimal(candidate);
        EXPECT_EQ(form.entry.get_text().raw(), isAccepted ? candidate.raw() : last);
        EXPECT_EQ(form.entry.lastAcceptedText, isAccepted ? candidate.raw() : last);
        ++(isAccepted ? accepted : refused);
        isWritten = false;
    }

    void _editKey() {
        static const guint keys[] = {GDK_KEY_BackSpace, GDK_KEY_BackSpace, GDK_KEY_BackSpace,
                                     GDK_KEY_BackSpace, GDK_KEY_Delete,    GDK_KEY_Delete,
                                     GDK_KEY_Left,      GDK_KEY_Right,     GDK_KEY_Home,
                                     GDK_KEY_End,       GDK_KEY_a};
        const guint key = keys[_below(11)];
        form.press(key, key == GDK_KEY_a ? GDK_CONTROL_MASK : _isOneIn(3) ? GDK_SHIFT_MASK : 0);
        EXPECT_EQ(reports, 0);
    }

    void _paste() {
        static const char* const texts[] = {"1",        "FF",       "ff", "0x1F", "xyz",
                                            "7FFFFFFF", "80000000", "",   " 1",   "б"};
        Gtk::Clipboard::get()->set_text(texts[_below(10)]);
        form.entry.paste_clipboard();
        EXPECT_EQ(reports, 0);
    }

    void _endInput() {
        static const guint keys[] = {GDK_KEY_Tab, GDK_KEY_Return, GDK_KEY_KP_Enter};
        const int value = form.entry.getValue();
        form.press(keys[_below(3)]);
        EXPECT_EQ(reports, value == formerReport ? 0 : 1);
    }

    void _moveFocus() {
        const int value = form.entry.getValue();
        if (form.entry.is_focus()) {
            form.focusOther();
            EXPECT_EQ(reports, value == formerReport ? 0 : 1);
            return;
        }
        form.focusEntry();
        EXPECT_EQ(form.entry.getValue(), value) << "the focus changed the value";
        EXPECT_EQ(form.entry.get_text().raw(), HexEntry::_formatHexValue(value));
        EXPECT_EQ(reports, 0);
        isWritten = true;
        ++focused;
    }

    /// With nothing pending the cursor's place is known.
    void _typeCarefully() {
        test::runPending();
        text = form.entry.get_text();
        const int position = form.entry.get_position();
        form.entry.select_region(position, position);
        const gunichar key = _key();
        const Glib::ustring candidate = _inserted(key);
        form.press(gdk_unicode_to_keyval(key));
        test::runPending();
        const NumericRange& range = form.entry.getValueRange();
        const int value = valueOf(candidate);
        const bool isInside = isHexadecimal(candidate) && isReadable(candidate) && value >= range.getMin() &&
                              value <= range.getMax();
        outOfRange += isHexadecimal(candidate) && !isInside;
        const int length = static_cast<int>(form.entry.get_text().size());
        EXPECT_EQ(form.entry.get_position(), std::min(position + isInside, length)) << candidate.raw();
        _judge(candidate);
    }

    void _set() {
        static const int values[] = {0, 1, 255, 4096, 0x12345678, 0x7fffffff, -1, -256};
        static const NumericRange ranges[] = {{-1e16, 1e16, 1e-9}, {0, 255, 1}, {16, 4096, 1}, {-5, -1, 1}};
        switch (_below(3)) {
        case 0:
            form.entry.setValue(values[_below(8)]);
            break;
        case 1:
            form.entry.setValueRange(ranges[_below(4)]);
            break;
        default:
            form.entry.setAutoformat(_isOneIn(2));
        }
        isWritten = true;
        EXPECT_EQ(reports, 0);
        EXPECT_EQ(form.entry.lastAcceptedText, last);
    }

    void _pump() {
        for (int turns = 0; turns < 5 && Gtk::Main::events_pending(); ++turns)
            Gtk::Main::iteration(false);
        EXPECT_EQ(form.entry.get_text(), text);
        EXPECT_EQ(reports, 0);
    }

    void _check() {
        const Glib::ustring now = form.entry.get_text();
        EXPECT_TRUE(isHexadecimal(now));
        EXPECT_EQ(form.entry.getValue(), valueOf(now));
        EXPECT_EQ(form.entry.get_width_chars(), std::max(static_cast<int>(now.size()), 1));
        if (!isWritten) {
            EXPECT_EQ(now.raw(), form.entry.lastAcceptedText);
        }
        if (form.entry.lastAcceptedText != last) {
            EXPECT_EQ(now.raw(), form.entry.lastAcceptedText);
            isWritten = false;
        }
        int from = 0;
        int to = 0;
        form.entry.get_selection_bounds(from, to);
        const int length = static_cast<int>(now.size());
        EXPECT_TRUE(from >= 0 && from <= to && to <= length);
        EXPECT_TRUE(form.entry.get_position() >= 0 && form.entry.get_position() <= length);
        EXPECT_LE(reports, 1);
        if (testing::Test::HasFailure())
            ADD_FAILURE() << "in step " << step << ", behind \"" << text.raw() << "\" now \"" << now.raw()
                          << "\"";
    }

    int _below(int end) { return static_cast<int>(random() % end); }

    bool _isOneIn(int count) { return _below(count) == 0; }

    test::EntryForm<HexEntry> form;
    std::mt19937 random;
    Glib::ustring text;
    std::string last;
    int formerReport = 0;
    int reports = 0; ///< in this step
    int step = 0;
    bool isWritten = true; ///< by the entry itself and not through the filter
};

class HexEntryRandom : public testing::TestWithParam<unsigned int> {};

void run(unsigned int seed, bool hasPicture, int count) {
    // Other locales differ only in what they could group, for which less will do.
    if (std::getenv("ZEL_TEST_LOCALE"))
        count /= 10;
    Editing editing(seed, hasPicture);
    editing.run(count);
    // All of it has really happened.
    EXPECT_GT(editing.accepted, count / 10);
    EXPECT_GT(editing.refused, count / 20);
    EXPECT_GT(editing.outOfRange, count / 1000);
    EXPECT_GT(editing.reportedCount, count / 100);
    EXPECT_GT(editing.focused, count / 100);
}

TEST_P(HexEntryRandom, KeepsItsRules) {
    run(GetParam(), false, 230000);
}

TEST_P(HexEntryRandom, KeepsItsRulesWithAPicture) {
    run(GetParam(), true, 20000);
}

INSTANTIATE_TEST_SUITE_P(Seeds, HexEntryRandom, testing::Values(1, 2, 3, 4));

} // namespace
