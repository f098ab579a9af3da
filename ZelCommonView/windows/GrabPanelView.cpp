#include <ZelCommonView/windows/GrabPanelView.h>

#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtkmm/window.h>

namespace Zel {

GrabPanelView::GrabPanelView() {
    set_can_focus(true);
    signal_button_press_event().connect(sigc::mem_fun(*this, &GrabPanelView::_onButtonPress), false);
}

GrabPanelView::~GrabPanelView() = default;

void GrabPanelView::addControl(IView* view) {
    if (Gtk::Widget* const widget = GtkWidgetHelper::getWidget(view))
        add(*widget);
    show_all();
}

bool GrabPanelView::_onButtonPress(GdkEventButton* event) {
    if (event->type == GDK_BUTTON_PRESS && event->button == 1)
        if (auto* const window = dynamic_cast<Gtk::Window*>(get_toplevel()))
            gtk_window_set_focus(window->gobj(), nullptr);
    return true;
}

} // namespace Zel
