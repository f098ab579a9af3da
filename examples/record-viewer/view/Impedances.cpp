#include "Impedances.h"

#include "Fault.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace viewer {

namespace {

constexpr double lineAngle = 75;    // degrees, of a line that is not known
constexpr double reachesInView = 2; // of the third zone
constexpr double faultsInView = 2;
constexpr double nearestInView = 2;
constexpr double margin = 0.06; // of the larger side

double sizeOf(const impedance::Point& point) {
    return std::hypot(point.r, point.x);
}

/// The middle one of the sizes of a loop in the fault, as far as whole windows lie in it; 0 if there are
/// none.
double sizeInFault(const record::Record& record, const std::vector<impedance::Point>& points,
                   const impedance::Span& fault, double cycle) {
    for (const double from : {fault.from + cycle, fault.from}) {
        std::vector<double> sizes;
        for (const impedance::Point& point : points) {
            const double time = record.time.at(point.position);
            if (time >= from && time <= fault.to)
                sizes.push_back(sizeOf(point));
        }
        if (sizes.empty())
            continue;
        const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
        std::nth_element(sizes.begin(), middle, sizes.end());
        return *middle;
    }
    return 0;
}

bool isEmpty(const impedance::Trajectories& all) {
    return std::all_of(all.loops.begin(), all.loops.end(), [](const auto& points) { return points.empty(); });
}

} // namespace

Impedances computeImpedances(const record::Record& record, const impedance::LineSettings& line,
                             const impedance::Reaches& reaches) {
    Impedances result;
    const impedance::Choice choice = impedance::chooseInputs(record);
    if (!choice.inputs) {
        result.problem = choice.problem;
        return result;
    }
    const double frequency = line.frequency > 0 ? line.frequency : record.lineFrequency;
    result.k0 = impedance::compensation(line);
    result.frequency = frequency;
    result.recordedFrequency = record.lineFrequency;
    result.reaches = reaches;
    const std::optional<Interval> found = findFault(record, frequency);
    std::optional<impedance::Span> fault;
    if (found)
        fault = impedance::Span{found->from, found->to};
    result.trajectories = impedance::trajectories(record, *choice.inputs, line, fault);
    if (isEmpty(result.trajectories)) {
        result.problem = "The record has no impedance to show.";
        return result;
    }

    const auto& shown = result.trajectories.of(result.trajectories.shown);
    const double inFault = fault ? sizeInFault(record, shown, *fault, 1 / frequency) : 0;
    result.line = line.z1;
    if (result.line == impedance::Complex() && inFault > 0) {
        result.line = impedance::fromAngle(inFault, lineAngle);
        result.isLineAssumed = true;
    }
    const double view =
        std::max(reachesInView * reaches.zone3 * std::abs(result.line), faultsInView * inFault);
    if (view > 0)
        result.view = view;
    return result;
}

record::Record keepForImpedances(const record::Record& record) {
    record::Record kept;
    kept.lineFrequency = record.lineFrequency;
    kept.rates = record.rates;
    kept.time = record.time;
    const impedance::Choice choice = impedance::chooseInputs(record);
    for (std::size_t i = 0; i < record.analogs.size(); ++i) {
        const auto measure = impedance::measureOf(record.analogs[i].unit);
        if (!measure)
            continue;
        // All currents, since the fault is looked for in all of them.
        const bool isNeeded =
            measure->quantity == impedance::Quantity::Current || !choice.inputs ||
            std::count(choice.inputs->voltages.begin(), choice.inputs->voltages.end(), i) > 0;
        if (isNeeded)
            kept.analogs.push_back(record.analogs[i]);
    }
    return kept;
}

void Bounds::include(double x, double y) {
    xMin = std::min(xMin, x);
    xMax = std::max(xMax, x);
    yMin = std::min(yMin, y);
    yMax = std::max(yMax, y);
}

void Bounds::addMargin() {
    const double side = std::max(xMax - xMin, yMax - yMin);
    const double space = side > 0 ? side * margin : 1;
    xMin -= space;
    xMax += space;
    yMin -= space;
    yMax += space;
}

Bounds LoopView::bounds() const {
    Bounds result;
    for (const impedance::Point& point : points)
        result.include(point.r, point.x);
    return result;
}

const impedance::Point* LoopView::at(std::uint64_t time) const {
    const auto next =
        std::upper_bound(points.begin(), points.end(), start + time,
                         [](std::uint64_t t, const impedance::Point& point) { return t < point.time; });
    return next == points.begin() ? nullptr : &*std::prev(next);
}

LoopView viewOf(const Impedances& impedances, impedance::Loop loop) {
    LoopView view;
    const std::vector<impedance::Point>& all = impedances.trajectories.of(loop);
    if (all.empty())
        return view;
    view.start = all.front().time;
    double nearest = std::numeric_limits<double>::infinity();
    for (const impedance::Point& point : all)
        nearest = std::min(nearest, sizeOf(point));
    view.farthest = std::max(impedances.view, nearestInView * nearest);
    for (const impedance::Point& point : all) {
        if (!(sizeOf(point) <= view.farthest)) {
            ++view.leftOut;
            continue;
        }
        const bool isNext = !view.points.empty() && view.points.back().position + 1 == point.position;
        view.points.push_back(point);
        if (!isNext)
            view.runs.emplace_back(view.points.size() - 1, view.points.size());
        view.runs.back().second = view.points.size();
    }
    return view;
}

} // namespace viewer
