#include "Network.h"

#include <cmath>

namespace demo {

namespace {

constexpr double pi = 3.14159265358979323846;

using Matrix = std::vector<std::vector<double>>;

double self(double positive, double zero) {
    return (zero + 2 * positive) / 3;
}

double mutual(double positive, double zero) {
    return (zero - positive) / 3;
}

Impedance sum(const Impedance& a, const Impedance& b, double times) {
    return {a.r1 + b.r1 * times, a.l1 + b.l1 * times, a.r0 + b.r0 * times, a.l0 + b.l0 * times};
}

/// Solves a system of linear equations by elimination; the matrices here are positive definite and need no
/// exchange of rows.
std::vector<double> solve(Matrix matrix, std::vector<double> right) {
    const std::size_t size = right.size();
    for (std::size_t pivot = 0; pivot < size; ++pivot)
        for (std::size_t row = pivot + 1; row < size; ++row) {
            const double factor = matrix[row][pivot] / matrix[pivot][pivot];
            for (std::size_t column = pivot; column < size; ++column)
                matrix[row][column] -= factor * matrix[pivot][column];
            right[row] -= factor * right[pivot];
        }
    for (std::size_t row = size; row-- > 0;) {
        for (std::size_t column = row + 1; column < size; ++column)
            right[row] -= matrix[row][column] * right[column];
        right[row] /= matrix[row][row];
    }
    return right;
}

/// Fills three coupled branches that begin at `first`.
template <class Square>
void couple(Square& matrix, std::size_t first, double own, double shared) {
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t k = 0; k < 3; ++k)
            matrix[first + i][first + k] = i == k ? own : shared;
}

} // namespace

Rotor::Rotor(double step) {
    // The power series of cosine and sine; twelve terms are far below the rounding of a double for angles
    // below 1.
    double term = 1;
    stepCosine = 0;
    stepSine = 0;
    for (int power = 0; power < 24; ++power) {
        double& part = power % 2 == 0 ? stepCosine : stepSine;
        part += power % 4 < 2 ? term : -term;
        term *= step / (power + 1);
    }
}

void Rotor::turn() {
    const double turned = x * stepCosine - y * stepSine;
    y = x * stepSine + y * stepCosine;
    x = turned;
}

Network::Network(const NetworkSettings& networkSettings, double timeStep)
    : settings(networkSettings), stepTime(timeStep), angle(2 * pi * settings.frequency * timeStep) {
    const Impedance toFault = sum(settings.source, settings.lineKilometre, settings.faultDistance);
    const Impedance beyond =
        sum(settings.load, settings.lineKilometre, settings.lineLength - settings.faultDistance);
    couple(resistance, 0, self(toFault.r1, toFault.r0), mutual(toFault.r1, toFault.r0));
    couple(inductance, 0, self(toFault.l1, toFault.l0), mutual(toFault.l1, toFault.l0));
    couple(resistance, 3, self(beyond.r1, beyond.r0), mutual(beyond.r1, beyond.r0));
    couple(inductance, 3, self(beyond.l1, beyond.l0), mutual(beyond.l1, beyond.l0));
    resistance[6][6] = settings.faultResistance;
    rebuild();
}

ThreePhases Network::sourceVoltages() const {
    // Phase A is a sine; B lags it by a third of a turn, C by two.
    const double half = angle.sine() / 2;
    const double side = angle.cosine() * std::sqrt(3.0) / 2;
    const double peak = settings.voltagePeak;
    return {peak * angle.sine(), peak * (-half - side), peak * (-half + side)};
}

void Network::addMesh(const Branches& mesh) {
    meshes.push_back(mesh);
}

/// Lists the meshes that conduct and carries their currents over from before.
void Network::rebuild() {
    const Branches before = branchCurrents();
    meshes.clear();
    meshCurrents.clear();
    for (std::size_t phase = 0; phase < 3; ++phase) {
        if (!isPoleClosed(phase))
            continue;
        Branches mesh{};
        mesh[phase] = 1;
        mesh[3 + phase] = 1;
        addMesh(mesh);
        meshCurrents.push_back(before[3 + phase]);
    }
    if (hasFault) {
        // From the source through the fault, or, with the pole open, what the load still drives through it.
        Branches mesh{};
        mesh[6] = 1;
        mesh[isPoleClosed(0) ? 0 : 3] = isPoleClosed(0) ? 1 : -1;
        addMesh(mesh);
        meshCurrents.push_back(before[6]);
    }

    const std::size_t size = meshes.size();
    meshResistance.assign(size, std::vector<double>(size, 0));
    meshInductance = meshResistance;
    for (std::size_t i = 0; i < size; ++i)
        for (std::size_t k = 0; k < size; ++k)
            for (std::size_t a = 0; a < branchCount; ++a)
                for (std::size_t b = 0; b < branchCount; ++b) {
                    meshResistance[i][k] += meshes[i][a] * resistance[a][b] * meshes[k][b];
                    meshInductance[i][k] += meshes[i][a] * inductance[a][b] * meshes[k][b];
                }
}

Network::Branches Network::branchCurrents() const {
    Branches currents{};
    for (std::size_t i = 0; i < meshes.size(); ++i)
        for (std::size_t branch = 0; branch < branchCount; ++branch)
            currents[branch] += meshes[i][branch] * meshCurrents[i];
    return currents;
}

std::vector<double> Network::meshVoltages(const ThreePhases& source) const {
    std::vector<double> voltages(meshes.size());
    for (std::size_t i = 0; i < meshes.size(); ++i)
        for (std::size_t phase = 0; phase < 3; ++phase)
            voltages[i] += meshes[i][phase] * source[phase];
    return voltages;
}

void Network::step() {
    const std::vector<double> voltagesBefore = meshVoltages(sourceVoltages());
    const ThreePhases before = currents();
    angle.turn();
    const std::vector<double> voltagesAfter = meshVoltages(sourceVoltages());

    // (L/h + R/2) i(t+h) = (L/h - R/2) i(t) + (u(t) + u(t+h)) / 2
    const std::size_t size = meshes.size();
    Matrix left = meshInductance;
    std::vector<double> right(size);
    for (std::size_t i = 0; i < size; ++i) {
        right[i] = (voltagesBefore[i] + voltagesAfter[i]) / 2;
        for (std::size_t k = 0; k < size; ++k) {
            left[i][k] = meshInductance[i][k] / stepTime + meshResistance[i][k] / 2;
            right[i] += (meshInductance[i][k] / stepTime - meshResistance[i][k] / 2) * meshCurrents[k];
        }
    }
    meshCurrents = solve(left, right);
    interruptAtZero(before);
}

void Network::interruptAtZero(const ThreePhases& before) {
    const ThreePhases now = currents();
    bool isChanged = false;
    for (std::size_t phase = 0; phase < 3; ++phase)
        if (poles[phase] == Pole::Parting && before[phase] * now[phase] <= 0) {
            poles[phase] = Pole::Open;
            isChanged = true;
        }
    if (isChanged)
        rebuild();
}

void Network::setFault(bool isOn) {
    hasFault = isOn;
    rebuild();
}

void Network::closeBreaker() {
    poles.fill(Pole::Closed);
    rebuild();
}

void Network::openBreaker() {
    for (Pole& pole : poles)
        if (pole == Pole::Closed)
            pole = Pole::Parting;
}

ThreePhases Network::currents() const {
    const Branches branches = branchCurrents();
    return {branches[0], branches[1], branches[2]};
}

std::vector<double> Network::meshSlopes() const {
    std::vector<double> right = meshVoltages(sourceVoltages());
    for (std::size_t i = 0; i < right.size(); ++i)
        for (std::size_t k = 0; k < right.size(); ++k)
            right[i] -= meshResistance[i][k] * meshCurrents[k];
    return solve(meshInductance, right);
}

ThreePhases Network::voltages() const {
    const Impedance& source = settings.source;
    const ThreePhases current = currents();
    const std::vector<double> slopes = meshSlopes();
    ThreePhases result = sourceVoltages();
    for (std::size_t phase = 0; phase < 3; ++phase)
        for (std::size_t other = 0; other < 3; ++other) {
            double slope = 0;
            for (std::size_t mesh = 0; mesh < meshes.size(); ++mesh)
                slope += meshes[mesh][other] * slopes[mesh];
            const bool isSelf = phase == other;
            const double r = isSelf ? self(source.r1, source.r0) : mutual(source.r1, source.r0);
            const double l = isSelf ? self(source.l1, source.l0) : mutual(source.l1, source.l0);
            result[phase] -= r * current[other] + l * slope;
        }
    return result;
}

} // namespace demo
