#include "support/Hands.h"
#include "support/LogWatch.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/presentation/ApplicationDispatcher.h>

#include <glibmm/thread.h>
#include <gtest/gtest.h>
#include <gtkmm.h>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

namespace {

using namespace std::chrono_literals;
using namespace Zel;
using Log = std::vector<std::string>;

static_assert(!std::is_copy_constructible_v<ApplicationDispatcher>);
static_assert(!std::is_copy_constructible_v<ApplicationDispatcherPresenter>);
static_assert(std::is_base_of_v<IView, IApplicationDispatcher> && std::is_abstract_v<IApplicationDispatcher>);

class ApplicationDispatcherTest : public testing::Test {
protected:
    ApplicationDispatcherTest() { dispatcher.registerDispatcher(); }

    std::function<void()> note(const std::string& name) {
        return [this, name] { log.push_back(name); };
    }

    /// A queue of the test's own, registered on the thread of the test.
    ApplicationDispatcher dispatcher;
    Log log;
};

void inThread(const std::function<void()>& function) {
    std::thread(function).join();
}

} // namespace

TEST_F(ApplicationDispatcherTest, StartsUnregisteredAndEmpty) {
    const ApplicationDispatcher fresh;
    EXPECT_EQ(fresh.dispatcher, nullptr);
    EXPECT_EQ(fresh.mainThread, nullptr);
    EXPECT_TRUE(fresh.queue.empty());
    const void* const fields[] = {&fresh.queue, &fresh.dispatcher, &fresh.mainThread, &fresh.queueMutex};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(ApplicationDispatcherTest, OnlyTheFirstRegistrationCounts) {
    const Glib::Dispatcher* const first = dispatcher.dispatcher.get();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(dispatcher.mainThread, Glib::Thread::self());
    inThread([&] { dispatcher.registerDispatcher(); });
    EXPECT_EQ(dispatcher.dispatcher.get(), first);
    EXPECT_EQ(dispatcher.mainThread, Glib::Thread::self());
    dispatcher.registerDispatcher();
    EXPECT_EQ(dispatcher.dispatcher.get(), first);
}

TEST_F(ApplicationDispatcherTest, TheFirstThreadThatTouchesItIsTakenForTheMainThread) {
    inThread([&] {
        ApplicationDispatcher begun;
        begun.beginInvoke(note("begun"));
        EXPECT_EQ(log, Log{"begun"});
        EXPECT_EQ(begun.mainThread, Glib::Thread::self());
        ApplicationDispatcher invoked;
        invoked.invoke(note("invoked"));
        EXPECT_EQ(log, (Log{"begun", "invoked"}));
        EXPECT_EQ(invoked.mainThread, Glib::Thread::self());
    });
}

TEST_F(ApplicationDispatcherTest, OnTheMainThreadBothRunAtOnceAheadOfTheQueue) {
    inThread([&] { dispatcher.beginInvoke(note("queued")); });
    dispatcher.beginInvoke(note("begun"));
    EXPECT_EQ(log, Log{"begun"});
    dispatcher.invoke(note("invoked"));
    EXPECT_EQ(log, (Log{"begun", "invoked"}));
    EXPECT_EQ(dispatcher.queue.size(), 1u);
    test::settle();
    EXPECT_EQ(log, (Log{"begun", "invoked", "queued"}));
}

TEST_F(ApplicationDispatcherTest, BeginInvokeDoesNotWait) {
    inThread([&] {
        dispatcher.beginInvoke(note("ran"));
        log.push_back("returned");
    });
    EXPECT_EQ(log, Log{"returned"});
    test::settle();
    EXPECT_EQ(log, (Log{"returned", "ran"}));
}

TEST_F(ApplicationDispatcherTest, InvokeReturnsWhenTheFunctionHasFinishedOnTheMainThread) {
    std::thread::id ranOn;
    bool isFinished = false;
    std::future<bool> seen = std::async(std::launch::async, [&] {
        dispatcher.invoke([&] {
            ranOn = std::this_thread::get_id();
            std::this_thread::sleep_for(20ms);
            isFinished = true;
        });
        return isFinished;
    });
    EXPECT_EQ(seen.wait_for(50ms), std::future_status::timeout) << "it ran without the main loop";
    EXPECT_TRUE(test::waitFor([&] { return seen.wait_for(0ms) == std::future_status::ready; }));
    EXPECT_TRUE(seen.get());
    EXPECT_EQ(ranOn, std::this_thread::get_id());
}

TEST_F(ApplicationDispatcherTest, RunsInTheOrderOfQueueing) {
    inThread([&] {
        dispatcher.beginInvoke(note("one"));
        dispatcher.beginInvoke(note("two"));
    });
    inThread([&] { dispatcher.beginInvoke(note("three")); });
    test::settle();
    EXPECT_EQ(log, (Log{"one", "two", "three"}));
}

TEST_F(ApplicationDispatcherTest, KeepsTheOrderOfEachOfManyThreads) {
    constexpr int threadCount = 4;
    constexpr int count = 500;
    std::vector<int> seen[threadCount];
    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < count; ++i) {
                const auto append = [&seen, t, i] { seen[t].push_back(i); };
                if (i % 100 == 99)
                    dispatcher.invoke(append);
                else
                    dispatcher.beginInvoke(append);
            }
        });
    const auto isDone = [&] {
        for (const auto& numbers : seen)
            if (numbers.size() != count)
                return false;
        return true;
    };
    EXPECT_TRUE(test::waitFor(isDone, 30000));
    for (std::thread& thread : threads)
        thread.join();
    for (const auto& numbers : seen)
        for (int i = 0; i < static_cast<int>(numbers.size()); ++i)
            ASSERT_EQ(numbers[i], i);
    EXPECT_EQ(dispatcher.queued, 0u);
    test::settle();
    EXPECT_EQ(dispatcher.wakeUps, 0);
}

TEST_F(ApplicationDispatcherTest, OneWakeUpServesAlsoWhatIsAddedMeanwhile) {
    inThread([&] {
        dispatcher.beginInvoke([this] {
            log.push_back("one");
            // Would never end if the lock were held here.
            inThread([this] { dispatcher.beginInvoke(note("added")); });
        });
        dispatcher.beginInvoke(note("two"));
    });
    dispatcher._invokeQueue();
    EXPECT_EQ(log, (Log{"one", "two", "added"}));
    EXPECT_TRUE(dispatcher.queue.empty());
    test::settle(); // the later wake-ups find nothing
    EXPECT_EQ(log.size(), 3u);
}

TEST_F(ApplicationDispatcherTest, WhatAFunctionHeldIsReleasedBeforeTheNextOneRuns) {
    const auto witness = std::make_shared<int>();
    long count = 0;
    inThread([&] {
        dispatcher.beginInvoke([witness] {});
        dispatcher.beginInvoke([&] { count = witness.use_count(); });
    });
    test::settle();
    EXPECT_EQ(count, 1);
}

TEST_F(ApplicationDispatcherTest, ANestedMainLoopServesTheQueueToo) {
    bool isServed = false;
    std::thread worker([&] {
        dispatcher.beginInvoke([&] {
            log.push_back("outer begins");
            EXPECT_TRUE(test::waitFor([&] { return isServed; }));
            log.push_back("outer ends");
        });
        dispatcher.invoke([&] {
            log.push_back("inner");
            isServed = true;
        });
    });
    EXPECT_TRUE(test::waitFor([&] { return log.size() == 3; }));
    worker.join();
    EXPECT_EQ(log, (Log{"outer begins", "inner", "outer ends"}));
}

TEST_F(ApplicationDispatcherTest, AThrowingFunctionLeavesThoseBehindItToTheNextWakeUp) {
    inThread([&] {
        dispatcher.beginInvoke([] { throw "one"; });
        dispatcher.beginInvoke(note("two"));
        dispatcher.beginInvoke(note("three"));
    });
    EXPECT_THROW(dispatcher._invokeQueue(), const char*);
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(dispatcher.queue.size(), 2u);
    test::settle();
    EXPECT_EQ(log, (Log{"two", "three"}));
}

TEST_F(ApplicationDispatcherTest, WhatIsThrownOnTheMainLoopGoesToTheHandlersOfGlibmm) {
    sigc::connection handler = Glib::add_exception_handler([this] {
        try {
            throw;
        } catch (const char* text) {
            log.push_back(text);
        }
    });
    inThread([&] {
        dispatcher.beginInvoke([] { throw "one"; });
        dispatcher.beginInvoke(note("two"));
    });
    test::settle();
    handler.disconnect();
    EXPECT_EQ(log, (Log{"one", "two"}));
}

TEST_F(ApplicationDispatcherTest, AThrowInsideInvokeLeavesTheCallerWaiting) {
    bool throws = true;
    std::future<void> caller = std::async(std::launch::async, [&] {
        dispatcher.invoke([&] {
            if (throws)
                throw "invoke";
        });
    });
    while (dispatcher.queued == 0)
        std::this_thread::yield();
    const std::function<void()> wrapper = dispatcher.queue.front();
    EXPECT_THROW(dispatcher._invokeQueue(), const char*);
    EXPECT_EQ(caller.wait_for(50ms), std::future_status::timeout);
    throws = false;
    wrapper(); // lets the caller go
    EXPECT_EQ(caller.wait_for(30s), std::future_status::ready);
}

TEST_F(ApplicationDispatcherTest, AnEmptyFunctionThrowsWhereItIsRun) {
    EXPECT_THROW(dispatcher.beginInvoke({}), std::bad_function_call);
    EXPECT_THROW(dispatcher.invoke({}), std::bad_function_call);
    EXPECT_TRUE(dispatcher.queue.empty());
    inThread([&] { EXPECT_NO_THROW(dispatcher.beginInvoke({})); });
    EXPECT_THROW(dispatcher._invokeQueue(), std::bad_function_call);
    EXPECT_TRUE(dispatcher.queue.empty());
}

TEST_F(ApplicationDispatcherTest, AFloodOfFunctionsNeverBlocksTheSender) {
    // Far more than a pipe holds, while the main loop stands still.
    constexpr int count = 50000;
    int next = 0;
    int inOrder = 0;
    std::future<void> sender = std::async(std::launch::async, [&] {
        for (int i = 0; i < count; ++i)
            dispatcher.beginInvoke([&, i] { inOrder += next++ == i; });
    });
    EXPECT_EQ(sender.wait_for(60s), std::future_status::ready);
    EXPECT_TRUE(test::waitFor([&] { return next == count; }, 60000)) << next;
    EXPECT_EQ(inOrder, count);

    inThread([&] { dispatcher.beginInvoke(note("after the flood")); });
    test::settle();
    EXPECT_EQ(log, Log{"after the flood"});
    EXPECT_EQ(dispatcher.wakeUps, 0);
}

TEST_F(ApplicationDispatcherTest, DestroysWhatIsStillQueuedWithoutCallingIt) {
    const auto witness = std::make_shared<int>();
    auto own = std::make_unique<ApplicationDispatcher>();
    own->registerDispatcher();
    inThread([&, witness] { own->beginInvoke([this, witness] { log.push_back("called"); }); });
    EXPECT_EQ(witness.use_count(), 2);
    own.reset();
    EXPECT_EQ(witness.use_count(), 1);
    const test::ExpectedLog expected("Dropped dispatcher message");
    test::settle(); // the wake-up that is still under way finds nobody, and glibmm says so
    EXPECT_TRUE(log.empty());
}

TEST(ApplicationDispatcher, AtProcessExitWhatIsQueuedIsDestroyedAndNotCalled) {
    const test::EnvironmentVariable strict("G_DEBUG", "fatal-criticals");
    EXPECT_EQ(test::outputOf(EXIT_PROGRAM " 2>&1; echo $?"), "destroyed\n0\n");
}

TEST(ApplicationDispatcher, TheProcessMayExitFromAnotherThread) {
    const test::EnvironmentVariable strict("G_DEBUG", "fatal-criticals");
    EXPECT_EQ(test::outputOf(EXIT_PROGRAM " other-thread 2>&1; echo $?"), "destroyed\n0\n");
}

TEST(ApplicationDispatcher, ThereIsOneBehindThePresenterAndTheFreeFunctions) {
    ApplicationDispatcher& instance = ApplicationDispatcher::getInstance();
    EXPECT_EQ(&ApplicationDispatcher::getInstance(), &instance);
    ApplicationDispatcherPresenter& presenter = ApplicationDispatcherPresenter::getInstance();
    EXPECT_EQ(&ApplicationDispatcherPresenter::getInstance(), &presenter);
    presenter.registerDispatcher();
    EXPECT_NE(instance.dispatcher, nullptr);
    EXPECT_EQ(instance.mainThread, Glib::Thread::self());

    Log log;
    const auto note = [&log](const char* name) { return [&log, name] { log.push_back(name); }; };
    inThread([&] {
        presenter.beginInvoke(note("presenter"));
        beginUpdateView(note("begin"));
    });
    EXPECT_EQ(instance.queue.size(), 2u);
    std::future<void> waiting = std::async(std::launch::async, [&] {
        presenter.invoke(note("presenter waits"));
        waitUpdateView(note("wait"));
    });
    EXPECT_EQ(waiting.wait_for(50ms), std::future_status::timeout);
    EXPECT_TRUE(test::waitFor([&] { return waiting.wait_for(0ms) == std::future_status::ready; }));
    EXPECT_EQ(log, (Log{"presenter", "begin", "presenter waits", "wait"}));
}

TEST(ApplicationDispatcher, TheFreeFunctionsRunAtOnceOnTheGtkThread) {
    ApplicationDispatcherPresenter::getInstance().registerDispatcher();
    int calls = 0;
    beginUpdateView([&] { ++calls; });
    EXPECT_EQ(calls, 1);
    waitUpdateView([&] { ++calls; });
    EXPECT_EQ(calls, 2);
}
