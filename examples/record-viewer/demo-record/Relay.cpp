#include "Relay.h"

#include <cmath>

namespace demo {

namespace {

constexpr double pi = 3.14159265358979323846;

} // namespace

Relay::Relay(const RelaySettings& relaySettings, const NetworkSettings& line)
    : settings(relaySettings), network(line),
      period(static_cast<std::size_t>(settings.sampleRate / line.frequency)), voltageWindow(period),
      currentWindow(period) {
    Rotor angle(2 * pi / static_cast<double>(period));
    for (std::size_t i = 0; i < period; ++i, angle.turn()) {
        cosines.push_back(angle.cosine());
        sines.push_back(angle.sine());
    }
}

Relay::Phasor Relay::phasor(const std::vector<ThreePhases>& window, std::size_t phase) const {
    Phasor sum;
    for (std::size_t i = 0; i < period; ++i) {
        sum.re += window[i][phase] * cosines[i];
        sum.im -= window[i][phase] * sines[i];
    }
    // The sum over a period is half the period times the peak.
    const double scale = std::sqrt(2.0) / static_cast<double>(period);
    return {sum.re * scale, sum.im * scale};
}

void Relay::measure() {
    states.earthFault = isInZone1 = isInZone2 = false;
    if (count < period)
        return;
    const Phasor u = phasor(voltageWindow, 0);
    const Phasor a = phasor(currentWindow, 0);
    const Phasor b = phasor(currentWindow, 1);
    const Phasor c = phasor(currentWindow, 2);
    const Phasor earth = {a.re + b.re + c.re, a.im + b.im + c.im};
    states.earthFault =
        earth.re * earth.re + earth.im * earth.im > settings.earthCurrent * settings.earthCurrent;
    if (!states.earthFault)
        return;

    const double omega = 2 * pi * network.frequency;
    const Impedance& km = network.lineKilometre;
    const Phasor z1 = {km.r1, km.l1 * omega};
    const Phasor difference = {(km.r0 - km.r1) / 3, (km.l0 - km.l1) * omega / 3};
    const double square = z1.re * z1.re + z1.im * z1.im;
    const Phasor k = {(difference.re * z1.re + difference.im * z1.im) / square,
                      (difference.im * z1.re - difference.re * z1.im) / square};
    const Phasor loop = {a.re + k.re * earth.re - k.im * earth.im, a.im + k.re * earth.im + k.im * earth.re};
    const double loopSquare = loop.re * loop.re + loop.im * loop.im;
    const double r = (u.re * loop.re + u.im * loop.im) / loopSquare;
    const double x = (u.im * loop.re - u.re * loop.im) / loopSquare;

    const double lineReactance = z1.im * network.lineLength;
    const bool isForward = x > 0 && r > -settings.resistanceReach / 4 && r < settings.resistanceReach;
    isInZone1 = isForward && x < settings.zone1Reach * lineReactance;
    isInZone2 = isForward && x < settings.zone2Reach * lineReactance;
}

void Relay::decide(bool isBreakerClosed) {
    const double step = 1 / settings.sampleRate;
    zone1Run = isInZone1 ? zone1Run + 1 : 0;
    zone2Run = isInZone2 ? zone2Run + 1 : 0;
    states.zone1 = zone1Run >= settings.agreement;
    states.zone2 = zone2Run >= settings.agreement;
    states.start = states.zone2 || states.earthFault;
    zone2Time = states.zone2 ? zone2Time + step : 0;

    // A trip stays until the breaker has opened.
    states.tripZone1 = (states.tripZone1 || states.zone1) && isBreakerClosed;
    states.tripZone2 = (states.tripZone2 || zone2Time > settings.zone2Delay) && isBreakerClosed;
    states.trip = states.tripZone1 || states.tripZone2;
    states.breakerClosed = isBreakerClosed;
    states.breakerOpen = !isBreakerClosed;

    if (states.trip && !states.reclosing) {
        states.reclosing = true;
        reclosingTime = 0;
    }
    // A fault that is back after closing is there to stay.
    states.lockout = states.lockout || (states.trip && reclosingTime > settings.deadTime);
    // The dead time counts from the moment when the breaker is open.
    if (states.reclosing && (states.breakerOpen || reclosingTime > 0))
        reclosingTime += step;
    states.closeCommand = states.reclosing && !states.lockout && reclosingTime > settings.deadTime &&
                          reclosingTime <= settings.deadTime + settings.closePulse;
    if (reclosingTime > settings.deadTime + settings.closePulse)
        states.reclosing = false;
}

const RelayStates& Relay::sample(const ThreePhases& voltages, const ThreePhases& currents,
                                 bool isBreakerClosed) {
    voltageWindow[count % period] = voltages;
    currentWindow[count % period] = currents;
    ++count;
    measure();
    decide(isBreakerClosed);
    return states;
}

} // namespace demo
