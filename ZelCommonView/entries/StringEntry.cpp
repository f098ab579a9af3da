#include <ZelCommonView/entries/StringEntry.h>

#include <ZelCommonView/common/EmitKept.h>

#include <glibmm/main.h>

namespace Zel {

StringEntry::StringEntry() {
    // All before Gtk's own handlers, which would keep what they take from the others.
    signal_changed().connect(sigc::mem_fun(*this, &StringEntry::_onChanged), false);
    add_events(Gdk::BUTTON_PRESS_MASK);
    signal_button_press_event().connect(sigc::mem_fun(*this, &StringEntry::_buttonPress), false);
    signal_key_press_event().connect(sigc::mem_fun(*this, &StringEntry::_keyPress), false);
}

StringEntry::~StringEntry() {
    focusInIdle.disconnect();
    focusOutIdle.disconnect();
}

void StringEntry::setAutosize(bool value) {
    if (autosize == value)
        return;
    autosize = value;
    if (autosize)
        _onChanged();
    else
        set_width_chars(-1);
}

void StringEntry::setCustomMenu(Gtk::Menu* menu) {
    customMenu = menu;
}

void StringEntry::_onChanged() {
    if (!autosize)
        return;
    const int length = get_text_length();
    set_width_chars(length == 0 ? 2 : length + 1);
}

bool StringEntry::_keyPress(GdkEventKey* event) {
    switch (event->keyval) {
    case GDK_KEY_Tab:
    case GDK_KEY_Return:
    case GDK_KEY_KP_Enter:
        _onSignalValueChanged();
        break;
    default:
        break;
    }
    // The key still does what it does everywhere: move the focus or press the window's default button.
    return false;
}

bool StringEntry::_buttonPress(GdkEventButton* event) {
    Gtk::Menu* const menu = customMenu;
    if (!menu || event->button != GDK_BUTTON_SECONDARY)
        return false;
    menu->popup_at_pointer(reinterpret_cast<GdkEvent*>(event));
    return true;
}

void StringEntry::_onSignalValueChanged() {
    if (valueChanged.empty())
        return;
    const std::string text = get_text();
    if (text == lastReportedText)
        return;
    lastReportedText = text;
    emitKept(valueChanged, text);
}

bool StringEntry::on_focus_in_event(GdkEventFocus* event) {
    lastReportedText = get_text();
    // Later, since the click that brought the focus still places the cursor.
    focusInIdle = Glib::signal_idle().connect(sigc::mem_fun(*this, &StringEntry::_selectAll),
                                              Glib::PRIORITY_DEFAULT_IDLE);
    return Gtk::Entry::on_focus_in_event(event);
}

bool StringEntry::on_focus_out_event(GdkEventFocus* event) {
    WidgetReference<StringEntry> self;
    self = this;
    _onSignalValueChanged();
    // A listener has deleted the entry.
    if (!self)
        return false;
    focusOutIdle = Glib::signal_idle().connect(sigc::mem_fun(*this, &StringEntry::_unselect),
                                               Glib::PRIORITY_DEFAULT_IDLE);
    return Gtk::Entry::on_focus_out_event(event);
}

bool StringEntry::_selectAll() {
    select_region(0, -1);
    return false;
}

bool StringEntry::_unselect() {
    select_region(0, 0);
    return false;
}

} // namespace Zel
