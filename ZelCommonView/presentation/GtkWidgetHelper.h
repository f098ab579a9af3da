#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/container.h>

#include <vector>

namespace Gtk {
class Window;
} // namespace Gtk

namespace Zel {

class IView;

/// The directions of Gtk, by the same numbers.
enum class Orientations {
    Horizontal = 0,
    Vertical = 1,
};

/// The alignments of Gtk, by the same numbers.
enum class Aligns {
    Fill = 0,
    Start = 1,
    End = 2,
    Center = 3,
    Baseline = 4,
};

/// The ways between views and Gtk widgets. Whatever they return stays its owner's.
namespace GtkWidgetHelper {

/// The widget side of a view; null for null and for a view that is no widget.
ZEL_API Gtk::Widget* getWidget(IView* view);

/// The view side of a widget; null for null and for a widget that is no view.
ZEL_API IView* getIView(Gtk::Widget* widget);

/// The window that the view is or stands in. Null for null, for a view that is no widget and for one that is
/// not in a window yet: callers take that as having no parent.
ZEL_API Gtk::Window* getParentWindow(IView* view);

/// Appends the widget, if it is a `T`, and all `T`s below it to `found`, parents before their children and
/// those in the order of `get_children`. Null is ignored.
template <typename T>
void findChildrens(Gtk::Widget* widget, std::vector<T*>& found) {
    if (!widget)
        return;
    if (auto* const match = dynamic_cast<T*>(widget))
        found.push_back(match);
    if (auto* const container = dynamic_cast<Gtk::Container*>(widget))
        for (Gtk::Widget* const child : container->get_children())
            findChildrens<T>(child, found);
}

/// The direction of the same number.
ZEL_API Orientations orientConvert(Gtk::Orientation orientation);
/// The direction of the same number.
ZEL_API Gtk::Orientation orientConvertToGtk(Orientations orientation);
/// The alignment of the same number.
ZEL_API Aligns alignConvert(Gtk::Align align);
/// The alignment of the same number.
ZEL_API Gtk::Align alignConvertToGtk(Aligns align);

} // namespace GtkWidgetHelper

} // namespace Zel
