#include "support/Hands.h"

#include <ZelCommonView/presentation/UpdateViewGuard.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <type_traits>

namespace {

using namespace Zel;

static_assert(!std::is_copy_constructible_v<UpdateViewGuard>);
static_assert(std::is_empty_v<UpdateViewGuard::LifetimeToken>);
static_assert(sizeof(UpdateViewGuard) == sizeof(std::shared_ptr<UpdateViewGuard::LifetimeToken>));

class UpdateViewGuardTest : public testing::Test {
protected:
    UpdateViewGuardTest() { ApplicationDispatcherPresenter::getInstance().registerDispatcher(); }

    std::optional<UpdateViewGuard> guard{std::in_place};
};

void inThread(const std::function<void()>& function) {
    std::thread(function).join();
}

} // namespace

TEST_F(UpdateViewGuardTest, RunsAtOnceOnTheGtkThread) {
    int calls = 0;
    guard->safeBeginUpdateView([&] { ++calls; });
    EXPECT_EQ(calls, 1);
}

TEST_F(UpdateViewGuardTest, RunsOnTheGtkThreadWhatAWorkerQueued) {
    std::thread::id ranOn;
    int calls = 0;
    inThread([&] {
        guard->safeBeginUpdateView([&] {
            ranOn = std::this_thread::get_id();
            ++calls;
        });
    });
    EXPECT_EQ(calls, 0);
    test::settle();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(ranOn, std::this_thread::get_id());
}

TEST_F(UpdateViewGuardTest, DropsWhatIsStillQueuedWhenItDies) {
    int calls = 0;
    const auto witness = std::make_shared<int>();
    inThread([&] { guard->safeBeginUpdateView([&calls, witness] { ++calls; }); });
    EXPECT_GT(witness.use_count(), 1);
    guard.reset();
    test::settle();
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(witness.use_count(), 1) << "what was dropped is still held";
}

TEST_F(UpdateViewGuardTest, HoldsNoLockWhileTheBodyRuns) {
    long count = 0;
    inThread([&] { guard->safeBeginUpdateView([&] { count = guard->token.use_count(); }); });
    test::settle();
    EXPECT_EQ(count, 1);
}

TEST_F(UpdateViewGuardTest, TheBodyMayDestroyTheGuardAndWithItAllThatFollows) {
    int calls = 0;
    inThread([&] {
        guard->safeBeginUpdateView([&] {
            guard.reset();
            ++calls;
        });
        guard->safeBeginUpdateView([&] { ++calls; });
    });
    test::settle();
    EXPECT_EQ(calls, 1);
}

TEST_F(UpdateViewGuardTest, TakesBodiesOfEveryKind) {
    int sum = 0;
    const std::function<void()> constant = [&] { sum += 1; };
    auto counting = [&sum, state = 10]() mutable { sum += state++; };
    guard->safeBeginUpdateView(constant);
    guard->safeBeginUpdateView(counting);
    guard->safeBeginUpdateView(std::bind([&](int value) { sum += value; }, 100));
    EXPECT_EQ(sum, 111);
}

TEST_F(UpdateViewGuardTest, ManyWorkersMayQueueAtOnce) {
    int calls = 0;
    std::vector<std::thread> workers;
    for (int i = 0; i < 4; ++i)
        workers.emplace_back([&] {
            for (int j = 0; j < 250; ++j)
                guard->safeBeginUpdateView([&] { ++calls; });
        });
    EXPECT_TRUE(test::waitFor([&] { return calls == 1000; })) << calls;
    for (std::thread& worker : workers)
        worker.join();
}

TEST_F(UpdateViewGuardTest, ItsLifetimeCanBeWatched) {
    const auto lifetime = guard->getLifetime();
    EXPECT_FALSE(lifetime.expired());
    EXPECT_EQ(guard->token.use_count(), 1);
    guard.reset();
    EXPECT_TRUE(lifetime.expired());
}
