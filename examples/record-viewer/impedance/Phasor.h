#pragma once

#include <complex>
#include <cstddef>
#include <vector>

namespace impedance {

using Complex = std::complex<double>;

/// The phasor of one cycle of samples, in the unit of the samples, as a root mean square:
///
///     X = sqrt(2) / N * sum of x[k] * exp(-j 2 pi k / N) over k = 0 .. N - 1, the oldest sample first
///
/// (full-cycle discrete Fourier transform; A. G. Phadke, J. S. Thorp, Computer Relaying for Power Systems,
/// Wiley 1988; NPTEL course 108101039, lectures 35.1 to 35.3). A constant part and whole harmonics below half
/// of the sampling rate are rejected. Without samples it is 0.
Complex phasorOf(const std::vector<double>& cycle);

/// The phasor of the window of one cycle that ends at the newest sample, at a few operations for each sample:
///
///     X(m) = (X(m - 1) + sqrt(2) / N * (x[m] - x[m - N])) * exp(j 2 pi / N)
///
/// (recursive form; sources as above). It turns with the window: between phasors of the same window the
/// turning cancels. The rounding of the recursion does not grow, as the full sum is taken once in each cycle.
class SlidingPhasor {
public:
    /// `window` is the number of samples in a cycle, at least 1.
    explicit SlidingPhasor(std::size_t window);

    /// Takes the next sample; one that is not a number is missing.
    void push(double sample);

    /// Whether the window is full and no sample in it is missing.
    bool isValid() const { return count == cycle.size() && missing == 0; }

    /// Of no use unless isValid().
    Complex value() const { return sum * scale; }

private:
    std::vector<Complex> turns;
    /// The last cycle of samples, 0 for missing ones; the oldest one stands at `next`.
    std::vector<double> cycle;
    std::vector<bool> isMissing;
    std::size_t next = 0;
    std::size_t count = 0;
    std::size_t missing = 0;
    Complex step;
    double scale;
    Complex sum;
};

} // namespace impedance
