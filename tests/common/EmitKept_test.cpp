#include <ZelCommonView/common/EmitKept.h>

#include <sigc++/signal.h>

#include <gtest/gtest.h>

#include <memory>

TEST(EmitKept, GivesEachListenerTheValuesAndReturnsTheLastAnswer) {
    sigc::signal<int, int, int> signal;
    int sum = 0;
    signal.connect([&sum](int a, int b) { return sum += a + b; });
    signal.connect([](int a, int b) { return a * b; });
    EXPECT_EQ(Zel::emitKept(signal, 3, 5), 15);
    EXPECT_EQ(sum, 8);
}

// Plain emission would leak here, which the sanitizer run tells.
TEST(EmitKept, AListenerMayDestroyTheSignal) {
    auto signal = std::make_unique<sigc::signal<void>>();
    int later = 0;
    signal->connect([&signal] { signal.reset(); });
    signal->connect([&later] { ++later; });
    Zel::emitKept(*signal);
    EXPECT_FALSE(signal);
    EXPECT_EQ(later, 1);
}
