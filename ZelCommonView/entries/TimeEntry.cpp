#include <ZelCommonView/entries/TimeEntry.h>

#include <ZelCommonView/common/EmitKept.h>

#include <glibmm/main.h>

#include <algorithm>
#include <array>

namespace Zel {

namespace {

constexpr int partCount = 3;
constexpr std::array<int, partCount> limits{24, 60, 60};

using Parts = std::array<Glib::ustring, partCount>;

constexpr auto npos = Glib::ustring::npos;

/// The parts of a text with two colons.
Parts split(const Glib::ustring& text) {
    const auto first = text.find(':');
    const auto second = text.find(':', first + 1);
    return {text.substr(0, first), text.substr(first + 1, second - first - 1), text.substr(second + 1)};
}

Glib::ustring join(const Parts& parts) {
    return parts[0] + ":" + parts[1] + ":" + parts[2];
}

/// Where the part with the character behind `pos` begins.
int findPartStart(const Glib::ustring& text, int pos) {
    if (pos < 1)
        return pos;
    const auto separator = text.rfind(':', pos - 1);
    return separator == npos ? 0 : static_cast<int>(separator) + 1;
}

/// Where the part with the character behind `pos` ends, before a ":" or with the text.
int findPartEnd(const Glib::ustring& text, int pos) {
    while (pos < static_cast<int>(text.length()) && text[pos] != ':')
        ++pos;
    return pos;
}

/// Whether the cursor, still before the character that was just typed, stands behind the first of two
/// characters of its part.
bool isSecondCharacter(const Parts& parts, int pos) {
    int start = 0;
    for (const Glib::ustring& part : parts) {
        const int length = static_cast<int>(part.length());
        if (pos <= start + length)
            return length == 2 && pos == start + 1;
        start += length + 1;
    }
    return false;
}

bool isInRange(const Glib::ustring& part, int limit) {
    return std::stoi(part.raw()) < limit;
}

/// Whether the part may stand: empty, or a number below the limit without a leading zero.
bool isAcceptable(const Glib::ustring& part, int limit) {
    if (part.empty())
        return true;
    // Digits of other scripts are none here.
    const bool isNumber =
        std::all_of(part.begin(), part.end(), [](gunichar c) { return c >= '0' && c <= '9'; });
    return isNumber && (part.length() == 1 || part[0] != '0') && isInRange(part, limit);
}

} // namespace

TimeEntry::TimeEntry() : lastValidTime("0:0:0") {
    set_max_length(8);
    set_text(lastValidTime);
    set_input_purpose(Gtk::INPUT_PURPOSE_NUMBER);
    changedConnection = signal_changed().connect(sigc::mem_fun(*this, &TimeEntry::_onTimeChanged), false);
    signal_key_press_event().connect(sigc::mem_fun(*this, &TimeEntry::_onTimeKeyPress), false);
    signal_button_release_event().connect(sigc::mem_fun(*this, &TimeEntry::_onTimeButtonRelease), false);
}

TimeEntry::~TimeEntry() = default;

void TimeEntry::setData(std::string text) {
    // Gtk takes nothing but Unicode; what isn't is replaced by a character that is refused.
    set_text(Glib::ustring(text).make_valid());
}

std::string TimeEntry::getData() {
    return get_text();
}

void TimeEntry::setContextMenu(IView* menu) {
    setCustomMenu(dynamic_cast<Gtk::Menu*>(menu));
}

bool TimeEntry::_onTimeKeyPress(GdkEventKey* event) {
    switch (event->keyval) {
    case GDK_KEY_colon:
    case GDK_KEY_Tab:
    case GDK_KEY_Right:
        _selectNextTimePart(get_position());
        return true;
    case GDK_KEY_Left:
        _selectPreviousTimePart(get_position());
        return true;
    case GDK_KEY_BackSpace:
    case GDK_KEY_Delete:
        return _clearSelectedPart();
    case GDK_KEY_Copy:
    case GDK_KEY_Cut:
        // A time without its part would be none, so cutting only copies.
        copy_clipboard();
        return true;
    default:
        return false;
    }
}

bool TimeEntry::_clearSelectedPart() {
    int start = 0;
    int end = 0;
    if (!get_selection_bounds(start, end) || start == end || end - start > 2)
        return false;
    const Glib::ustring text = get_text();
    set_text(text.substr(0, start) + "0" + text.substr(end));
    _selectTimePartAtPosition(start);
    return true;
}

void TimeEntry::_selectTimePartAtPosition(int pos) {
    const Glib::ustring text = get_text();
    select_region(findPartStart(text, pos), findPartEnd(text, pos));
}

void TimeEntry::_selectNextTimePart(int pos) {
    const Glib::ustring text = get_text();
    const auto separator = text.find(':', pos);
    // The seconds are the last part; it doesn't go round to the hours.
    if (separator == npos)
        return;
    const int start = static_cast<int>(separator) + 1;
    select_region(start, findPartEnd(text, start));
}

void TimeEntry::_selectPreviousTimePart(int pos) {
    const Glib::ustring text = get_text();
    const auto separator = text.rfind(':', std::max(pos - 1, 0));
    if (separator == npos)
        return;
    const int end = static_cast<int>(separator);
    select_region(findPartStart(text, end), end);
}

bool TimeEntry::_onTimeButtonRelease(GdkEventButton*) {
    int start = 0;
    int end = 0;
    const Glib::ustring text = get_text();
    const int length = static_cast<int>(text.length());
    if (!get_selection_bounds(start, end) || start == end || start < 0 || end > length)
        return false;
    // Everything is selected when the focus comes.
    if (start == 0 && end == length)
        return false;
    const auto separator = text.find(':', start);
    if (separator == npos || static_cast<int>(separator) >= end)
        return false;
    start = findPartStart(text, start);
    select_region(start, findPartEnd(text, start));
    return true;
}

void TimeEntry::_onTimeChanged() {
    const Glib::ustring text = get_text();
    if (text.empty() || std::count(text.begin(), text.end(), gunichar{':'}) != partCount - 1) {
        _restore();
        return;
    }

    const Parts parts = split(text);
    const int pos = get_position();
    // An empty part stays empty until it is typed and isn't filled with a digit.
    if (std::any_of(parts.begin(), parts.end(), [](const Glib::ustring& part) { return part.empty(); })) {
        _setTextBlocked(join(parts));
        if (pos <= get_text_length())
            set_position(pos);
    }

    // Before the part is judged: where the second digit is refused, the next part is selected all the same.
    if (pos > 0 && isSecondCharacter(parts, pos))
        Glib::signal_idle().connect_once(
            sigc::bind(sigc::mem_fun(*this, &TimeEntry::_selectNextTimePart), pos),
            Glib::PRIORITY_DEFAULT_IDLE);

    for (int i = 0; i < partCount; ++i)
        if (!isAcceptable(parts[i], limits[i])) {
            _restore();
            _emitDataChanged();
            return;
        }

    for (int i = 0; i < partCount; ++i)
        if (parts[i].empty() || parts[i].length() > 2 || !isInRange(parts[i], limits[i]))
            return;
    lastValidTime = text;
    _emitDataChanged();
}

void TimeEntry::_setTextBlocked(const Glib::ustring& text) {
    changedConnection.block();
    set_text(text);
    changedConnection.unblock();
}

void TimeEntry::_restore() {
    _setTextBlocked(lastValidTime);
}

void TimeEntry::_emitDataChanged() {
    emitKept(dataChanged, true, lastValidTime);
}

} // namespace Zel
