#pragma once

#include <ZelCommonView/common/Export.h>

#include <condition_variable>
#include <mutex>

namespace Zel {

/// An event on which one thread waits for another. It starts unsignalled. Both operations may be called from
/// any thread.
class ZEL_API AutoResetEvent {
public:
    /// Signals the event and releases one waiter. Signalling it again before anyone has waited changes
    /// nothing.
    void set();

    /// Blocks, without a time limit, until the event is signalled, and resets it. Returns at once if `set`
    /// came first. Once it has returned, the waiter may destroy the event.
    void waitOne();

private:
    std::mutex mutex;
    std::condition_variable condition;
    bool signalled = false;
};

} // namespace Zel
