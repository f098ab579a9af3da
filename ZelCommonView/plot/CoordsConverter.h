/// From world coordinates to the pixels of one draw area and back.
#pragma once

#include <ZelCommonView/common/Export.h>

#include <cstdint>

namespace ZelView {

/// Where the limits of an axis come from.
enum class BordersMode : std::uint32_t {
    Auto = 0,   ///< from the registered borderables
    Manual = 1, ///< from `setXBorders` or `setYBorders`
};

/// Whether the two axes may stretch independently.
enum class CoordsConvertMode : std::uint32_t {
    Stretchable = 0,  ///< each axis fills its side of the widget
    Proportional = 1, ///< one unit is equally long on both axes
};

/// Maps world units to pixels. All arithmetic is in 32-bit float, in the association that the sources show.
///
/// The data are public, since drawers of long curves read them in their loops. A span or a size of 0 divides
/// by zero on some roads: the result is then not a number and is passed on unchecked.
class ZEL_API CoordsConverter {
public:
    /// World limits.
    struct Border {
        float xMin = 0; ///< world units
        float xMax = 0; ///< world units
        float yMin = 0; ///< world units
        float yMax = 0; ///< world units
    };

    /// Margins, pixels.
    struct Offset {
        float left = 0;   ///< pixels
        float right = 0;  ///< pixels
        float top = 0;    ///< pixels
        float bottom = 0; ///< pixels
    };

    CoordsConverter();
    virtual ~CoordsConverter();

    /// Pixel column of world x.
    virtual float getVisualX(float x) const = 0;
    /// Pixel row of world y; screen y grows downward.
    virtual float getVisualY(float y) const = 0;
    /// Pixel row of the centre of a binary row, counted from 0 at the top.
    virtual float getZeroVisualY(unsigned long row) const = 0;
    /// Pixel row of the edge of a binary row's box.
    virtual float getOneVisualY(unsigned long row, bool up) const = 0;
    /// World x of a pixel column.
    virtual float getRealX(float visualX) const = 0;
    /// World y of a pixel row.
    virtual float getRealY(float visualY) const = 0;
    /// Pixel column of the middle of the drawable part.
    virtual float getCenterVisualX() const = 0;
    /// Pixel row of the middle of the drawable part.
    virtual float getCenterVisualY() const = 0;
    /// World x of the middle of the view.
    virtual float getCenterRealX() const;
    /// World y of the middle of the view.
    virtual float getCenterRealY() const;
    /// The last step of a recalculation; may replace some of its results. The default does nothing.
    virtual void _onRecalc();

    /// Computes spans, drawable pixels and scales anew; to be called after any change of the inputs.
    void recalc();

    /// The world limits of the view.
    Border getBorder() const { return {xMin, xMax, yMin, yMax}; }

    /// Stores the world limits, unchecked; `recalc` must follow.
    void setBorder(const Border& border);

    float rowHeight = 16;     ///< pixels between the rows of binary series
    float onePulseHeight = 3; ///< pixels from a binary row's centre to the edge of its box
    float widgetWidth = 0;    ///< whole widget, pixels
    float widgetHeight = 0;   ///< pixels
    float xMin;               ///< world limits of the view
    float xMax;               ///< world units
    float yMin;               ///< world units
    float yMax;               ///< world units
    Offset offset;            ///< margins, pixels

    // Computed by `recalc`.
    float visualWidth = 0;  ///< drawable pixels
    float visualHeight = 0; ///< drawable pixels
    float realWidth = 0;    ///< world span
    float realHeight = 0;   ///< world span
    float scaleX = 0;       ///< pixels per world unit
    float scaleY = 0;       ///< pixels per world unit
};

/// Each axis fills its side of the widget.
class ZEL_API StretchableCoordsConverter : public CoordsConverter {
public:
    float getVisualX(float x) const override;
    float getVisualY(float y) const override;
    float getZeroVisualY(unsigned long row) const override;
    float getOneVisualY(unsigned long row, bool up) const override;
    float getRealX(float visualX) const override;
    float getRealY(float visualY) const override;
    float getCenterVisualX() const override;
    float getCenterVisualY() const override;
};

/// Both axes have the smaller of the two scales; the data are centred in the free space.
class ZEL_API ProportionalCoordsConverter : public CoordsConverter {
public:
    float getVisualX(float x) const override;
    float getVisualY(float y) const override;
    /// Always 0: binary rows exist on the stretchable converter only.
    float getZeroVisualY(unsigned long row) const override;
    /// Always 0, as above.
    float getOneVisualY(unsigned long row, bool up) const override;
    float getRealX(float visualX) const override;
    float getRealY(float visualY) const override;
    float getCenterVisualX() const override;
    float getCenterVisualY() const override;
    void _onRecalc() override;

    float scale = 0;    ///< pixels per world unit of both axes
    float paddingX = 0; ///< free pixels on either side
    float paddingY = 0; ///< free pixels above and below
};

} // namespace ZelView
