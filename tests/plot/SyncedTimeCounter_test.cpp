#include "support/Hands.h"

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/SyncedTimeCounter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <iterator>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

using ZelView::SyncedTimeCounter;
using Clock = std::chrono::steady_clock;

/// What the operations of the system, replaced below, do in a test.
std::atomic<int> interruptions{0}; ///< how many sleeps a signal ends after 40 of their milliseconds
std::atomic<bool> isTimeFaked{false};
std::atomic<long> fakedMilliseconds{0}; ///< since the start of the machine
std::mutex mutex;
std::vector<long> sleeps; ///< what was asked for, milliseconds

std::vector<long> takeSleeps() {
    const std::lock_guard<std::mutex> lock(mutex);
    return std::exchange(sleeps, {});
}

int countThreads() {
    const std::filesystem::directory_iterator tasks("/proc/self/task");
    return static_cast<int>(std::distance(begin(tasks), end(tasks)));
}

/// A thread that was joined stays in the list of the system for a moment.
bool areThreads(int expected) {
    for (int i = 0; i < 100 && countThreads() != expected; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return countThreads() == expected;
}

long millisecondsSince(Clock::time_point start) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
}

struct Ending {
    int status = 0;
    long milliseconds = 0;    ///< from the end of main until all static objects have gone
    std::vector<int> threads; ///< see the program
    std::string complaints;   ///< anything else that was printed
};

Ending runProgram(const std::string& how) {
    Ending ending;
    std::FILE* program = popen((CLOCKS_PROGRAM " " + how + " 2>&1").c_str(), "r");
    Clock::time_point endOfMain;
    char line[256];
    while (std::fgets(line, sizeof line, program)) {
        int threads = 0;
        if (std::istringstream(line) >> threads)
            ending.threads.push_back(threads);
        else
            ending.complaints += line;
        if (ending.threads.size() == 4)
            endOfMain = Clock::now();
        if (ending.threads.size() == 5)
            ending.milliseconds = millisecondsSince(endOfMain);
    }
    ending.status = pclose(program);
    return ending;
}

void expectCleanEnd(const Ending& ending) {
    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.complaints, "");
    ASSERT_EQ(ending.threads.size(), 5u);
    const int before = ending.threads[0];
    EXPECT_EQ(ending.threads[1], before + 1) << "the first clock starts the thread";
    EXPECT_EQ(ending.threads[2], before + 1) << "one thread serves all clocks";
    EXPECT_EQ(ending.threads[3], before + 1) << "the thread stays when the clocks go";
    EXPECT_LT(ending.milliseconds, 300);
}

} // namespace

// These take the place of the system's operations in the library too.

extern "C" ZEL_API int nanosleep(const timespec* request, timespec* left) {
    const bool isMainThread = gettid() == getpid(); // the hands that wait for something
    if (!isMainThread) {
        const std::lock_guard<std::mutex> lock(mutex);
        sleeps.push_back(request->tv_sec * 1000 + request->tv_nsec / 1000000);
    }
    if (!isMainThread && interruptions > 0) {
        --interruptions;
        const timespec part{0, 40'000'000};
        clock_nanosleep(CLOCK_MONOTONIC, 0, &part, nullptr);
        *left = {request->tv_sec, request->tv_nsec - part.tv_nsec};
        errno = EINTR;
        return -1;
    }
    const int error = clock_nanosleep(CLOCK_MONOTONIC, 0, request, left);
    if (!isMainThread && isTimeFaked)
        fakedMilliseconds += 100;
    errno = error;
    return error ? -1 : 0;
}

extern "C" ZEL_API int clock_gettime(clockid_t id, timespec* time) noexcept {
    if (id != CLOCK_BOOTTIME || !isTimeFaked)
        return static_cast<int>(syscall(SYS_clock_gettime, id, time));
    *time = {fakedMilliseconds / 1000, fakedMilliseconds % 1000 * 1000000 + 999999};
    return 0;
}

TEST(SyncedTimeCounter, StartsItsThreadAtOnceAndHasJoinedItWhenItIsGone) {
    std::thread([] {}).join(); // a sanitizer starts a thread of its own with the first
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    const int before = countThreads();
    {
        const SyncedTimeCounter counter;
        EXPECT_EQ(countThreads(), before + 1);
        EXPECT_TRUE(counter.thread.joinable());
        EXPECT_FALSE(counter.stop);
    }
    EXPECT_TRUE(areThreads(before));
}

TEST(SyncedTimeCounter, EndsWithinOneTick) {
    for (int moment : {0, 30, 95}) {
        auto counter = std::make_unique<SyncedTimeCounter>();
        std::this_thread::sleep_for(std::chrono::milliseconds(moment));
        const auto start = Clock::now();
        counter.reset();
        EXPECT_LT(millisecondsSince(start), 200);
    }
}

TEST(SyncedTimeCounter, AsksNothingOfTheThreadThatWasToldToStopBeforeItBegan) {
    takeSleeps();
    SyncedTimeCounter counter;
    counter._endThread();
    takeSleeps();
    counter._run(); // on this thread: returns at once
    EXPECT_TRUE(takeSleeps().empty());
}

TEST(SyncedTimeCounter, TicksTenTimesASecondOnTheMainLoop) {
    SyncedTimeCounter counter;
    std::vector<unsigned long> ticks;
    std::vector<std::thread::id> threads;
    counter.synced.connect([&](unsigned long milliseconds) {
        ticks.push_back(milliseconds);
        threads.push_back(std::this_thread::get_id());
    });
    takeSleeps();
    const auto start = Clock::now();
    ASSERT_TRUE(test::waitFor([&] { return ticks.size() >= 6; }));
    EXPECT_GE(millisecondsSince(start), 500);
    unsigned long sum = 0;
    for (unsigned long milliseconds : ticks) {
        EXPECT_GE(milliseconds, 100u);
        sum += milliseconds;
    }
    EXPECT_LE(sum, static_cast<unsigned long>(millisecondsSince(start)) + 150) << "no time is told twice";
    for (std::thread::id thread : threads)
        EXPECT_EQ(thread, std::this_thread::get_id());
    for (long asked : takeSleeps())
        EXPECT_EQ(asked, 100);
}

TEST(SyncedTimeCounter, WithoutAMainLoopTheTicksWaitAndThenComeInABurst) {
    SyncedTimeCounter counter;
    int ticks = 0;
    counter.synced.connect([&](unsigned long) { ++ticks; });
    std::this_thread::sleep_for(std::chrono::milliseconds(450));
    EXPECT_EQ(ticks, 0);
    while (ticks < 3 && Glib::MainContext::get_default()->iteration(false))
        ;
    EXPECT_GE(ticks, 3);
}

TEST(SyncedTimeCounter, ASlowMainLoopReadsTheValueThatStandsThere) {
    SyncedTimeCounter counter;
    counter._endThread();
    while (Glib::MainContext::get_default()->iteration(false))
        ;
    std::vector<unsigned long> ticks;
    counter.synced.connect([&](unsigned long milliseconds) { ticks.push_back(milliseconds); });
    for (std::uint64_t elapsed : {100, 101, 250}) {
        counter.elapsed = elapsed;
        counter.dispatcher.emit();
    }
    ASSERT_TRUE(test::waitFor([&] { return ticks.size() == 3; }));
    EXPECT_EQ(ticks, (std::vector<unsigned long>{250, 250, 250}));
}

TEST(SyncedTimeCounter, AnInterruptedSleepGoesOnWithWhatIsLeft) {
    takeSleeps();
    interruptions = 2;
    SyncedTimeCounter counter;
    unsigned long tick = 0;
    counter.synced.connect([&](unsigned long milliseconds) { tick = milliseconds; });
    ASSERT_TRUE(test::waitFor([&] { return tick != 0; }));
    EXPECT_GE(tick, 100u);
    const std::vector<long> asked = takeSleeps();
    ASSERT_GE(asked.size(), 3u);
    EXPECT_EQ(std::vector<long>(asked.begin(), asked.begin() + 3), (std::vector<long>{100, 60, 20}));
}

TEST(SyncedTimeCounter, TakesTheTimeSinceTheStartOfTheMachineIn32Bits) {
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    const auto expected = static_cast<std::uint32_t>(now.tv_sec * 1000 + now.tv_nsec / 1000000);
    EXPECT_LT(SyncedTimeCounter::_getTickCount() - expected, 1000u);

    isTimeFaked = true;
    fakedMilliseconds = 12345678;
    EXPECT_EQ(SyncedTimeCounter::_getTickCount(), 12345678u);
    fakedMilliseconds = 0xFFFFFFFFL;
    EXPECT_EQ(SyncedTimeCounter::_getTickCount(), 0xFFFFFFFFu);
    fakedMilliseconds = 0x100000003L;
    EXPECT_EQ(SyncedTimeCounter::_getTickCount(), 3u);
    isTimeFaked = false;
}

TEST(SyncedTimeCounter, AWrapOfTheTickCountIsHarmless) {
    fakedMilliseconds = 0xFFFFFFFFL - 50;
    isTimeFaked = true;
    {
        SyncedTimeCounter counter;
        std::vector<unsigned long> ticks;
        counter.synced.connect([&](unsigned long milliseconds) { ticks.push_back(milliseconds); });
        ASSERT_TRUE(test::waitFor([&] { return ticks.size() >= 2; }));
        EXPECT_EQ(ticks[0], 100u);
        EXPECT_EQ(ticks[1], 100u);
        EXPECT_GT(fakedMilliseconds, 0xFFFFFFFFL);
    }
    isTimeFaked = false;
}

TEST(SyncedTimeCounter, SendsNoMoreTicksThanAPipeHolds) {
    SyncedTimeCounter counter;
    int ticks = 0;
    counter.synced.connect([&](unsigned long) { ++ticks; });
    counter.waiting = 1 << 20;
    test::wait(150); // what was sent before
    ticks = 0;
    test::wait(350);
    EXPECT_EQ(ticks, 0);
    counter.waiting = 0;
    EXPECT_TRUE(test::waitFor([&] { return ticks > 2; }));
    EXPECT_LE(counter.waiting, 1);
}

TEST(ClocksOfAProcess, ShareOneThreadThatIsStartedByTheFirstAndJoinedAtTheEnd) {
    const Ending ending = runProgram("main");
    expectCleanEnd(ending);
    EXPECT_EQ(ending.threads.back(), ending.threads.front());
}

TEST(ClocksOfAProcess, EndThatExitsOnAnotherThreadJoinsTheThreadToo) {
    const Ending ending = runProgram("thread");
    expectCleanEnd(ending);
    EXPECT_EQ(ending.threads.back(), ending.threads.front() + 1) << "the thread that exits";
}

TEST(ClocksOfAProcess, ThatNeverRanAMainLoopEndAsWell) {
    const Ending ending = runProgram("stuck");
    expectCleanEnd(ending);
    EXPECT_EQ(ending.threads.back(), ending.threads.front());
}
