#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Series.h>
#include <ZelCommonView/plot/TimedSeriesIteratorCalc.h>

#include <cairomm/context.h>

#include <memory>

namespace Gtk {
class Widget;
}

namespace ZelView {

class CoordsConverter;

/// Paints one trajectory up to a time, with an arrow head on the last point that was reached.
class ZEL_API SingleTimedSeriesDrawer {
public:
    /// Takes ownership. The points must not change any more. Throws "SingleTimedSeriesDrawer", a
    /// `const char*`, for null.
    explicit SingleTimedSeriesDrawer(std::unique_ptr<Zel::TimedSeries> series);
    ~SingleTimedSeriesDrawer();
    SingleTimedSeriesDrawer(const SingleTimedSeriesDrawer&) = delete;
    SingleTimedSeriesDrawer& operator=(const SingleTimedSeriesDrawer&) = delete;

    /// What `draw` takes from then on; not owned.
    void setConverter(const CoordsConverter& coordsConverter);

    /// The widget that is asked for a repaint; not owned.
    void setDrawArea(Gtk::Widget& widget);

    /// Goes to a time in milliseconds of the record. Asks for a repaint if that is another time.
    void setTime(unsigned long time);

    /// Paints in the series' colour, in pixels of the draw area, and leaves line width and source behind. The
    /// curve is a row of separate segments, as with the curves of an oscillogram. Paints nothing for fewer
    /// than 2 points or without a converter.
    ///
    /// A coordinate that is not a number is passed on unchecked to the curve, where cairo takes it for 0; an
    /// arrow that would have one isn't painted. Neither is that on the very first point, which has no
    /// direction.
    void draw(const Cairo::RefPtr<Cairo::Context>& context);

private:
    void _drawCurve(const Cairo::RefPtr<Cairo::Context>& context) const;
    void _drawPointArrow(const Cairo::RefPtr<Cairo::Context>& context) const;
    /// The arrow head at the second of two pixels, turned away from the first.
    void _drawTriangle(const Cairo::RefPtr<Cairo::Context>& context, float x1, float y1, float x2,
                       float y2) const;
    /// Of the direction from the first pixel to the second, in radians; not a number for equal ones.
    static float _getAngleBetweenPoints(float x1, float y1, float x2, float y2);
    static float _toRadians(float angle);
    /// Turns a pixel around a centre by radians, clockwise on the screen.
    static void _rotate(float& x, float& y, float cx, float cy, float angle);

    float lineWidth = 1;           ///< of the curve, pixels
    float arrowLength = 12;        ///< pixels
    float arrowWidthFactor = 0.4f; ///< half the base of the arrow head, as a part of its length
    std::unique_ptr<Zel::TimedSeries> series;
    const CoordsConverter* converter = nullptr;
    Gtk::Widget* drawArea = nullptr;
    TimedSeriesIteratorCalc iterator; ///< on the points of the series
};

} // namespace ZelView
