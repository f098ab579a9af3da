#pragma once

#include "Interval.h"
#include "reader/Record.h"

#include <optional>

namespace viewer {

/// The stretch in which a current is far above what it was at the record's beginning: the root mean square
/// over one cycle, as measured on the sliding window that ends at each sample, above twice that of the first
/// cycle and above a tenth of its largest. Empty where there are no currents (units A or kA), no line
/// frequency, fewer than two cycles, or nothing of that kind. `frequency` in hertz goes before that of the
/// record unless it is 0.
std::optional<Interval> findFault(const record::Record& record, double frequency = 0);

} // namespace viewer
