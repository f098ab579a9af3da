#pragma once

#include "Line.h"
#include "reader/Record.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace impedance {

/// The positions of the channels of phases A, B and C among the analog channels of a record.
using Triple = std::array<std::size_t, 3>;

/// What impedances are computed from.
struct Inputs {
    Triple voltages{};
    Triple currents{};
};

enum class Quantity { Voltage, Current };

/// What a channel measures and what turns its samples into volts or amperes; empty for everything but volts
/// and amperes with any prefix. The prefix k may be a capital letter, too.
struct Measure {
    Quantity quantity = Quantity::Voltage;
    double factor = 1;
};

std::optional<Measure> measureOf(const std::string& unit);

/// The phase of a channel: 0, 1 or 2 for A, B or C. Where the record has no word on it the end of the name
/// tells, such as "IA", "UL2" or "Vcn (kV)". Empty for all others, such as the neutral.
std::optional<std::size_t> phaseOf(const record::AnalogChannel& channel);

/// All sets of three phases of a quantity, in the order of the record. A set stands in a row, with other
/// quantities between at most; if there is none of that kind, the first channel of each phase makes one.
std::vector<Triple> triplesOf(const record::Record& record, Quantity quantity);

struct Choice {
    /// Empty where the record lacks three voltages or three currents.
    std::optional<Inputs> inputs;
    /// What the record lacks, in a whole sentence; empty when it lacks nothing.
    std::string problem;
};

/// The first set of voltages that has currents of the same name, apart from the letters of phase and
/// quantity; otherwise the first set of each.
Choice chooseInputs(const record::Record& record);

/// What brings the channels of the inputs to one side of the transformers.
struct Conversion {
    /// Turn samples into volts and amperes when multiplied.
    std::array<double, 3> voltages{1, 1, 1};
    std::array<double, 3> currents{1, 1, 1};
    /// The side that they are on then; empty where nobody knows.
    std::optional<Side> side;
    /// Why it is not the side that was asked for, in a whole sentence; empty if it is.
    std::string remark;
};

/// Either all six channels are brought to the side or none: an impedance of both would mean nothing.
/// So Z(secondary) = Z(primary) * current ratio / voltage ratio.
Conversion convert(const record::Record& record, const Inputs& inputs, const LineSettings& line);

} // namespace impedance
