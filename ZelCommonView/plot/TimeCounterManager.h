#pragma once

#include <ZelCommonView/common/Export.h>

#include <sigc++/sigc++.h>

#include <cstdint>

namespace ZelView {

/// Makes a coarser beat out of the ticks that the whole process shares.
///
/// The first one of the process makes the `SyncedTimeCounter` that all refer to, and with it the thread; both
/// live until the process exits. It must therefore be made on the thread that runs the main loop.
class ZEL_API TimeCounterManager : public sigc::trackable {
public:
    /// Milliseconds since the previous `tick`, at least the period. Emitted by the main loop.
    sigc::signal<void, unsigned long> tick;

    /// Takes the period in milliseconds; with 0 each tick of the process passes through.
    explicit TimeCounterManager(unsigned long period);
    /// No tick comes after this.
    ~TimeCounterManager();
    TimeCounterManager(const TimeCounterManager&) = delete;
    TimeCounterManager& operator=(const TimeCounterManager&) = delete;

private:
    void _onSynced(unsigned long milliseconds);

    std::uint64_t period;       ///< milliseconds
    std::uint64_t gathered = 0; ///< milliseconds since the last `tick`
    sigc::connection connection;
};

} // namespace ZelView
