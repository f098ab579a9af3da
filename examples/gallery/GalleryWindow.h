#pragma once

#include "PageView.h"

#include <gtkmm.h>

#include <list>
#include <string>

namespace gallery {

/// All pages, with their titles at the side; each is made when it is opened for the first time. Below the
/// titles stand the choice of a dark look and the change to the other language, which makes the pages anew.
/// Ctrl with plus, minus, 0 or the wheel changes the size of the text.
class GalleryWindow : public Gtk::Window {
public:
    /// Shows the page of this name first, or the very first one if the name is empty.
    explicit GalleryWindow(const std::string& firstPage);

    /// The name of the page that is shown.
    std::string getPageName() const { return stack.get_visible_child_name(); }

private:
    void _compose();
    void _setTexts();
    void _makePage();
    void _onDark();
    void _onLanguage();

    std::list<PageView> views;
    std::list<Gtk::Box> places; ///< of all pages, empty for those that were never opened
    Gtk::Box box;
    Gtk::Box side{Gtk::ORIENTATION_VERTICAL};
    Gtk::CheckButton darkButton;
    Gtk::Button languageButton;
    Gtk::Stack stack;
    Gtk::StackSidebar sidebar; ///< the first to go: it asks the stack for titles as long as there are pages
};

} // namespace gallery
