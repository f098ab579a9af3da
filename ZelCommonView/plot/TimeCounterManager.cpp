#include <ZelCommonView/plot/TimeCounterManager.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/LifeWatch.h>
#include <ZelCommonView/plot/SyncedTimeCounter.h>

#include <atomic>
#include <memory>
#include <thread>

namespace ZelView {

/// The counter of the process.
struct SyncedTimeCounter::Shared {
    ~Shared() {
        // Only the thread that made a dispatcher may destroy it. A process that exits on another one ends the
        // thread and keeps the rest, in a place where it doesn't count as lost.
        if (std::this_thread::get_id() == maker)
            return;
        static std::atomic<SyncedTimeCounter*> kept;
        counter->_endThread();
        kept = counter.release();
    }

    const std::thread::id maker = std::this_thread::get_id();
    std::unique_ptr<SyncedTimeCounter> counter = std::make_unique<SyncedTimeCounter>();
};

TimeCounterManager::TimeCounterManager(unsigned long milliseconds) : period(milliseconds) {
    static const SyncedTimeCounter::Shared shared;
    connection = shared.counter->synced.connect(sigc::mem_fun(*this, &TimeCounterManager::_onSynced));
}

TimeCounterManager::~TimeCounterManager() {
    connection.disconnect();
}

void TimeCounterManager::_onSynced(unsigned long milliseconds) {
    gathered += milliseconds;
    if (gathered < period)
        return;
    // What goes beyond the period is passed on with the rest, so nothing is carried over.
    const Zel::LifeWatch life(*this);
    Zel::emitKept(tick, gathered);
    if (life)
        gathered = 0;
}

} // namespace ZelView
