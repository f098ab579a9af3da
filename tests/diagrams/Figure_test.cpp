#include <ZelCommonView/diagrams/Figure.h>

#include <gtest/gtest.h>

#include <iterator>
#include <limits>
#include <memory>
#include <type_traits>

namespace {

constexpr float noDataMin = 2147483648.0f;
constexpr float noDataMax = -2147483648.0f;
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float largest = std::numeric_limits<float>::max();

void expectRange(const Zel::Figure& figure, float xMin, float xMax, float yMin, float yMax) {
    float a = 1, b = 2, c = 3, d = 4;
    figure.getRangeX(a, b);
    figure.getRangeY(c, d);
    EXPECT_EQ(a, xMin);
    EXPECT_EQ(b, xMax);
    EXPECT_EQ(c, yMin);
    EXPECT_EQ(d, yMax);
    a = b = c = d = 5;
    figure.getRangeXY(a, b, c, d);
    EXPECT_EQ(a, xMin);
    EXPECT_EQ(b, xMax);
    EXPECT_EQ(c, yMin);
    EXPECT_EQ(d, yMax);
}

void expectEmpty(const Zel::Figure& figure) {
    expectRange(figure, noDataMin, noDataMax, noDataMin, noDataMax);
}

Zel::Circle circle(float x, float y, float radius) {
    Zel::Circle result;
    result.x = x;
    result.y = y;
    result.radius = radius;
    return result;
}

Zel::FixedDot dot(float x, float y) {
    Zel::FixedDot result;
    result.x = x;
    result.y = y;
    return result;
}

Zel::PointsSequence sequence(std::vector<Zel::PointF> points) {
    Zel::PointsSequence result;
    result.points = std::move(points);
    return result;
}

template <std::size_t count>
void expectOrder(const void* const (&fields)[count]) {
    for (std::size_t i = 1; i < count; ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

/// A figure of an application, which knows nothing of its extent.
struct Plain : Zel::Figure {};

} // namespace

TEST(Figure, AddsNothingToABorderable) {
    static_assert(std::is_base_of_v<Zel::IBorderable, Zel::Figure>);
    static_assert(sizeof(Zel::Figure) == sizeof(Zel::IBorderable));
    static_assert(std::has_virtual_destructor_v<Zel::Figure>);
    float a = 1, b = 2, c = 3, d = 4;
    Plain().getRangeXY(a, b, c, d);
    EXPECT_EQ(a + b + c + d, 10) << "without limits of its own a figure leaves the arguments alone";
}

TEST(Figure, KeepsTheOrderOfItsData) {
    const Zel::Circle c;
    expectOrder({&c.x, &c.y, &c.radius, &c.color, &c.text, &c.filled});
    const Zel::FixedDot d;
    expectOrder({&d.x, &d.y, &d.color});
    const Zel::PointsSequence s;
    expectOrder({&s.points, &s.color, &s.text, &s.closed, &s.lines});
}

TEST(Figure, IsDestroyedThroughItsBase) {
    auto owned = std::make_unique<Zel::PointsSequence>();
    owned->text = "a text that is too long to be kept inside of the object itself";
    owned->points.resize(100);
    const std::unique_ptr<Zel::Figure> figure = std::move(owned);
    EXPECT_NE(dynamic_cast<const Zel::PointsSequence*>(figure.get()), nullptr);
    EXPECT_EQ(dynamic_cast<const Zel::Circle*>(figure.get()), nullptr);
}

TEST(Figure, SignalsReachListenersOfConstantObjectsAndAreNeverCopied) {
    Zel::Circle original = circle(1, 2, 3);
    int heard = 0;
    const Zel::Circle& constant = original;
    constant.rangeChanged.connect([&] { ++heard; });
    constant.rangeChanged.emit();
    EXPECT_EQ(heard, 1);

    Zel::Circle copy = original;
    EXPECT_EQ(copy.radius, 3);
    copy.rangeChanged.emit();
    EXPECT_EQ(heard, 1);
    original = copy;
    original.rangeChanged.emit();
    EXPECT_EQ(heard, 2);
    const Zel::Circle moved = std::move(original);
    moved.rangeChanged.emit();
    EXPECT_EQ(heard, 2);
}

TEST(Circle, ReportsTheLimitsOfItsOutline) {
    expectRange(circle(2, -3, 5), -3, 7, -8, 2);
    expectRange(circle(2, -3, 0), 2, 2, -3, -3);
}

TEST(Circle, WithANegativeRadiusReportsItsCentre) {
    expectRange(circle(2, -3, -5), 2, 2, -3, -3);
}

TEST(Circle, OfNumbersThatAreNotFiniteReportsTheMarksOfNoData) {
    for (const float bad : {notANumber, infinity, -infinity}) {
        expectEmpty(circle(bad, 0, 1));
        expectEmpty(circle(0, bad, 1));
        expectEmpty(circle(0, 0, bad));
    }
}

TEST(Circle, ThatReachesBeyondTheLargestNumberEndsThere) {
    expectRange(circle(largest, 0, largest), 0, largest, -largest, largest);
    expectRange(circle(-largest, 0, largest), -largest, 0, -largest, largest);
}

TEST(FixedDot, ReportsItsPositionAndLeavesOutWhatIsNotFinite) {
    expectRange(dot(2, -3), 2, 2, -3, -3);
    expectRange(dot(notANumber, -3), noDataMin, noDataMax, -3, -3);
    expectRange(dot(2, infinity), 2, 2, noDataMin, noDataMax);
}

TEST(PointsSequence, ReportsTheLimitsOfItsPoints) {
    expectRange(sequence({{2, -5}, {1, 4}, {7, 0}}), 1, 7, -5, 4);
    expectRange(sequence({{3, 3}}), 3, 3, 3, 3);
    expectRange(sequence({{notANumber, 1}, {2, infinity}, {4, 3}}), 2, 4, 1, 3);
}

TEST(PointsSequence, WithoutPointsReportsTheMarksOfNoData) {
    expectEmpty(sequence({}));
    expectRange(sequence({{notANumber, 1}}), noDataMin, noDataMax, 1, 1);
}
