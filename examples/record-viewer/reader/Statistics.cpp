#include "Statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace record {

Statistics statistics(const std::vector<float>& samples) {
    constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
    Statistics result{0, 0, nothing, nothing, nothing, nothing};
    float minimum = std::numeric_limits<float>::infinity();
    float maximum = -minimum;
    double sum = 0;
    double squares = 0;
    for (const float sample : samples) {
        if (!std::isfinite(sample)) {
            ++result.missing;
            continue;
        }
        minimum = std::min(minimum, sample);
        maximum = std::max(maximum, sample);
        sum += sample;
        squares += static_cast<double>(sample) * sample;
    }
    result.valid = samples.size() - result.missing;
    if (result.valid == 0)
        return result;
    const double count = static_cast<double>(result.valid);
    result.minimum = minimum;
    result.maximum = maximum;
    result.mean = sum / count;
    result.rms = std::sqrt(squares / count);
    return result;
}

} // namespace record
