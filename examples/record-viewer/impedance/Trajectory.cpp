#include "Trajectory.h"

#include "Stretches.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace impedance {

namespace {

constexpr double pi = 3.14159265358979323846;
/// The part of the largest phase current below which an impedance is noise.
constexpr double smallestPart = 0.05;

/// A channel of the inputs and what turns its phasor into volts or amperes at the record's own moments.
struct Source {
    const std::vector<float>& samples;
    Complex factor;
};

using SixPhasors = std::array<Complex, 6>;

std::vector<Source> sourcesOf(const record::Record& record, const Inputs& inputs,
                              const Conversion& conversion, double frequency) {
    std::vector<Source> sources;
    for (std::size_t i = 0; i < 6; ++i) {
        const record::AnalogChannel& channel =
            record.analogs[i < 3 ? inputs.voltages[i] : inputs.currents[i - 3]];
        const double factor = i < 3 ? conversion.voltages[i] : conversion.currents[i - 3];
        sources.push_back({channel.samples, std::polar(factor, -2 * pi * frequency * channel.skew * 1e-6)});
    }
    return sources;
}

/// Slides one window for each source, six at most, over a stretch and calls the function at every position
/// where all are valid.
void slide(const Stretch& stretch, const std::vector<Source>& sources,
           const std::function<void(std::size_t, const SixPhasors&)>& function) {
    std::vector<SlidingPhasor> phasors(sources.size(), SlidingPhasor(stretch.window));
    SixPhasors values;
    for (std::size_t position = stretch.first; position < stretch.end; ++position) {
        bool areValid = true;
        for (std::size_t i = 0; i < sources.size(); ++i) {
            phasors[i].push(sources[i].samples[position]);
            areValid = areValid && phasors[i].isValid();
            values[i] = phasors[i].value() * sources[i].factor;
        }
        if (areValid)
            function(position, values);
    }
}

double largestOf(const std::vector<Stretch>& stretches, const std::vector<Source>& sources) {
    double largest = 0;
    for (const Stretch& stretch : stretches)
        slide(stretch, sources, [&](std::size_t, const SixPhasors& values) {
            for (std::size_t i = 0; i < sources.size(); ++i)
                largest = std::max(largest, std::abs(values[i]));
        });
    return largest;
}

std::uint64_t milliseconds(double seconds) {
    return seconds > 0 ? static_cast<std::uint64_t>(std::llround(seconds * 1000)) : 0;
}

/// Time stamps may go back; a trajectory goes by time.
void sortByTime(std::vector<Point>& points) {
    const auto isEarlier = [](const Point& a, const Point& b) { return a.time < b.time; };
    if (!std::is_sorted(points.begin(), points.end(), isEarlier))
        std::stable_sort(points.begin(), points.end(), isEarlier);
}

double earliest(const record::TimeAxis& time) {
    double result = time.size() == 0 ? 0 : time.at(0);
    if (time.rule() == record::TimeAxis::Rule::Stamps)
        for (std::size_t i = 1; i < time.size(); ++i)
            result = std::min(result, time.at(i));
    return result;
}

double smallest(const record::TimeAxis& time, const std::vector<Point>& points, double from, double to) {
    double result = std::numeric_limits<double>::infinity();
    for (const Point& point : points) {
        const double t = time.at(point.position);
        if (t >= from && t <= to)
            result = std::min(result, std::hypot(point.r, point.x));
    }
    return result;
}

} // namespace

Loop smallestLoop(const record::TimeAxis& time, const Trajectories& all, const std::optional<Span>& fault,
                  double cycle) {
    if (!fault)
        return Loop::AE;
    for (const double from : {fault->from + cycle, fault->from}) {
        std::array<double, loopCount> distances{};
        for (std::size_t i = 0; i < loopCount; ++i)
            distances[i] = smallest(time, all.loops[i], from, fault->to);
        const auto nearest = std::min_element(distances.begin(), distances.end());
        if (std::isfinite(*nearest))
            return static_cast<Loop>(nearest - distances.begin());
    }
    return Loop::AE;
}

Trajectories trajectories(const record::Record& record, const Inputs& inputs, const LineSettings& line,
                          const std::optional<Span>& fault) {
    Trajectories result;
    const double frequency = line.frequency > 0 ? line.frequency : record.lineFrequency;
    if (!(frequency > 0) || !std::isfinite(frequency)) {
        result.remarks.push_back("The record does not tell the frequency of the network.");
        return result;
    }
    const Conversion conversion = convert(record, inputs, line);
    result.side = conversion.side;
    if (!conversion.remark.empty())
        result.remarks.push_back(conversion.remark);
    const std::optional<Complex> k0 = compensation(line);
    if (!k0)
        result.remarks.push_back(
            line.z1 == Complex()
                ? "The impedances of the line are not known, so the loops to earth are computed without "
                  "earth-fault compensation (k0 = 0); the loops between phases need none."
                : "The earth-fault compensation of the line is not known, so the loops to earth are "
                  "computed without it (k0 = 0); the loops between phases need none.");
    const Stretches stretches = stretchesOf(record, frequency);
    result.remarks.insert(result.remarks.end(), stretches.remarks.begin(), stretches.remarks.end());

    const std::vector<Source> sources = sourcesOf(record, inputs, conversion, frequency);
    result.minimumCurrent =
        line.minimumCurrent > 0
            ? line.minimumCurrent
            : smallestPart * largestOf(stretches.list, {sources.begin() + 3, sources.end()});
    const double start = earliest(record.time);
    for (const Stretch& stretch : stretches.list)
        slide(stretch, sources, [&](std::size_t position, const SixPhasors& values) {
            const ThreePhasors voltages{values[0], values[1], values[2]};
            const ThreePhasors currents{values[3], values[4], values[5]};
            const std::uint64_t time = milliseconds(record.time.at(position) - start);
            for (std::size_t i = 0; i < loopCount; ++i) {
                const LoopPhasors loop =
                    loopPhasors(static_cast<Loop>(i), voltages, currents, k0.value_or(Complex()));
                if (const auto z = loop.impedance(result.minimumCurrent))
                    result.loops[i].push_back({position, time, z->real(), z->imag()});
            }
        });
    for (std::vector<Point>& points : result.loops)
        sortByTime(points);
    result.shown = smallestLoop(record.time, result, fault, 1 / frequency);
    return result;
}

} // namespace impedance
