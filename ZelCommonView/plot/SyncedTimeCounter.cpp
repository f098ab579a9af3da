#include <ZelCommonView/plot/SyncedTimeCounter.h>

#include <cerrno>
#include <ctime>

namespace ZelView {

namespace {

constexpr long tickNanoseconds = 100'000'000;

/// With so many ticks under way no further one is sent. They travel through a pipe, and one that is full
/// would block the thread, so that the end of the process would wait for it for ever.
constexpr int maxWaiting = 1024;

} // namespace

SyncedTimeCounter::SyncedTimeCounter() {
    dispatcher.connect(sigc::mem_fun(*this, &SyncedTimeCounter::_synced));
    thread = std::thread(&SyncedTimeCounter::_run, this);
}

SyncedTimeCounter::~SyncedTimeCounter() {
    _endThread();
}

void SyncedTimeCounter::_run() {
    if (stop.load(std::memory_order_relaxed))
        return;
    do {
        const std::uint32_t start = _getTickCount();
        timespec left{0, tickNanoseconds};
        while (nanosleep(&left, &left) == -1 && errno == EINTR)
            ; // a signal came: the rest is still to be slept
        // The difference is one of 32 bits, which a wrap of the count leaves right.
        const std::uint32_t passed = _getTickCount() - start;
        elapsed.store(passed, std::memory_order_relaxed);
        if (waiting.load(std::memory_order_relaxed) < maxWaiting) {
            waiting.fetch_add(1, std::memory_order_relaxed);
            dispatcher.emit();
        }
    } while (!stop.load(std::memory_order_relaxed));
}

void SyncedTimeCounter::_synced() {
    waiting.fetch_sub(1, std::memory_order_relaxed);
    synced.emit(elapsed.load(std::memory_order_relaxed));
}

void SyncedTimeCounter::_endThread() {
    stop.store(true, std::memory_order_relaxed);
    if (thread.joinable())
        thread.join();
}

std::uint32_t SyncedTimeCounter::_getTickCount() {
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return static_cast<std::uint32_t>(now.tv_sec) * 1000u + static_cast<std::uint32_t>(now.tv_nsec / 1000000);
}

} // namespace ZelView
