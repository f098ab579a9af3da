#pragma once

#include <cstddef>
#include <vector>

namespace record {

/// What there is to say of a row of samples. Extremes and means are NaN when no sample is there.
struct Statistics {
    std::size_t valid = 0;
    std::size_t missing = 0;
    double minimum;
    double maximum;
    double mean;
    double rms;
};

/// Computed on each call in one pass; samples that are not numbers count as missing.
Statistics statistics(const std::vector<float>& samples);

} // namespace record
