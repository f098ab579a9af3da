#include "LineFault.h"

#include "Network.h"
#include "Relay.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>

namespace demo {

namespace {

constexpr int sampleRate = 2000;
constexpr std::size_t sampleCount = 2000;
/// Steps of the simulation for each sample: 10 microseconds each.
constexpr int stepsPerSample = 50;
/// The line runs for a while before the record begins, so that switching it on leaves no trace.
constexpr int samplesBefore = 10 * sampleRate / 50;
constexpr double voltagePerCount = 5;
constexpr double currentPerCount = 0.25;
/// Effective noise of the inputs, in counts.
constexpr double noise = 2;

/// Noise that looks nearly normal: the sum of twelve even ones has a variance of 1. The generator's sequence
/// is fixed by the language standard, its distributions are not, hence the sum.
class Noise {
public:
    double next() {
        double sum = -6;
        for (int i = 0; i < 12; ++i)
            sum += static_cast<double>(generator()) / 4294967296.0;
        return sum * noise;
    }

private:
    std::mt19937 generator{20240314};
};

std::int16_t toCounts(double value) {
    return static_cast<std::int16_t>(std::lround(std::clamp(value, -32767.0, 32767.0)));
}

std::vector<AnalogRow> analogRows() {
    std::vector<AnalogRow> rows;
    for (const char* phase : {"A", "B", "C"})
        rows.push_back({std::string("U") + phase, phase, "V", voltagePerCount, 110000, 100, {}});
    for (const char* phase : {"A", "B", "C"})
        rows.push_back({std::string("I") + phase, phase, "A", currentPerCount, 600, 5, {}});
    return rows;
}

std::vector<BinaryRow> binaryRows() {
    std::vector<BinaryRow> rows;
    for (const char* name :
         {"Start", "Earth fault", "Zone 1", "Zone 2", "Trip zone 1", "Trip zone 2", "Trip", "Breaker closed",
          "Breaker open", "Auto-reclose running", "Close command", "Lockout"})
        rows.push_back({name, false, {}});
    rows[7].normal = true;
    return rows;
}

void appendStates(std::vector<BinaryRow>& rows, const RelayStates& states) {
    const bool values[] = {states.start,       states.earthFault, states.zone1,        states.zone2,
                           states.tripZone1,   states.tripZone2,  states.trip,         states.breakerClosed,
                           states.breakerOpen, states.reclosing,  states.closeCommand, states.lockout};
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].states.push_back(values[i]);
}

/// The breaker's drive: it obeys a command after the time that its springs take.
class Drive {
public:
    void command(bool isTrip, bool isClose, Network& network) {
        wait(isTrip, breakerOpeningTime, tripTime, [&] { network.openBreaker(); });
        wait(isClose, breakerClosingTime, closeTime, [&] { network.closeBreaker(); });
    }

private:
    template <class Action>
    void wait(bool isCommanded, double delay, double& elapsed, Action act) {
        const double before = elapsed;
        // Once moving, the contacts go on even when the command ends.
        elapsed = isCommanded || (before > 0 && before < delay) ? before + 1.0 / sampleRate : 0;
        if (before < delay && elapsed >= delay)
            act();
    }

    double tripTime = 0;
    double closeTime = 0;
};

bool isAnyPoleClosed(const Network& network) {
    return network.isPoleClosed(0) || network.isPoleClosed(1) || network.isPoleClosed(2);
}

std::string moment(std::size_t sample) {
    const std::string fraction = std::to_string(sample * 1'000'000 / sampleRate);
    return "14/03/2024,10:15:30." + std::string(6 - fraction.size(), '0') + fraction;
}

} // namespace

Recording lineFault() {
    const NetworkSettings line;
    Network network(line, 1.0 / (sampleRate * stepsPerSample));
    Relay relay(RelaySettings{}, line);
    Drive drive;
    Noise inputs;
    Recording recording{"Demo line 110 kV",
                        "Distance relay at the line's beginning",
                        50,
                        sampleRate,
                        moment(0),
                        "",
                        analogRows(),
                        binaryRows()};
    std::optional<std::size_t> trigger;

    const int faultSample = static_cast<int>(faultTime * sampleRate);
    for (int i = -samplesBefore; i < static_cast<int>(sampleCount); ++i) {
        if (i == faultSample)
            network.setFault(true);
        if (i > faultSample && !isAnyPoleClosed(network))
            // Without a current behind it the arc goes out.
            network.setFault(false);

        ThreePhases voltages = network.voltages();
        ThreePhases currents = network.currents();
        for (std::size_t phase = 0; phase < 3; ++phase) {
            const std::int16_t u = toCounts(voltages[phase] / voltagePerCount + inputs.next());
            const std::int16_t c = toCounts(currents[phase] / currentPerCount + inputs.next());
            voltages[phase] = u * voltagePerCount;
            currents[phase] = c * currentPerCount;
            if (i >= 0) {
                recording.analogs[phase].raw.push_back(u);
                recording.analogs[3 + phase].raw.push_back(c);
            }
        }
        const RelayStates& states = relay.sample(voltages, currents, isAnyPoleClosed(network));
        if (i >= 0) {
            appendStates(recording.binaries, states);
            if (states.start && !trigger)
                trigger = static_cast<std::size_t>(i);
        }
        drive.command(states.trip, states.closeCommand, network);
        for (int step = 0; step < stepsPerSample; ++step)
            network.step();
    }
    recording.trigger = moment(trigger.value_or(0));
    return recording;
}

} // namespace demo
