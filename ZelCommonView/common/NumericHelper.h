#pragma once

#include <ZelCommonView/common/Export.h>

#include <string>

/// Judging text while a number is being typed.
///
/// A number is an optional sign, digits with at most one "." before, among or behind them, and an optional
/// exponent of "e", an optional sign and digits; or, behind an optional "-", one of the words nan, inf and
/// infinity. Letters may be of either case. The locale plays no part: the decimal separator is always the
/// point, and nothing groups digits.
namespace Zel::NumericHelper {

/// Whether the text is a number or can become one by typing on behind it. The empty text can.
/// Size is not judged: a number beyond what a double holds is a number here.
ZEL_API bool isNumericInput(const std::string& text);

/// Whether the text can become a number but is none yet, such as "", "-", "1e" or "infi". False for a text
/// that isNumericInput refuses.
ZEL_API bool isIncompleteNumericInput(const std::string& text);

} // namespace Zel::NumericHelper
