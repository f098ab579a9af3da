#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/NumericRange.h>

#include <gtkmm/entry.h>

#include <string>

namespace Gtk {
class Menu;
}

namespace Zel {

/// A line for a whole number in hexadecimal digits, without prefix, grouping or fixed width. Any other
/// character is taken back silently. A finished value is reported once, through one signal.
///
/// A negative value is shown as the 32 bits that it is made of, such as FFFFFFFF, but such a text doesn't
/// read back: everything above 7FFFFFFF has the value 0. That is meant.
class ZEL_API HexEntry : public Gtk::Entry {
public:
    HexEntry();
    ~HexEntry() override;

    /// Tab, Return, the keypad's Enter or the loss of the focus ended the input of another value than the one
    /// that was there when the focus came, or that was reported last. Setting a value never reports it, and
    /// values that nobody listens to do not count as reported.
    sigc::signal<void, int>& signalValueChanged();

    /// Shows the value in capital letters. An edit that is refused later brings back what was typed last and
    /// not this value; that is meant.
    void setValue(int value);
    /// The value of the text; 0 for the empty text and for one above 7FFFFFFF.
    int getValue() const;

    /// Limits of the value, cut to whole numbers; at first -1e16 and 1e16. They refuse nothing: while the
    /// typed value lies outside, the cursor stays in front of each new character, and the owner is expected
    /// to put right the value that is reported. Another range shows the present value anew.
    void setValueRange(const NumericRange& range);
    /// The limits as they were set.
    const NumericRange& getValueRange() const;

    /// A flag that has no effect but that a change shows the present value anew; off at first.
    void setAutoformat(bool value);
    /// The flag.
    bool getAutoformat() const;

    /// The menu of the right button instead of the usual one; not owned, null for the usual one.
    void setCustomMenu(Gtk::Menu* menu);
    /// The menu that was set; null for the usual one.
    Gtk::Menu* getCustomMenu() const;

protected:
    bool on_focus_in_event(GdkEventFocus* event) override;
    bool on_focus_out_event(GdkEventFocus* event) override;

private:
    void _onChanged();
    bool _keyPress(GdkEventKey* event);
    bool _buttonPress(GdkEventButton* event);
    bool _onFocusInIdle();
    bool _unselectText();
    bool _restoreCursor(int position);
    void _onSignalValueChanged();
    void _setText(const std::string& text);
    void _setTextFromValue(int value);
    void _setCharWidth(unsigned long length);
    bool _isInRange(const std::string& text) const;
    static Glib::ustring _normalizeTextNumericSeparators(const Glib::ustring& text);
    static std::string _formatHexValue(int value);
    static bool _tryParseHexValue(const std::string& text, int& out);

    sigc::signal<void, int> valueChanged;
    sigc::connection focusInIdle;
    sigc::connection focusOutIdle;
    sigc::connection changed; ///< blocked while the entry writes its own text
    std::string lastAcceptedText;
    int lastReportedValue = 0;
    NumericRange valueRange{-1e16, 1e16, 1e-9};
    bool autoformat = false;
    Gtk::Menu* customMenu = nullptr;
};

} // namespace Zel
