#include <ZelCommonView/common/PointerNamedConnectionsDispatcher.h>

#include <gtest/gtest.h>

#include <sigc++/sigc++.h>

#include <memory>
#include <type_traits>

namespace {

using Zel::PointerNamedConnectionsDispatcher;

static_assert(!std::is_copy_constructible_v<PointerNamedConnectionsDispatcher>);
static_assert(!std::is_copy_assignable_v<PointerNamedConnectionsDispatcher>);

struct PointerNamedConnections : testing::Test {
    sigc::connection count(int& counter) {
        return signal.connect([&counter] { ++counter; });
    }

    sigc::signal<void> signal;
    int first = 0, second = 0, third = 0;
    int firstKey = 0, secondKey = 0;
};

TEST_F(PointerNamedConnections, HaveTheirTableAsTheFirstMember) {
    PointerNamedConnectionsDispatcher dispatcher;
    EXPECT_EQ(static_cast<void*>(&dispatcher.connections), static_cast<void*>(&dispatcher));
    EXPECT_TRUE(dispatcher.connections.empty());
}

TEST_F(PointerNamedConnections, AreKeptApartByAddressAndByName) {
    PointerNamedConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, "drop", count(first));
    dispatcher.connect(&firstKey, "close", count(second));
    dispatcher.connect(&secondKey, "drop", count(third));
    signal();
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);
    EXPECT_EQ(third, 1);

    dispatcher.disconnect(&firstKey, "drop");
    signal();
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
    EXPECT_EQ(third, 2);
}

TEST_F(PointerNamedConnections, LeaveNothingBehindWhenDisconnected) {
    PointerNamedConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, "drop", count(first));
    dispatcher.connect(&firstKey, "", count(second));
    dispatcher.disconnect(&firstKey, "");
    EXPECT_EQ(dispatcher.connections.at(&firstKey).size(), 1u);
    dispatcher.disconnect(&firstKey, "drop");
    EXPECT_TRUE(dispatcher.connections.empty());
    EXPECT_TRUE(signal.empty());
}

TEST_F(PointerNamedConnections, OfAPairThatIsNotThereAreNoError) {
    PointerNamedConnectionsDispatcher dispatcher;
    dispatcher.disconnect(&firstKey, "drop");
    dispatcher.connect(&firstKey, "drop", count(first));
    dispatcher.disconnect(&firstKey, "close");
    dispatcher.disconnect(&secondKey, "drop");
    signal();
    EXPECT_EQ(first, 1);
    dispatcher.disconnect(&firstKey, "drop");
    dispatcher.disconnect(&firstKey, "drop");
    EXPECT_TRUE(dispatcher.connections.empty());
}

TEST_F(PointerNamedConnections, UnderAKnownPairReplaceWhatStoodThere) {
    PointerNamedConnectionsDispatcher dispatcher;
    dispatcher.connect(&firstKey, "drop", count(first));
    dispatcher.connect(&firstKey, "drop", count(second));
    signal();
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST_F(PointerNamedConnections, AreDisconnectedWhenTheTableDies) {
    {
        PointerNamedConnectionsDispatcher dispatcher;
        dispatcher.connect(&firstKey, "drop", count(first));
        dispatcher.connect(&firstKey, "close", count(second));
        dispatcher.connect(&secondKey, "drop", count(third));
    }
    signal();
    EXPECT_EQ(first + second + third, 0);
    EXPECT_TRUE(signal.empty());
}

TEST_F(PointerNamedConnections, OutliveTheirSignal) {
    PointerNamedConnectionsDispatcher dispatcher;
    {
        sigc::signal<void> shortLived;
        dispatcher.connect(&firstKey, "drop", shortLived.connect([] {}));
    }
    dispatcher.disconnect(&firstKey, "drop");
    EXPECT_TRUE(dispatcher.connections.empty());
}

// What a slot has captured dies with it, and may call the table on its way out.
TEST_F(PointerNamedConnections, MayComeBackToTheTableWhileTheyAreDisconnected) {
    int calls = 0;
    {
        PointerNamedConnectionsDispatcher dispatcher;
        const auto connectGuarded = [&](const std::string& name) {
            std::shared_ptr<void> guard(nullptr, [&dispatcher, &calls, this, name](void*) {
                ++calls;
                dispatcher.disconnect(&firstKey, name);
            });
            dispatcher.connect(&firstKey, name, signal.connect([guard] {}));
        };
        connectGuarded("drop");
        dispatcher.disconnect(&firstKey, "drop");
        EXPECT_EQ(calls, 1);
        EXPECT_TRUE(dispatcher.connections.empty());

        connectGuarded("drop");
        connectGuarded("close");
    }
    EXPECT_EQ(calls, 3);
}

} // namespace
