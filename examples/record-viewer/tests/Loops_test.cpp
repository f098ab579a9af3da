#include "impedance/Line.h"
#include "impedance/Loops.h"

#include "Circuit.h"

#include <gtest/gtest.h>

using namespace impedance;
using test::sine;

namespace {

Complex measured(Loop loop, const ThreePhasors& voltages, const ThreePhasors& currents,
                 Complex k0 = *compensation(test::knownLine())) {
    const auto z = loopPhasors(loop, voltages, currents, k0).impedance(0);
    EXPECT_TRUE(z);
    return z.value_or(Complex());
}

void expectNear(Complex value, Complex expected) {
    EXPECT_NEAR(std::abs(value - expected), 0, 1e-12 * std::abs(expected)) << value << expected;
}

constexpr Loop all[] = {Loop::AE, Loop::BE, Loop::CE, Loop::AB, Loop::BC, Loop::CA};

} // namespace

TEST(Line, HasAComplexCompensationFactor) {
    LineSettings line;
    line.z1 = fromAngle(1.78, 75.10);
    line.z0 = fromAngle(5.71, 72.10);
    const Complex k0 = compensation(line).value();
    EXPECT_NEAR(std::abs(k0), 0.7366, 0.00005);
    EXPECT_NEAR(std::arg(k0) * 180 / test::pi, -4.36, 0.005);
}

TEST(Line, HasNoCompensationFactorUnlessBothImpedancesAreKnown) {
    LineSettings line;
    EXPECT_FALSE(compensation(line));
    line.z1 = {1, 2};
    EXPECT_FALSE(compensation(line));
    line.z0 = line.z1;
    EXPECT_EQ(compensation(line), Complex());
    line.z1 = 0;
    EXPECT_FALSE(compensation(line));
}

TEST(Line, TakesMagnitudeAndAngleInDegrees) {
    expectNear(fromAngle(2, 90), {0, 2});
    expectNear(fromAngle(2, 180), -2);
}

TEST(Loops, HaveNamesInOrder) {
    std::string names;
    for (const Loop loop : all)
        names += std::string(name(loop)) + " ";
    EXPECT_EQ(names, "AE BE CE AB BC CA ");
}

TEST(Loops, AnEarthFaultGivesTheImpedanceUpToItWhateverTheLoad) {
    for (std::size_t phase = 0; phase < 3; ++phase) {
        ThreePhasors currents{sine(90, -10), sine(95, -131), sine(88, 110)};
        currents[phase] = sine(2000, -70);
        ThreePhasors left{sine(60000, 0), sine(60000, -120), sine(60000, 120)};
        left[phase] = 0;
        const ThreePhasors voltages = test::voltagesAlong(0.37, currents, left);
        expectNear(measured(all[phase], voltages, currents), 0.37 * test::z1);
        EXPECT_GT(std::abs(measured(all[(phase + 1) % 3], voltages, currents)), 3 * std::abs(test::z1));
    }
}

TEST(Loops, AFaultBetweenPhasesNeedsNoCompensation) {
    for (std::size_t phase = 0; phase < 3; ++phase) {
        const std::size_t other = (phase + 1) % 3;
        ThreePhasors currents{sine(90, -10), sine(95, -131), sine(88, 110)};
        currents[phase] = sine(1500, -40);
        currents[other] = sine(1450, 137);
        ThreePhasors left{sine(60000, 0), sine(60000, -120), sine(60000, 120)};
        left[phase] = left[other] = sine(30000, -60);
        const ThreePhasors voltages = test::voltagesAlong(0.62, currents, left);
        expectNear(measured(all[3 + phase], voltages, currents, 0), 0.62 * test::z1);
        expectNear(measured(all[3 + phase], voltages, currents), 0.62 * test::z1);
    }
}

TEST(Loops, AFaultOfAllPhasesIsSeenByAllLoopsAlike) {
    const ThreePhasors currents{sine(1500, -70), sine(1300, 160), sine(1600, 40)};
    const ThreePhasors voltages = test::voltagesAlong(0.9, currents, {});
    for (const Loop loop : all)
        expectNear(measured(loop, voltages, currents), 0.9 * test::z1);
}

TEST(Loops, TheResistanceOfAnEarthFaultCountsByTheFaultsShareOfTheLoopCurrent) {
    const ThreePhasors currents{sine(2000, -70), 0, 0};
    const ThreePhasors voltages = test::voltagesAlong(0.5, currents, {3.0 * currents[0], 0, 0});
    const Complex k0 = *compensation(test::knownLine());
    expectNear(measured(Loop::AE, voltages, currents), 0.5 * test::z1 + 3.0 / (1.0 + k0));
}

TEST(Loops, BelowTheCurrentLimitThereIsNoImpedance) {
    const LoopPhasors loop{sine(100, 0), sine(5, -60)};
    EXPECT_TRUE(loop.impedance(0));
    EXPECT_TRUE(loop.impedance(4.999));
    EXPECT_FALSE(loop.impedance(5.001));
    EXPECT_FALSE((LoopPhasors{sine(100, 0), 0}.impedance(0)));
    EXPECT_FALSE((LoopPhasors{sine(100, 0), NAN}.impedance(0)));
    EXPECT_EQ((LoopPhasors{0, 1}.impedance(0)), Complex());
}
