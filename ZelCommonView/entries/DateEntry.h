#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/entries/StringEntry.h>

#include <gtkmm/box.h>
#include <gtkmm/calendar.h>
#include <gtkmm/popover.h>

namespace Zel {

/// A date as a text, with a calendar that an icon at the end of the line opens and closes. A day that is
/// chosen there replaces the text by day, month and year, such as "07:03:2024", and leaves the calendar open;
/// the edit is finished and reported when the calendar closes.
///
/// The text can be edited freely and isn't checked, and the calendar doesn't follow it. The calendar carries
/// the style class "DateEntryCalendar".
class ZEL_API DateEntry : public StringEntry {
public:
    DateEntry();
    ~DateEntry() override;

protected:
    /// Takes the calendar off while the entry stands in a `Gtk::OffscreenWindow`, which shows none and where
    /// Gtk would complain of it at each paint.
    void on_hierarchy_changed(Gtk::Widget* previousToplevel) override;

private:
    void _onCalendarClick(Gtk::EntryIconPosition position, const GdkEventButton* event);
    void _onCalendarDateChanged();
    /// `month` counts from 0, as that of the calendar does.
    void _updateDateEntry(unsigned year, unsigned month, unsigned day);

    Gtk::Box box;
    Gtk::Popover popover;
    Gtk::Calendar calendar;
    sigc::connection closedConnection;
};

} // namespace Zel
