#pragma once

#include <ZelCommonView/common/Export.h>

#include <string>

namespace Gtk {
class Widget;
}

namespace ZelView {

/// Loads style sheets of the theme, which win over those of the user and over the font size of
/// `StyleZoomHelper`. What is loaded is never taken back. For the GTK thread.
///
/// A file that can't be read and a sheet that can't be parsed throw what `Gtk::CssProvider::load_from_path`
/// throws, and then nothing has changed.
class ZEL_API Style {
public:
    Style() = delete;

    /// Applies a file of the folder `Zel::getThemesDir()` to the whole screen.
    static void setStyle(const std::string& name);
    /// Gives the widget a style class and the theme's "style.css" for itself alone, without its children.
    static void setStyleClass(Gtk::Widget* widget, const std::string& styleClass);
};

} // namespace ZelView
