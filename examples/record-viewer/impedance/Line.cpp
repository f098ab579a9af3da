#include "Line.h"

namespace impedance {

Complex fromAngle(double magnitude, double degrees) {
    return std::polar(magnitude, degrees * 3.14159265358979323846 / 180);
}

std::optional<Complex> compensation(const LineSettings& line) {
    if (line.k0)
        return line.k0;
    if (line.z1 == Complex() || line.z0 == Complex())
        return std::nullopt;
    return (line.z0 - line.z1) / (3.0 * line.z1);
}

} // namespace impedance
