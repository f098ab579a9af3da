#include <ZelCommonView/common/NumericRange.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <type_traits>

namespace {

using Zel::NumericRange;
using Limits = std::numeric_limits<double>;

static_assert(sizeof(NumericRange) == 3 * sizeof(double));
static_assert(offsetof(NumericRange, min) == 0);
static_assert(offsetof(NumericRange, max) == sizeof(double));
static_assert(offsetof(NumericRange, step) == 2 * sizeof(double));
static_assert(std::is_trivially_copyable_v<NumericRange>);

TEST(NumericRange, ReturnsWhatWasStored) {
    const NumericRange range(-1.5, 20.0, 0.25);
    EXPECT_EQ(range.getMin(), -1.5);
    EXPECT_EQ(range.getMax(), 20.0);
    EXPECT_EQ(range.getStep(), 0.25);
}

TEST(NumericRange, NeitherOrdersItsLimitsNorRefusesAStep) {
    const NumericRange range(5.0, -5.0, -1.0);
    EXPECT_EQ(range.getMin(), 5.0);
    EXPECT_EQ(range.getMax(), -5.0);
    EXPECT_EQ(range.getStep(), -1.0);
}

TEST(NumericRange, DiffersIfAnyOfTheThreeNumbersDoes) {
    const NumericRange range(0.0, 10.0, 0.1);
    EXPECT_FALSE(range != NumericRange(0.0, 10.0, 0.1));
    EXPECT_TRUE(range == NumericRange(0.0, 10.0, 0.1));
    for (const NumericRange& other :
         {NumericRange(-1.0, 10.0, 0.1), NumericRange(0.0, 11.0, 0.1), NumericRange(0.0, 10.0, 0.2)}) {
        EXPECT_TRUE(range != other);
        EXPECT_FALSE(range == other);
    }
}

TEST(NumericRange, WithANanDiffersFromItself) {
    const NumericRange range(0.0, 10.0, Limits::quiet_NaN());
    EXPECT_TRUE(range != range);
}

TEST(NumericRange, IsFullOnlyIfItsLimitsSpanTheWholeType) {
    const double lowest = Limits::lowest(), max = Limits::max(), infinity = Limits::infinity();
    EXPECT_TRUE(NumericRange(lowest, max, 1.0).isFull());
    EXPECT_TRUE(NumericRange(-infinity, infinity, 0.0).isFull());
    EXPECT_TRUE(NumericRange(lowest, max, Limits::quiet_NaN()).isFull());

    EXPECT_FALSE(NumericRange(-1e16, 1e16, 1e-9).isFull());
    EXPECT_FALSE(NumericRange(0.0, max, 1.0).isFull());
    EXPECT_FALSE(NumericRange(lowest, 0.0, 1.0).isFull());
    EXPECT_FALSE(NumericRange(max, lowest, 1.0).isFull());
    EXPECT_FALSE(NumericRange(Limits::quiet_NaN(), max, 1.0).isFull());
}

} // namespace
