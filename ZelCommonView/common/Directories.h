#pragma once

#include <ZelCommonView/common/Export.h>

#include <string>

namespace Zel {

/// The folder of the running program, absolute, links resolved, without a separator at its end (save for the
/// root). Throws std::filesystem::filesystem_error where the system does not tell.
ZEL_API std::string getZelCrossExeDir();

/// The folder of the theme files, ending in a separator, so that a file name can be appended directly.
/// It is the one given to setThemesDir; without that `Themes` beside the running program, if there is such a
/// folder, and otherwise the installed one. Whether the files are there is not checked.
ZEL_API std::string getThemesDir();

/// Makes another folder the one of the theme files. A separator is added where it is missing; a relative path
/// is kept and follows the working directory; the empty path goes back to the default. What is loaded already
/// stays.
ZEL_API void setThemesDir(const std::string& path);

} // namespace Zel
