#pragma once

#include "Phasor.h"

#include <optional>

namespace impedance {

/// The side of the current and voltage transformers that numbers are on.
enum class Side { Primary, Secondary };

/// What is known of the line, and how its impedance is to be told.
struct LineSettings {
    /// Of the positive and the zero sequence of the whole line, in ohms on `side`; 0 where not known.
    Complex z1;
    Complex z0;
    /// The earth-fault compensation factor where it is given by itself; it goes before that of z1 and z0.
    std::optional<Complex> k0;
    /// Hertz; 0 for what the record says.
    double frequency = 0;
    /// That all impedances and currents are told on.
    Side side = Side::Secondary;
    /// Effective amperes on `side`: a loop with less current has no impedance. 0 for a twentieth of the
    /// record's largest phase current.
    double minimumCurrent = 0;
    /// Primary to secondary; 0 for what the record says.
    double currentRatio = 0;
    double voltageRatio = 0;
    /// The side that the samples are on; empty for what the record says.
    std::optional<Side> recordedSide;
};

/// An impedance of a magnitude in ohms and an angle in degrees.
Complex fromAngle(double magnitude, double degrees);

/// The earth-fault compensation factor k0 = (Z0 - Z1) / (3 * Z1), which is complex (Phadke and Thorp, see
/// Phasor.h; also called KN), or the one that is given. Empty where there is none and either impedance is not
/// known.
std::optional<Complex> compensation(const LineSettings& line);

} // namespace impedance
