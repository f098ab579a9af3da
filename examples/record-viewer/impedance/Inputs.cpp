#include "Inputs.h"

#include <algorithm>
#include <utility>

namespace impedance {

namespace {

std::string upper(std::string text) {
    for (char& c : text)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return text;
}

void dropBlanks(std::string& text) {
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    text.erase(text.find_last_not_of(' ') + 1);
}

/// A name without blanks around it and a unit in parentheses at its end.
std::string bareName(std::string name) {
    dropBlanks(name);
    if (!name.empty() && name.back() == ')' && name.rfind('(') != std::string::npos)
        name.erase(name.rfind('('));
    dropBlanks(name);
    return name;
}

/// The phase that a text consists of or ends with.
std::optional<std::size_t> phaseAtEnd(const std::string& text) {
    if (text.empty())
        return std::nullopt;
    const std::size_t letter = std::string("ABC").find(text.back());
    if (letter != std::string::npos)
        return letter;
    const std::size_t number = std::string("123").find(text.back());
    if (text.size() >= 2 && text[text.size() - 2] == 'L' && number != std::string::npos)
        return number;
    return std::nullopt;
}

bool isQuantityLetter(char c) {
    return c == 'U' || c == 'V' || c == 'I';
}

/// A name without the letters of quantity and phase at its end.
std::string stemOf(const record::AnalogChannel& channel) {
    std::string name = bareName(channel.name);
    for (const std::string letters : {"NnGg", "123", "ABCabc", "Ll", "UVIuvi"})
        if (!name.empty() && letters.find(name.back()) != std::string::npos)
            name.pop_back();
    return name;
}

struct Candidate {
    std::size_t channel;
    std::size_t phase;
};

std::vector<Candidate> candidates(const record::Record& record, Quantity quantity) {
    std::vector<Candidate> result;
    for (std::size_t i = 0; i < record.analogs.size(); ++i) {
        const record::AnalogChannel& channel = record.analogs[i];
        const auto measure = measureOf(channel.unit);
        const auto phase = phaseOf(channel);
        if (measure && measure->quantity == quantity && phase && channel.samples.size() == record.size())
            result.push_back({i, *phase});
    }
    return result;
}

std::optional<Side> sideOf(const record::AnalogChannel& channel, const LineSettings& line) {
    if (line.recordedSide)
        return line.recordedSide;
    if (channel.side == 0)
        return std::nullopt;
    return channel.side == 'P' ? Side::Primary : Side::Secondary;
}

/// What brings a channel from one side to the other; empty where the ratio is not known.
std::optional<double> factorToSide(const record::AnalogChannel& channel, const LineSettings& line,
                                   double ratio) {
    const auto recorded = sideOf(channel, line);
    if (!recorded)
        return std::nullopt;
    if (*recorded == line.side)
        return 1;
    if (!(ratio > 0)) {
        if (!channel.toPrimary())
            return std::nullopt;
        ratio = channel.primary / channel.secondary;
    }
    return line.side == Side::Primary ? ratio : 1 / ratio;
}

} // namespace

std::optional<Measure> measureOf(const std::string& unit) {
    constexpr std::pair<const char*, double> prefixes[] = {{"", 1},     {"k", 1e3},  {"K", 1e3},
                                                           {"m", 1e-3}, {"u", 1e-6}, {"M", 1e6}};
    for (const auto& [prefix, factor] : prefixes) {
        if (unit == std::string(prefix) + "V")
            return Measure{Quantity::Voltage, factor};
        if (unit == std::string(prefix) + "A")
            return Measure{Quantity::Current, factor};
    }
    return std::nullopt;
}

std::optional<std::size_t> phaseOf(const record::AnalogChannel& channel) {
    const std::string told = upper(bareName(channel.phase));
    if (!told.empty())
        return told.size() == 1 || told[0] == 'L' ? phaseAtEnd(told) : std::nullopt;

    std::string name = upper(bareName(channel.name));
    const std::size_t length = name.size();
    // The end of "VAN" or "ICG" names what the phase is measured against.
    if (length >= 3 && (name.back() == 'N' || name.back() == 'G') && isQuantityLetter(name[length - 3]))
        name.pop_back();
    return phaseAtEnd(name);
}

std::vector<Triple> triplesOf(const record::Record& record, Quantity quantity) {
    const std::vector<Candidate> all = candidates(record, quantity);
    std::vector<Triple> triples;
    const auto unit = [&](std::size_t i) { return record.analogs[all[i].channel].unit; };
    for (std::size_t i = 0; i + 2 < all.size(); ++i)
        if (all[i].phase == 0 && all[i + 1].phase == 1 && all[i + 2].phase == 2 && unit(i) == unit(i + 1) &&
            unit(i) == unit(i + 2))
            triples.push_back({all[i].channel, all[i + 1].channel, all[i + 2].channel});
    if (!triples.empty())
        return triples;

    Triple firsts{};
    for (std::size_t phase = 0; phase < 3; ++phase) {
        const auto found = std::find_if(
            all.begin(), all.end(), [phase](const Candidate& candidate) { return candidate.phase == phase; });
        if (found == all.end())
            return {};
        firsts[phase] = found->channel;
    }
    return {firsts};
}

Choice chooseInputs(const record::Record& record) {
    const std::vector<Triple> voltages = triplesOf(record, Quantity::Voltage);
    const std::vector<Triple> currents = triplesOf(record, Quantity::Current);
    if (voltages.empty() || currents.empty()) {
        const std::string missing = !currents.empty()   ? "voltages"
                                    : !voltages.empty() ? "currents"
                                                        : "voltages and currents";
        return {std::nullopt, "The record has no " + missing +
                                  " of the three phases, so there is no impedance to compute."};
    }
    const auto stem = [&](const Triple& triple) { return stemOf(record.analogs[triple[0]]); };
    for (const Triple& voltage : voltages)
        for (const Triple& current : currents)
            if (stem(voltage) == stem(current))
                return {Inputs{voltage, current}, ""};
    return {Inputs{voltages.front(), currents.front()}, ""};
}

Conversion convert(const record::Record& record, const Inputs& inputs, const LineSettings& line) {
    Conversion conversion;
    std::array<double, 6> toSide{1, 1, 1, 1, 1, 1};
    bool isPossible = true;
    std::optional<Side> common = sideOf(record.analogs[inputs.voltages[0]], line);
    for (std::size_t i = 0; i < 6; ++i) {
        const bool isVoltage = i < 3;
        const record::AnalogChannel& channel =
            record.analogs[isVoltage ? inputs.voltages[i] : inputs.currents[i - 3]];
        (isVoltage ? conversion.voltages[i] : conversion.currents[i - 3]) = measureOf(channel.unit)->factor;
        if (sideOf(channel, line) != common)
            common = std::nullopt;
        const auto factor = factorToSide(channel, line, isVoltage ? line.voltageRatio : line.currentRatio);
        toSide[i] = factor.value_or(1);
        isPossible = isPossible && factor;
    }
    if (!isPossible) {
        conversion.side = common;
        conversion.remark =
            !common ? "The record does not tell which side of the transformers its values are on, so the "
                      "impedances are in ohms of the values as recorded."
            : *common == Side::Primary
                ? "The ratios of the transformers are not known, so the impedances are in primary ohms."
                : "The ratios of the transformers are not known, so the impedances are in secondary ohms.";
        return conversion;
    }
    conversion.side = line.side;
    for (std::size_t i = 0; i < 3; ++i) {
        conversion.voltages[i] *= toSide[i];
        conversion.currents[i] *= toSide[3 + i];
    }
    return conversion;
}

} // namespace impedance
