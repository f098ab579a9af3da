#pragma once

#include "reader/Record.h"

#include <ZelCommonView/plot/Series.h>

#include <memory>
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

/// The sections of a record: one for each unit in the order in which units appear, then the binaries, a few
/// hundred to a section. The samples of the record are given up channel by channel, so that they are not held
/// twice.
///
/// A sample that is missing has no point; the curve runs on from its neighbour. A binary has a point where it
/// changes and at both ends.
std::vector<Section> makeSections(record::Record& record);

} // namespace viewer
