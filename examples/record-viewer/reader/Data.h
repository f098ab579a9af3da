#pragma once

#include "Config.h"
#include "Reader.h"
#include "Source.h"

#include <string>
#include <vector>

namespace record {

/// What the data of a record hold besides the samples of its channels.
struct DataOutcome {
    std::uint64_t samples = 0;
    /// One time stamp for each sample, in ticks; NaN where it is missing.
    std::vector<double> ticks;
};

/// Reads the samples of all channels of `config.record`, piece by piece, and adds warnings to it. Memory is
/// asked for only by what the size of the source can hold. Throws Error at the first damaged place; with
/// `options.salvage` damaged values are left out with a warning.
DataOutcome readData(Config& config, Source& source, const Options& options);

/// The only format that fits what the source holds, for a configuration that lost its own word on it; empty
/// when none or several do.
std::optional<Format> guessFormat(const Config& config, Source& source);

/// Calls the progress callback; throws Cancelled when it asks to stop.
void report(const Options& options, std::uint64_t done, std::uint64_t total);

} // namespace record
