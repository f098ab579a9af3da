#pragma once

#include <glibmm/keyfile.h>

#include <memory>
#include <string>

namespace viewer {

/// What stands in a key file, its comments included; empty for one that isn't there or can't be read. Not
/// null.
std::unique_ptr<Glib::KeyFile> loadKeyFile(const std::string& file);

/// Writes a key file and makes its folder. What can't be written is left out without a word.
void saveKeyFile(Glib::KeyFile& keys, const std::string& file);

} // namespace viewer
