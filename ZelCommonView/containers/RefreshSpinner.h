#pragma once

#include <ZelCommonView/common/Export.h>

#include <gdkmm/pixbuf.h>
#include <gtkmm/drawingarea.h>

namespace Zel {

/// Turns a picture around its middle to show that work is going on. It is scaled to the room there is and
/// keeps its proportions.
///
/// It takes time of the processor only between `start_animation` and `stop_animation`.
class ZEL_API RefreshSpinner : public Gtk::DrawingArea {
public:
    /// Turns "Icons/Misc/refresh.svg" of the theme's folder once a second; throws what
    /// Gdk::Pixbuf::create_from_file throws when that can't be read.
    RefreshSpinner();

    /// Turns `picture`, null for none. At rest. The time between two steps of 5 degrees is a whole number of
    /// milliseconds, cut, and at least 1. A speed that is not above 0 never comes to a step.
    RefreshSpinner(const Glib::RefPtr<Gdk::Pixbuf>& picture, double revolutionsPerMinute);
    ~RefreshSpinner() override;

    /// Turns from where it stands.
    void start_animation();

    /// Rests where it stands.
    void stop_animation();

    /// Starts the timer anew, also that of a spinner that rests.
    void update_animation();

protected:
    /// Paints nothing and returns false without a picture or without room, otherwise returns true.
    bool on_draw(const Cairo::RefPtr<Cairo::Context>& context) override;

private:
    bool _onTimer();

    Glib::RefPtr<Gdk::Pixbuf> picture;
    double angle = 0.0; ///< degrees, from 0 up to 360
    double step = 5.0;  ///< degrees for each tick
    int interval;       ///< milliseconds between ticks
    bool running = false;
    sigc::connection timerConnection;
};

} // namespace Zel
