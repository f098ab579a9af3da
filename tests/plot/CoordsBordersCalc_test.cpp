#include <ZelCommonView/plot/CoordsBordersCalc.h>

#include <ZelCommonView/plot/Series.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using ZelView::CoordsBordersCalc;
using Border = ZelView::CoordsConverter::Border;

constexpr float noData = 2147483648.0f;
const float notANumber = std::numeric_limits<float>::quiet_NaN();

struct Range : Zel::IBorderable {
    Range(float xMin, float xMax, float yMin, float yMax) : border{xMin, xMax, yMin, yMax} {}

    void getRangeX(float& min, float& max) const override {
        min = border.xMin;
        max = border.xMax;
    }

    void getRangeY(float& min, float& max) const override {
        min = border.yMin;
        max = border.yMax;
    }

    Border border;
};

void expectBorder(const Border& border, float xMin, float xMax, float yMin, float yMax) {
    EXPECT_EQ(border.xMin, xMin);
    EXPECT_EQ(border.xMax, xMax);
    EXPECT_EQ(border.yMin, yMin);
    EXPECT_EQ(border.yMax, yMax);
}

float up(float value) {
    ZelView::recalcValueUp10persent(value);
    return value;
}

float down(float value) {
    ZelView::recalcValueDown10persent(value);
    return value;
}

} // namespace

TEST(CoordsBordersCalc, TheViewOfAnEmptyPlotIsTenWideAndElevenHigh) {
    expectBorder(CoordsBordersCalc::getZero(), 0, 10, -1, 10);
    expectBorder(CoordsBordersCalc::_getStart(), 0, 10, -1, 10);
}

TEST(CoordsBordersCalc, AnUpperLimitGrowsByATenthWhateverItsSign) {
    EXPECT_EQ(up(10), 11);
    EXPECT_EQ(up(-10), -11);
    EXPECT_EQ(up(0), 0);
    EXPECT_EQ(up(0.3f), static_cast<float>(0.3f * 1.1)); // in double, then narrowed
}

TEST(CoordsBordersCalc, ALowerLimitMovesDownByATenthOnBothSidesOfZero) {
    EXPECT_EQ(down(10), 9);
    EXPECT_EQ(down(-10), -11);
    EXPECT_EQ(down(0), 0);
    EXPECT_EQ(down(0.3f), static_cast<float>(0.3f * 0.9));
}

TEST(CoordsBordersCalc, MarksOfNoDataAndWhatLiesBeyondPassUnchanged) {
    for (float value : {noData, -noData, 3e9f, -3e9f}) {
        EXPECT_EQ(up(value), value);
        EXPECT_EQ(down(value), value);
    }
    EXPECT_TRUE(std::isnan(up(notANumber)));
    EXPECT_NE(up(std::nextafter(noData, 0.0f)), std::nextafter(noData, 0.0f));
    EXPECT_NE(down(std::nextafter(-noData, 0.0f)), std::nextafter(-noData, 0.0f));
}

TEST(CoordsBordersCalc, EitherMarkMakesAPairMinusOneToOne) {
    expectBorder(CoordsBordersCalc::_fixUnsetted({noData, -noData, 2, 3}), -1, 1, 2, 3);
    expectBorder(CoordsBordersCalc::_fixUnsetted({5, -noData, 2, 3}), -1, 1, 2, 3);
    expectBorder(CoordsBordersCalc::_fixUnsetted({noData, 5, 2, 3}), -1, 1, 2, 3);
    expectBorder(CoordsBordersCalc::_fixUnsetted({4, 5, noData, -noData}), 4, 5, -1, 1);
    expectBorder(CoordsBordersCalc::_fixUnsetted({4, 5, 2, -noData}), 4, 5, -1, 1);
    expectBorder(CoordsBordersCalc::_fixUnsetted({4, 5, noData, 3}), 4, 5, -1, 1);
    expectBorder(CoordsBordersCalc::_fixUnsetted({-noData, noData, -noData, noData}), -noData, noData,
                 -noData, noData);
}

TEST(CoordsBordersCalc, OneAutomaticAxisTakesTheRangeWithoutAMarginAndLeavesTheOtherAtTheStart) {
    const Range range(2, 4, 6, 8);
    expectBorder(CoordsBordersCalc::getX(range), 2, 4, -1, 10);
    expectBorder(CoordsBordersCalc::getY(range), 0, 10, 6, 8);
    const Range empty(noData, -noData, noData, -noData);
    expectBorder(CoordsBordersCalc::getX(empty), -1, 1, -1, 10);
    expectBorder(CoordsBordersCalc::getY(empty), 0, 10, -1, 1);
}

TEST(CoordsBordersCalc, BothAutomaticAxesAreWidenedByATenth) {
    expectBorder(CoordsBordersCalc::getXY(Range(10, 20, -50, 40)), 9, 22, -55, 44);
    expectBorder(CoordsBordersCalc::getXY(Range(-10, -5, -50, -40)), -11, -5.5f, -55, -44);
}

TEST(CoordsBordersCalc, AFlatRangeGrowsToTheRightAndDownward) {
    expectBorder(CoordsBordersCalc::getXY(Range(5, 5, 5, 5)), 4.5f, 5.5f, -1, 5.5f);
    // Near zero the tenth does not part the limits, so the steps for flat ranges must.
    expectBorder(CoordsBordersCalc::getXY(Range(0, 0, 0, 0)), 0, 1, -1, 0);
    expectBorder(CoordsBordersCalc::getXY(Range(-5, -5, -5, -5)), -5.5f, -4.5f, -6.5f, -5.5f);
}

TEST(CoordsBordersCalc, OnlyTheLowerEdgeOfYKeepsTheZeroLineInView) {
    // A tenth of the upper edge below zero, computed in double.
    const Border high = CoordsBordersCalc::getXY(Range(0, 1, 0, 100));
    EXPECT_EQ(high.yMax, static_cast<float>(100 * 1.1));
    EXPECT_EQ(high.yMin, static_cast<float>(high.yMax * -0.1));
    EXPECT_NEAR(high.yMin, -11, 1e-4);
    // At least -1 ...
    EXPECT_EQ(CoordsBordersCalc::getXY(Range(0, 1, 0, 2)).yMin, -1);
    // ... also where a tenth of the upper edge is less than the lower edge is high ...
    EXPECT_EQ(CoordsBordersCalc::getXY(Range(0, 1, 90, 100)).yMin, -1);
    // ... but nothing pulls an upper edge up to zero.
    EXPECT_EQ(CoordsBordersCalc::getXY(Range(0, 1, -100, -90)).yMax, -99);
    // The first of the two steps compares by size, so an edge far enough below stays.
    EXPECT_EQ(CoordsBordersCalc::getXY(Range(0, 1, -20, 100)).yMin, -22);
}

TEST(CoordsBordersCalc, AnEmptyBorderableGivesMinusOneToOneOnBothAxes) {
    expectBorder(CoordsBordersCalc::getXY(Range(noData, -noData, noData, -noData)), -1, 1, -1, 1);
    expectBorder(CoordsBordersCalc::getXY(Range(0, 10, noData, -noData)), 0, 11, -1, 1);
    expectBorder(CoordsBordersCalc::getXY(Zel::Series()), -1, 1, -1, 1);
}

TEST(CoordsBordersCalc, ABorderableThatReportsNothingKeepsTheStartWidened) {
    expectBorder(CoordsBordersCalc::getXY(Zel::IBorderable()), 0, 11, -1.1f, 11);
}

TEST(CoordsBordersCalc, ASummaryAlwaysContainsTheStart) {
    expectBorder(CoordsBordersCalc::getSummary({}), 0, 10, -1, 10);
    expectBorder(CoordsBordersCalc::getSummary({{0, 0.5f, 0, 0.5f}}), 0, 10, -1, 10);
    expectBorder(CoordsBordersCalc::getSummary({{-5, 3, -2, 3}, {1, 20, 0, 30}}), -5, 20, -2, 30);
}

TEST(CoordsBordersCalc, ASummaryWithMarksIsFixedAsAWhole) {
    expectBorder(CoordsBordersCalc::getSummary({{0, noData, -1, 10}}), 0, noData, -1, 10);
    expectBorder(CoordsBordersCalc::getSummary({{-1, 1, noData, -noData}}), -1, 10, -1, 10);
}

TEST(CoordsBordersCalc, ASummaryLeavesOutWhatIsNotANumber) {
    expectBorder(
        CoordsBordersCalc::getSummary({{notANumber, notANumber, notANumber, notANumber}, {-3, 30, -4, 40}}),
        -3, 30, -4, 40);
}
