#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/menu.h>
#include <gtkmm/menuitem.h>

#include <functional>
#include <list>
#include <string>

namespace ZelView {

/// Shows a menu where the right button is pressed on a widget. The widget hears no more of it once the
/// adapter is gone.
class ZEL_API ContextMenuAdapter : public sigc::trackable {
public:
    /// The widget stays the caller's.
    explicit ContextMenuAdapter(Gtk::Widget& widget);
    ~ContextMenuAdapter();
    ContextMenuAdapter(const ContextMenuAdapter&) = delete;
    ContextMenuAdapter& operator=(const ContextMenuAdapter&) = delete;

    /// Appends an item. Without any item a right click shows nothing.
    void addAction(const std::string& text, std::function<void()> action);

private:
    bool _onButtonPress(GdkEventButton* event);

    Gtk::Menu menu;
    std::list<Gtk::MenuItem> items;
};

} // namespace ZelView
