#include "TextZoom.h"

#include <ZelCommonView/diagrams/StyleZoomHelper.h>

#include <gdk/gdkkeysyms.h>
#include <gtkmm/window.h>

namespace examples {

namespace {

using ZelView::StyleZoomHelper;

/// Marks a window by its wheel: a `double`, how far it was turned since the last step.
constexpr const char* wheelKey = "zel-text-zoom-wheel";

bool isOnlyControl(guint state) {
    const guint others = GDK_MOD1_MASK | GDK_SUPER_MASK | GDK_HYPER_MASK | GDK_META_MASK;
    return (state & GDK_CONTROL_MASK) && !(state & others);
}

bool onKeyPressed(GdkEventKey* event) {
    if (!isOnlyControl(event->state))
        return false;
    switch (event->keyval) {
    case GDK_KEY_plus:
    case GDK_KEY_equal: // plus without Shift
    case GDK_KEY_KP_Add:
        StyleZoomHelper::zoomIn();
        return true;
    case GDK_KEY_minus:
    case GDK_KEY_KP_Subtract:
        StyleZoomHelper::zoomOut();
        return true;
    case GDK_KEY_0:
    case GDK_KEY_KP_0:
        StyleZoomHelper::zoomDefault();
        return true;
    default:
        return false;
    }
}

/// How far the wheel was turned; below 0 is up.
double turnOf(const GdkEventScroll& event) {
    switch (event.direction) {
    case GDK_SCROLL_UP:
        return -1;
    case GDK_SCROLL_DOWN:
        return 1;
    case GDK_SCROLL_SMOOTH:
        return event.delta_y;
    default:
        return 0;
    }
}

/// Touchpads turn in small parts, which are gathered to whole steps.
void turnWheel(double& gathered, double turn) {
    gathered += turn;
    while (gathered <= -1) {
        ++gathered;
        StyleZoomHelper::zoomIn();
    }
    while (gathered >= 1) {
        --gathered;
        StyleZoomHelper::zoomOut();
    }
}

/// The wheel of the marked window over which an event happened, or null.
double* wheelOf(GdkEvent& event) {
    GtkWidget* const widget = gtk_get_event_widget(&event);
    if (!widget)
        return nullptr;
    return static_cast<double*>(g_object_get_data(G_OBJECT(gtk_widget_get_toplevel(widget)), wheelKey));
}

/// Takes the place of GTK's own handler and passes all on to it but the wheel with Ctrl.
void onEvent(GdkEvent* event, gpointer) {
    if (event->type == GDK_SCROLL && isOnlyControl(event->scroll.state))
        if (double* const wheel = wheelOf(*event)) {
            turnWheel(*wheel, turnOf(event->scroll));
            return;
        }
    gtk_main_do_event(event);
}

} // namespace

void installTextZoom(Gtk::Window& window) {
    if (g_object_get_data(G_OBJECT(window.gobj()), wheelKey))
        return;
    g_object_set_data_full(G_OBJECT(window.gobj()), wheelKey, new double(0),
                           [](gpointer wheel) { delete static_cast<double*>(wheel); });
    // Before the widget that has the focus, which may have a use for these keys.
    window.signal_key_press_event().connect(sigc::ptr_fun(&onKeyPressed), false);
    window.add_events(Gdk::SCROLL_MASK | Gdk::SMOOTH_SCROLL_MASK);
    // A window gets the wheel last, after the plots below the pointer have had it.
    gdk_event_handler_set(&onEvent, nullptr, nullptr);
}

} // namespace examples
