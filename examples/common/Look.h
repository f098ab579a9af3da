/// What the style classes of the library look like in the example programs.
#pragma once

namespace examples {

/// Gives windows with a bar of their own, panels, actions, the about window, collections and containers their
/// look, with pictures that Gtk brings along, for the whole screen and as long as the program runs. It leaves
/// the last word to the user's own settings. A second call changes nothing. An application with a theme of
/// its own loads that instead.
void installLook();

} // namespace examples
