#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/markers/MarkerTextDrawer.h>
#include <ZelCommonView/plot/Series.h>

#include <cairomm/context.h>

#include <cstdint>
#include <string>

namespace ZelView {

class CoordsConverter;
struct MarkerDrawerCfg;

/// How a marker's line runs.
enum class Orientation : std::uint32_t {
    Horizontal = 0, ///< from left to right; it carries a y value
    Vertical = 1,   ///< from top to bottom; it carries an x value
};

/// Paints the line and the label of one marker point, given in world units. Needs a converter before anything
/// else.
class ZEL_API MarkerDrawerHelper {
public:
    /// The configuration must outlive it.
    MarkerDrawerHelper(const MarkerDrawerCfg& cfg, Orientation orientation);

    /// The converter must outlive the helper or the next call.
    void setConverter(const CoordsConverter& converter);

    /// The line through the point across the widget. The global form is for areas other than the marker's
    /// own, whose size is not known here: it runs from 0 to 9999 pixels.
    void drawLine(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF worldPoint, bool isGlobal) const;
    /// The label with the point's value: four decimals, cut at 9 characters.
    void drawText(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF worldPoint, bool selected) const;
    /// The label with another text.
    void drawText(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF worldPoint, bool selected,
                  const std::string& text) const;
    /// Whether the cursor (pixels) is on the point's label; on a hit `offset` leads from it to the label's
    /// centre.
    bool isCollide(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF worldPoint, Zel::PointF cursor,
                   Zel::PointF& offset) const;

private:
    Zel::PointF _getPixel(Zel::PointF worldPoint) const;
    float _getValue(Zel::PointF worldPoint) const;

    const CoordsConverter* converter = nullptr;
    const MarkerDrawerCfg& cfg;
    Orientation orientation;
    MarkerTextDrawer textDrawer;
};

} // namespace ZelView
