#pragma once

#include <ZelCommonView/common/Export.h>

#include <string>
#include <vector>

/// Searching and splitting of text, byte by byte.
namespace Zel::StringHelper {

/// Whether `part` stands, whole, in `text` between the positions `from` and `to` (bytes; `to` is the one
/// behind the last). `ignoreCase` makes Latin letters match in either case, whatever the locale; other
/// letters match only themselves. A `to` beyond the end counts as the end. A `from` beyond that, or beyond
/// `to`, finds nothing, and an empty part is found everywhere else.
ZEL_API bool isInclude(const std::string& text, const std::string& part, unsigned long from, unsigned long to,
                       bool ignoreCase);

/// The pieces of `text` between the separators, empty ones too: always one piece more than there are
/// separators.
ZEL_API std::vector<std::string> split(const std::string& text, char separator);

} // namespace Zel::StringHelper
