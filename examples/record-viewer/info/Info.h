#pragma once

#include "reader/Record.h"

#include <nlohmann/json.hpp>

#include <string>

namespace record {

/// What is in a record, for a person: a list of facts, a table of the channels, the warnings. UTF-8 without
/// control characters other than line ends.
std::string describe(const Record& record);

/// The same for a program, with fixed keys in a fixed order. Times are in seconds. What is not known
/// is null.
nlohmann::ordered_json toJson(const Record& record);

/// toJson() as text, indented by two. Never throws: bytes that are no UTF-8 become U+FFFD.
std::string jsonText(const Record& record);

} // namespace record
