#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/LifeWatch.h>
#include <ZelCommonView/plot/Milliseconds.h>

namespace ZelView {

SeriesTimeCounter::SeriesTimeCounter() {
    manager.tick.connect(sigc::mem_fun(*this, &SeriesTimeCounter::_run));
}

SeriesTimeCounter::~SeriesTimeCounter() = default;

void SeriesTimeCounter::setIsPaused(bool value) {
    paused = value;
    Zel::emitKept(pausedChanged, paused); // also when nothing changed, which is meant
}

void SeriesTimeCounter::setSpeed(float value) {
    speed = value;
}

void SeriesTimeCounter::setMax(unsigned long value) {
    max = value;
    const Zel::LifeWatch life(*this);
    _setCurrTime(currentTime);
    if (life)
        Zel::emitKept(maxChanged, max);
}

void SeriesTimeCounter::setTime(unsigned long value) {
    _setCurrTime(value);
}

void SeriesTimeCounter::reset() {
    _setCurrTime(0);
}

void SeriesTimeCounter::_run(unsigned long milliseconds) {
    if (paused || max == 0)
        return;
    // A sum of 32-bit floats is meant: beyond 2^24 milliseconds, about 4.66 hours, it drops single ones.
    const float value = static_cast<float>(milliseconds) * speed + static_cast<float>(currentTime);
    _setCurrTime(toMilliseconds(value));
}

void SeriesTimeCounter::_setCurrTime(std::uint64_t time) {
    // The replay starts over and doesn't stop at its end.
    currentTime = time > max ? 0 : time;
    if (currentTime == lastEmittedTime)
        return;
    const Zel::LifeWatch life(*this);
    Zel::emitKept(timeChanged, currentTime);
    if (life)
        lastEmittedTime = currentTime;
}

} // namespace ZelView
