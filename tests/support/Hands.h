/// What a person does: waiting, and moving the pointer by real events of the display.
#pragma once

#include <gtkmm.h>

#include <functional>

namespace test {

/// Runs the main loop until nothing has happened for two frames, so that all pending paints are done.
void settle();

/// Runs the main loop until the condition holds; false if it doesn't within the time.
bool waitFor(const std::function<bool()>& condition, int milliseconds = 5000);

/// Runs the main loop for the time.
void wait(int milliseconds);

/// Moves the pointer to a place on the screen.
void movePointer(int screenX, int screenY);

/// Moves the pointer to a place of a widget that is on the screen, in the widget's pixels.
void movePointer(Gtk::Widget& widget, int x, int y);

/// Gives a widget without a window a size; GTK keeps that of shown ones only.
void allocate(Gtk::Widget& widget, int width, int height);

/// A window that is painted without being shown on the screen.
class OffscreenHost {
public:
    OffscreenHost(Gtk::Widget& child, int width, int height);
    ~OffscreenHost();

    /// What the window shows after all pending paints.
    Glib::RefPtr<Gdk::Pixbuf> picture();

    Gtk::OffscreenWindow window;
};

} // namespace test
