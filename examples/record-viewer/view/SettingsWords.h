#pragma once

#include "ImpedanceSettings.h"

#include <optional>
#include <string>

/// The words of the settings, in the language that is selected when they are asked for.
namespace viewer::words {

const char* settings();
const char* settingsTitle();
const char* defaults();
const char* inPercent();

/// What is to be ticked for a group to be given; for the frequency with that of the record, which is 0 where
/// it tells none. Of a group that can't be ticked nothing is asked.
std::string groupName(Group group, double recordedFrequency);

/// As it stands beside the entry, and with all that it needs in a sentence.
const char* shortName(Field field);
const char* fullName(Field field);

/// Empty where there is none; for Z1 with the side of the transformers, as far as it is known.
std::string unitOf(Field field, const std::optional<impedance::Side>& side = std::nullopt);

/// Which value is wrong, why, and what it may be.
std::string vetoOf(const Veto& veto);

} // namespace viewer::words
