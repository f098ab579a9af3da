#include <ZelCommonView/common/ApproximateLogic.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

using Zel::ApproximateTolerance;
using Zel::NumericRange;
using Zel::ApproximateLogic::equals;
using Zel::ApproximateLogic::limitValue;

const double infinity = std::numeric_limits<double>::infinity();
const double nan = std::numeric_limits<double>::quiet_NaN();
const double greatest = std::numeric_limits<double>::max();
const ApproximateTolerance fine{1e-10, 1e-10};

double snap(double value, const NumericRange& range) {
    return limitValue(value, range, fine, false, true);
}

double snapFromMin(double value, const NumericRange& range) {
    return limitValue(value, range, fine, true, true);
}

TEST(Equals, NumbersWithinTheRelativeToleranceAreEqual) {
    EXPECT_TRUE(equals(1.0, 1.0 + 0.9e-10, fine));
    EXPECT_FALSE(equals(1.0, 1.0 + 1.1e-10, fine));
    EXPECT_TRUE(equals(-1e12, -1e12 - 90.0, fine));
    EXPECT_FALSE(equals(-1e12, -1e12 - 110.0, fine));
    EXPECT_FALSE(equals(1.0, -1.0, fine));
}

TEST(Equals, TheOrderOfTheNumbersDoesNotMatter) {
    const ApproximateTolerance tolerance{0.1, 0.0};
    EXPECT_TRUE(equals(90.0, 100.0, tolerance));
    EXPECT_TRUE(equals(100.0, 90.0, tolerance));
    EXPECT_FALSE(equals(89.0, 100.0, tolerance));
    EXPECT_FALSE(equals(100.0, 89.0, tolerance));
}

TEST(Equals, NumbersBelowTheScaleAreComparedAsIfOfItsSize) {
    EXPECT_TRUE(equals(0.0, 0.9e-10, {1e-10, 1.0}));
    EXPECT_FALSE(equals(0.0, 1.1e-10, {1e-10, 1.0}));
    EXPECT_FALSE(equals(0.0, 0.9e-10, fine));
}

TEST(Equals, AScaleBelowTheNumbersDoesNotWidenTheTolerance) {
    EXPECT_FALSE(equals(1000.0, 999.99, {1e-10, 0.01}));
    EXPECT_TRUE(equals(999.99, 1000.0 - 0.01, {1e-10, 0.01}));
}

TEST(Equals, WithoutAToleranceOnlyEqualNumbersAreEqual) {
    EXPECT_TRUE(equals(0.1, 0.1, {}));
    EXPECT_TRUE(equals(0.0, -0.0, {}));
    EXPECT_FALSE(equals(0.1, std::nextafter(0.1, 1.0), {}));
    EXPECT_TRUE(equals(0.1, 0.1, {-1.0, 0.0}));
}

TEST(Equals, AnInfinityEqualsOnlyItself) {
    EXPECT_TRUE(equals(infinity, infinity, fine));
    EXPECT_TRUE(equals(-infinity, -infinity, fine));
    EXPECT_FALSE(equals(infinity, -infinity, fine));
    EXPECT_FALSE(equals(infinity, greatest, fine));
    EXPECT_FALSE(equals(0.0, -infinity, fine));
    EXPECT_FALSE(equals(infinity, 0.0, {1.0, infinity}));
}

TEST(Equals, ANanEqualsNothing) {
    for (const double other : {nan, 0.0, infinity}) {
        EXPECT_FALSE(equals(nan, other, fine));
        EXPECT_FALSE(equals(other, nan, {1.0, infinity}));
    }
}

TEST(Equals, AScaleThatIsNoNumberLeavesTheSizeOfTheNumbersToDecide) {
    EXPECT_TRUE(equals(1.0, 1.0 + 0.9e-10, {1e-10, nan}));
    EXPECT_FALSE(equals(1.0, 1.0 + 1.1e-10, {1e-10, nan}));
}

TEST(Equals, TheGreatestNumbersDoNotOverflowIntoEquality) {
    EXPECT_FALSE(equals(greatest, -greatest, fine));
    EXPECT_TRUE(equals(greatest, greatest, fine));
}

TEST(LimitValue, BringsAValueIntoTheRange) {
    const NumericRange range(-2.0, 5.0, 0.0);
    EXPECT_EQ(snap(-3.0, range), -2.0);
    EXPECT_EQ(snap(-2.0, range), -2.0);
    EXPECT_EQ(snap(1.25, range), 1.25);
    EXPECT_EQ(snap(5.0, range), 5.0);
    EXPECT_EQ(snap(5.5, range), 5.0);
    EXPECT_EQ(snap(infinity, range), 5.0);
    EXPECT_EQ(snap(-infinity, range), -2.0);
}

TEST(LimitValue, SnapsToTheNearestMultiple) {
    const NumericRange range(-100.0, 100.0, 0.5);
    EXPECT_EQ(snap(1.2, range), 1.0);
    EXPECT_EQ(snap(1.3, range), 1.5);
    EXPECT_EQ(snap(-1.2, range), -1.0);
    EXPECT_EQ(snap(-1.3, range), -1.5);
    EXPECT_EQ(snap(1.25, range), 1.5);
    EXPECT_EQ(snap(-1.25, range), -1.5);
}

TEST(LimitValue, LeavesAValueOffTheGridUnlessAskedToSnap) {
    EXPECT_EQ(limitValue(1.2, {0.0, 10.0, 0.5}, fine, false, false), 1.2);
    EXPECT_EQ(limitValue(1.2, {0.0, 10.0, 0.5}, fine, true, false), 1.2);
    EXPECT_EQ(limitValue(11.0, {0.0, 10.0, 0.5}, fine, false, false), 10.0);
}

TEST(LimitValue, CountsMultiplesFromZeroOrFromMin) {
    const NumericRange range(1.0, 20.0, 3.0);
    EXPECT_EQ(snap(5.0, range), 6.0);
    EXPECT_EQ(snapFromMin(5.0, range), 4.0);
    EXPECT_EQ(snapFromMin(1.0, range), 1.0);
    EXPECT_EQ(snap(5.0, {-infinity, 20.0, 3.0}), 6.0);
    EXPECT_EQ(snapFromMin(5.0, {-infinity, 20.0, 3.0}), 6.0) << "an infinite min can't carry a grid";
}

TEST(LimitValue, GivesBackAValueOnTheGridToTheLastBit) {
    const NumericRange range(-1000.0, 1000.0, 0.01);
    for (int i = -100000; i <= 100000; ++i) {
        const double value = i / 100.0;
        ASSERT_EQ(snap(value, range), value);
    }
    EXPECT_EQ(snap(1.15, range), 1.15);
    EXPECT_EQ(snap(0.29, range), 0.29);
    EXPECT_EQ(snap(1.0 + 1e-11, range), 1.0 + 1e-11);
}

TEST(LimitValue, AWideRangeCostsNoDigitsWhenCountedFromZero) {
    EXPECT_EQ(snap(0.29, {-1e17, 1e17, 0.01}), 0.29);
    EXPECT_EQ(snap(0.291, {-1e17, 1e17, 0.01}), 29 * 0.01);
    EXPECT_EQ(snap(1e-9, {-1e17, 1e17, 1e-9}), 1e-9);
}

TEST(LimitValue, MultiplesBeyondEveryIntegerTypeSurvive) {
    EXPECT_EQ(snap(1e16, {-1e17, 1e17, 1e-9}), 1e16);
    EXPECT_EQ(snap(-1e300, {-greatest, greatest, 1e-9}), -1e300);
    EXPECT_EQ(snap(greatest, {-greatest, greatest, 1e-300}), greatest);
    EXPECT_EQ(snapFromMin(greatest, {-greatest, greatest, 1.0}), greatest);
}

TEST(LimitValue, TakesTheMultipleInsideWhereTheNearestLiesOutside) {
    EXPECT_EQ(snap(0.3, {0.2, 10.0, 1.0}), 1.0);
    EXPECT_EQ(snap(9.7, {0.0, 9.8, 1.0}), 9.0);
    EXPECT_EQ(snap(-9.7, {-9.8, 0.0, 1.0}), -9.0);
    EXPECT_EQ(snapFromMin(9.7, {0.5, 9.8, 1.0}), 9.5);
    EXPECT_EQ(snapFromMin(11.0, {0.0, 10.6, 4.0}), 8.0);
}

TEST(LimitValue, StaysInTheRangeWhereNoMultipleLiesInIt) {
    EXPECT_EQ(snap(0.3, {0.2, 0.4, 1.0}), 0.4);
    EXPECT_EQ(snap(0.6, {0.55, 0.8, 1.0}), 0.55);
}

TEST(LimitValue, AMultipleThatOnlyRoundingPutBehindTheLimitIsTheLimit) {
    ASSERT_GT(3 * 0.1, 0.3);
    EXPECT_EQ(snap(0.28, {0.0, 0.3, 0.1}), 0.3);
    EXPECT_EQ(snap(-0.28, {-0.3, 0.0, 0.1}), -0.3);
}

TEST(LimitValue, ASmallNegativeValueSnapsToPlainZero) {
    EXPECT_EQ(snap(-0.2, {-10.0, 10.0, 1.0}), 0.0);
    EXPECT_FALSE(std::signbit(snap(-0.2, {-10.0, 10.0, 1.0})));
}

TEST(LimitValue, AStepThatMakesNoGridOnlyLimits) {
    for (const double step : {0.0, -1.0, nan, infinity, -infinity})
        for (const bool fromMin : {false, true}) {
            EXPECT_EQ(limitValue(1.2, {0.0, 10.0, step}, fine, fromMin, true), 1.2) << step;
            EXPECT_EQ(limitValue(12.0, {0.0, 10.0, step}, fine, fromMin, true), 10.0) << step;
        }
}

TEST(LimitValue, ANanComesBackAsNan) {
    EXPECT_TRUE(std::isnan(snap(nan, {0.0, 10.0, 1.0})));
    EXPECT_TRUE(std::isnan(limitValue(nan, {0.0, 10.0, 1.0}, fine, false, false)));
}

TEST(LimitValue, ALimitThatIsNoNumberDoesNotLimit) {
    EXPECT_EQ(snap(1e6, {0.0, nan, 1.0}), 1e6);
    EXPECT_EQ(snap(-1e6, {nan, 10.0, 1.0}), -1e6);
    EXPECT_EQ(snapFromMin(3.2, {nan, 10.0, 1.0}), 3.0);
}

TEST(LimitValue, AnInfiniteValueStaysInAnInfiniteRange) {
    EXPECT_EQ(snap(infinity, {-infinity, infinity, 1.0}), infinity);
    EXPECT_EQ(snap(-infinity, {-infinity, infinity, 1.0}), -infinity);
}

TEST(LimitValue, OfLimitsInTheWrongOrderMinDecides) {
    for (const double value : {-10.0, 0.0, 3.0, 10.0}) {
        EXPECT_EQ(snap(value, {5.0, -5.0, 1.0}), 5.0);
        EXPECT_EQ(limitValue(value, {5.0, -5.0, 1.0}, fine, false, false), 5.0);
    }
}

TEST(LimitValue, TheToleranceDecidesWhatStandsOnTheGrid) {
    EXPECT_EQ(limitValue(1.05, {0.0, 10.0, 1.0}, {0.1, 0.0}, false, true), 1.05);
    EXPECT_EQ(limitValue(1.05, {0.0, 10.0, 1.0}, {0.01, 0.0}, false, true), 1.0);
}

// The check that a form entry makes of what is typed: a range of digits, and then the step as the scale.
TEST(LimitValue, TellsTypedTextWithTooManyDigits) {
    struct Case {
        double value;
        int exponent, decimals;
        bool isAccepted;
    };

    for (const Case& c : {Case{999.99, 2, 2, true},
                          {-999.99, 2, 2, true},
                          {1000.0, 2, 2, false},
                          {-1000.0, 2, 2, false},
                          {1.234, 2, 2, false},
                          {1.23, 2, 2, true},
                          {999.0, 2, 0, true},
                          {0.29, 16, 9, true},
                          {123456789.123456789, 16, 9, true},
                          {9999.0, 3, -3, false},
                          {9000.0, 3, -3, true}}) {
        const double top = std::pow(10.0, c.exponent + 1), low = std::pow(10.0, -c.decimals);
        const double limited = snap(c.value, {-(top - low), top - low, low});
        EXPECT_EQ(equals(c.value, limited, {1e-10, low}), c.isAccepted) << c.value;
    }
}

TEST(LimitValue, FindsTheNearestMultipleInTheRangeForAnyRange) {
    std::mt19937 random(20240917);
    std::uniform_real_distribution<double> anywhere(-50.0, 50.0), steps(0.05, 9.0);
    int onGrid = 0;
    for (int i = 0; i < 20000; ++i) {
        const double one = anywhere(random), two = anywhere(random), value = 2.0 * anywhere(random);
        const NumericRange range(std::min(one, two), std::max(one, two), steps(random));
        const bool fromMin = i % 2 == 0;
        const double result = limitValue(value, range, fine, fromMin, true);
        ASSERT_GE(result, range.getMin());
        ASSERT_LE(result, range.getMax());

        // Every multiple in the range is tried one by one.
        const double origin = fromMin ? range.getMin() : 0.0;
        const double limited = std::min(std::max(value, range.getMin()), range.getMax());
        double best = infinity;
        for (int k = -4000; k <= 4000; ++k) {
            const double multiple = origin + k * range.getStep();
            if (multiple >= range.getMin() && multiple <= range.getMax())
                best = std::min(best, std::fabs(multiple - limited));
        }
        if (best == infinity)
            continue;
        ++onGrid;
        ASSERT_NEAR(std::fabs(result - limited), best, 1e-8);
        const double quotient = (result - origin) / range.getStep();
        ASSERT_NEAR(quotient, std::round(quotient), 1e-8);
    }
    EXPECT_GT(onGrid, 15000);
}

} // namespace
