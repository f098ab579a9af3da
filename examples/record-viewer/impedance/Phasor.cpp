#include "Phasor.h"

#include <cmath>

namespace impedance {

namespace {

constexpr double pi = 3.14159265358979323846;

/// exp(-j 2 pi k / N) for each sample of a cycle, the oldest first.
std::vector<Complex> turnsOf(std::size_t window) {
    std::vector<Complex> turns;
    for (std::size_t k = 0; k < window; ++k)
        turns.push_back(std::polar(1.0, -2 * pi * static_cast<double>(k) / static_cast<double>(window)));
    return turns;
}

Complex plainSum(const std::vector<double>& cycle, const std::vector<Complex>& turns) {
    Complex sum;
    for (std::size_t k = 0; k < cycle.size(); ++k)
        sum += turns[k] * cycle[k];
    return sum;
}

} // namespace

Complex phasorOf(const std::vector<double>& cycle) {
    if (cycle.empty())
        return 0;
    return plainSum(cycle, turnsOf(cycle.size())) * (std::sqrt(2.0) / static_cast<double>(cycle.size()));
}

SlidingPhasor::SlidingPhasor(std::size_t window)
    : turns(turnsOf(window)), cycle(window), isMissing(window),
      step(std::polar(1.0, 2 * pi / static_cast<double>(window))),
      scale(std::sqrt(2.0) / static_cast<double>(window)) {}

void SlidingPhasor::push(double sample) {
    const bool isNumber = std::isfinite(sample);
    if (!isNumber)
        sample = 0;
    sum = (sum + (sample - cycle[next])) * step;
    missing += isNumber ? 0 : 1;
    missing -= isMissing[next] ? 1 : 0;
    cycle[next] = sample;
    isMissing[next] = !isNumber;
    if (++next == cycle.size())
        next = 0;
    if (count < cycle.size())
        ++count;
    // The oldest sample stands first now and then; that is when the full sum is at hand.
    if (next == 0)
        sum = plainSum(cycle, turns);
}

} // namespace impedance
