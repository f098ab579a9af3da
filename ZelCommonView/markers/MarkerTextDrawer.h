#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Series.h>

#include <cairomm/context.h>

#include <string>

namespace ZelView {

struct MarkerDrawerTextCfg;

/// Paints a label box centred on a pixel, and tests a cursor against such a box. The configuration must
/// outlive it.
class ZEL_API MarkerTextDrawer {
public:
    /// The configuration stays the caller's.
    explicit MarkerTextDrawer(const MarkerDrawerTextCfg& cfg);

    /// Paints the box and the text in it; `selected` chooses the border.
    void draw(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text, Zel::PointF centre,
              bool selected) const;

    /// Whether the cursor lies on the box that this text has around the centre, edges included. On a hit
    /// `offset` becomes the way from the cursor to the centre, in pixels; otherwise it is left as it was. The
    /// context is needed for the size of the text.
    bool isCollide(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text, Zel::PointF centre,
                   Zel::PointF cursor, Zel::PointF& offset) const;

private:
    /// Width and height of the text in pixels; leaves the font size behind in the context.
    Zel::PointF _getTextSize(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text) const;
    bool _checkPos(Zel::PointF topLeft, Zel::PointF size, Zel::PointF cursor, Zel::PointF& offset) const;

    const MarkerDrawerTextCfg& cfg;
};

} // namespace ZelView
