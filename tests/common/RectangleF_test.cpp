#include <ZelCommonView/common/RectangleF.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>

namespace {

using Zel::RectangleF;

static_assert(std::is_aggregate_v<RectangleF>);
static_assert(sizeof(RectangleF) == 4 * sizeof(float));
static_assert(offsetof(RectangleF, x) == 0);
static_assert(offsetof(RectangleF, y) == sizeof(float));
static_assert(offsetof(RectangleF, width) == 2 * sizeof(float));
static_assert(offsetof(RectangleF, height) == 3 * sizeof(float));

TEST(RectangleF, IsFilledInTheOrderXYWidthHeight) {
    const RectangleF rectangle{1.0f, 2.0f, 30.0f, 40.0f};
    EXPECT_EQ(rectangle.x, 1.0f);
    EXPECT_EQ(rectangle.y, 2.0f);
    EXPECT_EQ(rectangle.width, 30.0f);
    EXPECT_EQ(rectangle.height, 40.0f);
}

TEST(RectangleF, IsZeroByDefault) {
    const RectangleF rectangle;
    EXPECT_EQ(rectangle.x, 0.0f);
    EXPECT_EQ(rectangle.y, 0.0f);
    EXPECT_EQ(rectangle.width, 0.0f);
    EXPECT_EQ(rectangle.height, 0.0f);
}

} // namespace
