#pragma once

#include "Impedances.h"
#include "Signals.h"

#include <memory>
#include <string>
#include <vector>

namespace viewer {

/// Paints the oscillogram as the window shows it and writes "<stem>-oscillogram.png" into the folder, like
/// `writePictures`. Returns the path.
std::string writeOscillogram(record::Record record, const std::string& folder, const std::string& stem);

/// Paints all sections without a visible window and writes them as PNG files into the folder, which is made
/// if it is not there: "<stem>.png", or "<stem>-1.png" and so on where one picture would be too high. Returns
/// the paths. Throws `Glib::Error` where a file can't be written. Needs a display.
std::vector<std::string> writePictures(std::vector<Section> sections, const std::string& folder,
                                       const std::string& stem);

/// Paints both pages of impedances as the window shows them, with the whole trajectory of the loop of the
/// fault, and writes "<stem>-hodograph.png" and "<stem>-zplane.png" into the folder, like `writePictures`.
/// Returns the paths.
std::vector<std::string> writeImpedances(const std::shared_ptr<const Impedances>& impedances,
                                         const std::string& folder, const std::string& stem);

} // namespace viewer
