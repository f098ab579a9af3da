/// The clock of one replay.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/TimeCounterManager.h>

#include <sigc++/sigc++.h>

#include <cstdint>

namespace ZelView {

/// Runs from 0 to the end of a record and starts over, with a speed and a pause of its own.
///
/// All times are milliseconds of the record. A new clock is not paused, but stands as long as the record has
/// no length. It moves by the main loop, about ten times a second; the first clock of the process must be
/// made on the thread that runs that loop. A listener may destroy the clock that called it.
class ZEL_API SeriesTimeCounter : public sigc::trackable {
public:
    /// Whether the clock is paused. Emitted by each `setIsPaused`, also when nothing changed.
    sigc::signal<void, bool> pausedChanged;
    /// The new time. Emitted whenever the clock shows another value than the last one told.
    sigc::signal<void, unsigned long> timeChanged;
    /// The new end of the record. Emitted by each `setMax`, after a change of the time that it brought.
    sigc::signal<void, unsigned long> maxChanged;

    SeriesTimeCounter();
    ~SeriesTimeCounter();
    SeriesTimeCounter(const SeriesTimeCounter&) = delete;
    SeriesTimeCounter& operator=(const SeriesTimeCounter&) = delete;

    /// Whether ticks leave the time as it is; false by default.
    bool getIsPaused() const { return paused; }

    /// Stops the clock where it is, or lets it go on. Emits `pausedChanged`.
    void setIsPaused(bool value);

    /// The factor that was set last.
    float getSpeed() const { return speed; }

    /// Milliseconds of the record for each that passes, from the next tick on; 1 by default. Any value is
    /// stored. A negative one runs backward down to 0 and stands there; one that is not a number puts the
    /// clock to 0.
    void setSpeed(float value);

    /// The end of the record, in milliseconds.
    unsigned long getMax() const { return max; }

    /// Sets the end of the record; 0, the default, stands for no record. A clock past it falls to 0. Emits
    /// `maxChanged`.
    void setMax(unsigned long value);

    /// Sets the time, paused or not; what lies past the end becomes 0.
    void setTime(unsigned long value);

    /// Sets the time to 0.
    void reset();

private:
    void _run(unsigned long milliseconds);
    void _setCurrTime(std::uint64_t time);

    std::uint64_t currentTime = 0;
    std::uint64_t lastEmittedTime = 0; ///< what `timeChanged` told last
    bool paused = false;
    float speed = 1;
    std::uint64_t max = 0;
    TimeCounterManager manager{100};
};

} // namespace ZelView
