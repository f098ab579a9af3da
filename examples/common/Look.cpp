#include "Look.h"

#include <ZelCommonView/common/Directories.h>

#include <gdkmm/screen.h>
#include <gtkmm/cssprovider.h>
#include <gtkmm/stylecontext.h>

#include <iostream>

namespace examples {

void installLook() {
    static const Glib::RefPtr<Gtk::CssProvider> provider = [] {
        const auto made = Gtk::CssProvider::create();
        const std::string path = Zel::getThemesDir() + "style.css";
        try {
            made->load_from_path(path);
        } catch (const Glib::Error& error) {
            std::cerr << "The look of the widgets can't be read from " << path << ": " << error.what()
                      << '\n';
        }
        Gtk::StyleContext::add_provider_for_screen(Gdk::Screen::get_default(), made,
                                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
        return made;
    }();
}

} // namespace examples
