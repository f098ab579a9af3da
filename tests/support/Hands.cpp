#include "support/Hands.h"

#include <X11/extensions/XTest.h>
#include <gdk/gdkx.h>

namespace test {

void settle() {
    constexpr gint64 twoFrames = 40000; // microseconds
    constexpr gint64 longest = 2000000; // microseconds
    const gint64 end = g_get_monotonic_time() + longest;
    gint64 quietSince = g_get_monotonic_time();
    while (g_get_monotonic_time() - quietSince < twoFrames && g_get_monotonic_time() < end) {
        if (Gtk::Main::events_pending()) {
            Gtk::Main::iteration();
            quietSince = g_get_monotonic_time();
        } else {
            g_usleep(1000);
        }
    }
}

namespace {

bool runUntil(const std::function<bool()>& condition, int milliseconds) {
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

} // namespace

bool waitFor(const std::function<bool()>& condition, int milliseconds) {
    return runUntil(condition, milliseconds * patience);
}

void wait(int milliseconds) {
    runUntil([] { return false; }, milliseconds);
}

// What hands do waits for the display, so that the events are there when the main loop runs, however busy the
// machine is.

void movePointer(int screenX, int screenY) {
    Display* display = gdk_x11_get_default_xdisplay();
    XTestFakeMotionEvent(display, -1, screenX, screenY, CurrentTime);
    XSync(display, False);
}

namespace {

/// Where the widget's own pixels begin on the screen.
void getOrigin(Gtk::Widget& widget, int& x, int& y) {
    widget.get_window()->get_origin(x, y);
    if (!widget.get_has_window()) {
        x += widget.get_allocation().get_x();
        y += widget.get_allocation().get_y();
    }
}

void sendButton(unsigned int button, bool isPressed) {
    Display* display = gdk_x11_get_default_xdisplay();
    XTestFakeButtonEvent(display, button, isPressed, CurrentTime);
    XSync(display, False);
}

} // namespace

void movePointer(Gtk::Widget& widget, int x, int y) {
    int originX = 0;
    int originY = 0;
    getOrigin(widget, originX, originY);
    movePointer(originX + x, originY + y);
}

void movePointerAway() {
    Display* display = gdk_x11_get_default_xdisplay();
    const int screen = DefaultScreen(display);
    movePointer(DisplayWidth(display, screen) - 1, DisplayHeight(display, screen) - 1);
}

void pressButton(unsigned int button) {
    sendButton(button, true);
}

void releaseButton(unsigned int button) {
    sendButton(button, false);
}

void click(Gtk::Widget& widget, int x, int y, unsigned int button) {
    movePointer(widget, x, y);
    settle();
    pressButton(button);
    settle();
    releaseButton(button);
    settle();
}

void click(Gtk::Widget& widget, unsigned int button) {
    click(widget, widget.get_allocated_width() / 2, widget.get_allocated_height() / 2, button);
}

void drag(Gtk::Widget& widget, int fromX, int fromY, int toX, int toY) {
    // On the screen and not in the widget, which may move or change while it is dragged.
    int originX = 0;
    int originY = 0;
    getOrigin(widget, originX, originY);
    movePointer(originX + fromX, originY + fromY);
    settle();
    pressButton();
    settle();
    constexpr int steps = 5;
    for (int i = 1; i <= steps; ++i) {
        movePointer(originX + fromX + (toX - fromX) * i / steps, originY + fromY + (toY - fromY) * i / steps);
        settle();
    }
    releaseButton();
    settle();
}

void present(Gtk::Window& window) {
    // A theme lets buttons fade for a fifth of a second, for which each `settle` would wait.
    Gtk::Settings::get_default()->property_gtk_enable_animations() = false;
    movePointerAway();
    window.show_all();
    // A window manager places a window some time after it has been shown, and keeps the focus from one that
    // does not say that it comes from what the person did last.
    window.present(gdk_x11_get_server_time(window.get_window()->gobj()));
    waitFor([&window] { return window.is_visible() && window.is_active(); });
    wait(200);
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
