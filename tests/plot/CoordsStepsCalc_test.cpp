#include <ZelCommonView/plot/CoordsStepsCalc.h>

#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/CoordsDrawer.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace ZelView;

struct Steps {
    int first = 77;
    int last = 77;
    float step = 77;
};

StretchableCoordsConverter makeConverter(float size, float min, float max) {
    StretchableCoordsConverter converter;
    converter.widgetWidth = converter.widgetHeight = size;
    converter.setBorder({min, max, min, max});
    converter.recalc();
    return converter;
}

Steps stepsX(float size, float min, float max, CoordsDrawerCfg cfg = {}) {
    const auto converter = makeConverter(size, min, max);
    Steps steps;
    CoordsStepsCalc(converter, cfg).getStepsInfoX(steps.first, steps.last, steps.step);
    return steps;
}

Steps stepsY(float size, float min, float max, CoordsDrawerCfg cfg = {}) {
    const auto converter = makeConverter(size, min, max);
    Steps steps;
    CoordsStepsCalc(converter, cfg).getStepsInfoY(steps.first, steps.last, steps.step);
    return steps;
}

float stepValue(double span, unsigned int count) {
    const StretchableCoordsConverter converter;
    const CoordsDrawerCfg cfg;
    return CoordsStepsCalc(converter, cfg)._getStepValue(span, count);
}

void expectSteps(const Steps& steps, int first, int last, float step) {
    EXPECT_EQ(steps.first, first);
    EXPECT_EQ(steps.last, last);
    EXPECT_EQ(steps.step, step);
}

const float notANumber = std::numeric_limits<float>::quiet_NaN();
const float infinity = std::numeric_limits<float>::infinity();

} // namespace

TEST(CoordsStepsCalc, RoundsAStepToTwoFiveOrTenOfItsDecade) {
    EXPECT_EQ(stepValue(100, 10), 20); // a mantissa of exactly 1
    EXPECT_EQ(stepValue(19.9, 1), 20);
    EXPECT_EQ(stepValue(100, 4), 50);
    EXPECT_EQ(stepValue(20, 1), 50);  // exactly 2
    EXPECT_EQ(stepValue(100, 2), 50); // exactly 5, which isn't above 5
    EXPECT_EQ(stepValue(50.1, 1), 100);
    EXPECT_EQ(stepValue(0.03, 1), 0.05f);
    EXPECT_EQ(stepValue(0.07, 1), 0.1f);
    EXPECT_EQ(stepValue(0.0015, 1), 0.002f);
}

TEST(CoordsStepsCalc, WithoutRoomThereIsNoStep) {
    EXPECT_EQ(stepValue(123, 0), 0);
    expectSteps(stepsX(0, 0, 10), 0, 0, 0);
    expectSteps(stepsY(0, 0, 10), 0, 0, 0);
}

TEST(CoordsStepsCalc, AnAxisNarrowerThanItsMarginsHasNoStep) {
    auto converter = makeConverter(10, 0, 10);
    converter.offset = {100, 100, 100, 100};
    converter.recalc();
    const CoordsDrawerCfg cfg;
    Steps steps;
    CoordsStepsCalc(converter, cfg).getStepsInfoX(steps.first, steps.last, steps.step);
    expectSteps(steps, 0, 0, 0);
}

TEST(CoordsStepsCalc, LinesReachOneStepPastTheViewOnBothSides) {
    // 250 pixels make 5 steps of 50; a span of 10 gives a raw step of 2, and so 5; 300 pixels give 2.
    expectSteps(stepsX(300, 0, 10), -1, 6, 2);
    expectSteps(stepsY(300, 0, 10), -1, 6, 2);
    expectSteps(stepsX(250, 0, 10), -1, 3, 5);
}

TEST(CoordsStepsCalc, TruncatesTowardZero) {
    // 0.5 / 2 - 1 = -0.75 becomes 0, so the line at -2 is left out.
    expectSteps(stepsX(300, 0.5f, 10.5f), 0, 6, 2);
    // -0.5 / 2 - 1 = -1.25 becomes -1.
    expectSteps(stepsX(300, -0.5f, 9.5f), -1, 5, 2);
    // An upper edge below zero: -21 / 2 + 1 = -9.5 becomes -9.
    expectSteps(stepsX(300, -31, -21), -16, -9, 2);
}

TEST(CoordsStepsCalc, RoundsTheNumberOfStepsUp) {
    // 251 pixels make 6 steps, whose raw size of 10 / 6 gives 2.
    EXPECT_EQ(stepsX(251, 0, 10).step, 2);
    EXPECT_EQ(stepsX(250, 0, 10).step, 5);
    EXPECT_EQ(stepsX(1, 0, 10).step, 20);
}

TEST(CoordsStepsCalc, EachAxisHasItsOwnSmallestDistance) {
    CoordsDrawerCfg cfg;
    cfg.minStepPixelsX = 100;
    cfg.minStepPixelsY = 10;
    EXPECT_EQ(stepsX(300, 0, 10, cfg).step, 5);
    EXPECT_EQ(stepsY(300, 0, 10, cfg).step, 0.5f);
}

TEST(CoordsStepsCalc, ASpanOfZeroHasNoStep) {
    expectSteps(stepsX(300, 5, 5), 0, 0, 0);
    expectSteps(stepsY(300, 5, 5), 0, 0, 0);
}

TEST(CoordsStepsCalc, LimitsThatAreNoNumbersGiveAnEmptySpanOfLines) {
    const Steps steps = stepsX(300, notANumber, notANumber);
    EXPECT_TRUE(std::isnan(steps.step));
    EXPECT_EQ(steps.first, steps.last);
}

TEST(CoordsStepsCalc, NeverAsksForMoreLinesThanAScreenHasPixels) {
    CoordsDrawerCfg cfg;
    for (float distance : {0.0f, 1e-30f, infinity, notANumber, -50.0f})
        for (float max : {1.0f, 1e30f, 3e38f}) {
            cfg.minStepPixelsX = distance;
            const Steps steps = stepsX(300, 0, max, cfg);
            EXPECT_LE(static_cast<long long>(steps.last) - steps.first, 200000) << distance << " " << max;
        }
    const Steps far = stepsX(300, 1e9f, 1e9f + 64);
    EXPECT_LE(static_cast<long long>(far.last) - far.first, 10);
    expectSteps(stepsX(300, -infinity, 1), 0, 0, infinity);
    const Steps beyond = stepsX(300, 3e9f, 3e9f + 256);
    EXPECT_GE(beyond.first, 0);
}
