#pragma once

#include "Record.h"

#include <cstddef>
#include <vector>

namespace record {

/// A change of a binary channel.
struct Transition {
    /// Seconds from the earliest sample of the record; samples where the axis counts samples.
    double time = 0;
    /// The position in `Record::binaries`.
    std::size_t channel = 0;
    /// What the channel has changed to.
    bool state = false;
};

/// Every change of every binary channel in order of time, those of one moment in order of the channels. What
/// a channel is at its first sample is no change.
std::vector<Transition> transitions(const Record& record);

} // namespace record
