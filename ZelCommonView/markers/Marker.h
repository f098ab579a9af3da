/// Measuring lines that a person places on a draw area: one line with its value, or two with their distance.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/markers/MarkerDrawerHelper.h>
#include <ZelCommonView/plot/Series.h>

#include <cairomm/context.h>
#include <sigc++/sigc++.h>

#include <cstdint>
#include <vector>

namespace ZelView {

class CoordsConverter;
struct MarkerDrawerCfg;

/// How many points a marker has.
enum class MarkerType : std::uint32_t {
    Single = 0, ///< one line
    Double = 1, ///< two lines and what is between them
};

/// A marker holds world points, so it stays on the signal when the view changes. It is being created until
/// all its points are fixed; afterwards a point moves when its label was hit. Needs a converter before
/// anything else.
class ZEL_API Marker {
public:
    /// All points have been fixed.
    sigc::signal<void> finishCreating;

    /// The configuration must outlive the marker. Without points a text that says so is thrown, a `const
    /// char*`.
    Marker(const MarkerDrawerCfg& cfg, Orientation orientation, unsigned long pointsCount);
    virtual ~Marker();
    Marker(const Marker&) = delete;
    Marker& operator=(const Marker&) = delete;

    /// How the marker is seen while its points are being fixed. All four defaults paint nothing.
    virtual void drawAsCreating(const Cairo::RefPtr<Cairo::Context>& context) const;
    /// How a finished marker is seen: lines and labels.
    virtual void drawAsNormal(const Cairo::RefPtr<Cairo::Context>& context) const;
    /// How the marker is seen while a point of it is moved.
    virtual void drawAsSelected(const Cairo::RefPtr<Cairo::Context>& context) const;
    /// How the marker is seen on areas other than its own: lines without labels.
    virtual void drawAsGlobal(const Cairo::RefPtr<Cairo::Context>& context) const;
    /// Whether the cursor (pixels) is on a label that can be grabbed; on a hit that label's point moves from
    /// now on.
    virtual bool isCollide(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF cursor) = 0;

    /// The converter of the area that the marker stands on; it must outlive the marker or the next call.
    void setConverter(const CoordsConverter& converter);
    /// How the lines run, as given at construction.
    Orientation getOrientation() const;

    /// Moves the current point to the pixel, stopping at the edges of the widget; does nothing without one.
    void move(Zel::PointF pixel);
    /// Moves the current point and goes on to the next; after the last the marker is finished and
    /// `finishCreating` is emitted. Throws "fixPoint", a `const char*`, on a finished marker.
    void fixPoint(Zel::PointF pixel);

protected:
    // Points are numbered from 1.
    /// The point of this number, in world units.
    Zel::PointF _getPoint(unsigned long number) const;
    /// From now on this point moves; `offset` leads from the cursor to the label's centre, in pixels.
    void _selectPoint(unsigned long number, Zel::PointF offset);
    /// 0 when no point moves.
    unsigned long _getCurrentPointNumber() const;
    /// As `_getSelectedPointNumber`, but 9, which is no point's number, while the marker is being created.
    /// That is meant: it is then drawn with all its points.
    unsigned long _getCreatingPointNumber() const;
    /// The point of a finished marker that is dragged; 0 for none, and while the marker is being created.
    unsigned long _getSelectedPointNumber() const;
    /// Moves the current point, if there is one, to the pixel, stopping at the edges of the widget.
    void _updateCurrentPointPos(Zel::PointF pixel);

    const CoordsConverter* converter = nullptr; ///< not owned
    const MarkerDrawerCfg& cfg;                 ///< not owned
    MarkerDrawerHelper helper;                  ///< paints lines and labels
    Orientation orientation;                    ///< as given at construction
    bool created = false;                       ///< all points have been fixed
    std::vector<Zel::PointF> points;            ///< world units
    std::size_t current = 0;                    ///< the point that moves; past the end when none
    Zel::PointF grabOffset;                     ///< from the cursor to the label's centre, pixels
};

/// One line with its value.
class ZEL_API SingleMarker : public Marker {
public:
    /// One point; as with `Marker`.
    SingleMarker(const MarkerDrawerCfg& cfg, Orientation orientation);

    void drawAsCreating(const Cairo::RefPtr<Cairo::Context>& context) const override;
    void drawAsNormal(const Cairo::RefPtr<Cairo::Context>& context) const override;
    void drawAsSelected(const Cairo::RefPtr<Cairo::Context>& context) const override;
    void drawAsGlobal(const Cairo::RefPtr<Cairo::Context>& context) const override;
    bool isCollide(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF cursor) override;
};

/// Two lines with a filled band between their points, both values and the distance. The distance is no
/// handle.
class ZEL_API DoubleMarker : public Marker {
public:
    /// Two points; as with `Marker`.
    DoubleMarker(const MarkerDrawerCfg& cfg, Orientation orientation);

    void drawAsCreating(const Cairo::RefPtr<Cairo::Context>& context) const override;
    void drawAsNormal(const Cairo::RefPtr<Cairo::Context>& context) const override;
    void drawAsSelected(const Cairo::RefPtr<Cairo::Context>& context) const override;
    /// After point 1 of a finished marker was grabbed, only its line is shown.
    void drawAsGlobal(const Cairo::RefPtr<Cairo::Context>& context) const override;
    /// Where both labels are hit, point 1 is taken.
    bool isCollide(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF cursor) override;

private:
    void _drawBothPoints(const Cairo::RefPtr<Cairo::Context>& context, bool selected) const;
    void _fillBackground(const Cairo::RefPtr<Cairo::Context>& context) const;
    Zel::PointF _getMiddlePoint() const;
    /// A level difference or a duration, in world units.
    float _getValueBetweenPoints() const;
};

} // namespace ZelView
