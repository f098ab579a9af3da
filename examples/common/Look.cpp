#include "Look.h"

#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/diagrams/Style.h>

#include <gtkmm/settings.h>
#include <gtkmm/stylecontext.h>
#include <gtkmm/window.h>

#include <iostream>

namespace examples {

namespace {

const char* const themeVariable = "GTK_THEME";

/// How bright a colour is to the eye, 0 to 1.
double brightnessOf(const Gdk::RGBA& color) {
    return 0.299 * color.get_red() + 0.587 * color.get_green() + 0.114 * color.get_blue();
}

bool loadSheet() {
    try {
        ZelView::Style::setStyle("style.css");
        return true;
    } catch (const Glib::Error& error) {
        std::cerr << "The look of the widgets can't be read from " << Zel::getThemesDir()
                  << "style.css: " << error.what() << '\n';
        return false;
    }
}

} // namespace

void installLook() {
    [[maybe_unused]] static const bool isLoaded = loadSheet();
}

void setDark(bool isDark) {
    // The variable has the last word in Gtk as long as it is there.
    g_unsetenv(themeVariable);
    const auto settings = Gtk::Settings::get_default();
    settings->property_gtk_theme_name() = "Adwaita";
    settings->property_gtk_application_prefer_dark_theme() = isDark;
}

bool isDark() {
    // Light text stands on something dark.
    const Gtk::Window window;
    return brightnessOf(window.get_style_context()->get_color(Gtk::STATE_FLAG_NORMAL)) > 0.5;
}

} // namespace examples
