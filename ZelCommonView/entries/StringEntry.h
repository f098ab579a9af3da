#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/WidgetReference.h>

#include <gtkmm/entry.h>
#include <gtkmm/menu.h>

#include <string>

namespace Zel {

/// A line of text that grows with what is typed, selects everything when it gets the focus and reports the
/// text once for each finished edit. The text itself is that of `Gtk::Entry`: `set_text`, `get_text`.
class ZEL_API StringEntry : public Gtk::Entry {
public:
    StringEntry();
    ~StringEntry() override;
    StringEntry(const StringEntry&) = delete;
    StringEntry& operator=(const StringEntry&) = delete;

    /// Whether the width follows the text: one character more than the text has, and two characters for an
    /// empty one. True at first, and it holds from the first change of the text on. False gives the width
    /// back to Gtk. The same value again changes nothing.
    void setAutosize(bool value);

    /// Whether the width follows the text.
    bool getAutosize() const { return autosize; }

    /// The menu that the right button shows in place of Gtk's own; null, which is the default, for Gtk's own.
    /// It stays the caller's; one that dies is forgotten.
    void setCustomMenu(Gtk::Menu* menu);

    /// The menu that was set; null for Gtk's own.
    Gtk::Menu* getCustomMenu() const { return customMenu; }

    /// A finished edit: the text, when Tab, Return or the keypad's Enter is pressed or the focus goes, if it
    /// differs from what was reported last and from what stood there when the focus came. A text that nobody
    /// listened to doesn't count as reported.
    sigc::signal<void, std::string>& signalValueChanged() { return valueChanged; }

protected:
    bool on_focus_in_event(GdkEventFocus* event) override;
    bool on_focus_out_event(GdkEventFocus* event) override;

    /// An edit is finished: reports the text if it differs from the last one and if anyone listens.
    void _onSignalValueChanged();

private:
    void _onChanged();
    bool _keyPress(GdkEventKey* event);
    bool _buttonPress(GdkEventButton* event);
    bool _selectAll();
    bool _unselect();

    sigc::connection focusInIdle;
    sigc::connection focusOutIdle;
    std::string lastReportedText; ///< when the focus came, or reported since
    bool autosize = true;
    sigc::signal<void, std::string> valueChanged;
    WidgetReference<Gtk::Menu> customMenu; ///< not owned
};

} // namespace Zel
