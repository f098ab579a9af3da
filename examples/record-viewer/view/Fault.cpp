#include "Fault.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace viewer {

namespace {

/// Samples in one cycle; 0 where that can't be told.
std::size_t cycleOf(const record::Record& record, double frequency) {
    if (!(frequency > 0) || record.size() < 2)
        return 0;
    const double step = record.time.at(1) - record.time.at(0);
    const double samples = 1 / (step * frequency);
    return samples >= 4 && samples < static_cast<double>(record.size()) / 2
               ? static_cast<std::size_t>(std::lround(samples))
               : 0;
}

/// The root mean square of each window of the length, by the position of its last sample. A missing sample
/// counts as 0.
std::vector<float> slidingRms(const std::vector<float>& samples, std::size_t length) {
    std::vector<float> result(samples.size(), 0.0f);
    const auto square = [&](std::size_t i) {
        const double value = std::isfinite(samples[i]) ? samples[i] : 0.0f;
        return value * value;
    };
    double sum = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        sum += square(i);
        if (i >= length)
            sum -= square(i - length);
        if (i + 1 >= length)
            result[i] = static_cast<float>(std::sqrt(std::max(0.0, sum) / static_cast<double>(length)));
    }
    return result;
}

} // namespace

std::optional<Interval> findFault(const record::Record& record, double frequency) {
    const std::size_t cycle = cycleOf(record, frequency > 0 ? frequency : record.lineFrequency);
    if (cycle == 0)
        return {};

    std::size_t first = record.size();
    std::size_t last = 0;
    for (const record::AnalogChannel& channel : record.analogs) {
        if ((channel.unit != "A" && channel.unit != "kA") || channel.samples.size() != record.size())
            continue;
        const std::vector<float> rms = slidingRms(channel.samples, cycle);
        const float threshold =
            std::max(2 * rms[cycle - 1], 0.1f * *std::max_element(rms.begin(), rms.end()));
        for (std::size_t i = cycle; i < rms.size(); ++i) {
            if (rms[i] <= threshold)
                continue;
            first = std::min(first, i);
            last = std::max(last, i);
        }
    }
    if (first > last)
        return {};
    // The last window that is above still reaches one cycle back into the fault.
    const std::size_t end = last + 1 == record.size() ? last : std::max(first, last + 1 - cycle);
    return Interval{record.time.at(first), record.time.at(end)};
}

} // namespace viewer
