#include "Quantity.h"

#include <array>
#include <cmath>
#include <utility>

namespace viewer {

namespace {

constexpr std::array<std::pair<const char*, int>, 6> prefixes{
    {{"u", -6}, {"m", -3}, {"", 0}, {"k", 3}, {"M", 6}, {"G", 9}}};

/// Splits "kV" into 3 and "V"; a unit that is not known has no prefix.
std::pair<int, std::string> splitUnit(const std::string& unit) {
    for (const char* base : {"V", "A", "W", "VA", "var", "VAr", "Var", "Ohm", "ohm"})
        for (const auto& [prefix, exponent] : prefixes)
            if (unit == std::string(prefix) + base)
                return {exponent, base};
    return {0, ""};
}

} // namespace

Quantity quantityOf(const std::string& unit) {
    const std::string base = splitUnit(unit).second;
    return base == "V" ? Quantity::Voltage : base == "A" ? Quantity::Current : Quantity::Other;
}

Scale scaleFor(const std::string& unit, double largest) {
    const auto [exponent, base] = splitUnit(unit);
    if (base.empty() || !(largest > 0) || !std::isfinite(largest))
        return {1, unit};
    const double inBase = largest * std::pow(10, exponent);
    for (auto prefix = prefixes.rbegin(); prefix != prefixes.rend(); ++prefix)
        if (inBase >= 10 * std::pow(10, prefix->second) || prefix + 1 == prefixes.rend())
            return {std::pow(10, exponent - prefix->second), prefix->first + base};
    return {1, unit};
}

} // namespace viewer
