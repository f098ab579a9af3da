#pragma once

#include "Phasor.h"

#include <string>
#include <variant>
#include <vector>

namespace impedance {

/// A disc of the impedance plane, ohms.
struct Disc {
    Complex centre;
    double radius = 0;
};

/// A convex area of the impedance plane with its corners counterclockwise, ohms. With fewer than three
/// corners it holds nothing.
struct Polygon {
    std::vector<Complex> corners;
};

/// The area is its own outline: what is drawn is what is tested.
using Area = std::variant<Disc, Polygon>;

/// Whether an impedance lies in the area. The outline belongs to it, with a billionth of its size for
/// rounding.
bool contains(const Area& area, Complex z);

/// The circle through the origin whose diameter is the reach: |Z - Zr/2| <= |Zr|/2, which is the same as
/// Re[(Zr - Z) * conj(Z)] >= 0 (PSCAD manual, Mho Circle). With the opposite
/// reach the zone looks backward.
Disc mho(Complex reach);

/// The circle whose diameter goes from `backward` to `forward`: |Z - (Zf + Zb)/2| <= |Zf - Zb|/2.
Disc offsetMho(Complex forward, Complex backward);

/// The circle around the origin: |Z| <= r. A radius below 0 counts as 0.
Disc plainCircle(double radius);

/// The lines of a four-sided characteristic. The reach Zr with the angle phi gives the direction of the line
/// (comparators as in the GE D60 manual, quadrilateral characteristic):
///
///     top:      Im[(Z - Zr) * exp(-j tilt)] <= 0
///     right:    Im[(Z - right) * exp(-j phi)] >= 0
///     left:     Im[(Z + left) * exp(-j phi)] <= 0
///     forward:  between the rays at `directionFrom` and `directionTo`
///     or below: Im Z >= -backward
struct Quadrilateral {
    Complex reach;
    /// How much the top slopes down to the right, as a negative angle in degrees; 0 is level.
    double tilt = 0;
    /// Ohms along the resistance; for loops to earth this is the resistance of the whole loop as measured.
    double right = 0;
    double left = 0;
    /// With false the zone reaches `backward` ohms of reactance behind the origin.
    bool isDirectional = true;
    double directionFrom = -15; ///< degrees
    double directionTo = 115;   ///< degrees
    double backward = 0;
};

/// Nothing, with no corners, if the reach is 0 or the lines enclose nothing.
Polygon quadrilateral(const Quadrilateral& settings);

/// The area that looks the opposite way.
Area reversed(const Area& area);

struct Zone {
    std::string name;
    Area area;
};

enum class Characteristic { Mho, Quadrilateral };

/// How far the three zones of a line reach, in lines. Zone 1 covers 80 percent and zone 2 120 percent, as is
/// usual.
struct Reaches {
    double zone1 = 0.8;
    double zone2 = 1.2;
    double zone3 = 2.0;
    double backward = 0.25; ///< of zone 3, behind the origin
};

bool operator==(const Reaches& a, const Reaches& b);

/// The zones of a line, by default those to show when no settings of a relay are at hand. The quadrilaterals
/// reach along the resistance by three quarters of |reach| to the right and one quarter to the left. Without
/// a line impedance there are none. The reach of zone 3 must be above 0.
std::vector<Zone> zonesOf(Complex z1, Characteristic characteristic = Characteristic::Mho,
                          const Reaches& reaches = {});

} // namespace impedance
