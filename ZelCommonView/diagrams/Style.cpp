#include <ZelCommonView/diagrams/Style.h>

#include <ZelCommonView/common/Directories.h>

#include <gdkmm/screen.h>
#include <gtkmm/cssprovider.h>
#include <gtkmm/stylecontext.h>
#include <gtkmm/widget.h>

namespace ZelView {

namespace {

constexpr guint priority = 1000; // above GTK_STYLE_PROVIDER_PRIORITY_USER

} // namespace

void Style::setStyle(const std::string& name) {
    const auto provider = Gtk::CssProvider::create();
    provider->load_from_path(Zel::getThemesDir() + name);
    Gtk::StyleContext::add_provider_for_screen(Gdk::Screen::get_default(), provider, priority);
}

void Style::setStyleClass(Gtk::Widget* widget, const std::string& styleClass) {
    const auto provider = Gtk::CssProvider::create();
    provider->load_from_path(Zel::getThemesDir() + "style.css");
    widget->get_style_context()->add_class(styleClass);
    widget->get_style_context()->add_provider(provider, priority);
}

} // namespace ZelView
