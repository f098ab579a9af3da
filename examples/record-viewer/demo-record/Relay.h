#pragma once

#include "Network.h"

#include <cstddef>
#include <vector>

namespace demo {

/// The states that the relay writes into the record, in this order.
struct RelayStates {
    bool start = false;
    bool earthFault = false;
    bool zone1 = false;
    bool zone2 = false;
    bool tripZone1 = false;
    bool tripZone2 = false;
    bool trip = false;
    bool breakerClosed = true;
    bool breakerOpen = false;
    bool reclosing = false;
    bool closeCommand = false;
    bool lockout = false;
};

/// Times in seconds, reaches as parts of the line.
struct RelaySettings {
    double sampleRate = 2000;
    double zone1Reach = 0.8;
    double zone2Reach = 1.2;
    /// How far the zones reach along the resistance, in ohms.
    double resistanceReach = 15;
    double zone2Delay = 0.3;
    /// Effective amperes of three times the zero sequence from which on an earth fault is seen.
    double earthCurrent = 120;
    /// How many samples in a row must agree before a zone counts.
    std::size_t agreement = 3;
    double deadTime = 0.4;
    double closePulse = 0.08;
};

/// A distance relay with one measuring loop from phase A to earth. The phasors come from a Fourier sum over
/// one full period; the loop's impedance is Z = Ua / (Ia + k * 3I0) with k = (Z0 - Z1) / (3 * Z1) of the line
/// (for both see A. G. Phadke, J. S. Thorp, Computer Relaying for Power Systems, Wiley 1988). After a trip it
/// closes the breaker once.
class Relay {
public:
    Relay(const RelaySettings& relaySettings, const NetworkSettings& line);

    /// Takes one sample of all inputs. `isBreakerClosed` is what the breaker's contacts say.
    const RelayStates& sample(const ThreePhases& voltages, const ThreePhases& currents, bool isBreakerClosed);

private:
    struct Phasor {
        double re = 0;
        double im = 0;
    };

    Phasor phasor(const std::vector<ThreePhases>& window, std::size_t phase) const;
    void measure();
    void decide(bool isBreakerClosed);

    RelaySettings settings;
    NetworkSettings network;
    std::size_t period;
    std::vector<double> cosines;
    std::vector<double> sines;
    /// The last period of samples; the newest one stands at count % period.
    std::vector<ThreePhases> voltageWindow;
    std::vector<ThreePhases> currentWindow;
    std::size_t count = 0;
    bool isInZone1 = false;
    bool isInZone2 = false;
    std::size_t zone1Run = 0;
    std::size_t zone2Run = 0;
    double zone2Time = 0;
    double reclosingTime = 0;
    RelayStates states;
};

} // namespace demo
