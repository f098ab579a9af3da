#pragma once

#include "Data.h"

namespace record {

/// readData() for lines of text: number, stamp, analog values, binary states.
DataOutcome readAscii(Config& config, Source& source, const Options& options);

} // namespace record
