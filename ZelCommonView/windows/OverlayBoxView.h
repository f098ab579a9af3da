#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/box.h>
#include <gtkmm/grid.h>
#include <gtkmm/image.h>

namespace Zel {

/// Five icons in a cross, in the middle of what it lies over, that mark where a dragged panel can be dropped.
/// Hidden at rest, and never shown by the `show_all` of what it lies in. The theme reaches the icons by the
/// style class "windowIcon".
class ZEL_API OverlayBoxView : public Gtk::Box {
public:
    /// The width and height of an icon, in pixels.
    static constexpr int iconSize = 40;

    /// Loads "Icons/Misc/window.svg" of the theme's folder; throws what Gdk::Pixbuf::create_from_file throws
    /// when that can't be read.
    OverlayBoxView();
    ~OverlayBoxView() override;

private:
    Gtk::Grid grid;
    Gtk::Image left;
    Gtk::Image right;
    Gtk::Image top;
    Gtk::Image bottom;
    Gtk::Image center;
};

} // namespace Zel
