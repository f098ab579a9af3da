#pragma once

#include "reader/Record.h"

#include <cstddef>
#include <string>
#include <vector>

namespace impedance {

/// Samples that were taken evenly, without a pause, so that a window may slide over them.
struct Stretch {
    std::size_t first = 0;
    /// The position after the last sample.
    std::size_t end = 0;
    /// How many samples make a cycle, to the nearest whole number: the small rest makes phasors ripple.
    std::size_t window = 0;
};

struct Stretches {
    std::vector<Stretch> list;
    /// What is left out and why, in whole sentences.
    std::vector<std::string> remarks;
};

/// A stretch ends where the rate changes and where the time stamps leap. The frequency is in hertz. Stretches
/// with fewer than four samples in a cycle, or shorter than a cycle, are left out.
Stretches stretchesOf(const record::Record& record, double frequency);

} // namespace impedance
