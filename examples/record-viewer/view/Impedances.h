#pragma once

#include "impedance/Trajectory.h"
#include "impedance/Zones.h"
#include "reader/Record.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace viewer {

/// What the pages of impedances show of a record.
struct Impedances {
    impedance::Trajectories trajectories;
    /// Of the whole line, or assumed where nobody gave it; 0 where there is nothing to assume it from.
    impedance::Complex line;
    bool isLineAssumed = false;
    /// That the loops to earth are computed with; empty where it is not known.
    std::optional<impedance::Complex> k0;
    /// Hertz that they are computed for, and what the record tells; 0 where nobody tells.
    double frequency = 0;
    double recordedFrequency = 0;
    impedance::Reaches reaches;
    /// Ohms up to which points are shown at any rate.
    double view = std::numeric_limits<double>::infinity();
    /// Why there is nothing to show, in a whole sentence; empty if there is something.
    std::string problem;
};

/// Computes all loops; reads the samples, so it has to come before they are given up. It may take its time
/// and may be called on any thread.
///
/// Where the line is not known, one is assumed that ends at the fault: it has the middle one of the sizes
/// that the impedance of the fault's loop had while the fault lasted, at 75 degrees as overhead lines have.
Impedances computeImpedances(const record::Record& record, const impedance::LineSettings& line = {},
                             const impedance::Reaches& reaches = {});

/// The part of a record that impedances are computed from, so that they can be computed anew with other
/// settings when the record itself has been given up: its times, its currents and its three voltages.
record::Record keepForImpedances(const record::Record& record);

/// Limits of a plane, ohms.
struct Bounds {
    double xMin = 0;
    double xMax = 0;
    double yMin = 0;
    double yMax = 0;

    void include(double x, double y);
    /// Some free space around; a plane that would have no size gets one.
    void addMargin();
};

/// What is seen of one loop.
struct LoopView {
    /// In the order of time.
    std::vector<impedance::Point> points;
    /// The first point and the one after the last of each piece without a gap.
    std::vector<std::pair<std::size_t, std::size_t>> runs;
    /// Milliseconds of the trajectory's first point, shown or not.
    std::uint64_t start = 0;
    /// Ohms beyond which points are left out, and how many these are.
    double farthest = 0;
    std::size_t leftOut = 0;

    /// Takes in the points and the origin.
    Bounds bounds() const;
    /// The last point that was reached by a time in milliseconds from `start`; null before the first one.
    const impedance::Point* at(std::uint64_t time) const;
};

/// The part of a trajectory that is worth seeing. Before and after a fault the impedance is that of the load,
/// tens of times that of the line, and where the current is small it runs away altogether: with all points
/// in view the fault would be a dot. So a circle around the origin is shown, of twice the reach of the third
/// zone, which is usually four times the line, and of twice the impedance of the fault where that is more.
/// The loops that are not in the fault stay outside; so that they are no empty planes, the circle goes at
/// least to twice the point nearest to the origin.
LoopView viewOf(const Impedances& impedances, impedance::Loop loop);

} // namespace viewer
