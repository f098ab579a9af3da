#include "GalleryWindow.h"

#include "common/Look.h"
#include "common/TextZoom.h"

namespace gallery {

GalleryWindow::GalleryWindow(const std::string& firstPage) {
    examples::installLook();
    set_title(words("Gallery of widgets", "Галерея виджетов"));
    set_default_size(1200, 760);

    for (const Page& page : allPages())
        stack.add(places.emplace_back(), page.name, page.getTitle());
    sidebar.set_stack(stack);
    box.pack_start(sidebar, Gtk::PACK_SHRINK);
    box.pack_start(stack, Gtk::PACK_EXPAND_WIDGET);
    add(box);
    show_all_children();
    examples::installTextZoom(*this);
    // Only a visible child can be chosen.
    if (!firstPage.empty())
        stack.set_visible_child(firstPage);
    _makePage();
    stack.property_visible_child().signal_changed().connect(sigc::mem_fun(*this, &GalleryWindow::_makePage));
}

void GalleryWindow::_makePage() {
    auto* const place = dynamic_cast<Gtk::Box*>(stack.get_visible_child());
    if (!place || !place->get_children().empty())
        return;
    place->pack_start(views.emplace_back(*findPage(getPageName())), Gtk::PACK_EXPAND_WIDGET);
    place->show_all();
}

} // namespace gallery
