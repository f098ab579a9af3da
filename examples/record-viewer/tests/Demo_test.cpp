// The record that is delivered for demonstrations: that it can be made again, and that it shows what it
// should.

#include "Samples.h"

#include "demo-record/LineFault.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <complex>

using namespace record;

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr std::size_t period = 40;

std::string readBytes(const std::string& name) {
    return test::readFile(std::string(ZEL_DEMO_DIR) + "/" + name);
}

const demo::Recording& made() {
    static const demo::Recording recording = demo::lineFault();
    return recording;
}

const Record& delivered() {
    static const Record record = record::open(std::string(ZEL_DEMO_DIR) + "/line-fault.cfg");
    return record;
}

std::size_t positionOf(double time) {
    return delivered().time.positionAt(time - 1e-6);
}

/// The phasor of a channel over the period that ends before a time.
std::complex<double> phasor(std::size_t channel, double time) {
    const std::vector<float>& samples = delivered().analogs.at(channel).samples;
    const std::size_t first = positionOf(time) - period;
    std::complex<double> sum;
    for (std::size_t i = 0; i < period; ++i)
        sum += std::polar<double>(1, -2 * pi * static_cast<double>(i) / period) *
               static_cast<double>(samples[first + i]);
    return sum * std::sqrt(2.0) / static_cast<double>(period);
}

/// The impedance from phase A to earth, compensated for the line's zero sequence.
std::complex<double> loopImpedance(double time) {
    const std::complex<double> z1(0.12, 0.40);
    const std::complex<double> z0(0.30, 1.20);
    const std::complex<double> earth = phasor(3, time) + phasor(4, time) + phasor(5, time);
    return phasor(0, time) / (phasor(3, time) + (z0 - z1) / (3.0 * z1) * earth);
}

std::vector<double> changesOf(const std::string& name) {
    for (const BinaryChannel& channel : delivered().binaries) {
        if (channel.name != name)
            continue;
        std::vector<double> times;
        for (const std::size_t position : channel.samples.transitions())
            times.push_back(delivered().time.at(position));
        return times;
    }
    ADD_FAILURE() << "there is no binary channel " << name;
    return {0, 0};
}

} // namespace

TEST(DemoRecord, IsStillMadeToTheByte) {
    const demo::Recording& recording = made();
    EXPECT_EQ(demo::configuration(recording, false), readBytes("line-fault.cfg"));
    EXPECT_TRUE(demo::binaryData(recording) == readBytes("line-fault.dat")) << "line-fault.dat differs";
}

TEST(DemoRecord, IsReadWithoutAWarning) {
    const Record& record = delivered();
    EXPECT_THAT(record.warnings, testing::IsEmpty());
    EXPECT_EQ(record.size(), 2000u);
    EXPECT_EQ(record.analogs.size(), 6u);
    EXPECT_EQ(record.binaries.size(), 12u);
    EXPECT_EQ(record.format, Format::Binary);
    EXPECT_DOUBLE_EQ(record.time.at(1999), 0.9995);
    EXPECT_EQ(record.time.gapCount(), 0u);
}

TEST(DemoRecord, EveryFormatHoldsTheSameSamples) {
    const demo::Recording& recording = made();
    const Record ascii = test::read(demo::configuration(recording, true), demo::asciiData(recording));
    EXPECT_THAT(ascii.warnings, testing::IsEmpty());
    for (const bool isAscii : {false, true}) {
        const std::string bytes = demo::combined(recording, isAscii);
        MemorySource source("demo.cff", bytes);
        const Record combined = readCombined(source, {});
        EXPECT_THAT(combined.warnings, testing::IsEmpty());
        for (const Record* other : {&ascii, &combined}) {
            for (std::size_t i = 0; i < 6; ++i)
                EXPECT_EQ(other->analogs[i].samples, delivered().analogs[i].samples) << i;
            for (std::size_t i = 0; i < 12; ++i)
                EXPECT_EQ(other->binaries[i].samples.transitions(),
                          delivered().binaries[i].samples.transitions())
                    << i;
        }
    }
}

TEST(DemoRecord, BeforeTheFaultTheLineCarriesItsLoad) {
    for (std::size_t phase = 0; phase < 3; ++phase) {
        EXPECT_NEAR(std::abs(phasor(phase, 0.2)), 110000 / std::sqrt(3.0), 1500);
        EXPECT_NEAR(std::abs(phasor(3 + phase, 0.2)), 40e6 / 110000 / std::sqrt(3.0), 10);
    }
    EXPECT_NEAR(std::arg(phasor(1, 0.2) / phasor(0, 0.2)), -2 * pi / 3, 0.01);
    EXPECT_LT(std::abs(phasor(3, 0.2) + phasor(4, 0.2) + phasor(5, 0.2)), 1);
    // The load lies far from the zones, beyond a hundred ohms.
    EXPECT_GT(loopImpedance(0.2).real(), 200);
}

TEST(DemoRecord, TheFaultLiesAtThirtyKilometres) {
    // Late in the fault the offset of the current has died away. The two ohms of the fault count for their
    // real part.
    const std::complex<double> z = loopImpedance(0.25);
    EXPECT_NEAR(z.imag(), 30 * 0.40, 0.6);
    EXPECT_GT(z.real(), 30 * 0.12);
    EXPECT_LT(z.real(), 30 * 0.12 + 3);
}

TEST(DemoRecord, TheFaultCurrentBeginsWithADecayingOffset) {
    const std::vector<float>& current = delivered().analogs[3].samples;
    const auto mean = [&](double time) {
        double sum = 0;
        for (std::size_t i = 0; i < period; ++i)
            sum += current[positionOf(time) + i];
        return sum / period;
    };
    EXPECT_LT(std::abs(mean(0.17)), 2);
    EXPECT_GT(mean(0.2), 500);
    EXPECT_LT(mean(0.22), mean(0.2) / 3);
    EXPECT_GT(mean(0.22), 50);
}

TEST(DemoRecord, HealthyPhasesHardlyNotice) {
    EXPECT_LT(std::abs(phasor(4, 0.25)), 300);
    EXPECT_GT(std::abs(phasor(3, 0.25)), 2000);
    EXPECT_LT(std::abs(phasor(0, 0.25)), 0.9 * std::abs(phasor(1, 0.25)));
}

TEST(DemoRecord, TheRelayTripsInZoneOneWithinACycleAndTheBreakerClears) {
    const std::vector<double> start = changesOf("Start");
    const std::vector<double> trip = changesOf("Trip");
    const std::vector<double> breaker = changesOf("Breaker closed");
    ASSERT_EQ(start.size(), 2u);
    ASSERT_EQ(trip.size(), 2u);
    ASSERT_EQ(breaker.size(), 2u);
    EXPECT_GT(start[0], demo::faultTime);
    EXPECT_LT(start[0], demo::faultTime + 0.01);
    EXPECT_GT(trip[0], start[0]);
    EXPECT_LE(trip[0], demo::faultTime + 0.02);
    EXPECT_EQ(changesOf("Trip zone 1"), trip);
    EXPECT_THAT(changesOf("Trip zone 2"), testing::IsEmpty());
    // The poles open at their zeros, at most half a period after the contacts part.
    EXPECT_GE(breaker[0], trip[0] + demo::breakerOpeningTime - 1e-9);
    EXPECT_LE(breaker[0], trip[0] + demo::breakerOpeningTime + 0.011);
    EXPECT_NEAR(trip[1], breaker[0], 1e-9);
    EXPECT_NEAR(*delivered().triggerOffset(), start[0], 1e-9);
}

TEST(DemoRecord, TheBreakerClosesAgainOnAHealthyLine) {
    const std::vector<double> breaker = changesOf("Breaker closed");
    const std::vector<double> command = changesOf("Close command");
    ASSERT_EQ(command.size(), 2u);
    EXPECT_NEAR(command[0] - breaker[0], 0.4, 0.001);
    EXPECT_NEAR(breaker[1] - command[0], demo::breakerClosingTime, 0.001);
    EXPECT_EQ(changesOf("Breaker open"), breaker);
    for (std::size_t phase = 0; phase < 3; ++phase) {
        EXPECT_LT(std::abs(phasor(3 + phase, 0.6)), 2);
        EXPECT_NEAR(std::abs(phasor(3 + phase, 0.99)), std::abs(phasor(3 + phase, 0.2)), 5);
    }
    EXPECT_THAT(changesOf("Lockout"), testing::IsEmpty());
}
