/// What the style classes of the library look like in the example programs.
#pragma once

namespace examples {

/// Gives windows with a bar of their own, panels, actions, the about window, collections and containers their
/// look, with pictures that Gtk brings along, for the whole screen and as long as the program runs. A sheet
/// that can't be read is complained about on the error output. A second call changes nothing. An application
/// with a theme of its own loads that instead.
void installLook();

/// Shows the program in Gtk's own theme, dark or light, from now on, whatever the user's settings and the
/// variable `GTK_THEME` say. Needs a display, and no other thread that reads the environment meanwhile.
void setDark(bool isDark);

/// Whether the program's theme is a dark one.
bool isDark();

} // namespace examples
