#pragma once

#include <array>
#include <cstddef>
#include <vector>

/// A small power line in which a fault is simulated. All formulas use only additions, multiplications,
/// divisions and square roots, which IEEE 754 rounds in one way only; so every machine comes to the same
/// bytes.
namespace demo {

using ThreePhases = std::array<double, 3>;

/// A resistance and an inductance in series: ohms and henries, for the positive and the zero sequence.
struct Impedance {
    double r1 = 0;
    double l1 = 0;
    double r0 = 0;
    double l0 = 0;
};

/// The line and what stands at its ends. Reactances are given as inductances at 50 Hz.
struct NetworkSettings {
    double frequency = 50;
    /// Peak of the source voltage of a phase to earth, in volts: 110 kV between phases, effective.
    double voltagePeak = 89814.6;
    /// 2500 MVA of short-circuit power behind the relay: 4.84 ohms, of which a tenth is resistance.
    Impedance source = {0.48, 0.01533, 0.6, 0.01846};
    /// A kilometre of overhead line: 0.12 + 0.40i and 0.30 + 1.20i ohms.
    Impedance lineKilometre = {0.12, 0.0012732, 0.30, 0.0038197};
    double lineLength = 50;
    double faultDistance = 30;
    double faultResistance = 2;
    /// 40 MVA at a power factor of 0.95, star with an earthed middle.
    Impedance load = {287.4, 0.3007, 287.4, 0.3007};
};

/// A pair of numbers that turns by a fixed angle with each step: the cosine and the sine of a growing angle.
class Rotor {
public:
    /// The angle of a step in radians; small enough for a dozen terms of the power series, that is below 1.
    explicit Rotor(double step);

    double cosine() const { return x; }

    double sine() const { return y; }

    void turn();

private:
    double stepCosine;
    double stepSine;
    double x = 1;
    double y = 0;
};

/// The line in time. Source, line and load are coupled resistances and inductances; the meshes of closed
/// breaker poles and of the fault are solved by the trapezoidal rule (H. W. Dommel, Digital computer solution
/// of electromagnetic transients in single- and multiphase networks, IEEE Trans. PAS-88, 1969). Self and
/// mutual values follow from those of the sequences (C. L. Fortescue, Method of symmetrical co-ordinates,
/// Trans. AIEE 37, 1918): self = (zero + 2 * positive) / 3, mutual = (zero - positive) / 3.
class Network {
public:
    /// Starts without a current, breaker closed, no fault, phase A at a zero of its voltage.
    Network(const NetworkSettings& networkSettings, double timeStep);

    /// Goes on by one time step.
    void step();

    void setFault(bool isOn);
    void closeBreaker();
    /// The contacts part; each pole then goes on conducting until its current passes zero.
    void openBreaker();

    bool isPoleClosed(std::size_t phase) const { return poles[phase] != Pole::Open; }

    /// Amperes from the source into the line.
    ThreePhases currents() const;
    /// Volts to earth at the beginning of the line, on the side of the source.
    ThreePhases voltages() const;

private:
    enum class Pole { Closed, Parting, Open };

    using Matrix = std::vector<std::vector<double>>;

    /// Branches: three from the source to the fault's place, three from there through the load, and the
    /// fault.
    static constexpr std::size_t branchCount = 7;
    using Branches = std::array<double, branchCount>;

    ThreePhases sourceVoltages() const;
    void rebuild();
    void addMesh(const Branches& mesh);
    Branches branchCurrents() const;
    std::vector<double> meshVoltages(const ThreePhases& source) const;
    std::vector<double> meshSlopes() const;
    void interruptAtZero(const ThreePhases& before);

    NetworkSettings settings;
    double stepTime;
    Rotor angle;
    std::array<Branches, branchCount> resistance{};
    std::array<Branches, branchCount> inductance{};
    std::array<Pole, 3> poles{Pole::Closed, Pole::Closed, Pole::Closed};
    bool hasFault = false;
    std::vector<Branches> meshes;
    std::vector<double> meshCurrents;
    Matrix meshResistance;
    Matrix meshInductance;
};

} // namespace demo
