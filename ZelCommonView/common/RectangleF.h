#pragma once

namespace Zel {

/// A place and a size, such as those of a window in pixels.
struct RectangleF {
    float x = 0.0f;      ///< left edge
    float y = 0.0f;      ///< top edge
    float width = 0.0f;  ///< 0 at first
    float height = 0.0f; ///< 0 at first
};

} // namespace Zel
