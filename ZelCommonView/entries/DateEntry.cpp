#include <ZelCommonView/entries/DateEntry.h>

#include <gtk/gtk.h>

#include <cstdio>

namespace Zel {

DateEntry::DateEntry() {
    calendar.get_style_context()->add_class("DateEntryCalendar");
    set_input_purpose(Gtk::INPUT_PURPOSE_NUMBER);
    set_icon_from_icon_name("x-office-calendar", Gtk::ENTRY_ICON_SECONDARY);
    signal_icon_press().connect(sigc::mem_fun(*this, &DateEntry::_onCalendarClick), false);
    calendar.signal_day_selected().connect(sigc::mem_fun(*this, &DateEntry::_onCalendarDateChanged), false);
    // The focus comes back to the entry with the text of the chosen day, which then is nothing new any more.
    closedConnection =
        popover.signal_closed().connect(sigc::mem_fun(*this, &DateEntry::_onSignalValueChanged), false);
    box.set_orientation(Gtk::ORIENTATION_VERTICAL);
    box.pack_start(calendar, Gtk::PACK_EXPAND_WIDGET, 0);
    box.show_all();
    popover.add(box);
    popover.set_relative_to(*this);
    popover.set_position(Gtk::POS_BOTTOM);
    show_all();
}

DateEntry::~DateEntry() {
    // An open calendar closes with the entry, which is no edit.
    closedConnection.disconnect();
}

void DateEntry::on_hierarchy_changed(Gtk::Widget* previousToplevel) {
    StringEntry::on_hierarchy_changed(previousToplevel);
    const bool isOffscreen = GTK_IS_OFFSCREEN_WINDOW(gtk_widget_get_toplevel(Gtk::Widget::gobj()));
    gtk_popover_set_relative_to(popover.gobj(), isOffscreen ? nullptr : Gtk::Widget::gobj());
}

void DateEntry::_onCalendarClick(Gtk::EntryIconPosition position, const GdkEventButton*) {
    if (position == Gtk::ENTRY_ICON_SECONDARY && !popover.get_visible()) {
        popover.popup();
        show_all();
    } else {
        popover.popdown();
    }
}

void DateEntry::_onCalendarDateChanged() {
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    calendar.get_date(year, month, day);
    _updateDateEntry(year, month, day);
}

void DateEntry::_updateDateEntry(unsigned year, unsigned month, unsigned day) {
    char text[20];
    std::snprintf(text, sizeof text, "%02d:%02d:%d", static_cast<int>(day), static_cast<int>(month + 1),
                  static_cast<int>(year));
    set_text(text);
}

} // namespace Zel
