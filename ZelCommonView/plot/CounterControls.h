/// What a person steers a replay with.
#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/button.h>
#include <gtkmm/scale.h>
#include <sigc++/sigc++.h>

namespace ZelView {

class SeriesTimeCounter;

/// A button for run and pause, a slider for the speed and one for the time, tied to one clock.
///
/// A host places the widgets; they stay this object's. A person who moves the time slider pauses the clock,
/// which stands where the slider was left until the button is pressed. The clock stays the caller's. It may
/// go first: the widgets then do nothing any more.
class ZEL_API CounterControls : public sigc::trackable {
public:
    /// Lets the clock run, which emits its `pausedChanged`. The speed slider takes the clock's speed, brought
    /// into its limits, and the time slider its end; the time slider starts at 0 and follows the next change.
    explicit CounterControls(SeriesTimeCounter& counter);
    ~CounterControls();
    CounterControls(const CounterControls&) = delete;
    CounterControls& operator=(const CounterControls&) = delete;

    /// "Старт" while the clock is paused and "Пауза" while it runs, in every language.
    Gtk::Button& getRunButton() { return runButton; }

    /// From 0.1 to 10 times.
    Gtk::Scale& getSpeedSlider() { return speedSlider; }

    /// From 0 to the end of the record, whole milliseconds.
    Gtk::Scale& getTimeSlider() { return timeSlider; }

private:
    void _initSpeedSlider();
    void _initTimeSlider();
    void _initRunButton();
    void _onSpeedSlid();
    void _onTimeSlid();
    void _onRunClicked();
    void _onPausedChanged(bool paused);
    void _onTimeChanged(unsigned long time);
    void _onMaxChanged(unsigned long max);

    SeriesTimeCounter& counter; ///< may be gone when this object ends
    Gtk::Button runButton;
    Gtk::Scale speedSlider;
    Gtk::Scale timeSlider;
    sigc::connection timeConnection; ///< of the time slider's change of value
};

} // namespace ZelView
