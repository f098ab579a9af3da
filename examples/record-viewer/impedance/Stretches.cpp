#include "Stretches.h"

#include <algorithm>
#include <cmath>

namespace impedance {

namespace {

constexpr double fewestSamples = 4;

/// The positions at which a window must begin anew, ascending, with 0 and the size at the ends.
std::vector<std::size_t> bounds(const record::Record& record, std::size_t size) {
    std::vector<std::size_t> result{0, size};
    if (record.time.rule() == record::TimeAxis::Rule::Rates)
        for (std::size_t i = 0; i + 1 < record.rates.size(); ++i)
            result.push_back(static_cast<std::size_t>(std::min<std::uint64_t>(record.rates[i].end, size)));
    for (const record::Gap& gap : record.time.gaps())
        result.push_back(std::min(gap.position, size));
    std::sort(result.begin(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

} // namespace

Stretches stretchesOf(const record::Record& record, double frequency) {
    Stretches stretches;
    const record::TimeAxis& time = record.time;
    if (time.rule() == record::TimeAxis::Rule::Numbers) {
        stretches.remarks.push_back("The record does not tell when its samples were taken.");
        return stretches;
    }

    std::size_t size = time.size();
    if (time.gapCount() > time.gaps().size()) {
        size = time.gaps().back().position;
        stretches.remarks.push_back("The time stamps leap " + std::to_string(time.gapCount()) +
                                    " times; impedances end at the leap number " +
                                    std::to_string(time.gaps().size()) + ".");
    }
    const std::vector<std::size_t> edges = bounds(record, size);
    bool isAnySlow = false;
    for (std::size_t i = 1; i < edges.size(); ++i) {
        const std::size_t first = edges[i - 1];
        const std::size_t end = edges[i];
        if (end - first < 2)
            continue;
        const double cycle =
            static_cast<double>(end - 1 - first) / ((time.at(end - 1) - time.at(first)) * frequency);
        // False for what is not a number, too.
        if (!(cycle >= fewestSamples - 0.5 && cycle < static_cast<double>(end - first) + 0.5)) {
            isAnySlow = isAnySlow || cycle < fewestSamples;
            continue;
        }
        stretches.list.push_back({first, end, static_cast<std::size_t>(std::lround(cycle))});
    }
    if (isAnySlow)
        stretches.remarks.push_back(
            "Where the record has fewer than four samples in a cycle there are no impedances.");
    if (stretches.list.empty())
        stretches.remarks.push_back("The record has no whole cycle that is sampled evenly.");
    return stretches;
}

} // namespace impedance
