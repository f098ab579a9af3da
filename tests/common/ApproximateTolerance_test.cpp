#include <ZelCommonView/common/ApproximateTolerance.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>

namespace {

using Zel::ApproximateTolerance;

static_assert(std::is_aggregate_v<ApproximateTolerance>);
static_assert(sizeof(ApproximateTolerance) == 2 * sizeof(double));
static_assert(offsetof(ApproximateTolerance, relative) == 0);
static_assert(offsetof(ApproximateTolerance, scale) == sizeof(double));

TEST(ApproximateTolerance, IsFilledInTheOrderRelativeScale) {
    const ApproximateTolerance tolerance{1e-10, 0.01};
    EXPECT_EQ(tolerance.relative, 1e-10);
    EXPECT_EQ(tolerance.scale, 0.01);
}

TEST(ApproximateTolerance, IsZeroByDefault) {
    EXPECT_EQ(ApproximateTolerance().relative, 0.0);
    EXPECT_EQ(ApproximateTolerance().scale, 0.0);
}

} // namespace
