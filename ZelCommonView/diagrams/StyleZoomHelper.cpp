#include <ZelCommonView/diagrams/StyleZoomHelper.h>

#include <gdkmm/screen.h>
#include <gtkmm/cssprovider.h>
#include <gtkmm/stylecontext.h>

#include <algorithm>
#include <cstdio>

namespace ZelView {

namespace {

constexpr std::int32_t minSize = 10;
constexpr std::int32_t maxSize = 24;
constexpr std::int32_t defaultSize = 14;
constexpr std::int32_t step = 1;
constexpr guint priority = 900; // above GTK_STYLE_PROVIDER_PRIORITY_USER, below the sheets of `Style`

} // namespace

std::int32_t StyleZoomHelper::_fontSize = defaultSize;

void StyleZoomHelper::setFontSize(int size) {
    const auto screen = Gdk::Screen::get_default();
    auto& fontProvider = _getFontProvider();
    if (fontProvider)
        Gtk::StyleContext::remove_provider_for_screen(screen, fontProvider);
    fontProvider = Gtk::CssProvider::create();
    char text[64];
    std::snprintf(text, sizeof text, "* { font-size: %dpx; }", size);
    fontProvider->load_from_data(text);
    Gtk::StyleContext::add_provider_for_screen(screen, fontProvider, priority);
}

void StyleZoomHelper::zoomOut() {
    _fontSize = std::max(_fontSize - step, minSize);
    setFontSize(_fontSize);
}

void StyleZoomHelper::zoomIn() {
    _fontSize = std::min(_fontSize + step, maxSize);
    setFontSize(_fontSize);
}

void StyleZoomHelper::zoomDefault() {
    _fontSize = defaultSize;
    setFontSize(_fontSize);
}

Glib::RefPtr<Gtk::CssProvider>& StyleZoomHelper::_getFontProvider() {
    // Never destroyed: at the end of the program GTK may be gone already.
    static auto& fontProvider = *new Glib::RefPtr<Gtk::CssProvider>;
    return fontProvider;
}

} // namespace ZelView
