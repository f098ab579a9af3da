#include "Phasor.h"

#include <cmath>

namespace impedance {

namespace {

constexpr double pi = 3.14159265358979323846;

Complex plainSum(const std::vector<double>& cycle) {
    const double step = -2 * pi / static_cast<double>(cycle.size());
    Complex sum;
    for (std::size_t k = 0; k < cycle.size(); ++k)
        sum += std::polar(1.0, step * static_cast<double>(k)) * cycle[k];
    return sum;
}

} // namespace

Complex phasorOf(const std::vector<double>& cycle) {
    return cycle.empty() ? Complex() : plainSum(cycle) * (std::sqrt(2.0) / static_cast<double>(cycle.size()));
}

SlidingPhasor::SlidingPhasor(std::size_t window)
    : cycle(window), isMissing(window), step(std::polar(1.0, 2 * pi / static_cast<double>(window))),
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
    next = (next + 1) % cycle.size();
    if (count < cycle.size())
        ++count;
    // The oldest sample stands first now and then; that is when the full sum is at hand.
    if (next == 0)
        sum = plainSum(cycle);
}

} // namespace impedance
