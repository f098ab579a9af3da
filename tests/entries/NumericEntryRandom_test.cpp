// A million things that a person or a program does with an entry for numbers, in no order at all.

#include <ZelCommonView/common/NumericHelper.h>
#include <ZelCommonView/entries/NumericEntry.h>

#include "entries/EntryForm.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <iomanip>
#include <limits>
#include <locale>
#include <optional>
#include <random>
#include <sstream>

namespace {

using namespace Zel;

struct Limits {
    NumericRange range;
    int digits;   ///< in front of the point; -1 if they don't count
    int decimals; ///< -1 if they don't count
};

const Limits limits[] = {
    {{-1e16, 1e16, 1e-9}, 17, 9},
    {{0, 100, 0.01}, 3, 2},
    {{-100, 100, 0.1}, 3, 1},
    {{0, 99, 1}, 2, 0},
    {{-99999, 1, 1}, 5, 0},
    {{-5, 5, 0.25}, 1, 1},
    {{-1, 1e3, 1e-3}, 4, 3},
    {{0, 100, 0}, -1, -1},
    {{-std::numeric_limits<double>::max(), std::numeric_limits<double>::max(), 1e-3}, -1, -1},
};

const Glib::ustring separators = "бюэ,<>'/";

Glib::ustring withPoints(const Glib::ustring& text) {
    Glib::ustring result;
    for (const gunichar c : text)
        result += separators.find(c) == Glib::ustring::npos ? c : '.';
    return result;
}

/// Whether the text may stand, by counting its characters; nothing where counting doesn't tell.
std::optional<bool> mayStand(const std::string& text, const Limits& limit) {
    if (!text.empty() && text[0] == '-' && limit.range.getMin() >= 0)
        return false;
    const std::size_t start = !text.empty() && (text[0] == '-' || text[0] == '+');
    if (text.find_first_of("eEnNiIaAfFtTyY") != std::string::npos)
        return std::nullopt;
    if (text.find_first_not_of("0123456789.", start) != std::string::npos)
        return false;
    const std::size_t point = text.find('.');
    if (point != std::string::npos && (text.find('.', point + 1) != std::string::npos || limit.decimals == 0))
        return false;
    const std::size_t digits = std::min(point, text.size()) -
                               std::min(text.find_first_not_of("0", start), std::min(point, text.size()));
    const std::size_t decimals = point == std::string::npos ? 0 : text.size() - point - 1;
    if (limit.digits < 0)
        return limit.range.isFull() || digits <= 3 ? std::optional<bool>(true) : std::nullopt;
    // No digit at all is no number yet, which no limit hits.
    if (text.find_first_of("0123456789") == std::string::npos)
        return true;
    if (decimals > static_cast<std::size_t>(limit.decimals))
        return false;
    // With more digits the comparison takes the last ones for rounding errors.
    if (digits + limit.decimals > 9 && limit.digits + limit.decimals > 9)
        return std::nullopt;
    return digits <= static_cast<std::size_t>(limit.digits);
}

bool isSame(double left, double right) {
    return left == right || (std::isnan(left) && std::isnan(right));
}

/// Does one thing after another and looks each time whether the entry kept its rules:
/// - the text is the last accepted one or one that the entry itself has written;
/// - a typed character is accepted exactly if counting digits, signs and points says so, and a refused one
///   brings back the last accepted text;
/// - setting never touches the last accepted text, and a formatted text keeps its value in every locale;
/// - a value is reported at the end of an input and by the wheel only, and never twice in a row;
/// - cursor and selection lie within the text.
class Editing {
public:
    Editing(unsigned int seed, bool hasPicture) : form(hasPicture), random(seed) {
        form.entry.signalValueChanged().connect(sigc::mem_fun(*this, &Editing::_onReported));
    }

    void run(int count) {
        for (int i = 0; i < count && !testing::Test::HasFailure(); ++i) {
            history = i;
            _step();
            _check();
        }
    }

    int accepted = 0;
    int refused = 0;
    int normalized = 0;
    int reportedCount = 0;
    int focused = 0;

private:
    void _onReported(double value) {
        ++reportedCount;
        ++reports;
        EXPECT_TRUE(isSame(value, form.entry.getValue()));
        EXPECT_FALSE(value == formerReport) << "reported twice";
        if (_isOneIn(2)) {
            form.entry.setValue(value);
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
        else if (choice < 800)
            _endInput();
        else if (choice < 850)
            _moveFocus();
        else if (choice < 890)
            _scroll();
        else if (choice < 900)
            _typeCarefully();
        else if (choice < 985)
            _set();
        else
            _pump();
    }

    void _typeKey() {
        static const Glib::ustring keys = "0123456789012345678901234567890123456789..,,/<>'бюэ-eEnaifty xж";
        const gunichar key = keys[_below(static_cast<int>(keys.size()))];
        int from = 0;
        int to = 0;
        const bool isSelected = form.entry.get_selection_bounds(from, to);
        const Glib::ustring candidate = isSelected ? "" : _inserted(key);
        form.press(gdk_unicode_to_keyval(key));
        EXPECT_EQ(reports, 0);
        if (!isSelected)
            _judge(candidate);
    }

    Glib::ustring _inserted(gunichar key) {
        Glib::ustring candidate = text;
        candidate.insert(form.entry.get_position(), 1, key);
        return candidate;
    }

    void _judge(const Glib::ustring& candidate) {
        const Glib::ustring plain = withPoints(candidate);
        // Accepted and refused can't be told apart if what is brought back reads the same.
        if (plain.raw() == last)
            return;
        const std::optional<bool> may = mayStand(plain, limits[limit]);
        const bool isAccepted = form.entry.get_text() == plain && form.entry.lastAcceptedText == plain.raw();
        if (may) {
            EXPECT_EQ(isAccepted, *may) << candidate.raw() << " became " << form.entry.get_text().raw();
        }
        if (!isAccepted) {
            EXPECT_EQ(form.entry.get_text().raw(), last);
            EXPECT_EQ(form.entry.lastAcceptedText, last);
        }
        ++(isAccepted ? accepted : refused);
        normalized += isAccepted && plain != candidate;
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
        static const char* const texts[] = {"1",    "12.5",  "-3",   "1,5", "x",     "1e5",      "nan",
                                            "-inf", "99999", "0.01", "",    "1.2.3", "infinity", "бюэ"};
        Gtk::Clipboard::get()->set_text(texts[_below(14)]);
        form.entry.paste_clipboard();
        EXPECT_EQ(reports, 0);
    }

    void _endInput() {
        static const guint keys[] = {GDK_KEY_Tab, GDK_KEY_Return, GDK_KEY_KP_Enter};
        const double value = form.entry.getValue();
        form.press(keys[_below(3)]);
        EXPECT_EQ(reports, value == formerReport ? 0 : 1);
    }

    void _moveFocus() {
        if (form.entry.is_focus()) {
            const bool isIncomplete = NumericHelper::isIncompleteNumericInput(text);
            const double value = isIncomplete ? 0.0 : form.entry.getValue();
            form.focusOther();
            EXPECT_EQ(reports, value == formerReport ? 0 : 1);
            EXPECT_TRUE(isSame(form.entry.getValue(), value) || reports > 0);
            isWritten = isWritten || isIncomplete || reports > 0;
        } else {
            const double value = form.entry.getValue();
            form.focusEntry();
            // The plain form keeps six digits of a negative value, and calls 0 what is next to it.
            EXPECT_TRUE(isSame(form.entry.getValue(), value) ||
                        std::fabs(form.entry.getValue() - value) <= std::max(std::fabs(value) * 1e-5, 1e-13))
                << "the focus changed the value";
            EXPECT_EQ(reports, 0);
            isWritten = true;
            ++focused;
        }
    }

    void _scroll() {
        form.scroll(static_cast<GdkScrollDirection>(_below(4)));
        EXPECT_EQ(reports == 0 || (form.entry.getUpdateOnScroll() && form.entry.is_focus()), true);
        if (form.entry.is_focus())
            isWritten = true;
        else
            EXPECT_EQ(form.entry.get_text(), text);
    }

    /// With nothing pending the cursor's place is known: behind an accepted character, or where it was.
    void _typeCarefully() {
        test::runPending();
        text = form.entry.get_text();
        form.entry.select_region(form.entry.get_position(), form.entry.get_position());
        static const Glib::ustring keys = "0123456789.,ю-x";
        const gunichar key = keys[_below(static_cast<int>(keys.size()))];
        const int position = form.entry.get_position();
        const Glib::ustring candidate = _inserted(key);
        form.press(gdk_unicode_to_keyval(key));
        test::runPending();
        const bool isAccepted = form.entry.lastAcceptedText == withPoints(candidate).raw() &&
                                form.entry.get_text() == withPoints(candidate);
        const int length = static_cast<int>(form.entry.get_text().size());
        if (withPoints(candidate).raw() != last) {
            EXPECT_EQ(form.entry.get_position(), std::min(position + isAccepted, length)) << candidate.raw();
        }
        _judge(candidate);
    }

    void _set() {
        const double values[] = {0,
                                 1,
                                 -1,
                                 0.1,
                                 1234.5,
                                 1234567,
                                 -0.333,
                                 1e16,
                                 1e-20,
                                 99.99,
                                 std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN()};
        switch (_below(6)) {
        case 0:
        case 1:
            form.entry.setValue(values[_below(12)]);
            isWritten = true;
            break;
        case 2:
            // Half of the time one in which there is room to type.
            limit = _isOneIn(2) ? 0 : _below(9);
            form.entry.setValueRange(limits[limit].range);
            isWritten = true;
            break;
        case 3:
            form.entry.setAutoformat(_isOneIn(2));
            isWritten = true;
            break;
        case 4:
            form.entry.setScrollStep(_isOneIn(3) ? 0.0 : 0.1);
            break;
        default:
            form.entry.setUpdateOnScroll(_isOneIn(2));
        }
        EXPECT_EQ(reports, 0);
        EXPECT_EQ(form.entry.lastAcceptedText, last);
    }

    void _pump() {
        const Glib::ustring before = form.entry.get_text();
        for (int turns = 0; turns < 5 && Gtk::Main::events_pending(); ++turns)
            Gtk::Main::iteration(false);
        EXPECT_EQ(form.entry.get_text(), before);
        EXPECT_EQ(reports, 0);
    }

    void _check() {
        const Glib::ustring now = form.entry.get_text();
        if (!isWritten) {
            EXPECT_EQ(now.raw(), form.entry.lastAcceptedText);
        }
        if (form.entry.lastAcceptedText != last) {
            EXPECT_TRUE(NumericHelper::isNumericInput(form.entry.lastAcceptedText));
            EXPECT_EQ(now.raw(), form.entry.lastAcceptedText);
            isWritten = false;
        }
        int from = 0;
        int to = 0;
        form.entry.get_selection_bounds(from, to);
        const int length = static_cast<int>(now.size());
        EXPECT_TRUE(from >= 0 && from <= to && to <= length);
        EXPECT_TRUE(form.entry.get_position() >= 0 && form.entry.get_position() <= length);
        EXPECT_GE(form.entry.get_width_chars(), 1);
        EXPECT_LE(reports, 1);
        if (testing::Test::HasFailure())
            ADD_FAILURE() << "in step " << history << " of the range " << limit << ", behind \"" << text.raw()
                          << "\" now \"" << now.raw() << "\"";
    }

    int _below(int end) { return static_cast<int>(random() % end); }

    bool _isOneIn(int count) { return _below(count) == 0; }

    test::EntryForm<NumericEntry> form;
    std::mt19937 random;
    Glib::ustring text;
    std::string last;
    double formerReport = 0;
    int reports = 0; ///< in this step
    int limit = 0;
    int history = 0;
    bool isWritten = true; ///< by the entry itself and not through the filter
};

class NumericEntryRandom : public testing::TestWithParam<unsigned int> {};

void run(unsigned int seed, bool hasPicture, int count) {
    // Other locales differ only in what is formatted, for which less will do.
    if (std::getenv("ZEL_TEST_LOCALE"))
        count /= 10;
    Editing editing(seed, hasPicture);
    editing.run(count);
    // All of it has really happened.
    EXPECT_GT(editing.accepted, count / 20);
    EXPECT_GT(editing.refused, count / 10);
    EXPECT_GT(editing.normalized, count / 1000);
    EXPECT_GT(editing.reportedCount, count / 1000);
    EXPECT_GT(editing.focused, count / 1000);
}

TEST_P(NumericEntryRandom, KeepsItsRules) {
    run(GetParam(), false, 230000);
}

TEST_P(NumericEntryRandom, KeepsItsRulesWithAPicture) {
    run(GetParam(), true, 20000);
}

INSTANTIATE_TEST_SUITE_P(Seeds, NumericEntryRandom, testing::Values(1, 2, 3, 4));

} // namespace
