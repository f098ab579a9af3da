#include "Loops.h"

namespace impedance {

const char* name(Loop loop) {
    constexpr std::array<const char*, loopCount> names{"AE", "BE", "CE", "AB", "BC", "CA"};
    return names[static_cast<std::size_t>(loop)];
}

std::optional<Complex> LoopPhasors::impedance(double minimumCurrent) const {
    const double magnitude = std::abs(current);
    // A comparison with what is not a number is false, so such a current has no impedance either.
    if (!(magnitude > 0 && magnitude >= minimumCurrent))
        return std::nullopt;
    return voltage / current;
}

LoopPhasors loopPhasors(Loop loop, const ThreePhasors& voltages, const ThreePhasors& currents, Complex k0) {
    const auto number = static_cast<std::size_t>(loop);
    const std::size_t phase = number % 3;
    if (number < 3)
        return {voltages[phase], currents[phase] + k0 * (currents[0] + currents[1] + currents[2])};
    const std::size_t other = (phase + 1) % 3;
    return {voltages[phase] - voltages[other], currents[phase] - currents[other]};
}

} // namespace impedance
