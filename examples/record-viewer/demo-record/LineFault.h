#pragma once

#include "Writer.h"

namespace demo {

/// A second on a line of 110 kV, sampled at 2 kHz by the relay at its beginning: phase A touches earth at 30
/// of 50 km through two ohms, zone 1 trips, the breaker clears the fault and closes again after the dead
/// time. Always the same to the bit.
Recording lineFault();

/// When the fault begins, in seconds from the start.
constexpr double faultTime = 0.2;
/// From the command to the parting, and to the touching, of the breaker's contacts.
constexpr double breakerOpeningTime = 0.04;
constexpr double breakerClosingTime = 0.06;

} // namespace demo
