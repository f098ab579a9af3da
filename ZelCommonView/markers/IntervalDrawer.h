#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/Series.h>

namespace ZelView {

/// Shades a stretch of the x axis over the whole height. A host adds it at `DrawerPosition::End`, so that it
/// lies over everything and is not part of the saved picture.
class ZEL_API IntervalDrawer : public InfoDrawer {
public:
    ~IntervalDrawer() override;

    /// The edges in world x, initially 0 and 0; either may be the left one, and equal ones show nothing.
    /// Asks for a repaint; throws "getDrawArea", a `const char*`, without a draw area, with the edges stored.
    void setHorizontalInterval(float from, float to);

    /// Needs `converter`.
    void draw(const Cairo::RefPtr<Cairo::Context>& context) override;

private:
    Zel::Color color{190, 190, 190, 127};
    float from = 0; ///< left edge, world x
    float to = 0;   ///< right edge, world x
};

} // namespace ZelView
