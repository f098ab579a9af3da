#pragma once

#include "Impedances.h"

#include <string>

namespace viewer::words {

/// A sentence of the impedance computation in the language that is selected; one that isn't known stays as it
/// is.
std::string translated(const std::string& sentence);

/// Why there is nothing to show, with the remarks of the computation; empty if there is something.
std::string problemOf(const Impedances& impedances);

/// What one should know of a loop's points, in whole sentences: how many there are, on which side of the
/// transformers the ohms are, what was left out, and the remarks of the computation.
std::string statusOf(const Impedances& impedances, impedance::Loop loop, const LoopView& view);

/// What the zones were drawn for, in a whole sentence.
std::string zonesOf(const Impedances& impedances);

/// The name of a zone, such as "Zone 1", in the language that is selected.
std::string zoneName(const std::string& name);

/// The names of the axes of a plane of impedances.
const char* horizontalAxis();
const char* verticalAxis();

} // namespace viewer::words
