#include <ZelCommonView/common/PointerConnectionsDispatcher.h>

#include <gtest/gtest.h>

#include <sigc++/sigc++.h>

#include <memory>
#include <type_traits>

namespace {

using Zel::PointerConnectionsDispatcher;

static_assert(!std::is_copy_constructible_v<PointerConnectionsDispatcher>);
static_assert(!std::is_copy_assignable_v<PointerConnectionsDispatcher>);

struct PointerConnections : testing::Test {
    sigc::connection count(int& counter) {
        return signal.connect([&counter] { ++counter; });
    }

    sigc::signal<void> signal;
    int first = 0, second = 0;
    int firstKey = 0, secondKey = 0;
};

TEST_F(PointerConnections, StartEmpty) {
    EXPECT_TRUE(PointerConnectionsDispatcher().connections.empty());
}

TEST_F(PointerConnections, AreLeftAloneWhenStored) {
    PointerConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, count(first));
    signal();
    EXPECT_EQ(first, 1);
}

TEST_F(PointerConnections, OfOneAddressAreDisconnectedAndForgotten) {
    PointerConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, count(first));
    dispatcher.connect(&secondKey, count(second));
    dispatcher.disconnect(&firstKey);
    signal();
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
    EXPECT_EQ(dispatcher.connections.count(&firstKey), 0u);
    EXPECT_EQ(dispatcher.connections.size(), 1u);
}

TEST_F(PointerConnections, OfAnUnknownAddressAreNoError) {
    PointerConnectionsDispatcher dispatcher;
    dispatcher.disconnect(&firstKey);
    dispatcher.disconnect(nullptr);
    dispatcher.connect(&firstKey, count(first));
    dispatcher.disconnect(&secondKey);
    signal();
    EXPECT_EQ(first, 1);
}

TEST_F(PointerConnections, MayBeDisconnectedTwice) {
    PointerConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, count(first));
    dispatcher.disconnect(&firstKey);
    dispatcher.disconnect(&firstKey);
    EXPECT_TRUE(dispatcher.connections.empty());
}

TEST_F(PointerConnections, UnderAKnownAddressReplaceWhatStoodThere) {
    PointerConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, count(first));
    dispatcher.connect(&firstKey, count(second));
    signal();
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
    dispatcher.disconnect(&firstKey);
    signal();
    EXPECT_EQ(second, 1);
}

TEST_F(PointerConnections, AreAllDisconnectedAndForgottenAtOnce) {
    PointerConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, count(first));
    dispatcher.connect(&secondKey, count(second));
    dispatcher.disconnectAll();
    signal();
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 0);
    EXPECT_TRUE(dispatcher.connections.empty());

    dispatcher.connect(&firstKey, count(first));
    signal();
    EXPECT_EQ(first, 1);
}

TEST_F(PointerConnections, AreDisconnectedWhenTheTableDies) {
    {
        PointerConnectionsDispatcher dispatcher;
        dispatcher.connect(&firstKey, count(first));
        dispatcher.connect(&secondKey, count(second));
    }
    signal();
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 0);
    EXPECT_TRUE(signal.empty());
}

TEST_F(PointerConnections, OutliveTheirSignal) {
    PointerConnectionsDispatcher dispatcher;
    {
        sigc::signal<void> shortLived;
        dispatcher.connect(&firstKey, shortLived.connect([] {}));
    }
    dispatcher.disconnect(&firstKey);
    EXPECT_TRUE(dispatcher.connections.empty());
}

TEST_F(PointerConnections, MayBeDisconnectedByTheirOwnSlot) {
    PointerConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, signal.connect([&] {
        ++first;
        dispatcher.disconnect(&firstKey);
    }));
    signal();
    signal();
    EXPECT_EQ(first, 1);
}

// What a slot has captured dies with it, and may call the table on its way out.
TEST_F(PointerConnections, MayComeBackToTheTableWhileTheyAreDisconnected) {
    PointerConnectionsDispatcher dispatcher;
    int calls = 0;
    const auto connectGuarded = [&](const void* key) {
        std::shared_ptr<void> guard(nullptr, [&dispatcher, &calls, key](void*) {
            ++calls;
            dispatcher.disconnect(key);
            dispatcher.disconnectAll();
        });
        dispatcher.connect(key, signal.connect([guard] {}));
    };
    connectGuarded(&firstKey);
    dispatcher.disconnect(&firstKey);
    EXPECT_EQ(calls, 1);

    connectGuarded(&firstKey);
    connectGuarded(&secondKey);
    dispatcher.disconnectAll();
    EXPECT_EQ(calls, 3);
    EXPECT_TRUE(dispatcher.connections.empty());
}

} // namespace
