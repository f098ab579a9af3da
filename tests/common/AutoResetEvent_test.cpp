#include <ZelCommonView/common/AutoResetEvent.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <thread>
#include <type_traits>

namespace {

using namespace std::chrono_literals;
using Zel::AutoResetEvent;

static_assert(!std::is_copy_constructible_v<AutoResetEvent>);
static_assert(!std::is_copy_assignable_v<AutoResetEvent>);

// Long enough for a thread that is not held back to get through, short enough to wait for in a test.
constexpr auto moment = 50ms;
constexpr auto longTime = 30s;

std::future<void> waitInThread(AutoResetEvent& event) {
    return std::async(std::launch::async, [&event] { event.waitOne(); });
}

TEST(AutoResetEvent, StartsUnsignalledAndBlocksUntilSet) {
    AutoResetEvent event;
    std::future<void> waiting = waitInThread(event);
    EXPECT_EQ(waiting.wait_for(moment), std::future_status::timeout);
    event.set();
    EXPECT_EQ(waiting.wait_for(longTime), std::future_status::ready);
}

TEST(AutoResetEvent, WaitAfterSetReturnsAtOnce) {
    AutoResetEvent event;
    event.set();
    EXPECT_EQ(waitInThread(event).wait_for(longTime), std::future_status::ready);
}

TEST(AutoResetEvent, WaitResetsTheEvent) {
    AutoResetEvent event;
    event.set();
    event.waitOne();
    std::future<void> second = waitInThread(event);
    EXPECT_EQ(second.wait_for(moment), std::future_status::timeout);
    event.set();
    EXPECT_EQ(second.wait_for(longTime), std::future_status::ready);
}

TEST(AutoResetEvent, SettingItTwiceReleasesOneWait) {
    AutoResetEvent event;
    event.set();
    event.set();
    event.waitOne();
    std::future<void> second = waitInThread(event);
    EXPECT_EQ(second.wait_for(moment), std::future_status::timeout);
    event.set();
    EXPECT_EQ(second.wait_for(longTime), std::future_status::ready);
}

TEST(AutoResetEvent, SettingItReleasesOneOfTwoWaiters) {
    AutoResetEvent event;
    std::atomic<int> released{0};
    const auto wait = [&] {
        event.waitOne();
        ++released;
    };
    std::thread one(wait), two(wait);
    std::this_thread::sleep_for(moment);
    event.set();
    std::this_thread::sleep_for(moment);
    EXPECT_EQ(released, 1);
    event.set();
    one.join();
    two.join();
    EXPECT_EQ(released, 2);
}

TEST(AutoResetEvent, WhatIsWrittenBeforeSetIsSeenAfterWait) {
    AutoResetEvent ready, taken;
    int value = 0;
    std::thread writer([&] {
        for (int i = 1; i <= 1000; ++i) {
            value = i;
            ready.set();
            taken.waitOne();
        }
    });
    int inOrder = 0;
    for (int i = 1; i <= 1000; ++i) {
        ready.waitOne();
        inOrder += value == i;
        taken.set();
    }
    writer.join();
    EXPECT_EQ(inOrder, 1000);
}

// The sanitizers are what watches here: a notification behind the waiter's back would touch freed memory.
TEST(AutoResetEvent, TheWaiterMayDestroyItOnceReleased) {
    int freed = 0;
    for (int i = 0; i < 500; ++i) {
        auto event = std::make_unique<AutoResetEvent>();
        std::thread setter([raw = event.get()] { raw->set(); });
        event->waitOne();
        event.reset();
        setter.join();
        ++freed;
    }
    EXPECT_EQ(freed, 500);
}

} // namespace
