#include <ZelCommonView/windows/OverlayBoxView.h>

#include <ZelCommonView/common/Directories.h>

#include <gdkmm/pixbuf.h>

namespace Zel {

OverlayBoxView::OverlayBoxView() : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL) {
    set_no_show_all(true);
    pack_start(grid, true, true, 0);
    const auto picture =
        Gdk::Pixbuf::create_from_file(getThemesDir() + "Icons/Misc/window.svg", iconSize, iconSize, true);
    for (Gtk::Image* const image : {&left, &right, &top, &bottom, &center}) {
        image->set(picture);
        image->get_style_context()->add_class("windowIcon");
    }
    grid.attach(top, 1, 0, 1, 1);
    grid.attach(left, 0, 1, 1, 1);
    grid.attach(center, 1, 1, 1, 1);
    grid.attach(right, 2, 1, 1, 1);
    grid.attach(bottom, 1, 2, 1, 1);
    grid.set_hexpand(false);
    grid.set_vexpand(false);
    grid.set_halign(Gtk::ALIGN_CENTER);
    grid.set_valign(Gtk::ALIGN_CENTER);
    show_all_children(true);
}

OverlayBoxView::~OverlayBoxView() = default;

} // namespace Zel
