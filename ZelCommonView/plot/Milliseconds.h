// Not installed: for the sources of the library only.
#pragma once

#include <cstdint>
#include <limits>

namespace ZelView {

/// Cuts off what is behind the point. What has no unsigned counterpart is brought to the nearest one, as the
/// language leaves that conversion undefined: below 0 and not a number become 0, too much the greatest.
inline std::uint64_t toMilliseconds(double value) {
    constexpr double beyond = 18446744073709551616.0; // 2^64
    if (!(value > 0))
        return 0;
    return value < beyond ? static_cast<std::uint64_t>(value) : std::numeric_limits<std::uint64_t>::max();
}

} // namespace ZelView
