#include "Signals.h"

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

std::string nameOf(const std::string& name, const std::string& phase) {
    return phase.empty() || name.find(phase) != std::string::npos ? name : name + " (" + phase + ")";
}

std::unique_ptr<Zel::Series> makeCurve(record::AnalogChannel& channel, const record::TimeAxis& time) {
    auto series = std::make_unique<Zel::Series>();
    series->name = nameOf(channel.name, channel.phase);
    series->points.reserve(channel.samples.size());
    for (std::size_t i = 0; i < channel.samples.size(); ++i)
        if (std::isfinite(channel.samples[i]))
            series->points.push_back({static_cast<float>(time.at(i)), channel.samples[i]});
    channel.samples = {};
    return series;
}

std::unique_ptr<Zel::Series> makeRow(const record::BinaryChannel& channel, const record::TimeAxis& time) {
    auto series = std::make_unique<Zel::Series>();
    series->type = Zel::SeriesType::Binary;
    series->name = nameOf(channel.name, channel.phase);
    const auto add = [&](std::size_t position) {
        series->points.push_back(
            {static_cast<float>(time.at(position)), channel.samples[position] ? 1.0f : 0.0f});
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
void setTimeLimits(std::vector<Section>& sections, const record::TimeAxis& time) {
    float min = 0;
    float max = 0;
    for (std::size_t i = 0; i < time.size(); ++i) {
        const auto t = static_cast<float>(time.at(i));
        min = i == 0 ? t : std::min(min, t);
        max = i == 0 ? t : std::max(max, t);
    }
    if (!(max > min))
        max = min + 1;
    for (Section& section : sections) {
        section.xMin = min;
        section.xMax = max;
    }
}

} // namespace

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

} // namespace viewer
