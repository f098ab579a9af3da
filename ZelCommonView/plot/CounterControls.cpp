#include <ZelCommonView/plot/CounterControls.h>

#include <ZelCommonView/plot/Milliseconds.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>

namespace ZelView {

CounterControls::CounterControls(SeriesTimeCounter& seriesTimeCounter) : counter(seriesTimeCounter) {
    _initSpeedSlider();
    _initTimeSlider();
    _initRunButton();
}

CounterControls::~CounterControls() {
    // From here on the clock may tell what it likes: the widgets go before the base class cuts the ties.
    notify_callbacks();
}

// What the widgets call is tied to the clock as well, so that it falls silent with either of the two.

void CounterControls::_initSpeedSlider() {
    speedSlider.set_range(0.1, 10.0);
    speedSlider.set_value(counter.getSpeed());
    speedSlider.signal_value_changed().connect(sigc::track_obj([this] { _onSpeedSlid(); }, *this, counter));
}

void CounterControls::_initTimeSlider() {
    timeSlider.set_digits(0);
    timeSlider.set_range(0, static_cast<double>(counter.getMax()));
    timeSlider.set_value(0);
    timeConnection =
        timeSlider.signal_value_changed().connect(sigc::track_obj([this] { _onTimeSlid(); }, *this, counter));
    counter.timeChanged.connect(sigc::mem_fun(*this, &CounterControls::_onTimeChanged));
    counter.maxChanged.connect(sigc::mem_fun(*this, &CounterControls::_onMaxChanged));
}

void CounterControls::_initRunButton() {
    counter.pausedChanged.connect(sigc::mem_fun(*this, &CounterControls::_onPausedChanged));
    counter.setIsPaused(false);
    runButton.signal_clicked().connect(sigc::track_obj([this] { _onRunClicked(); }, *this, counter));
}

void CounterControls::_onSpeedSlid() {
    counter.setSpeed(static_cast<float>(speedSlider.get_value()));
}

void CounterControls::_onTimeSlid() {
    // A listener to the pause may destroy the clock, which ends the connection.
    const sigc::connection connection = timeConnection;
    counter.setIsPaused(true);
    if (connection.connected())
        counter.setTime(toMilliseconds(timeSlider.get_value()));
}

void CounterControls::_onRunClicked() {
    counter.setIsPaused(!counter.getIsPaused());
}

void CounterControls::_onPausedChanged(bool paused) {
    runButton.set_label(paused ? "Старт" : "Пауза");
}

void CounterControls::_onTimeChanged(unsigned long time) {
    // The clock's own progress is no move of a person. A copy, since a listener may destroy these controls.
    sigc::connection connection = timeConnection;
    connection.block();
    timeSlider.set_value(static_cast<double>(time));
    connection.unblock();
}

void CounterControls::_onMaxChanged(unsigned long max) {
    timeSlider.set_range(0, static_cast<double>(max));
}

} // namespace ZelView
