#include "Circuit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

using namespace impedance;
using test::inputs;
using test::sine;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr Loop all[] = {Loop::AE, Loop::BE, Loop::CE, Loop::AB, Loop::BC, Loop::CA};

const ThreePhasors currents{sine(2000, -70), sine(1700, 160), sine(1900, 40)};

/// All loops see 0.4 of the line.
record::Record threePhaseFault(const test::Sampling& sampling = {}) {
    return test::makeRecord(test::voltagesAlong(0.4, currents, {}), currents, sampling);
}

/// Known on the side that nothing has to be converted from.
LineSettings line() {
    LineSettings result = test::knownLine();
    result.recordedSide = Side::Secondary;
    return result;
}

Complex at(const Point& point) {
    return {point.r, point.x};
}

void expectAll(const std::vector<Point>& points, Complex expected, double tolerance = 1e-5) {
    EXPECT_FALSE(points.empty());
    for (const Point& point : points)
        ASSERT_LT(std::abs(at(point) - expected), tolerance * std::abs(expected)) << point.position;
}

std::vector<std::size_t> positions(const std::vector<Point>& points) {
    std::vector<std::size_t> result;
    for (const Point& point : points)
        result.push_back(point.position);
    return result;
}

} // namespace

TEST(Trajectory, OfASteadyFaultStaysAtItsPlace) {
    for (const double frequency : {50.0, 60.0}) {
        test::Sampling sampling;
        sampling.frequency = frequency;
        sampling.rate = frequency * 24;
        const Trajectories found = trajectories(threePhaseFault(sampling), inputs, line());
        for (const Loop loop : all) {
            expectAll(found.of(loop), 0.4 * test::z1);
            EXPECT_EQ(found.of(loop).size(), 77u);
            EXPECT_EQ(found.of(loop).front().position, 23u);
        }
        EXPECT_THAT(found.remarks, IsEmpty());
        EXPECT_EQ(found.side, Side::Secondary);
    }
}

TEST(Trajectory, TellsMillisecondsFromTheFirstSample) {
    record::Record record = threePhaseFault();
    const auto points = trajectories(record, inputs, line()).of(Loop::AE);
    EXPECT_EQ(points.front().time, 19u);
    EXPECT_EQ(points.back().time, 99u);

    // Stamps that begin elsewhere count from the first one all the same.
    std::vector<double> stamps;
    for (int i = 0; i < 100; ++i)
        stamps.push_back(-41500 + 1000 * i);
    record.rates = {{0, 100}};
    record.time = record::TimeAxis(100, record.rates, stamps, 1e-6);
    EXPECT_EQ(trajectories(record, inputs, line()).of(Loop::AE).front().time, 19u);
}

TEST(Trajectory, GoesByTimeWhereStampsGoBack) {
    record::Record record = threePhaseFault();
    std::vector<double> stamps;
    for (int i = 0; i < 100; ++i)
        stamps.push_back(i < 50 ? 500000 + 1000 * i : 1000 * i);
    record.rates = {{0, 100}};
    record.time = record::TimeAxis(100, record.rates, stamps, 1e-6);
    const auto points = trajectories(record, inputs, line()).of(Loop::BC);
    ASSERT_EQ(points.size(), 62u);
    EXPECT_EQ(points.front().position, 69u);
    EXPECT_EQ(points.front().time, 19u);
    EXPECT_EQ(points.back().position, 49u);
    EXPECT_EQ(points.back().time, 499u);
}

TEST(Trajectory, BeginsAnewAfterAChangeOfRate) {
    record::Record record = threePhaseFault();
    record.rates = {{1000, 40}, {1000, 100}};
    record.time = record::TimeAxis(100, record.rates, {}, 1e-6);
    const auto points = trajectories(record, inputs, line()).of(Loop::AB);
    ASSERT_EQ(points.size(), 21u + 41u);
    EXPECT_EQ(points[20].position, 39u);
    EXPECT_EQ(points[21].position, 59u);
    expectAll(points, 0.4 * test::z1);
}

TEST(Trajectory, HasNoPointWhereAnyWindowMissesASample) {
    record::Record record = threePhaseFault();
    record.analogs[4].samples[50] = NAN;
    const auto points = trajectories(record, inputs, line()).of(Loop::CE);
    EXPECT_EQ(points.size(), 81u - 20u);
    for (const std::size_t position : positions(points))
        EXPECT_TRUE(position < 50 || position >= 70) << position;
    expectAll(points, 0.4 * test::z1);
}

TEST(Trajectory, TurnsSkewedChannelsBack) {
    test::Sampling sampling;
    record::Record record = threePhaseFault(sampling);
    const ThreePhasors voltages = test::voltagesAlong(0.4, currents, {});
    const double skews[] = {100, -250, 12.5, 700, 0, 333};
    for (std::size_t i = 0; i < 6; ++i) {
        // Taken later, so the phasor has turned on.
        const Complex turned =
            (i < 3 ? voltages[i] : currents[i - 3]) * std::polar(1.0, 2 * test::pi * 50 * skews[i] * 1e-6);
        record.analogs[i] = test::channel(record.analogs[i].name, record.analogs[i].unit, sampling, turned);
        record.analogs[i].skew = skews[i];
    }
    for (const Loop loop : all)
        expectAll(trajectories(record, inputs, line()).of(loop), 0.4 * test::z1);
    for (record::AnalogChannel& channel : record.analogs)
        channel.skew = 0;
    const Complex wrong = at(trajectories(record, inputs, line()).of(Loop::AE).front());
    EXPECT_GT(std::abs(wrong - 0.4 * test::z1), 0.1);
}

TEST(Trajectory, OfAnOddFrequencyRipplesALittle) {
    test::Sampling sampling;
    sampling.frequency = 50.5;
    const record::Record record = threePhaseFault(sampling);
    const auto points = trajectories(record, inputs, line()).of(Loop::AE);
    expectAll(points, 0.4 * test::z1, 0.02);
}

TEST(Trajectory, TakesPrefixesAndRatiosIntoAccount) {
    record::Record record = threePhaseFault();
    for (std::size_t i = 0; i < 6; ++i) {
        record::AnalogChannel& channel = record.analogs[i];
        channel.side = 'P';
        channel.primary = i < 3 ? 110000 : 600;
        channel.secondary = i < 3 ? 100 : 5;
        channel.unit = i < 3 ? "kV" : "A";
        if (i < 3)
            for (float& sample : channel.samples)
                sample /= 1000;
    }
    LineSettings settings = test::knownLine();
    const Trajectories secondary = trajectories(record, inputs, settings);
    expectAll(secondary.of(Loop::AE), 0.4 * test::z1 * 120.0 / 1100.0);
    EXPECT_NEAR(secondary.minimumCurrent, 0.05 * 2000 / 120, 1e-4);
    settings.side = Side::Primary;
    const Trajectories primary = trajectories(record, inputs, settings);
    expectAll(primary.of(Loop::AE), 0.4 * test::z1);
    EXPECT_NEAR(primary.minimumCurrent, 100, 1e-3);
    EXPECT_EQ(primary.side, Side::Primary);
}

TEST(Trajectory, HasNoPointBelowTheCurrentLimit) {
    const ThreePhasors oneSided{sine(2000, -70), sine(90, 160), sine(110, 40)};
    record::Record record = test::makeRecord(test::voltagesAlong(0.4, oneSided, {}), oneSided);
    LineSettings settings = line();
    settings.z0 = settings.z1; // without compensation the loops to earth have the phase currents
    Trajectories found = trajectories(record, inputs, settings);
    EXPECT_NEAR(found.minimumCurrent, 100, 1e-3);
    EXPECT_EQ(found.of(Loop::AE).size(), 81u);
    EXPECT_THAT(found.of(Loop::BE), IsEmpty());
    EXPECT_EQ(found.of(Loop::CE).size(), 81u);
    settings.minimumCurrent = 111;
    found = trajectories(record, inputs, settings);
    EXPECT_EQ(found.minimumCurrent, 111);
    EXPECT_THAT(found.of(Loop::CE), IsEmpty());
    EXPECT_EQ(found.of(Loop::AE).size(), 81u);
}

TEST(Trajectory, OfADeadLineIsEmpty) {
    const record::Record record = test::makeRecord({}, {});
    for (const auto& points : trajectories(record, inputs, line()).loops)
        EXPECT_THAT(points, IsEmpty());
}

TEST(Trajectory, WithoutLineDataComputesEarthLoopsWithoutCompensationAndSaysSo) {
    LineSettings settings;
    settings.recordedSide = Side::Secondary;
    const Trajectories found = trajectories(threePhaseFault(), inputs, settings);
    EXPECT_THAT(found.remarks, ElementsAre(HasSubstr("(k0 = 0)")));
    expectAll(found.of(Loop::CA), 0.4 * test::z1);
    const ThreePhasors voltages = test::voltagesAlong(0.4, currents, {});
    expectAll(found.of(Loop::AE), voltages[0] / currents[0]);
}

TEST(Trajectory, TakesTheFrequencyFromTheSettingsBeforeTheRecord) {
    record::Record record = threePhaseFault();
    record.lineFrequency = 60;
    LineSettings settings = line();
    settings.frequency = 50;
    expectAll(trajectories(record, inputs, settings).of(Loop::AE), 0.4 * test::z1);
    settings.frequency = 0;
    record.lineFrequency = 0;
    const Trajectories found = trajectories(record, inputs, settings);
    EXPECT_THAT(found.remarks, ElementsAre("The record does not tell the frequency of the network."));
    EXPECT_THAT(found.of(Loop::AE), IsEmpty());
}

TEST(Trajectory, SaysWhatTheConversionAndTheStretchesSay) {
    record::Record record = threePhaseFault();
    record.time = record::TimeAxis(100, {}, {}, 1e-6);
    LineSettings settings = test::knownLine();
    const Trajectories found = trajectories(record, inputs, settings);
    EXPECT_THAT(found.remarks, ElementsAre(HasSubstr("which side"), HasSubstr("when its samples")));
    EXPECT_FALSE(found.side);
}

TEST(Trajectory, ShowsTheLoopThatTheFaultIsIn) {
    // Load, then a fault of one or two phases at half of the line from sample 200 to 299.
    const ThreePhasors load{sine(90, -10), sine(90, -130), sine(90, 110)};
    const ThreePhasors healthy{sine(60000, 0), sine(60000, -120), sine(60000, 120)};
    test::Sampling sampling;
    sampling.count = 500;
    for (std::size_t i = 0; i < loopCount; ++i) {
        ThreePhasors current = load;
        ThreePhasors left = healthy;
        const std::size_t phase = i % 3;
        const std::size_t other = (phase + 1) % 3;
        current[phase] = sine(3000, -70);
        left[phase] = i < 3 ? 0 : sine(30000, -60);
        if (i >= 3) {
            current[other] = -current[phase];
            left[other] = left[phase];
        }
        const record::Record during =
            test::makeRecord(test::voltagesAlong(0.5, current, left), current, sampling);
        record::Record record = test::makeRecord(test::voltagesAlong(1, load, healthy), load, sampling);
        for (std::size_t c = 0; c < 6; ++c)
            for (std::size_t k = 200; k < 300; ++k)
                record.analogs[c].samples[k] = during.analogs[c].samples[k];
        EXPECT_EQ(trajectories(record, inputs, line(), Span{0.203, 0.300}).shown, all[i]) << name(all[i]);
        EXPECT_EQ(trajectories(record, inputs, line()).shown, Loop::AE);
    }
}

TEST(Trajectory, ShowsTheLoopOfTheFewPointsOfAShortFault) {
    const record::Record record = threePhaseFault();
    Trajectories found;
    found.loops[4] = {{30, 30, 3, 4}, {35, 35, 1, 1}, {60, 60, 0, 0}};
    found.loops[2] = {{30, 30, 3, 3}};
    const auto shown = [&](double from, double to) {
        return smallestLoop(record.time, found, Span{from, to}, 0.02);
    };
    EXPECT_EQ(shown(0.025, 0.033), Loop::CE); // shorter than a cycle: all of its points count
    EXPECT_EQ(shown(0.025, 0.040), Loop::BC);
    EXPECT_EQ(shown(0.010, 0.033), Loop::CE); // a cycle after its beginning
    EXPECT_EQ(shown(0.070, 0.090), Loop::AE); // no points
    EXPECT_EQ(smallestLoop(record.time, found, std::nullopt, 0.02), Loop::AE);
}
