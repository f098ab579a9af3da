#include "impedance/Phasor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

using impedance::Complex;
using impedance::phasorOf;
using impedance::SlidingPhasor;

namespace {

constexpr double pi = 3.14159265358979323846;
const double root = std::sqrt(2.0);

std::vector<double> cycle(std::size_t window, const std::function<double(double)>& value) {
    std::vector<double> samples;
    for (std::size_t k = 0; k < window; ++k)
        samples.push_back(value(2 * pi * static_cast<double>(k) / static_cast<double>(window)));
    return samples;
}

void expectNear(Complex value, Complex expected, double tolerance = 1e-12) {
    EXPECT_NEAR(value.real(), expected.real(), tolerance);
    EXPECT_NEAR(value.imag(), expected.imag(), tolerance);
}

/// The last `window` samples up to a position.
std::vector<double> windowAt(const std::vector<double>& samples, std::size_t position, std::size_t window) {
    const auto end = samples.begin() + static_cast<std::ptrdiff_t>(position) + 1;
    return {end - static_cast<std::ptrdiff_t>(window), end};
}

} // namespace

TEST(Phasor, OfACosineIsItsEffectiveValueAtItsAngle) {
    for (const std::size_t window : {4u, 5u, 16u, 20u, 64u, 333u})
        for (const double angle : {0.0, 30.0, 90.0, 180.0, -120.0}) {
            const auto samples =
                cycle(window, [&](double turn) { return 10 * root * std::cos(turn + angle * pi / 180); });
            expectNear(phasorOf(samples), std::polar(10.0, angle * pi / 180));
        }
}

TEST(Phasor, OfFourSamplesIsAsComputedByHand) {
    // sqrt(2)/4 * (1 - 2j*1 ... ): 1 * 1 + 2 * (-j) + 3 * (-1) + 5 * (j) = -2 + 3j
    expectNear(phasorOf({1, 2, 3, 5}), Complex(-2, 3) * root / 4.0);
    // An impulse at the second sample turns back by a quarter.
    expectNear(phasorOf({0, 1, 0, 0}), Complex(0, -1) * root / 4.0);
}

TEST(Phasor, RejectsAConstantPartAndHarmonics) {
    expectNear(phasorOf(cycle(20, [](double) { return 7; })), 0);
    for (int harmonic = 2; harmonic < 10; ++harmonic)
        expectNear(phasorOf(cycle(20, [&](double turn) { return 100 * std::cos(harmonic * turn + 1); })), 0,
                   1e-11);
    expectNear(phasorOf(cycle(20,
                              [](double turn) {
                                  return 3 + root * std::sin(turn) + 5 * std::cos(2 * turn) +
                                         4 * std::sin(5 * turn);
                              })),
               Complex(0, -1));
}

TEST(Phasor, TakesAHarmonicBeyondHalfOfTheRateForTheFundamental) {
    // The 19th of 20 samples looks like the first.
    expectNear(phasorOf(cycle(20, [](double turn) { return root * std::cos(19 * turn); })), 1);
}

TEST(Phasor, OfHalfACycleOfASineIsHalfOfIt) {
    // The samples of a sine from its zero, then silence: half of the sum is missing.
    const auto samples =
        cycle(20, [](double turn) { return turn < pi - 0.01 ? 10 * root * std::sin(turn) : 0; });
    const Complex phasor = phasorOf(samples);
    EXPECT_NEAR(phasor.imag(), -5, 1e-12);
    EXPECT_NEAR(phasor.real(), 0, 1e-12);
}

TEST(Phasor, OfNothingIsZero) {
    EXPECT_EQ(phasorOf({}), Complex());
}

TEST(SlidingPhasor, NeedsAWholeCycle) {
    SlidingPhasor phasor(20);
    for (int i = 0; i < 19; ++i) {
        phasor.push(1);
        EXPECT_FALSE(phasor.isValid()) << i;
    }
    phasor.push(1);
    EXPECT_TRUE(phasor.isValid());
}

TEST(SlidingPhasor, TurnsWithTheWindow) {
    SlidingPhasor phasor(20);
    for (int i = 0; i < 100; ++i) {
        phasor.push(10 * root * std::cos(2 * pi * i / 20));
        if (phasor.isValid())
            expectNear(phasor.value(), std::polar(10.0, 2 * pi * (i - 19) / 20));
    }
}

TEST(SlidingPhasor, EqualsTheFullSumOverAMillionSamples) {
    std::mt19937 random(11);
    std::normal_distribution<double> noise(0, 300);
    for (const std::size_t window : {16u, 20u, 77u}) {
        SlidingPhasor phasor(window);
        std::vector<double> samples;
        double worst = 0;
        for (std::size_t i = 0; i < 1'000'000; ++i) {
            samples.push_back(1000 * std::cos(2 * pi * static_cast<double>(i) / static_cast<double>(window)) +
                              noise(random));
            phasor.push(samples.back());
            // Every sample would take minutes; this step meets every place in the cycle.
            if (i > window && i % 97 == 0)
                worst = std::max(worst, std::abs(phasor.value() - phasorOf(windowAt(samples, i, window))));
        }
        EXPECT_LT(worst, 1e-10) << window;
    }
}

TEST(SlidingPhasor, ForgetsAHugeSampleOneCycleAfterItHasLeft) {
    SlidingPhasor phasor(20);
    for (int i = 0; i < 100; ++i)
        phasor.push(i == 33 ? 1e30 : root * std::cos(2 * pi * i / 20));
    // 33 left at 53 with a rest of its rounding, which the next full sum drops.
    expectNear(phasor.value(), std::polar(1.0, 2 * pi * 80 / 20));
}

TEST(SlidingPhasor, AMissingSampleVoidsOneCycleOfWindows) {
    SlidingPhasor phasor(20);
    std::vector<int> invalid;
    for (int i = 0; i < 100; ++i) {
        phasor.push(i == 47 ? NAN : 10 * root * std::cos(2 * pi * i / 20));
        if (i >= 19 && !phasor.isValid())
            invalid.push_back(i);
        else if (i >= 19)
            expectNear(phasor.value(), std::polar(10.0, 2 * pi * (i - 19) / 20));
    }
    ASSERT_EQ(invalid.size(), 20u);
    EXPECT_EQ(invalid.front(), 47);
    EXPECT_EQ(invalid.back(), 66);
}

TEST(SlidingPhasor, CountsMissingSamplesThatOverlap) {
    SlidingPhasor phasor(4);
    std::string valid;
    for (const double sample :
         {1.0, 2.0, 3.0, double(NAN), 5.0, double(INFINITY), 7.0, 8.0, 9.0, 10.0, 11.0}) {
        phasor.push(sample);
        valid += phasor.isValid() ? 'v' : '-';
    }
    EXPECT_EQ(valid, "---------vv");
    expectNear(phasor.value(), phasorOf({8, 9, 10, 11}));
}
