/// What benchmarks of widgets on the screen share: resting, painting now, moving the pointer.
#pragma once

#include <ZelCommonView/fragments/FragmentsDrawArea.h>

#include <gtkmm.h>

#include <vector>

namespace bench {

/// Runs the main loop until it has been idle for three frames.
inline void settle() {
    for (int quiet = 0; quiet < 50; ++quiet) {
        while (Gtk::Main::events_pending()) {
            Gtk::Main::iteration();
            quiet = 0;
        }
        g_usleep(1000);
    }
}

/// Paints what is out of date, now and not with the next frame, and waits for the display, which does a part
/// of it.
inline void paint(Gtk::Window& window) {
    G_GNUC_BEGIN_IGNORE_DEPRECATIONS
    gdk_window_process_updates(window.get_window()->gobj(), TRUE);
    G_GNUC_END_IGNORE_DEPRECATIONS
    gdk_display_sync(gdk_display_get_default());
}

/// Tells a canvas that the pointer has moved there, in its pixels.
inline void movePointer(ZelView::FragmentsDrawArea& canvas, double x, double y) {
    GdkEvent* const event = gdk_event_new(GDK_MOTION_NOTIFY);
    event->motion.window = canvas.get_window()->gobj();
    g_object_ref(event->motion.window);
    event->motion.x = x;
    event->motion.y = y;
    gtk_widget_event(GTK_WIDGET(canvas.gobj()), event);
    gdk_event_free(event);
}

/// Adds all canvases below the widget.
inline void collectCanvases(Gtk::Widget& widget, std::vector<ZelView::FragmentsDrawArea*>& found) {
    if (auto* canvas = dynamic_cast<ZelView::FragmentsDrawArea*>(&widget))
        found.push_back(canvas);
    else if (auto* container = dynamic_cast<Gtk::Container*>(&widget))
        for (Gtk::Widget* child : container->get_children())
            collectCanvases(*child, found);
}

} // namespace bench
