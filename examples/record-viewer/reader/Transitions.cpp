#include "Transitions.h"

#include <algorithm>

namespace record {

namespace {

/// Where time stamps go back, the first sample is not the earliest.
double earliest(const TimeAxis& time) {
    double start = time.size() == 0 ? 0 : time.at(0);
    for (std::size_t i = 1; i < time.size(); ++i)
        start = std::min(start, time.at(i));
    return start;
}

} // namespace

std::vector<Transition> transitions(const Record& record) {
    std::vector<Transition> all;
    const double start = earliest(record.time);
    for (std::size_t channel = 0; channel < record.binaries.size(); ++channel) {
        const BitRow& samples = record.binaries[channel].samples;
        for (const std::size_t position : samples.transitions())
            all.push_back({record.time.at(position) - start, channel, samples[position]});
    }
    // The channels stand one behind the other so far, which the sorting keeps within a moment.
    std::stable_sort(all.begin(), all.end(),
                     [](const Transition& left, const Transition& right) { return left.time < right.time; });
    return all;
}

} // namespace record
