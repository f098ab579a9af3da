#pragma once

#include "impedance/Trajectory.h"

#include <array>
#include <cmath>
#include <functional>
#include <string>

/// Records of lines whose impedance is known, made in the tests themselves.
namespace test {

using impedance::Complex;
using impedance::ThreePhasors;

constexpr double pi = 3.14159265358979323846;

/// A line of 10 ohms whose zero sequence has another angle, so that k0 is complex.
inline const Complex z1 = impedance::fromAngle(10, 75);
inline const Complex z0 = impedance::fromAngle(31, 68);

/// A sine of an effective value and an angle, as a phasor.
inline Complex sine(double effective, double degrees) {
    return impedance::fromAngle(effective, degrees);
}

/// The voltages at the beginning of a line: what falls along a part of it, and what is left at the place
/// there.
inline ThreePhasors voltagesAlong(double part, const ThreePhasors& currents, const ThreePhasors& left) {
    const Complex own = (z0 + 2.0 * z1) / 3.0;
    const Complex mutual = (z0 - z1) / 3.0;
    ThreePhasors voltages;
    for (std::size_t i = 0; i < 3; ++i)
        voltages[i] =
            left[i] + part * (own * currents[i] + mutual * (currents[(i + 1) % 3] + currents[(i + 2) % 3]));
    return voltages;
}

struct Sampling {
    double rate = 1000;
    double frequency = 50;
    std::size_t count = 100;
};

inline record::AnalogChannel channel(const std::string& name, const std::string& unit,
                                     const Sampling& sampling, const std::function<double(double)>& value) {
    record::AnalogChannel result;
    result.name = name;
    result.unit = unit;
    for (std::size_t i = 0; i < sampling.count; ++i)
        result.samples.push_back(static_cast<float>(value(static_cast<double>(i) / sampling.rate)));
    return result;
}

inline record::AnalogChannel channel(const std::string& name, const std::string& unit,
                                     const Sampling& sampling, Complex phasor) {
    return channel(name, unit, sampling, [&](double t) {
        return std::sqrt(2.0) * std::real(phasor * std::polar(1.0, 2 * pi * sampling.frequency * t));
    });
}

/// The channels UA, UB, UC in volts and IA, IB, IC in amperes.
inline record::Record makeRecord(const ThreePhasors& voltages, const ThreePhasors& currents,
                                 const Sampling& sampling = {}) {
    record::Record record;
    record.lineFrequency = sampling.frequency;
    record.rates = {{sampling.rate, sampling.count}};
    record.time = record::TimeAxis(sampling.count, record.rates, {}, 1e-6);
    const char phases[] = "ABC";
    for (std::size_t i = 0; i < 3; ++i)
        record.analogs.push_back(channel(std::string("U") + phases[i], "V", sampling, voltages[i]));
    for (std::size_t i = 0; i < 3; ++i)
        record.analogs.push_back(channel(std::string("I") + phases[i], "A", sampling, currents[i]));
    return record;
}

/// The inputs of such a record.
constexpr impedance::Inputs inputs{{0, 1, 2}, {3, 4, 5}};

inline impedance::LineSettings knownLine() {
    impedance::LineSettings line;
    line.z1 = z1;
    line.z0 = z0;
    return line;
}

} // namespace test
