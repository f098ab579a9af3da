#pragma once

#include <ZelCommonView/common/Export.h>

namespace lng {

/// The language of all texts of the library: 0 selects English, 1 selects Russian. Starts as 0. The
/// application sets it before it builds windows; the library reads it at each use and never writes it.
extern ZEL_API unsigned char language;

/// The place of the current language in a word's two texts. A value that names no language counts as English,
/// so that a word is always found.
inline int index() {
    return language == 1 ? 1 : 0;
}

} // namespace lng
