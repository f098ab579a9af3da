#include <ZelCommonView/plot/Series.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <type_traits>

namespace {

constexpr float noDataMin = 2147483648.0f;
constexpr float noDataMax = -2147483648.0f;
const float notANumber = std::numeric_limits<float>::quiet_NaN();
const float infinity = std::numeric_limits<float>::infinity();

struct OnlyY : Zel::IBorderable {
    void getRangeY(float& min, float& max) const override {
        min = -3;
        max = 7;
    }
};

template <typename TSeries>
void expectRange(const TSeries& series, float xMin, float xMax, float yMin, float yMax) {
    float a = 1, b = 2, c = 3, d = 4;
    series.getRangeX(a, b);
    EXPECT_EQ(a, xMin);
    EXPECT_EQ(b, xMax);
    series.getRangeY(c, d);
    EXPECT_EQ(c, yMin);
    EXPECT_EQ(d, yMax);
    a = b = c = d = 5;
    series.getRangeXY(a, b, c, d);
    EXPECT_EQ(a, xMin);
    EXPECT_EQ(b, xMax);
    EXPECT_EQ(c, yMin);
    EXPECT_EQ(d, yMax);
}

Zel::TimedSeries timed(std::vector<Zel::TimedPointF> points) {
    Zel::TimedSeries series;
    series.points = std::move(points);
    return series;
}

Zel::Series series(std::vector<Zel::PointF> points) {
    Zel::Series result;
    result.points = std::move(points);
    return result;
}

} // namespace

TEST(Color, IsFourBytesInTheOrderRedGreenBlueAlpha) {
    static_assert(sizeof(Zel::Color) == 4);
    EXPECT_EQ(offsetof(Zel::Color, r), 0u);
    EXPECT_EQ(offsetof(Zel::Color, g), 1u);
    EXPECT_EQ(offsetof(Zel::Color, b), 2u);
    EXPECT_EQ(offsetof(Zel::Color, a), 3u);
    EXPECT_EQ(Zel::Color().a, 255);
}

TEST(PointF, HoldsTwoFloatsInTheOrderXY) {
    static_assert(std::is_same_v<decltype(Zel::PointF::x), float>);
    static_assert(sizeof(Zel::PointF) == 8);
    const Zel::PointF point{1, 2};
    EXPECT_EQ(point.x, 1);
    EXPECT_EQ(point.y, 2);
}

TEST(TimedPointF, HoldsAPointThenMilliseconds) {
    static_assert(std::is_same_v<decltype(Zel::TimedPointF::time), std::uint64_t>);
    const Zel::TimedPointF point{{1, 2}, 3};
    EXPECT_EQ(point.point.x, 1);
    EXPECT_EQ(point.point.y, 2);
    EXPECT_EQ(point.time, 3u);
}

TEST(SeriesType, HasTheValuesThatFilesAndCallersRelyOn) {
    static_assert(sizeof(Zel::SeriesType) == 4);
    EXPECT_EQ(static_cast<int>(Zel::SeriesType::Analog), 0);
    EXPECT_EQ(static_cast<int>(Zel::SeriesType::Binary), 1);
}

TEST(IBorderable, LeavesAllArgumentsAloneByDefault) {
    const Zel::IBorderable borderable;
    float a = 1, b = 2, c = 3, d = 4;
    borderable.getRangeXY(a, b, c, d);
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 2);
    EXPECT_EQ(c, 3);
    EXPECT_EQ(d, 4);
}

TEST(IBorderable, AsksForBothAxesAndKeepsTheCallersXIfOnlyYIsKnown) {
    const OnlyY borderable;
    float a = 1, b = 2, c = 3, d = 4;
    borderable.getRangeXY(a, b, c, d);
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 2);
    EXPECT_EQ(c, -3);
    EXPECT_EQ(d, 7);
}

TEST(Series, ReportsTheLimitsOfItsPoints) {
    expectRange(series({{2, -5}, {1, 4}, {7, 0}}), 1, 7, -5, 4);
    expectRange(series({{3, 3}}), 3, 3, 3, 3);
}

TEST(Series, WithoutPointsReportsTheMarksOfNoData) {
    expectRange(series({}), noDataMin, noDataMax, noDataMin, noDataMax);
}

TEST(Series, LeavesOutWhatIsNotANumberAxisByAxis) {
    expectRange(series({{notANumber, 1}, {2, notANumber}, {4, 3}}), 2, 4, 1, 3);
    expectRange(series({{0, infinity}, {1, -infinity}, {2, 5}}), 0, 2, 5, 5);
}

TEST(Series, WithNoNumberLeftOnAnAxisReportsThatAxisAsEmpty) {
    expectRange(series({{1, notANumber}, {2, notANumber}}), 1, 2, noDataMin, noDataMax);
}

TEST(Series, ReportsLimitsBeyondTheMarksAsTheyAre) {
    expectRange(series({{3e9f, -3e9f}, {4e9f, -4e9f}}), 3e9f, 4e9f, -4e9f, -3e9f);
}

TEST(Series, ReturnsItsNameAndColour) {
    Zel::Series s;
    s.name = "Ia";
    s.color = {1, 2, 3, 4};
    EXPECT_EQ(&s.getName(), &s.name);
    EXPECT_EQ(s.getColor().r, 1);
    EXPECT_EQ(s.getColor().a, 4);
}

TEST(Series, IsABorderableFirstAndAFragmentableSecond) {
    Zel::Series s;
    const Zel::IBorderable* borderable = &s;
    const Zel::IFragmentable* fragmentable = &s;
    EXPECT_EQ(static_cast<const void*>(borderable), static_cast<const void*>(&s));
    EXPECT_NE(static_cast<const void*>(fragmentable), static_cast<const void*>(&s));
    EXPECT_EQ(dynamic_cast<const Zel::Series*>(fragmentable), &s);
}

TEST(Series, KeepsTheOrderOfItsData) {
    const Zel::Series s;
    const void* fields[] = {&s.type, &s.index, &s.name, &s.color, &s.points, &s.thickness, &s.drawAreaIndex};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST(Series, SignalsReachListenersOfConstantObjects) {
    const Zel::Series s;
    int changed = 0;
    int ranged = 0;
    s.changed.connect([&] { ++changed; });
    s.rangeChanged.connect([&] { ++ranged; });
    s.changed.emit();
    s.changed.emit();
    s.rangeChanged.emit();
    EXPECT_EQ(changed, 2);
    EXPECT_EQ(ranged, 1);
}

TEST(Series, ACopyHasNoListenersOfTheOriginal) {
    Zel::Series original = series({{1, 2}});
    int heard = 0;
    original.changed.connect([&] { ++heard; });
    original.rangeChanged.connect([&] { ++heard; });

    const Zel::Series copy = original;
    EXPECT_EQ(copy.points.size(), 1u);
    copy.changed.emit();
    copy.rangeChanged.emit();
    EXPECT_EQ(heard, 0);

    const Zel::Series moved = std::move(original);
    EXPECT_EQ(moved.points.size(), 1u);
    moved.changed.emit();
    moved.rangeChanged.emit();
    EXPECT_EQ(heard, 0);
}

TEST(Series, AnAssignmentKeepsTheListenersOfBothSides) {
    Zel::Series a;
    const Zel::Series b = series({{1, 2}});
    int heardA = 0;
    int heardB = 0;
    a.changed.connect([&] { ++heardA; });
    b.changed.connect([&] { ++heardB; });

    a = b;
    EXPECT_EQ(a.points.size(), 1u);
    a.changed.emit();
    EXPECT_EQ(heardA, 1);
    EXPECT_EQ(heardB, 0);
    b.changed.emit();
    EXPECT_EQ(heardA, 1);
    EXPECT_EQ(heardB, 1);
}

TEST(TimedSeries, ReportsTheLimitsOfItsTrajectory) {
    expectRange(timed({{{2, -5}, 0}, {{notANumber, 4}, 10}, {{7, 0}, 20}}), 2, 7, -5, 4);
    expectRange(timed({}), noDataMin, noDataMax, noDataMin, noDataMax);
    expectRange(timed({{{1, notANumber}, 0}}), 1, 1, noDataMin, noDataMax);
}

TEST(TimedSeries, IsDestroyedThroughItsBase) {
    static_assert(std::has_virtual_destructor_v<Zel::TimedSeries>);
    static_assert(!std::is_base_of_v<Zel::IFragmentable, Zel::TimedSeries>);
    const Zel::TimedSeries s;
    EXPECT_LT(static_cast<const void*>(&s.points), static_cast<const void*>(&s.color));
}
