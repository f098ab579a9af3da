#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/ButtonsToolbar.h>

#include <gtkmm/bin.h>
#include <gtkmm/scrolledwindow.h>

namespace ZelView {

/// Frames one widget in a window that scrolls vertically, with buttons that change the widget's height.
class ZEL_API ResizableWindow : public Gtk::Bin {
public:
    /// `widget` stays the caller's. A button does nothing any more once it has gone.
    explicit ResizableWindow(Gtk::Widget& widget);
    ~ResizableWindow() override;

    /// The buttons "-" and "+" request nine or eleven tenths of the height, in pixels, that the widget has;
    /// "=" takes back any requested height, the application's own included. The toolbar stays this window's,
    /// and it is for the caller to place it somewhere.
    ButtonsToolbar& getToolbar() { return toolbar; }

    /// The child, in which the framed widget stands.
    Gtk::ScrolledWindow& getWindow() { return window; }

private:
    Gtk::ScrolledWindow window;
    ButtonsToolbar toolbar{false}; ///< not a child
};

} // namespace ZelView
