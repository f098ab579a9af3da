#include "TimeAxis.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace record {

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t keptGaps = 1000;
/// A step counts as a leap, and a difference as worth telling, when it is off by more than this many samples.
constexpr double fewSamples = 3;

/// Puts values between their neighbours where they are missing, going on with the nearest step at both ends.
void fillMissing(std::vector<double>& values) {
    std::size_t last = values.size();
    std::size_t first = values.size();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (std::isnan(values[i]))
            continue;
        if (last == values.size())
            first = i;
        else
            for (std::size_t k = last + 1; k < i; ++k)
                values[k] = values[last] + (values[i] - values[last]) * static_cast<double>(k - last) /
                                               static_cast<double>(i - last);
        last = i;
    }
    const double leading = first < last ? values[first + 1] - values[first] : 0;
    const double trailing = first < last ? values[last] - values[last - 1] : 0;
    for (std::size_t k = first; k-- > 0;)
        values[k] = values[k + 1] - leading;
    for (std::size_t k = last + 1; k < values.size(); ++k)
        values[k] = values[k - 1] + trailing;
}

/// Makes a counter continuous that starts over at 0 after its highest value. A fall by more than half of the
/// counter's range is a wrap; a smaller one is a clock that was set back.
void unwrap(std::vector<double>& ticks) {
    double highest = 0;
    double longest = 0;
    double before = nothing;
    for (const double tick : ticks) {
        if (std::isnan(tick))
            continue;
        highest = std::max(highest, tick);
        // A comparison with a missing value is false, which is what the first sample needs.
        if (tick > before)
            longest = std::max(longest, tick - before);
        before = tick;
    }
    const double modulus = highest < 65536 ? 65536 : 4294967296.0;
    // A wide counter that leaps forward by half of its range is damaged, not wrapped. A narrow one must go on
    // with its usual step.
    const double allowed = modulus > 65536 ? modulus / 2 : 2 * longest;
    if (highest >= modulus || longest > modulus / 2)
        return;

    double added = 0;
    before = nothing;
    for (double& tick : ticks) {
        const double raw = tick;
        if (std::isnan(raw))
            continue;
        if (raw - before < -modulus / 2 && raw - before + modulus <= allowed)
            added += modulus;
        tick += added;
        before = raw;
    }
}

} // namespace

TimeAxis::TimeAxis(std::size_t samples, const std::vector<Rate>& rates, std::vector<double> ticks,
                   double unit)
    : count(samples) {
    setSegments(rates);
    setStamps(std::move(ticks), unit);
    // Without a sample there is nothing to count, and stamps are what a record without rates would have had.
    chosen = hasRates() ? Rule::Rates : hasStamps() || count == 0 ? Rule::Stamps : Rule::Numbers;
    findGaps();
    compare();
}

void TimeAxis::setRule(Rule rule) {
    if ((rule == Rule::Rates && hasRates()) || (rule == Rule::Stamps && hasStamps()) || rule == Rule::Numbers)
        chosen = rule;
}

void TimeAxis::setSegments(const std::vector<Rate>& rates) {
    std::uint64_t first = 0;
    double start = 0;
    for (const Rate& rate : rates) {
        // Repeated ends are empty stretches, and what lies behind the last sample is of no use.
        if (rate.end <= first || (first >= count && first > 0))
            continue;
        if (!(rate.hertz > 0)) {
            segments.clear();
            return;
        }
        segments.push_back({static_cast<std::size_t>(first), start, rate.hertz});
        start += static_cast<double>(rate.end - first) / rate.hertz;
        first = rate.end;
    }
    if (segments.empty() && !rates.empty() && rates.back().hertz > 0)
        segments.push_back({0, 0, rates.back().hertz});
}

void TimeAxis::setStamps(std::vector<double> ticks, double unit) {
    missing = static_cast<std::size_t>(
        std::count_if(ticks.begin(), ticks.end(), [](double tick) { return std::isnan(tick); }));
    if (ticks.size() != count || missing == count)
        return;
    stamps = std::move(ticks);
    unwrap(stamps);
    if (missing > 0)
        fillMissing(stamps);
    for (double& stamp : stamps)
        stamp *= unit;
}

double TimeAxis::at(std::size_t position) const {
    switch (chosen) {
    case Rule::Rates:
        return byRates(position);
    case Rule::Stamps:
        return byStamps(position);
    case Rule::Numbers:
        break;
    }
    return static_cast<double>(position);
}

double TimeAxis::byRates(std::size_t position) const {
    const auto after =
        std::upper_bound(segments.begin(), segments.end(), position,
                         [](std::size_t value, const Segment& segment) { return value < segment.first; });
    const Segment& segment = *(after - 1);
    return segment.start + static_cast<double>(position - segment.first) / segment.hertz;
}

std::size_t TimeAxis::positionAt(double time) const {
    std::size_t low = 0;
    std::size_t high = count;
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (at(middle) < time)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

/// The median of at most a thousand steps taken evenly over the stamps.
double TimeAxis::typicalStep() const {
    const std::size_t stride = std::max<std::size_t>(1, count / 1000);
    std::vector<double> steps;
    for (std::size_t i = 1; i < count; i += stride)
        steps.push_back(stamps[i] - stamps[i - 1]);
    if (steps.empty())
        return 0;
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    return *middle;
}

void TimeAxis::findGaps() {
    if (!hasStamps())
        return;
    const double typical = typicalStep();
    std::size_t segment = 0;
    for (std::size_t i = 1; i < count; ++i) {
        // The step to a sample has the length that the sample before it takes.
        while (segment + 1 < segments.size() && segments[segment + 1].first <= i - 1)
            ++segment;
        const double usual = hasRates() ? 1 / segments[segment].hertz : typical;
        const double step = stamps[i] - stamps[i - 1];
        if (step >= 0 && step <= usual * (1 + fewSamples))
            continue;
        // Stamps that all say the same are no clock at all; that is for the comparison with the rates to
        // tell.
        if (!hasRates() && typical <= 0 && step >= 0)
            continue;
        if (leaps.size() < keptGaps)
            leaps.push_back({i, step});
        ++leapCount;
    }
}

void TimeAxis::compare() {
    if (!hasRates() || !hasStamps())
        return;
    std::size_t segment = 0;
    for (std::size_t i = 0; i < count; ++i) {
        while (segment + 1 < segments.size() && segments[segment + 1].first <= i)
            ++segment;
        const Segment& current = segments[segment];
        const double byRate = current.start + static_cast<double>(i - current.first) / current.hertz;
        difference = std::max(difference, std::abs(stamps[i] - stamps[0] - byRate) * current.hertz);
    }
}

} // namespace record
