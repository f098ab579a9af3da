/// Numbers to text and back, always in the form of the classic locale: a decimal point and no grouping.
#pragma once

#include <ZelCommonView/common/Export.h>

#include <cstddef>
#include <string>

namespace Zel {

/// Reads a number that takes up the whole text; false, with `out` untouched, for any other text. `isClassic`
/// asks for the classic locale. There is one form, that for `double` in the classic locale.
template <typename T, bool isClassic>
bool tryConvert(const std::string& text, T& out) = delete;

/// Reads one of the words nan, inf and infinity, in either case and with an optional "-", from the byte `pos`
/// on. Returns the position behind the word, or `pos`, with `out` untouched, if there is none. There is one
/// form, that for `double`.
template <typename T>
std::size_t tryExtractSpecialFloating(const std::string& text, std::size_t pos, T& out) = delete;

/// The shortest text of the value with 15 - `reserved` significant digits, one more from 10 on, and so on up
/// to 15. There is one form, that for `double` in the classic locale.
template <typename T, bool isClassic>
std::string convertToString(T value, int reserved) = delete;

/// Besides what a stream reads as a number, blanks in front of it included, the words of
/// `tryExtractSpecialFloating` are numbers. A number too large for the type is none.
template <>
ZEL_API bool tryConvert<double, true>(const std::string& text, double& out);

/// The word is sought in the whole rest of the text and not only at its start, while the result is counted
/// from the start: a caller that wants nothing but the word compares the result with the size of the text.
template <>
ZEL_API std::size_t tryExtractSpecialFloating<double>(const std::string& text, std::size_t pos, double& out);

/// A value whose size is below 10 to the power `reserved` - 15 gives "0". Negative values have 6 significant
/// digits, whatever `reserved` says; that is meant. Values that aren't finite give "inf", "-inf", "nan" and
/// "-nan".
template <>
ZEL_API std::string convertToString<double, true>(double value, int reserved);

} // namespace Zel
