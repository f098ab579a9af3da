#pragma once

#include "Fault.h"
#include "reader/Record.h"

#include <ZelCommonView/plot/Series.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace viewer {

/// Signals that share one plot: curves of one unit, or rows of binaries.
struct Section {
    std::string title;
    Zel::SeriesType type = Zel::SeriesType::Analog;
    /// Owned one by one: a plot knows a series by its address.
    std::vector<std::unique_ptr<Zel::Series>> series;
    /// Limits of x that all sections of a record share, seconds.
    float xMin = 0;
    float xMax = 1;
};

/// The name of a channel, with its phase unless the name has it already.
std::string signalName(const std::string& name, const std::string& phase);

/// The sections of a record: one for each unit in the order in which units appear, then the binaries, a few
/// hundred to a section. The samples of the record are given up channel by channel, so that they are not held
/// twice.
///
/// A sample that is missing has no point; the curve runs on from its neighbour. A binary has a point where it
/// changes and at both ends.
std::vector<Section> makeSections(record::Record& record);

/// What an oscillogram shows of a record. Times count from the earliest sample.
struct Oscillogram {
    /// Owned one by one, as in a section. Voltages stand in draw area 0, or the first quantity of a record
    /// that has none; everything else in draw area 1. Numbers have the prefix that fits them to an automatic
    /// axis, which the name tells.
    std::vector<std::unique_ptr<Zel::Series>> series;
    float duration = 0; ///< seconds
    std::optional<Interval> fault;
};

/// Gives the samples of the record up, as `makeSections` does.
Oscillogram makeOscillogram(record::Record& record);

} // namespace viewer
