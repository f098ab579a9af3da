// The impedance of the record that is delivered for demonstrations, against the circuit that it was made
// with.

#include "demo-record/Network.h"
#include "impedance/Trajectory.h"
#include "impedance/Zones.h"
#include "reader/Reader.h"
#include "view/Fault.h"

#include <gtest/gtest.h>

using namespace impedance;

namespace {

constexpr double pi = 3.14159265358979323846;
const demo::NetworkSettings network;

Complex positive(const demo::Impedance& z) {
    return {z.r1, 2 * pi * network.frequency * z.l1};
}

Complex zero(const demo::Impedance& z) {
    return {z.r0, 2 * pi * network.frequency * z.l0};
}

LineSettings makeLine() {
    LineSettings line;
    line.z1 = network.lineLength * positive(network.lineKilometre);
    line.z0 = network.lineLength * zero(network.lineKilometre);
    line.side = Side::Primary;
    return line;
}

const record::Record& demoRecord() {
    static const record::Record record = record::open(DEMO_RECORD);
    return record;
}

Trajectories compute(const LineSettings& line) {
    const Choice choice = chooseInputs(demoRecord());
    EXPECT_TRUE(choice.inputs) << choice.problem;
    const auto fault = viewer::findFault(demoRecord());
    EXPECT_TRUE(fault);
    return trajectories(demoRecord(), *choice.inputs, line, Span{fault->from, fault->to});
}

/// The first point whose window ends at a time or later.
Complex at(const Trajectories& all, Loop loop, double seconds) {
    for (const Point& point : all.of(loop))
        if (demoRecord().time.at(point.position) >= seconds - 1e-9)
            return {point.r, point.x};
    ADD_FAILURE() << name(loop) << " has no point after " << seconds;
    return 0;
}

} // namespace

TEST(DemoImpedance, TheLoopOfTheFaultIsShown) {
    EXPECT_EQ(compute(makeLine()).shown, Loop::AE);
    EXPECT_TRUE(compute(makeLine()).remarks.empty());
    // Without the line's data it is still nearest to the origin.
    EXPECT_EQ(compute({}).shown, Loop::AE);
}

TEST(DemoImpedance, TheFaultLiesWhereTheCircuitHasIt) {
    const LineSettings line = makeLine();
    // Nearly all of the current flows into the fault, whose two ohms count by 1 / (1 + k0).
    const Complex expected = network.faultDistance * positive(network.lineKilometre) +
                             network.faultResistance / (1.0 + *compensation(line));
    const Complex found = at(compute(line), Loop::AE, 0.25);
    EXPECT_NEAR(found.real(), expected.real(), 0.2);
    EXPECT_NEAR(found.imag(), expected.imag(), 0.2);
}

TEST(DemoImpedance, InSecondaryOhmsTheRatiosOfTheRecordCount) {
    LineSettings line = makeLine();
    const Complex primary = at(compute(line), Loop::AE, 0.25);
    line.side = Side::Secondary;
    const Trajectories secondary = compute(line);
    EXPECT_EQ(secondary.side, Side::Secondary);
    const Complex found = at(secondary, Loop::AE, 0.25);
    EXPECT_LT(std::abs(found - primary * 120.0 / 1100.0), 1e-9);
}

TEST(DemoImpedance, BeforeTheFaultAllLoopsSeeTheLoadBehindTheLine) {
    const Complex expected = network.lineLength * positive(network.lineKilometre) + positive(network.load);
    LineSettings line = makeLine();
    line.minimumCurrent = 50;
    const Trajectories all = compute(line);
    for (const Loop loop : {Loop::AE, Loop::BE, Loop::CE, Loop::AB, Loop::BC, Loop::CA})
        EXPECT_LT(std::abs(at(all, loop, 0.15) - expected), 0.01 * std::abs(expected)) << name(loop);
}

TEST(DemoImpedance, TheFaultLiesInTheDefaultZones) {
    const LineSettings line = makeLine();
    const Complex fault = at(compute(line), Loop::AE, 0.25);
    for (const Characteristic characteristic : {Characteristic::Mho, Characteristic::Quadrilateral})
        for (const Zone& zone : zonesOf(line.z1, characteristic))
            EXPECT_TRUE(contains(zone.area, fault)) << zone.name;
}
