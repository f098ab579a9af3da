#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/grid.h>
#include <gtkmm/label.h>
#include <gtkmm/togglebutton.h>
#include <gtkmm/window.h>

#include <string>

namespace Zel {

/// A window with a title bar of its own: logo, title, buttons of the application, and minimize, maximize and
/// close. The window manager draws no frame. What the bar looks like comes wholly from the theme, by the
/// style classes "windowTitlebar", "logo", "title", "btnMin", "btnMax" (or "btnUnMax" while maximized) and
/// "btnClose". Gtk moves the window by the bar and resizes it by its edges.
class ZEL_API Window : public Gtk::Window {
public:
    Window();
    ~Window() override;

    /// Sets the text in the bar and the one that the window manager shows. It hides the operation of
    /// `Gtk::Window`, which would set only the latter.
    void set_title(const std::string& value);

    /// Puts a widget of the application beside those that are in the bar already, and shows the whole window.
    /// The widget stays the caller's; null is ignored.
    void setUserButtons(Gtk::Widget* widget);
    /// Takes all of the application's widgets out of the bar; none is deleted.
    void removeUserButtons();

private:
    void _compose();
    void _composeWindowButtons();
    void _onShow();
    void _onBtnCloseClicked();
    void _onBtnMinClicked();
    void _onBtnMaxToggled();

    Gtk::Grid titleBar;
    Gtk::Box logo{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Label title;
    Gtk::Grid userButtons;
    Gtk::Grid windowButtons;
    Gtk::Button btnClose;
    Gtk::ToggleButton btnMax; ///< active means maximized
    Gtk::Button btnMin;
};

} // namespace Zel
