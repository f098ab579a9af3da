/// What the command lines of the examples have in common.
#pragma once

#include <glibmm/optionentry.h>

namespace examples {

/// An option "--name", with the name of its argument if it takes one.
Glib::OptionEntry entry(const char* longName, const char* description, const char* argument = "");

/// Brings GTK up. False without a display: it is asked for only when something is painted, so that texts are
/// printed without one. Numbers keep their decimal point, whatever the user's locale.
bool isDisplayThere();

} // namespace examples
