#pragma once

#include "Config.h"
#include "Source.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace record {

/// What stands between the section marks of a combined file.
struct Sections {
    /// Bytes of the text sections, not yet decoded. Absent sections are empty.
    std::string configuration;
    std::string information;
    std::string header;
    bool hasData = false;
    /// Where the data begin, and how many bytes of them there are.
    std::uint64_t dataOffset = 0;
    std::uint64_t dataSize = 0;
    /// The format named by the mark of the data section; empty where it names none.
    std::optional<Format> format;
    std::vector<std::string> warnings;
};

/// Finds the sections without reading the data. Throws Error when the first one is no configuration.
Sections readSections(Source& source);

} // namespace record
