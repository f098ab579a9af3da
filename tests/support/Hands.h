/// What a person does: waiting, moving the pointer and pressing its buttons by real events of the display.
#pragma once

#include <gtkmm.h>

#include <functional>

namespace test {

/// Runs the main loop until nothing has happened for two frames, so that all pending paints are done; at most
/// for two seconds, since a replay whose pictures are slow to paint never comes to rest.
void settle();

/// How many times longer than usual things may take: the address sanitizer makes programs slow.
#ifdef __SANITIZE_ADDRESS__
constexpr int patience = 6;
#else
constexpr int patience = 1;
#endif

/// Runs the main loop until the condition holds; false if it doesn't within the time, and where patience is
/// needed within so many times the time.
bool waitFor(const std::function<bool()>& condition, int milliseconds = 5000);

/// Runs the main loop for the time.
void wait(int milliseconds);

/// Moves the pointer to a place on the screen.
void movePointer(int screenX, int screenY);

/// Moves the pointer to a place of a widget that is on the screen, in the widget's pixels.
void movePointer(Gtk::Widget& widget, int x, int y);

/// Moves the pointer to the farthest corner of the screen, away from every window.
void movePointerAway();

/// Presses a button of the mouse where the pointer is; 1 is the left one.
void pressButton(unsigned int button = 1);

void releaseButton(unsigned int button = 1);

/// Presses and releases a button at a place of a widget, in the widget's pixels.
void click(Gtk::Widget& widget, int x, int y, unsigned int button = 1);

/// Presses and releases a button in the middle of a widget.
void click(Gtk::Widget& widget, unsigned int button = 1);

/// Moves the pointer from one place of a widget to another with the left button pressed, in several steps.
void drag(Gtk::Widget& widget, int fromX, int fromY, int toX, int toY);

/// Shows a window on the screen and waits until it is there, with the pointer away from it.
void present(Gtk::Window& window);

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
