#pragma once

#include "Inputs.h"
#include "Line.h"
#include "Loops.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace impedance {

/// Where the impedance of a loop lies at one moment.
struct Point {
    /// Of the sample that ends the window of one cycle.
    std::size_t position = 0;
    /// Milliseconds from the record's earliest sample.
    std::uint64_t time = 0;
    /// Resistance and reactance, ohms.
    double r = 0;
    double x = 0;
};

/// A stretch of time, seconds on the record's axis.
struct Span {
    double from = 0;
    double to = 0;
};

/// The impedances of a record as they unfold.
struct Trajectories {
    /// By the number of the loop, in the order of time. Where a loop's current is below the limit, and until
    /// a whole cycle has gone by, there is no point.
    std::array<std::vector<Point>, loopCount> loops;
    /// The loop to begin with: the one that came nearest to 0 while the fault lasted, or AE.
    Loop shown = Loop::AE;
    /// The side of the transformers that the ohms are on; empty where nobody knows.
    std::optional<Side> side;
    /// Effective amperes below which a loop has no point.
    double minimumCurrent = 0;
    /// What one should know of the numbers, in whole sentences.
    std::vector<std::string> remarks;

    const std::vector<Point>& of(Loop loop) const { return loops[static_cast<std::size_t>(loop)]; }
};

/// Computes all six loops from phasors of one cycle. The positions of the inputs must be channels of the
/// record with a sample for each moment. A channel that was sampled later by a skew of s seconds is turned
/// back by exp(-j 2 pi f s).
Trajectories trajectories(const record::Record& record, const Inputs& inputs, const LineSettings& line,
                          const std::optional<Span>& fault = std::nullopt);

/// The loop with the smallest impedance among the points in the fault whose window of one cycle (seconds)
/// lies in it, or, where there are none, among all in the fault. AE without a fault or without points in it.
Loop smallestLoop(const record::TimeAxis& time, const Trajectories& all, const std::optional<Span>& fault,
                  double cycle);

} // namespace impedance
