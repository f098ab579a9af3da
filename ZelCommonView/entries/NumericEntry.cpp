#include <ZelCommonView/entries/NumericEntry.h>

#include <ZelCommonView/common/ApproximateLogic.h>
#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/NumericHelper.h>
#include <ZelCommonView/entries/NumericConversion.h>

#include <gdk/gdkkeysyms.h>
#include <glibmm/main.h>
#include <glibmm/regex.h>
#include <gtkmm/menu.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace Zel {

namespace {

const ApproximateTolerance sharedTolerance{1e-10, 1e-10};

/// Cursor and selection change only behind whatever Gtk does with them for the event at hand.
constexpr int idlePriority = 200;
/// The digits that a plain text of a value does without, so that rounding errors stay hidden.
constexpr int reservedDigits = 2;

/// May be below zero, infinite or NaN.
double getDecimals(const NumericRange& range) {
    return -std::floor(std::log10(range.getStep()));
}

/// One less than the number of digits in front of the point; may be infinite or NaN.
double getIntegerExponent(const NumericRange& range) {
    return std::floor(std::log10(std::max(std::fabs(range.getMin()), std::fabs(range.getMax()))));
}

bool hasTooManyDigits(const std::string& text, double value, const NumericRange& range) {
    const double decimals = getDecimals(range);
    const double top = std::pow(10.0, getIntegerExponent(range) + 1.0);
    const double low = std::pow(10.0, -decimals);
    const NumericRange digits(-(top - low), top - low, low);
    // The multiples are counted from zero: from a min of -1e17 they would have no digits left behind the
    // point.
    const double limited = ApproximateLogic::limitValue(value, digits, sharedTolerance, false, true);
    if (!ApproximateLogic::equals(value, limited, {1e-10, range.getStep()}))
        return true;
    // Zeros at the end change no value, so they are counted.
    const std::size_t point = text.find('.');
    return point != std::string::npos && static_cast<double>(text.size() - point - 1) > decimals;
}

std::string printFixed(double value, double decimals, const std::locale& locale) {
    std::ostringstream stream;
    stream.imbue(locale);
    // A stream takes a negative number of decimals for its own six.
    stream.precision(std::isfinite(decimals) ? static_cast<std::streamsize>(decimals) : -1);
    stream << std::fixed << value;
    return stream.str();
}

} // namespace

NumericEntry::NumericEntry() {
    set_width_chars(1);
    set_alignment(1.0F);
    // Ahead of Gtk's own handlers: behind them the cursor would have moved, and Return would be taken.
    changed = signal_changed().connect(sigc::mem_fun(*this, &NumericEntry::_onChanged), false);
    signal_key_press_event().connect(sigc::mem_fun(*this, &NumericEntry::_keyPress), false);
    add_events(Gdk::SCROLL_MASK);
    add_events(Gdk::BUTTON_PRESS_MASK);
    signal_button_press_event().connect(sigc::mem_fun(*this, &NumericEntry::_buttonPress), false);
    signal_scroll_event().connect(sigc::mem_fun(*this, &NumericEntry::_scroll), false);
}

NumericEntry::~NumericEntry() {
    focusInIdle.disconnect();
    focusOutIdle.disconnect();
}

sigc::signal<void, double>& NumericEntry::signalValueChanged() {
    return valueChanged;
}

void NumericEntry::setValue(double value) {
    if (!is_focus() && _isNeedTextFormat())
        _setTextFormatted(value);
    else
        _setTextFromValue(value);
}

double NumericEntry::getValue() const {
    double value = 0.0;
    // The global locale may write a comma and group the digits. Read as it stands, 1.234 of a German program
    // would be a thousandth of itself, and the next focus would make that the value.
    tryConvert<double, true>(formattedPlain.empty() ? get_text().raw() : formattedPlain, value);
    return value;
}

void NumericEntry::setValueRange(const NumericRange& range) {
    if (!(range != valueRange))
        return;
    valueRange = range;
    setValue(getValue());
}

const NumericRange& NumericEntry::getValueRange() const {
    return valueRange;
}

void NumericEntry::setAutoformat(bool value) {
    if (value == autoformat)
        return;
    autoformat = value;
    setValue(getValue());
}

bool NumericEntry::getAutoformat() const {
    return autoformat;
}

void NumericEntry::setScrollStep(double step) {
    scrollStep = step;
}

double NumericEntry::getScrollStep() const {
    return scrollStep == 0.0 ? 0.0 : std::max(scrollStep, valueRange.getStep());
}

void NumericEntry::setUpdateOnScroll(bool value) {
    updateOnScroll = value;
}

bool NumericEntry::getUpdateOnScroll() const {
    return updateOnScroll;
}

void NumericEntry::setCustomMenu(Gtk::Menu* menu) {
    customMenu = menu;
}

Gtk::Menu* NumericEntry::getCustomMenu() const {
    return customMenu;
}

bool NumericEntry::on_focus_in_event(GdkEventFocus* event) {
    focusInIdle =
        Glib::signal_idle().connect(sigc::mem_fun(*this, &NumericEntry::_onFocusInIdle), idlePriority);
    if (_isNeedTextFormat())
        _setTextFromValue(getValue());
    return Gtk::Entry::on_focus_in_event(event);
}

bool NumericEntry::on_focus_out_event(GdkEventFocus* event) {
    if (NumericHelper::isIncompleteNumericInput(get_text()))
        setValue(0.0);
    focusOutIdle =
        Glib::signal_idle().connect(sigc::mem_fun(*this, &NumericEntry::_unselectText), idlePriority);
    const bool result = Gtk::Entry::on_focus_out_event(event);
    // The text stays as it was typed: it is formatted when the owner answers with setValue.
    _onSignalValueChanged();
    return result;
}

// Typing over a selection is two edits: the selected text goes, and the typed one comes. Each is judged, so a
// first one that is refused brings everything back with the cursor at the start, where the second then takes
// place.
void NumericEntry::_onChanged() {
    formattedPlain.clear();
    const Glib::ustring text = get_text();
    const Glib::ustring normalized = _normalizeTextNumericSeparators(text);
    if (_isRefused(normalized)) {
        _restoreText(0);
        return;
    }
    lastAcceptedText = normalized;
    // The cursor still stands where the character was typed, so it has to get behind that one.
    if (normalized != text)
        _restoreText(1);
    else
        _setCharWidth(normalized.bytes());
}

bool NumericEntry::_keyPress(GdkEventKey* event) {
    // Tab and Return differ in this one bit.
    constexpr guint tabOrReturn = GDK_KEY_Tab ^ GDK_KEY_Return;
    if ((event->keyval & ~tabOrReturn) == GDK_KEY_Tab || event->keyval == GDK_KEY_KP_Enter)
        _onSignalValueChanged();
    return false;
}

bool NumericEntry::_buttonPress(GdkEventButton* event) {
    if (!customMenu || event->button != GDK_BUTTON_SECONDARY)
        return false;
    customMenu->popup_at_pointer(reinterpret_cast<GdkEvent*>(event));
    return true;
}

// The wheel never gets through to the parent, so that a page doesn't scroll away under the entry.
bool NumericEntry::_scroll(GdkEventScroll* event) {
    const double step = getScrollStep();
    if (!is_focus() || step == 0.0)
        return true;
    if (event->direction == GDK_SCROLL_UP)
        setValue(std::min(valueRange.getMax(), getValue() + step));
    else if (event->direction == GDK_SCROLL_DOWN)
        setValue(std::max(valueRange.getMin(), getValue() - step));
    if (updateOnScroll)
        _onSignalValueChanged();
    return true;
}

bool NumericEntry::_onFocusInIdle() {
    lastReportedValue = getValue();
    select_region(0, -1);
    return false;
}

bool NumericEntry::_unselectText() {
    select_region(0, 0);
    return false;
}

bool NumericEntry::_restoreCursor(int position) {
    set_position(position);
    return false;
}

void NumericEntry::_onSignalValueChanged() {
    if (valueChanged.empty())
        return;
    const double value = getValue();
    if (value == lastReportedValue)
        return;
    lastReportedValue = value;
    emitKept(valueChanged, getValue());
}

// The last accepted text stays as it is, since it is what was typed and not what was set.
void NumericEntry::_setText(const std::string& text) {
    formattedPlain.clear();
    changed.block();
    set_text(text);
    _setCharWidth(text.size());
    changed.unblock();
}

void NumericEntry::_setTextFromValue(double value) {
    _setText(convertToString<double, true>(value, reservedDigits));
}

void NumericEntry::_setTextFormatted(double value) {
    const double decimals = getDecimals(valueRange);
    _setText(printFixed(value, decimals, std::locale()));
    formattedPlain = printFixed(value, decimals, std::locale::classic());
}

void NumericEntry::_setCharWidth(unsigned long length) {
    double width = static_cast<double>(length);
    if (_isNeedTextFormat()) {
        // The exponent is one less than the digits in front of the point, and nothing makes up for it: the
        // entry is meant to be that narrow.
        const double decimals = getDecimals(valueRange);
        width = valueRange.getMin() < 0.0 || valueRange.getMax() < 0.0 ? 1.0 : 0.0;
        width += getIntegerExponent(valueRange);
        width += decimals > 0.0 ? decimals + 1.0 : 0.0;
    }
    // A range of nothing but 0 or without an end has no width.
    const bool isWidth = width >= 1.0 && width <= std::numeric_limits<int>::max();
    set_width_chars(isWidth ? static_cast<int>(width) : 1);
}

void NumericEntry::_restoreText(int cursorShift) {
    const int position = get_position() + cursorShift;
    _setText(lastAcceptedText);
    // Each edit keeps its own handler, which dies with the entry.
    Glib::signal_idle().connect(sigc::bind(sigc::mem_fun(*this, &NumericEntry::_restoreCursor), position),
                                idlePriority);
}

bool NumericEntry::_isNeedTextFormat() const {
    return autoformat && valueRange.getStep() != 0.0;
}

bool NumericEntry::_isRefused(const std::string& text) const {
    if (!NumericHelper::isNumericInput(text))
        return true;
    if (!text.empty() && text.front() == '-' && !(valueRange.getMin() < 0.0))
        return true;
    const double step = valueRange.getStep();
    if (step != 0.0 && ApproximateLogic::equals(step, std::round(step), sharedTolerance) &&
        text.find('.') != std::string::npos)
        return true;
    double value = 0.0;
    return !valueRange.isFull() && tryConvert<double, true>(text, value) && std::isfinite(value) &&
           hasTooManyDigits(text, value, valueRange);
}

Glib::ustring NumericEntry::_normalizeTextNumericSeparators(const Glib::ustring& text) const {
    return Glib::Regex::create("[бюэ,<>'/]")->replace(text, 0, ".", Glib::REGEX_MATCH_NOTEMPTY);
}

} // namespace Zel
