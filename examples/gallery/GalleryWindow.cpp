#include "GalleryWindow.h"

#include "common/Look.h"
#include "common/TextZoom.h"

namespace gallery {

namespace {

constexpr int margin = 8; // pixels

} // namespace

GalleryWindow::GalleryWindow(const std::string& firstPage) {
    examples::installLook();
    set_default_size(1200, 760);
    for (const Page& page : allPages())
        stack.add(places.emplace_back(), page.name, page.getTitle());
    _compose();
    _setTexts();
    show_all_children();
    examples::installTextZoom(*this);
    // Only a visible child can be chosen.
    if (!firstPage.empty())
        stack.set_visible_child(firstPage);
    _makePage();
    stack.property_visible_child().signal_changed().connect(sigc::mem_fun(*this, &GalleryWindow::_makePage));
}

void GalleryWindow::_compose() {
    sidebar.set_stack(stack);
    side.pack_start(sidebar, Gtk::PACK_EXPAND_WIDGET);
    for (Gtk::Widget* const choice : std::initializer_list<Gtk::Widget*>{&darkButton, &languageButton}) {
        choice->property_margin() = margin;
        side.pack_start(*choice, Gtk::PACK_SHRINK);
    }
    box.pack_start(side, Gtk::PACK_SHRINK);
    box.pack_start(stack, Gtk::PACK_EXPAND_WIDGET);
    add(box);

    darkButton.set_active(examples::isDark());
    darkButton.signal_toggled().connect(sigc::mem_fun(*this, &GalleryWindow::_onDark), true);
    languageButton.signal_clicked().connect(sigc::mem_fun(*this, &GalleryWindow::_onLanguage), true);
}

void GalleryWindow::_setTexts() {
    set_title(words("Gallery of widgets", "Галерея виджетов"));
    darkButton.set_label(words("Dark", "Тёмная тема"));
    // Named in the other language, for those who look for it.
    languageButton.set_label(words("Русский", "English"));
    auto place = places.begin();
    for (const Page& page : allPages())
        stack.child_property_title(*place++) = page.getTitle();
}

void GalleryWindow::_makePage() {
    auto* const place = dynamic_cast<Gtk::Box*>(stack.get_visible_child());
    if (!place || !place->get_children().empty())
        return;
    place->pack_start(views.emplace_back(*findPage(getPageName())), Gtk::PACK_EXPAND_WIDGET);
    place->show_all();
}

void GalleryWindow::_onDark() {
    examples::setDark(darkButton.get_active());
}

void GalleryWindow::_onLanguage() {
    lng::language = lng::index() == 0 ? 1 : 0;
    // Widgets take their texts when they are made.
    views.clear();
    _setTexts();
    _makePage();
}

} // namespace gallery
