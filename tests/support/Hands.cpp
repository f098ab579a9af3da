#include "support/Hands.h"

#include <X11/extensions/XTest.h>
#include <gdk/gdkx.h>

namespace test {

void settle() {
    constexpr gint64 twoFrames = 40000; // microseconds
    gint64 quietSince = g_get_monotonic_time();
    while (g_get_monotonic_time() - quietSince < twoFrames) {
        if (Gtk::Main::events_pending()) {
            Gtk::Main::iteration();
            quietSince = g_get_monotonic_time();
        } else {
            g_usleep(1000);
        }
    }
}

bool waitFor(const std::function<bool()>& condition, int milliseconds) {
    const gint64 end = g_get_monotonic_time() + milliseconds * gint64{1000};
    while (!condition()) {
        if (g_get_monotonic_time() > end)
            return false;
        if (Gtk::Main::events_pending())
            Gtk::Main::iteration();
        else
            g_usleep(1000);
    }
    return true;
}

void wait(int milliseconds) {
    waitFor([] { return false; }, milliseconds);
}

void movePointer(int screenX, int screenY) {
    Display* display = gdk_x11_get_default_xdisplay();
    XTestFakeMotionEvent(display, -1, screenX, screenY, CurrentTime);
    XFlush(display);
}

void movePointer(Gtk::Widget& widget, int x, int y) {
    int originX = 0;
    int originY = 0;
    widget.get_window()->get_origin(originX, originY);
    movePointer(originX + x, originY + y);
}

void allocate(Gtk::Widget& widget, int width, int height) {
    widget.show();
    // Not through size_allocate, which never goes below 1 pixel.
    GtkAllocation allocation{0, 0, width, height};
    gtk_widget_set_allocation(widget.gobj(), &allocation);
}

OffscreenHost::OffscreenHost(Gtk::Widget& child, int width, int height) {
    window.set_default_size(width, height);
    child.set_size_request(width, height);
    window.add(child);
    window.show_all();
    settle();
}

OffscreenHost::~OffscreenHost() {
    window.remove();
}

Glib::RefPtr<Gdk::Pixbuf> OffscreenHost::picture() {
    settle();
    return window.get_pixbuf();
}

} // namespace test
