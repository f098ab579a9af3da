/// The size of the text by keys and wheel, as people know it from browsers.
#pragma once

namespace Gtk {
class Window;
}

namespace examples {

/// From now on Ctrl+plus, Ctrl+minus and Ctrl+0 in the window, also on the number pad, make all text of the
/// application larger, smaller and of normal size, and so does the wheel with Ctrl held, wherever the pointer
/// is over the window; the widget there doesn't see it. See `ZelView::StyleZoomHelper` for the sizes. The
/// window stays the caller's and may die at any time. A second call changes nothing.
void installTextZoom(Gtk::Window& window);

} // namespace examples
