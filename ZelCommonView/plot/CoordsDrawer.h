#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/Series.h>

#include <cstdint>
#include <string>

namespace ZelView {

/// What a `CoordsDrawer` paints and how; sizes and offsets in pixels.
struct CoordsDrawerCfg {
    /// Bits of `flags`.
    enum Flag : std::uint32_t {
        AxisX = 1,      ///< the horizontal line at world y = 0
        AxisY = 2,      ///< the vertical line at world x = 0
        StepLinesX = 4, ///< vertical grid lines
        StepLinesY = 8, ///< horizontal grid lines
        StepTextX = 16, ///< numbers of the vertical grid lines
        StepTextY = 32, ///< numbers of the horizontal grid lines
    };

    std::uint32_t flags = 0xFFFFFFFF;        ///< bits of `Flag`; all at first
    float fontSize = 12;                     ///< of the numbers
    float axisLineWidth = 2;                 ///< of the axes; that of the grid is 1
    float stepTextXOffsetX = 5;              ///< from a vertical line's top end to its number
    float stepTextXOffsetY = 20;             ///< the same, downward
    float stepTextYOffsetX = 10;             ///< from a horizontal line's left end to its number
    float stepTextYOffsetY = -10;            ///< the same, downward
    float minStepPixelsX = 50;               ///< smallest wanted distance of vertical lines
    float minStepPixelsY = 50;               ///< smallest wanted distance of horizontal lines
    Zel::Color color = {100, 100, 100, 255}; ///< of axes, lines and numbers
};

/// Paints the axes, the dashed grid and its numbers. A host adds it before the fragments, so that curves lie
/// over it.
class ZEL_API CoordsDrawer : public InfoDrawer {
public:
    /// Copies the configuration.
    explicit CoordsDrawer(const CoordsDrawerCfg& cfg = CoordsDrawerCfg());
    ~CoordsDrawer() override;

    /// Needs `converter`. May throw `std::out_of_range` if a number is shorter than its precision.
    void draw(const Cairo::RefPtr<Cairo::Context>& context) override;

protected:
    /// For derived classes; this class never calls it, and here it does nothing.
    virtual void _onDrawAxis(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF, Zel::PointF,
                             Zel::PointF, Zel::PointF, Zel::PointF);
    /// Paints the number of the vertical line between the two pixels.
    virtual void _onDrawStepLineX(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                                  Zel::PointF from, Zel::PointF to);
    /// Paints the number of the horizontal line between the two pixels.
    virtual void _onDrawStepLineY(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                                  Zel::PointF from, Zel::PointF to);

    /// Both ends of the vertical line at the first step, in pixels, across the whole widget.
    void _getFirstStepLineXPos(Zel::PointF& from, Zel::PointF& to) const;
    /// Both ends of the vertical line at the last step, in pixels, across the whole widget.
    void _getLastStepLineXPos(Zel::PointF& from, Zel::PointF& to) const;
    /// Both ends of the vertical line at world 0, in pixels, across the whole widget.
    void _getCenterStepLineXPos(Zel::PointF& from, Zel::PointF& to) const;
    /// Both ends of the horizontal line at the first step, in pixels, across the whole widget.
    void _getFirstStepLineYPos(Zel::PointF& from, Zel::PointF& to) const;
    /// Both ends of the horizontal line at the last step, in pixels, across the whole widget.
    void _getLastStepLineYPos(Zel::PointF& from, Zel::PointF& to) const;
    /// Both ends of the horizontal line at world 0, in pixels, across the whole widget.
    void _getCenterStepLineYPos(Zel::PointF& from, Zel::PointF& to) const;

    CoordsDrawerCfg cfg; ///< read by each paint

private:
    void _drawAxis(const Cairo::RefPtr<Cairo::Context>& context) const;
    void _onDrawAxisX(const Cairo::RefPtr<Cairo::Context>& context) const;
    void _onDrawAxisY(const Cairo::RefPtr<Cairo::Context>& context) const;
    void _drawStepsX(const Cairo::RefPtr<Cairo::Context>& context);
    void _drawStepsY(const Cairo::RefPtr<Cairo::Context>& context);
    static std::size_t _getPrecision(float step);
    static std::string _getStepText(std::size_t precision, float step, float value);
    void _getLineX(float x, Zel::PointF& from, Zel::PointF& to) const;
    void _getLineY(float y, Zel::PointF& from, Zel::PointF& to) const;
};

} // namespace ZelView
