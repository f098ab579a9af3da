#pragma once

#include "Reader.h"
#include "Source.h"

#include <string>
#include <string_view>

namespace record {

/// Longer configurations are refused, as each of their lines takes some memory. A thousand channels need a
/// tenth of a mebibyte.
constexpr std::size_t longestConfiguration = std::size_t(16) * 1024 * 1024;

/// Puts a record together from the bytes of a configuration and the source of its data. Without data (a null
/// pointer) it throws Error, or, with `options.salvage`, returns the channels without samples.
Record readPair(std::string_view configuration, const std::string& configurationName, Source* data,
                const Options& options);

/// Reads a combined file, all sections in one.
Record readCombined(Source& source, const Options& options);

} // namespace record
