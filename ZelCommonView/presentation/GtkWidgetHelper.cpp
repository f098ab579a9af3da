#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/window.h>

namespace Zel::GtkWidgetHelper {

Gtk::Widget* getWidget(IView* view) {
    return dynamic_cast<Gtk::Widget*>(view);
}

IView* getIView(Gtk::Widget* widget) {
    return dynamic_cast<IView*>(widget);
}

Gtk::Window* getParentWindow(IView* view) {
    Gtk::Widget* const widget = getWidget(view);
    if (!widget)
        return nullptr;
    if (auto* const window = dynamic_cast<Gtk::Window*>(widget))
        return window;
    // A widget outside any window is, or stands in, a toplevel that is no window.
    return dynamic_cast<Gtk::Window*>(widget->get_toplevel());
}

Orientations orientConvert(Gtk::Orientation orientation) {
    return static_cast<Orientations>(orientation);
}

Gtk::Orientation orientConvertToGtk(Orientations orientation) {
    return static_cast<Gtk::Orientation>(orientation);
}

Aligns alignConvert(Gtk::Align align) {
    return static_cast<Aligns>(align);
}

Gtk::Align alignConvertToGtk(Aligns align) {
    return static_cast<Gtk::Align>(align);
}

} // namespace Zel::GtkWidgetHelper
