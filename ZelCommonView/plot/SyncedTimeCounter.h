/// The one beat that moves every replay: a background thread that ticks ten times a second.
#pragma once

#include <ZelCommonView/common/Export.h>

#include <glibmm/dispatcher.h>
#include <sigc++/sigc++.h>

#include <atomic>
#include <cstdint>
#include <thread>

namespace ZelView {

/// Ticks from the moment it is made. Programs need none of their own: all replays share the one that the
/// first `TimeCounterManager` makes.
///
/// It belongs to the thread that makes it, which must be the one that runs the main loop, and that thread
/// must destroy it; this takes until the end of the current tick, 100 milliseconds at most.
class ZEL_API SyncedTimeCounter {
public:
    /// Milliseconds since the previous tick, about 100, time in suspend included. Emitted by the main loop:
    /// while none runs the ticks wait, and then come one after another with the value of the last. About a
    /// thousand of them can wait; those after that, from some 100 seconds on, are lost.
    sigc::signal<void, unsigned long> synced;

    /// Starts the thread. Throws `std::system_error` if there can be none.
    SyncedTimeCounter();
    /// Ends the thread and waits for it.
    ~SyncedTimeCounter();
    SyncedTimeCounter(const SyncedTimeCounter&) = delete;
    SyncedTimeCounter& operator=(const SyncedTimeCounter&) = delete;

private:
    friend class TimeCounterManager;
    struct Shared;

    /// What the thread does.
    void _run();
    /// Serves one tick on the main loop.
    void _synced();
    void _endThread();
    /// Milliseconds since the machine was started, suspend included, in 32 bits that wrap in 50 days.
    static std::uint32_t _getTickCount();

    Glib::Dispatcher dispatcher; ///< carries the ticks to the main loop
    std::thread thread;
    // Both threads know these three. No order between them matters, the dispatcher makes what there is.
    std::atomic<std::uint64_t> elapsed{0}; ///< milliseconds that the last tick took
    std::atomic<bool> stop{false};         ///< asks the thread to end
    std::atomic<int> waiting{0};           ///< ticks that the main loop has not served yet
};

} // namespace ZelView
