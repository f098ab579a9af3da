#pragma once

#include "ImpedanceSettings.h"

#include <string>

namespace viewer {

/// Keeps settings from one run of the program to the next, in a group of their own of a key file that others
/// write to, too. Numbers stand there with a decimal point in every locale.
class SettingsFile {
public:
    /// An empty name keeps none.
    explicit SettingsFile(std::string file);

    /// What is missing, is no number or lies out of its range is left out one by one, an angle without its
    /// magnitude with it. Zones that contradict each other are all left out, since nobody knows which of them
    /// is wrong.
    ImpedanceSettings read() const;

    /// Writes what is given and takes out what isn't; other groups stay as they are. What can't be written is
    /// left out without a word: the settings still hold for this run.
    void write(const ImpedanceSettings& settings) const;

private:
    std::string file;
};

} // namespace viewer
