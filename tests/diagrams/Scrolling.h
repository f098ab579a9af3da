/// What the tests of scrolled windows share.
#pragma once

#include "support/Hands.h"

#include <ZelCommonView/diagrams/ZoomableScrolledWindow.h>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace test {

using Size = std::pair<int, int>;

/// In pixels.
inline Size requestOf(const Gtk::Widget& widget) {
    Size size;
    widget.get_size_request(size.first, size.second);
    return size;
}

/// In pixels.
inline Size sizeOf(const Gtk::Widget& widget) {
    return {widget.get_allocated_width(), widget.get_allocated_height()};
}

/// The scales that were reported.
struct Reports {
    explicit Reports(ZelView::ZoomableScrolledWindow& scrolled) {
        scrolled.signalScaleChanged.connect([this](unsigned int scale) { scales.push_back(scale); });
    }

    std::vector<unsigned int> scales;
};

/// One smooth step of the wheel over a place of a window; below 0 is up. It is given to `widget`.
inline bool turnWheel(Gtk::Widget& widget, const Glib::RefPtr<Gdk::Window>& window, double x, double y,
                      double deltaY) {
    GdkEvent* const event = gdk_event_new(GDK_SCROLL);
    event->scroll.window = static_cast<GdkWindow*>(g_object_ref(window->gobj()));
    event->scroll.time = GDK_CURRENT_TIME;
    event->scroll.direction = GDK_SCROLL_SMOOTH;
    event->scroll.x = x;
    event->scroll.y = y;
    event->scroll.delta_y = deltaY;
    gdk_event_set_device(event,
                         gdk_seat_get_pointer(gdk_display_get_default_seat(gdk_display_get_default())));
    const bool isHandled = gtk_widget_event(widget.gobj(), event);
    gdk_event_free(event);
    return isHandled;
}

/// Turns the wheel over a place of the scrolled window itself.
inline bool turnWheel(ZelView::ZoomableScrolledWindow& scrolled, double x, double y, double deltaY) {
    return turnWheel(scrolled, scrolled.get_window(), x, y, deltaY);
}

/// A canvas that asks for no events, in a scrolled window that may be resized at will, on the screen.
template <typename Scrolled>
struct OnScreen {
    template <typename... Arguments>
    explicit OnScreen(Arguments... arguments) : scrolled(arguments...) {
        scrolled.add(area);
        window.set_default_size(300, 200);
        window.add(scrolled);
    }

    double valueX() { return scrolled.get_hadjustment()->get_value(); }

    double valueY() { return scrolled.get_vadjustment()->get_value(); }

    void scrollTo(double x, double y) {
        scrolled.get_hadjustment()->set_value(x);
        scrolled.get_vadjustment()->set_value(y);
        settle();
    }

    void resize(int width, int height) {
        window.resize(width, height);
        EXPECT_TRUE(waitFor([&] {
            return scrolled.get_allocated_width() == width && scrolled.get_allocated_height() == height;
        }));
        settle();
    }

    Gtk::Window window;
    Gtk::DrawingArea area;
    Scrolled scrolled;
};

} // namespace test
