#pragma once

#include <ZelCommonView/common/Export.h>

#include <string>
#include <utility>
#include <vector>

namespace Zel {

/// The filters of a file dialog in the order of its list. Of each, `first` holds the patterns, joined by
/// vertical bars, such as "*.csv|*.txt", and `second` the name that the user sees.
using FileDialogFilters = std::vector<std::pair<std::string, std::string>>;

/// What file dialogs know about names.
namespace FileDialogHelper {

/// The name with the extension of the very first pattern of the first filter behind it, whichever filter the
/// user has chosen; unchanged if that pattern has no dot or there is no filter.
ZEL_API std::string completeFileName(const std::string& name, const FileDialogFilters& filters);

/// Whether the name, which is a whole path, matches any pattern of any filter, with regard to case. A `*`
/// stands for any characters and a `?` for one; all else has the meaning that it has in a regular expression,
/// so that
/// "*.txt" is matched by "xtxt" as well. Throws `std::regex_error` on a pattern that is no regular
/// expression.
ZEL_API bool isMatchPattern(const std::string& name, const FileDialogFilters& filters);

} // namespace FileDialogHelper

} // namespace Zel
