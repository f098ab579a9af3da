#pragma once

namespace Zel {

/// A place and a size, such as those of a window in pixels.
struct RectangleF {
    float x = 0.0f;
    float y = 0.0f;
    float width = 0.0f;
    float height = 0.0f;
};

} // namespace Zel
