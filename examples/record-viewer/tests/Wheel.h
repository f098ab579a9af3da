#pragma once

#include <gtkmm.h>

/// The wheel as tests turn it.
namespace test {

/// One smooth step of the wheel over the middle of a widget, through the queue of events like a real one;
/// below 0 is up.
inline void turnWheelSmoothly(Gtk::Widget& widget, double deltaY, guint state = 0) {
    GdkEvent* const event = gdk_event_new(GDK_SCROLL);
    event->scroll.window = static_cast<GdkWindow*>(g_object_ref(widget.get_window()->gobj()));
    event->scroll.time = GDK_CURRENT_TIME;
    event->scroll.direction = GDK_SCROLL_SMOOTH;
    event->scroll.state = state;
    event->scroll.x = widget.get_allocated_width() / 2.0;
    event->scroll.y = widget.get_allocated_height() / 2.0;
    event->scroll.delta_y = deltaY;
    gdk_event_set_device(event,
                         gdk_seat_get_pointer(gdk_display_get_default_seat(gdk_display_get_default())));
    gdk_event_put(event);
    gdk_event_free(event);
}

} // namespace test
