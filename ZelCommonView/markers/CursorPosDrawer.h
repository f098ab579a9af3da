#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/Series.h>

#include <cstdint>
#include <string>

struct _GdkEventCrossing;
struct _GdkEventMotion;

namespace ZelView {

/// What a `CursorPosDrawer` shows and how; sizes in pixels.
struct CursorPosDrawerCfg {
    /// Bits of `flags`.
    enum Flag : std::uint32_t {
        ShowX = 1, ///< x in the readout
        ShowY = 2, ///< y in the readout
    };

    std::uint32_t flags = 0xFFFFFFFF;         ///< bits of `Flag`; both at first
    float fontSize = 12;                      ///< of the readout
    float lineWidth = 1;                      ///< of the cross
    float reserved1 = 2;                      ///< not read
    float reserved2 = 4;                      ///< not read
    Zel::Color textColor = {0, 0, 0, 255};    ///< of the readout
    float reserved3 = 2;                      ///< not read
    Zel::Color reserved4 = {0, 0, 255, 255};  ///< not read
    Zel::Color reserved5 = {81, 255, 0, 122}; ///< not read
};

/// Follows the pointer with a dashed cross and the world position under it, and gives the pointer the shape
/// of a cross while it is over the draw area. A host adds it at `DrawerPosition::End`, so that it lies over
/// everything and is not part of the saved picture.
class ZEL_API CursorPosDrawer : public InfoDrawer {
public:
    ~CursorPosDrawer() override;

    /// For the host to adjust at any time; what is changed shows at the next repaint.
    CursorPosDrawerCfg& getCfg() { return cfg; }

    /// Starts to follow the pointer. Throws "getDrawArea", a `const char*`, without a draw area.
    void initDrawArea() override;
    /// Needs `converter`. Throws "getDrawArea" without a draw area.
    void draw(const Cairo::RefPtr<Cairo::Context>& context) override;

private:
    bool _onCursorMotion(_GdkEventMotion* event);
    bool _onCursorLeave(_GdkEventCrossing* event);
    /// World x, world y or both, each cut at 9 characters.
    std::string _getText() const;

    bool hidden = true; ///< the pointer is elsewhere
    CursorPosDrawerCfg cfg;
    Zel::PointF position; ///< of the pointer, pixels
};

} // namespace ZelView
