#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/NumericRange.h>

#include <gtkmm/entry.h>

#include <string>

namespace Gtk {
class Menu;
}

namespace Zel {

/// A line for a floating-point number. It vets every edit while it is made and undoes silently what can't
/// become a number of its range's digits. A finished value is reported once, through one signal.
///
/// Each of б, ю, э, the comma, <, >, ' and / typed into it becomes the decimal point: these are the keys on
/// which a Russian or a Latin keyboard has the separators.
///
/// The range limits how many digits may be typed and not the value: up to 100 in steps of 1 admits 999. Only
/// the wheel keeps within min and max, and the owner is expected to put right the value that is reported. A
/// range with a min of 0 or above admits no "-", and whole steps no point. Steps of 10 or more admit only
/// multiples of the power of ten below them, which can be pasted but not typed digit by digit.
class ZEL_API NumericEntry : public Gtk::Entry {
public:
    NumericEntry();
    ~NumericEntry() override;

    /// Tab, Return, the keypad's Enter or the loss of the focus ended the input of another value than the one
    /// that was there when the focus came, or that was reported last. With the update on scroll the wheel
    /// reports, too. A NaN is reported each time. Setting a value never reports it, and values that nobody
    /// listens to do not count as reported.
    sigc::signal<void, double>& signalValueChanged();

    /// Shows the value: with the decimals of the range if the text is formatted and the focus is elsewhere,
    /// otherwise with up to 15 digits (6 for a negative value). Nothing limits it to the range. An edit that
    /// is refused later brings back what was last typed and accepted and not this value; that is meant.
    void setValue(double value);
    /// The value of the text; 0 for a text that is no number yet.
    double getValue() const;

    /// Limits and step of what can be typed; at first -1e16, 1e16 and 1e-9. A step of 0 admits any digits, a
    /// range that spans the whole of double any number. Another range shows the present value anew.
    void setValueRange(const NumericRange& range);
    /// Limits and step as they were set.
    const NumericRange& getValueRange() const;

    /// Whether the text is shown with the decimals of the range while the focus is elsewhere, in the global
    /// locale of the program; off at first. It has no effect on a range with a step of 0. A step of 10 or
    /// more has no decimals of its own and shows six. A change shows the present value anew.
    void setAutoformat(bool value);
    /// Whether the text is formatted.
    bool getAutoformat() const;

    /// The step of the wheel, 0.1 at first; 0 lets the wheel do nothing. What comes back is never below the
    /// step of the range unless it is 0.
    void setScrollStep(double step);
    /// The step that the wheel takes.
    double getScrollStep() const;

    /// Whether the wheel also reports the value; off at first.
    void setUpdateOnScroll(bool value);
    /// Whether the wheel also reports.
    bool getUpdateOnScroll() const;

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
    bool _scroll(GdkEventScroll* event);
    bool _onFocusInIdle();
    bool _unselectText();
    bool _restoreCursor(int position);
    void _onSignalValueChanged();
    void _setText(const std::string& text);
    void _setTextFromValue(double value);
    void _setTextFormatted(double value);
    void _setCharWidth(unsigned long length);
    void _restoreText(int cursorShift);
    bool _isNeedTextFormat() const;
    bool _isRefused(const std::string& text) const;
    Glib::ustring _normalizeTextNumericSeparators(const Glib::ustring& text) const;

    sigc::signal<void, double> valueChanged;
    sigc::connection focusInIdle;
    sigc::connection focusOutIdle;
    sigc::connection changed; ///< blocked while the entry writes its own text
    std::string lastAcceptedText;
    double lastReportedValue = 0.0;
    NumericRange valueRange{-1e16, 1e16, 1e-9};
    bool autoformat = false;
    double scrollStep = 0.1;
    bool updateOnScroll = false;
    Gtk::Menu* customMenu = nullptr;
    /// The shown text with a decimal point and no grouping; empty unless it is formatted.
    std::string formattedPlain;
};

} // namespace Zel
