#include <ZelCommonView/common/AutoResetEvent.h>

namespace Zel {

void AutoResetEvent::set() {
    // Notified under the lock: the waiter may destroy the event as soon as it gets through, and must not do
    // so before the notification is over.
    const std::lock_guard<std::mutex> lock(mutex);
    signalled = true;
    condition.notify_one();
}

void AutoResetEvent::waitOne() {
    std::unique_lock<std::mutex> lock(mutex);
    condition.wait(lock, [this] { return signalled; });
    signalled = false;
}

} // namespace Zel
