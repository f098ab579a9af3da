// Makes clocks and exits; prints how many threads the process has on the way: before the first clock, with
// one clock, with fifty, with none any more, and after all static objects of the library have gone. What
// exists by then are a clock that goes with the static objects and one that nobody destroys.
//
// An argument chooses how it ends: "main" by the end of main, "thread" by exit on another thread, "stuck"
// after so many ticks without a main loop that they fill any pipe.

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <glibmm/init.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iterator>
#include <list>
#include <memory>
#include <string>
#include <thread>

namespace {

std::atomic<bool> isHurried{false};
std::atomic<int> sleeps{0};

void printThreads() {
    const std::filesystem::directory_iterator tasks("/proc/self/task");
    std::printf("%d\n", static_cast<int>(std::distance(begin(tasks), end(tasks))));
}

void printLastThreads() {
    // A thread that was joined stays in the list of the system for a moment.
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    printThreads();
    std::fflush(stdout);
}

} // namespace

/// Takes the place of the system's operation in the library too.
extern "C" ZEL_API int nanosleep(const timespec* request, timespec* left) {
    ++sleeps;
    if (isHurried)
        return 0;
    const int error = clock_nanosleep(CLOCK_MONOTONIC, 0, request, left);
    errno = error;
    return error ? -1 : 0;
}

int main(int argc, char** argv) {
    const std::string ending = argc > 1 ? argv[1] : "main";
    Glib::init();
    std::thread([] {}).join();     // a sanitizer starts a thread of its own with the first
    std::atexit(printLastThreads); // runs after what is registered from here on
    printThreads();
    auto first = std::make_unique<ZelView::SeriesTimeCounter>();
    printThreads();
    std::list<ZelView::SeriesTimeCounter> others(49);
    printThreads();
    first.reset();
    others.clear();
    printThreads();
    static ZelView::SeriesTimeCounter lasting;
    static std::atomic<ZelView::SeriesTimeCounter*> forgotten{new ZelView::SeriesTimeCounter};

    if (ending == "stuck") {
        sleeps = 0;
        isHurried = true;
        while (sleeps < 100000)
            std::this_thread::yield();
        isHurried = false;
    }
    std::fflush(stdout);
    if (ending == "thread")
        std::thread([] { std::exit(0); }).join();
    return 0;
}
