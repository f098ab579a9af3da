#pragma once

#include "Reader.h"
#include "Source.h"

namespace record {

/// Reads a table of numbers, a row for each sample, separated by commas, semicolons or tabs. The last row of
/// texts before the numbers names the columns; two such rows of the table's width are names and units. A
/// first column that is called time (or, without names, one that always grows) becomes the time axis;
/// otherwise the axis counts samples, with a warning.
Record readCsv(Source& source, const Options& options);

} // namespace record
