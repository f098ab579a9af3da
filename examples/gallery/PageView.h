#pragma once

#include "Pages.h"

#include <gtkmm.h>

#include <memory>

namespace gallery {

/// A page below its title, with a button that shows the page's source text in place of it.
class PageView : public Gtk::Box {
public:
    explicit PageView(const Page& page);

    Gtk::Widget& getContent() { return *content; }

private:
    void _onSourceToggled();

    std::unique_ptr<Gtk::Widget> content;
    Gtk::Box header{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Label title;
    Gtk::ToggleButton sourceButton;
    Gtk::TextView source;
    Gtk::ScrolledWindow sourceWindow;
    Gtk::Stack stack;
};

} // namespace gallery
