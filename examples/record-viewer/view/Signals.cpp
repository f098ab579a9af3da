#include "Signals.h"

#include "Quantity.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace viewer {

namespace {

constexpr std::size_t rowsInSection = 500;

/// Dark enough on white, and told apart by most eyes.
constexpr std::array<Zel::Color, 8> palette{{{204, 121, 0, 255},
                                             {0, 128, 72, 255},
                                             {200, 30, 45, 255},
                                             {0, 93, 170, 255},
                                             {126, 47, 142, 255},
                                             {0, 139, 150, 255},
                                             {110, 90, 20, 255},
                                             {70, 70, 70, 255}}};

Zel::Color colorOf(std::size_t position) {
    return palette[position % palette.size()];
}

std::unique_ptr<Zel::Series> makeCurve(record::AnalogChannel& channel, const record::TimeAxis& time,
                                       double start = 0) {
    auto series = std::make_unique<Zel::Series>();
    series->name = signalName(channel.name, channel.phase);
    series->points.reserve(channel.samples.size());
    for (std::size_t i = 0; i < channel.samples.size(); ++i)
        if (std::isfinite(channel.samples[i]))
            series->points.push_back({static_cast<float>(time.at(i) - start), channel.samples[i]});
    channel.samples = {};
    return series;
}

std::unique_ptr<Zel::Series> makeRow(const record::BinaryChannel& channel, const record::TimeAxis& time,
                                     double start = 0) {
    auto series = std::make_unique<Zel::Series>();
    series->type = Zel::SeriesType::Binary;
    series->name = signalName(channel.name, channel.phase);
    const auto add = [&](std::size_t position) {
        series->points.push_back(
            {static_cast<float>(time.at(position) - start), channel.samples[position] ? 1.0f : 0.0f});
    };
    if (channel.samples.size() == 0)
        return series;
    add(0);
    for (std::size_t position : channel.samples.transitions())
        add(position);
    add(channel.samples.size() - 1);
    return series;
}

/// Where time stamps go back, the ends are not the extremes.
Interval timeLimits(const record::TimeAxis& time) {
    Interval limits;
    for (std::size_t i = 0; i < time.size(); ++i) {
        const double t = time.at(i);
        limits.from = i == 0 ? t : std::min(limits.from, t);
        limits.to = i == 0 ? t : std::max(limits.to, t);
    }
    return limits;
}

void setTimeLimits(std::vector<Section>& sections, const record::TimeAxis& time) {
    const Interval limits = timeLimits(time);
    for (Section& section : sections) {
        section.xMin = static_cast<float>(limits.from);
        section.xMax = static_cast<float>(limits.to > limits.from ? limits.to : limits.from + 1);
    }
}

/// The largest size of all samples of each unit, so that channels of one unit keep one prefix.
std::map<std::string, Scale> scalesOf(const record::Record& record) {
    std::map<std::string, double> largest;
    for (const record::AnalogChannel& channel : record.analogs)
        for (float sample : channel.samples)
            if (std::isfinite(sample))
                largest[channel.unit] =
                    std::max(largest[channel.unit], std::fabs(static_cast<double>(sample)));
    std::map<std::string, Scale> scales;
    for (const auto& [unit, size] : largest)
        scales[unit] = scaleFor(unit, size);
    return scales;
}

/// Volts if there are any, else what the first channel measures.
Quantity upperQuantity(const record::Record& record) {
    for (const record::AnalogChannel& channel : record.analogs)
        if (quantityOf(channel.unit) == Quantity::Voltage)
            return Quantity::Voltage;
    return record.analogs.empty() ? Quantity::Voltage : quantityOf(record.analogs.front().unit);
}

} // namespace

std::string signalName(const std::string& name, const std::string& phase) {
    return phase.empty() || name.find(phase) != std::string::npos ? name : name + " (" + phase + ")";
}

std::vector<Section> makeSections(record::Record& record) {
    std::vector<Section> sections;
    std::map<std::string, std::size_t> sectionOfUnit;
    for (record::AnalogChannel& channel : record.analogs) {
        const auto [found, isNew] = sectionOfUnit.emplace(channel.unit, sections.size());
        if (isNew) {
            sections.emplace_back();
            sections.back().title = channel.unit;
        }
        Section& section = sections[found->second];
        auto curve = makeCurve(channel, record.time);
        curve->color = colorOf(section.series.size());
        section.series.push_back(std::move(curve));
    }

    for (std::size_t i = 0; i < record.binaries.size(); ++i) {
        if (i % rowsInSection == 0) {
            sections.emplace_back();
            sections.back().type = Zel::SeriesType::Binary;
        }
        auto row = makeRow(record.binaries[i], record.time);
        row->index = i % rowsInSection;
        row->color = colorOf(i);
        sections.back().series.push_back(std::move(row));
    }
    setTimeLimits(sections, record.time);
    return sections;
}

Oscillogram makeOscillogram(record::Record& record) {
    Oscillogram oscillogram;
    const Interval limits = timeLimits(record.time);
    oscillogram.duration = static_cast<float>(limits.to - limits.from);
    oscillogram.fault = findFault(record);
    if (oscillogram.fault) {
        oscillogram.fault->from -= limits.from;
        oscillogram.fault->to -= limits.from;
    }

    const std::map<std::string, Scale> scales = scalesOf(record);
    const Quantity upper = upperQuantity(record);
    std::array<std::size_t, 2> countInArea{};
    for (record::AnalogChannel& channel : record.analogs) {
        auto curve = makeCurve(channel, record.time, limits.from);
        const auto scale = scales.find(channel.unit);
        const std::string unit = scale == scales.end() ? channel.unit : scale->second.unit;
        if (!unit.empty())
            curve->name += ", " + unit;
        if (scale != scales.end())
            for (Zel::PointF& point : curve->points)
                point.y = static_cast<float>(point.y * scale->second.factor);
        curve->drawAreaIndex = quantityOf(channel.unit) == upper ? 0 : 1;
        curve->color = colorOf(countInArea[curve->drawAreaIndex]++);
        oscillogram.series.push_back(std::move(curve));
    }
    for (std::size_t i = 0; i < record.binaries.size(); ++i) {
        auto row = makeRow(record.binaries[i], record.time, limits.from);
        row->index = i;
        row->color = colorOf(i);
        oscillogram.series.push_back(std::move(row));
    }
    return oscillogram;
}

} // namespace viewer