#include <ZelCommonView/entries/NumericConversion.h>

#include <ZelCommonView/common/StringHelper.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace Zel {

namespace {

/// What makes a stream fall back to its own number of digits, which is 6.
constexpr std::streamsize streamDefault = -1;
/// The decimal digits that every double keeps.
constexpr double digits = std::numeric_limits<double>::digits10;

struct Word {
    std::string name;
    double value;
};

std::streamsize getPrecision(double value, int reserved) {
    // The logarithm is that of the value and not of its size. A negative value has none, and is meant to have
    // the stream's own digits then; infinities and NaN need no digits. Neither may become an integer.
    double exponent = std::floor(std::log10(value));
    if (!std::isfinite(exponent))
        return streamDefault;
    double available = digits;
    if (exponent < 0.0)
        exponent = 0.0;
    else
        available = std::trunc(digits - exponent);
    return static_cast<std::streamsize>(std::min(digits - reserved, available) + exponent);
}

} // namespace

template <>
bool tryConvert<double, true>(const std::string& text, double& out) {
    if (text.empty())
        return false;
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    // A stream that fails still writes a number, so it must not read into the caller's.
    double value = 0.0;
    stream >> value;
    if (!stream.fail() && stream.eof()) {
        out = value;
        return true;
    }
    value = 0.0;
    if (tryExtractSpecialFloating<double>(text, 0, value) != text.size())
        return false;
    out = value;
    return true;
}

template <>
std::size_t tryExtractSpecialFloating<double>(const std::string& text, std::size_t pos, double& out) {
    using Limits = std::numeric_limits<double>;
    // The long word stands ahead of its own beginning, so that it is taken whole.
    static const Word words[] = {
        {"nan", Limits::quiet_NaN()}, {"infinity", Limits::infinity()}, {"inf", Limits::infinity()}};

    if (pos >= text.size())
        return pos;
    const bool isNegative = text[pos] == '-';
    const std::size_t start = pos + isNegative;
    for (const Word& word : words)
        if (StringHelper::isInclude(text, word.name, start, text.size(), true)) {
            out = isNegative ? -word.value : word.value;
            return start + word.name.size();
        }
    return pos;
}

template <>
std::string convertToString<double, true>(double value, int reserved) {
    if (std::fabs(value) < std::pow(10.0, reserved - digits))
        return "0";
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream.precision(getPrecision(value, reserved));
    stream << value;
    return stream.str();
}

} // namespace Zel
