#include <ZelCommonView/entries/HexEntry.h>

#include <ZelCommonView/common/EmitKept.h>

#include <gdk/gdkkeysyms.h>
#include <glibmm/main.h>
#include <gtkmm/menu.h>

#include <cmath>
#include <ios>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace Zel {

namespace {

/// Cursor and selection change only behind whatever Gtk does with them for the event at hand.
constexpr int idlePriority = 200;

} // namespace

HexEntry::HexEntry() {
    set_width_chars(1);
    set_alignment(1.0F);
    // Ahead of Gtk's own handlers: behind them the cursor would have moved, and Return would be taken.
    changed = signal_changed().connect(sigc::mem_fun(*this, &HexEntry::_onChanged), false);
    signal_key_press_event().connect(sigc::mem_fun(*this, &HexEntry::_keyPress), false);
    // Nothing here handles the wheel; the entry asks for it all the same, as its sibling for numbers does.
    add_events(Gdk::SCROLL_MASK);
    add_events(Gdk::BUTTON_PRESS_MASK);
    signal_button_press_event().connect(sigc::mem_fun(*this, &HexEntry::_buttonPress), false);
}

HexEntry::~HexEntry() {
    focusInIdle.disconnect();
    focusOutIdle.disconnect();
}

sigc::signal<void, int>& HexEntry::signalValueChanged() {
    return valueChanged;
}

void HexEntry::setValue(int value) {
    _setTextFromValue(value);
}

int HexEntry::getValue() const {
    int value = 0;
    return _tryParseHexValue(get_text(), value) ? value : 0;
}

void HexEntry::setValueRange(const NumericRange& range) {
    if (!(range != valueRange))
        return;
    valueRange = range;
    setValue(getValue());
}

const NumericRange& HexEntry::getValueRange() const {
    return valueRange;
}

void HexEntry::setAutoformat(bool value) {
    if (value == autoformat)
        return;
    autoformat = value;
    setValue(getValue());
}

bool HexEntry::getAutoformat() const {
    return autoformat;
}

void HexEntry::setCustomMenu(Gtk::Menu* menu) {
    customMenu = menu;
}

Gtk::Menu* HexEntry::getCustomMenu() const {
    return customMenu;
}

bool HexEntry::on_focus_in_event(GdkEventFocus* event) {
    // The sibling for numbers selects its text here; this entry is meant to leave the cursor alone.
    focusInIdle = Glib::signal_idle().connect(sigc::mem_fun(*this, &HexEntry::_onFocusInIdle), idlePriority);
    _setTextFromValue(getValue());
    return Gtk::Entry::on_focus_in_event(event);
}

bool HexEntry::on_focus_out_event(GdkEventFocus* event) {
    focusOutIdle = Glib::signal_idle().connect(sigc::mem_fun(*this, &HexEntry::_unselectText), idlePriority);
    const bool result = Gtk::Entry::on_focus_out_event(event);
    _onSignalValueChanged();
    return result;
}

void HexEntry::_onChanged() {
    const Glib::ustring text = _normalizeTextNumericSeparators(get_text());
    if (text.raw().find_first_not_of("0123456789abcdefABCDEF") == std::string::npos) {
        // The text is accepted ahead of the range: one outside is brought back as it stands, so that only the
        // cursor goes where it was. That is meant.
        lastAcceptedText = text;
        _setCharWidth(text.size());
        if (valueRange.isFull() || _isInRange(text))
            return;
    }
    const int position = get_position();
    _setText(lastAcceptedText);
    // Each edit keeps its own handler, which dies with the entry.
    Glib::signal_idle().connect(sigc::bind(sigc::mem_fun(*this, &HexEntry::_restoreCursor), position),
                                idlePriority);
}

bool HexEntry::_keyPress(GdkEventKey* event) {
    // Tab and Return differ in this one bit.
    constexpr guint tabOrReturn = GDK_KEY_Tab ^ GDK_KEY_Return;
    if ((event->keyval & ~tabOrReturn) == GDK_KEY_Tab || event->keyval == GDK_KEY_KP_Enter)
        _onSignalValueChanged();
    return false;
}

bool HexEntry::_buttonPress(GdkEventButton* event) {
    if (!customMenu || event->button != GDK_BUTTON_SECONDARY)
        return false;
    customMenu->popup_at_pointer(reinterpret_cast<GdkEvent*>(event));
    return true;
}

bool HexEntry::_onFocusInIdle() {
    lastReportedValue = getValue();
    return false;
}

bool HexEntry::_unselectText() {
    select_region(0, 0);
    return false;
}

bool HexEntry::_restoreCursor(int position) {
    set_position(position);
    return false;
}

void HexEntry::_onSignalValueChanged() {
    if (valueChanged.empty())
        return;
    const int value = getValue();
    if (value == lastReportedValue)
        return;
    lastReportedValue = value;
    emitKept(valueChanged, getValue());
}

// The last accepted text stays as it is, since it is what was typed and not what was set.
void HexEntry::_setText(const std::string& text) {
    changed.block();
    set_text(text);
    _setCharWidth(text.size());
    changed.unblock();
}

void HexEntry::_setTextFromValue(int value) {
    _setText(_formatHexValue(value));
}

void HexEntry::_setCharWidth(unsigned long length) {
    set_width_chars(length == 0 ? 1 : static_cast<int>(length));
}

bool HexEntry::_isInRange(const std::string& text) const {
    int value = 0;
    // The limits stay doubles: cut to a whole number, 1e16 still exceeds the type of the value.
    return _tryParseHexValue(text, value) && value >= std::trunc(valueRange.getMin()) &&
           value <= std::trunc(valueRange.getMax());
}

// The sibling for numbers rewrites separators here. Hexadecimal digits have none.
Glib::ustring HexEntry::_normalizeTextNumericSeparators(const Glib::ustring& text) {
    return text;
}

std::string HexEntry::_formatHexValue(int value) {
    std::ostringstream stream;
    // All that the global locale could add is grouping, which would not read back.
    stream.imbue(std::locale::classic());
    stream << std::hex << std::uppercase << value;
    return stream.str();
}

bool HexEntry::_tryParseHexValue(const std::string& text, int& out) {
    if (text.empty()) {
        out = 0;
        return true;
    }
    try {
        std::size_t length = 0;
        out = std::stoi(text, &length, 16);
        return length == text.size();
    } catch (const std::logic_error&) {
        // Out of range or invalid: both are a text without a value.
        return false;
    }
}

} // namespace Zel
