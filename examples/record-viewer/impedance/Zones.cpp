#include "Zones.h"

#include <algorithm>
#include <cmath>

namespace impedance {

namespace {

constexpr double rounding = 1e-9;

double cross(Complex a, Complex b) {
    return std::imag(std::conj(a) * b);
}

Complex direction(double degrees) {
    return std::polar(1.0, degrees * 3.14159265358979323846 / 180);
}

bool isIn(const Disc& disc, Complex z) {
    return std::abs(z - disc.centre) <= disc.radius * (1 + rounding);
}

bool isIn(const Polygon& polygon, Complex z) {
    const std::vector<Complex>& corners = polygon.corners;
    if (corners.size() < 3)
        return false;
    double size = 0;
    for (const Complex& corner : corners)
        size = std::max(size, std::abs(corner - corners[0]));
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Complex edge = corners[(i + 1) % corners.size()] - corners[i];
        // The left of every edge is inside. False for what is not a number, too.
        if (!(cross(edge, z - corners[i]) >= -rounding * size * std::abs(edge)))
            return false;
    }
    return true;
}

/// Keeps what lies on the left of the line through a point.
void cut(std::vector<Complex>& corners, Complex point, Complex along) {
    std::vector<Complex> kept;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Complex from = corners[i];
        const Complex to = corners[(i + 1) % corners.size()];
        const double a = cross(along, from - point);
        const double b = cross(along, to - point);
        if (a >= 0)
            kept.push_back(from);
        if ((a > 0 && b < 0) || (a < 0 && b > 0))
            kept.push_back(from + (to - from) * (a / (a - b)));
    }
    corners = std::move(kept);
}

Area areaOf(Characteristic characteristic, Complex reach, double backward) {
    if (characteristic == Characteristic::Mho)
        return offsetMho(reach, -backward * reach);
    Quadrilateral settings;
    settings.reach = reach;
    settings.right = 0.75 * std::abs(reach);
    settings.left = 0.25 * std::abs(reach);
    settings.isDirectional = backward == 0;
    settings.backward = backward * std::abs(reach.imag());
    return quadrilateral(settings);
}

} // namespace

bool contains(const Area& area, Complex z) {
    return std::visit([&](const auto& shape) { return isIn(shape, z); }, area);
}

Disc mho(Complex reach) {
    return offsetMho(reach, 0);
}

Disc offsetMho(Complex forward, Complex backward) {
    return {(forward + backward) / 2.0, std::abs(forward - backward) / 2};
}

Disc plainCircle(double radius) {
    return {0, std::max(radius, 0.0)};
}

Polygon quadrilateral(const Quadrilateral& settings) {
    if (settings.reach == Complex())
        return {};
    const Complex line = settings.reach / std::abs(settings.reach);
    // Larger than any crossing of lines that are not nearly parallel.
    const double far = 100 * (std::abs(settings.reach) + std::abs(settings.right) + std::abs(settings.left) +
                              std::abs(settings.backward));
    std::vector<Complex> corners{{-far, -far}, {far, -far}, {far, far}, {-far, far}};
    cut(corners, settings.reach, -direction(settings.tilt));
    cut(corners, settings.right, line);
    cut(corners, -settings.left, -line);
    if (settings.isDirectional) {
        cut(corners, 0, direction(settings.directionFrom));
        cut(corners, 0, -direction(settings.directionTo));
    } else {
        cut(corners, {0, -settings.backward}, 1);
    }
    return {corners};
}

Area reversed(const Area& area) {
    Area result = area;
    if (Disc* disc = std::get_if<Disc>(&result))
        disc->centre = -disc->centre;
    if (Polygon* polygon = std::get_if<Polygon>(&result))
        for (Complex& corner : polygon->corners)
            corner = -corner;
    return result;
}

bool operator==(const Reaches& a, const Reaches& b) {
    return a.zone1 == b.zone1 && a.zone2 == b.zone2 && a.zone3 == b.zone3 && a.backward == b.backward;
}

std::vector<Zone> zonesOf(Complex z1, Characteristic characteristic, const Reaches& reaches) {
    if (z1 == Complex())
        return {};
    return {
        {"Zone 1", areaOf(characteristic, reaches.zone1 * z1, 0)},
        {"Zone 2", areaOf(characteristic, reaches.zone2 * z1, 0)},
        {"Zone 3", areaOf(characteristic, reaches.zone3 * z1, reaches.backward / reaches.zone3)},
    };
}

} // namespace impedance
