#pragma once

#include "Phasor.h"

#include <array>
#include <cstddef>
#include <optional>

namespace impedance {

/// The phasors of phases A, B and C.
using ThreePhasors = std::array<Complex, 3>;

/// The six fault loops: three from a phase to earth, three between phases.
enum class Loop { AE, BE, CE, AB, BC, CA };
constexpr std::size_t loopCount = 6;

/// The name of a loop, such as "AE".
const char* name(Loop loop);

/// What drives a loop and what flows in it, volts and amperes.
struct LoopPhasors {
    Complex voltage;
    Complex current;

    /// Volts over amperes, in ohms; empty where the current is 0 or below the limit in amperes.
    std::optional<Complex> impedance(double minimumCurrent) const;
};

/// The loop from a phase to earth has the voltage V and the current I + k0 * 3I0, where 3I0 = IA + IB + IC;
/// the loop between two phases has the differences of their voltages and currents. So a fault without
/// resistance gives the positive-sequence impedance of the line up to it (A. G. Phadke, J. S. Thorp, Computer
/// Relaying for Power Systems, Wiley 1988).
LoopPhasors loopPhasors(Loop loop, const ThreePhasors& voltages, const ThreePhasors& currents, Complex k0);

} // namespace impedance
