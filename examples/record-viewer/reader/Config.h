#pragma once

#include "Record.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace record {

/// What a configuration tells: a record without samples, and how its data are laid out.
struct Config {
    Record record;
    /// The counts that the data were written with. A damaged configuration may describe fewer channels.
    std::uint64_t analogCount = 0;
    std::uint64_t binaryCount = 0;
    /// Empty only when a damaged configuration was salvaged.
    std::optional<Format> format;
};

/// Reads a configuration of IEEE C37.111, any revision. `text` is UTF-8; messages call it `name`. Throws
/// Error at the first line that can't be understood; with `salvage` what stands before that line is returned,
/// with a warning.
Config parseConfig(std::string_view text, const std::string& name, bool salvage);

/// The format of a name in any letter case; empty when there is none.
std::optional<Format> formatOf(std::string_view text);

} // namespace record
