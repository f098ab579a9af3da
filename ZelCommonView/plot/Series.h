/// What can be plotted: the plain values of the plot layer, the two interfaces and the two kinds of series.
#pragma once

#include <ZelCommonView/common/Export.h>

#include <sigc++/sigc++.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Zel {

/// A point in world units or pixels, by context.
struct PointF {
    float x = 0; ///< grows to the right
    float y = 0; ///< grows upward in world units and downward in pixels
};

/// A point of a trajectory.
struct TimedPointF {
    PointF point;           ///< world units
    std::uint64_t time = 0; ///< milliseconds from the start of the record
};

/// A colour of four channels, 0 to 255 each; painting divides them by 255.0.
struct Color {
    std::uint8_t r = 0;   ///< red
    std::uint8_t g = 0;   ///< green
    std::uint8_t b = 0;   ///< blue
    std::uint8_t a = 255; ///< 255 is opaque
};

/// The data range of something on a plot, in world units.
///
/// Something without data writes +2147483648.0 as minimum and -2147483648.0 as maximum; the plot then shows
/// -1 to 1.
class ZEL_API IBorderable {
public:
    IBorderable() = default;

    /// A copy starts with no listeners, and an assignment leaves both sides' listeners where they are:
    /// whoever listens to one object asked for that object.
    IBorderable(const IBorderable&) {}

    /// Copies nothing, for the same reason.
    IBorderable& operator=(const IBorderable&) { return *this; }

    virtual ~IBorderable();

    /// Writes the limits of x. The default leaves both arguments as they were.
    virtual void getRangeX(float& min, float& max) const;
    /// Writes the limits of y. The default leaves both arguments as they were.
    virtual void getRangeY(float& min, float& max) const;
    /// Writes all four limits. The default asks `getRangeX`, then `getRangeY`.
    virtual void getRangeXY(float& xMin, float& xMax, float& yMin, float& yMax) const;

    /// To be emitted by whoever changed the limits; mutable, since plots hold constant objects.
    mutable sigc::signal<void> rangeChanged;
};

/// Something that is painted as one fragment of a plot and has a legend row.
///
/// Its address is its identity: from the moment it is added to a plot until it is removed it must not move.
class ZEL_API IFragmentable {
public:
    IFragmentable() = default;

    /// As with `IBorderable`, listeners are never copied.
    IFragmentable(const IFragmentable&) {}

    /// Copies nothing, for the same reason.
    IFragmentable& operator=(const IFragmentable&) { return *this; }

    virtual ~IFragmentable();

    /// The text of the legend row.
    virtual const std::string& getName() const = 0;
    /// The colour of the legend row and of the drawing.
    virtual Color getColor() const = 0;

    /// To be emitted by whoever changed the appearance: this fragment, and only this one, is painted again.
    mutable sigc::signal<void> changed;
};

/// How a series is shown.
enum class SeriesType : std::uint32_t {
    Analog = 0, ///< a curve
    Binary = 1, ///< a discrete signal, shown as a row of on and off
};

/// A recorded signal. It stays the application's and must outlive its removal from the plot.
///
/// Its own limits leave out coordinates that are not finite; if none is left it reports itself as empty.
class ZEL_API Series : public IBorderable, public IFragmentable {
public:
    void getRangeX(float& min, float& max) const override;
    void getRangeY(float& min, float& max) const override;
    void getRangeXY(float& xMin, float& xMax, float& yMin, float& yMax) const override;
    const std::string& getName() const override;
    Color getColor() const override;

    SeriesType type = SeriesType::Analog; ///< curve or row; fixed while the series is on a plot
    std::uint64_t index = 0;              ///< row of a binary series, from 0 at the top of its draw area
    std::string name;                     ///< text of the legend row
    Color color;                          ///< line colour
    std::vector<PointF> points;      ///< world units, in drawing order; a binary is off where y is 0, else on
    float thickness = 1;             ///< line width, pixels
    std::uint32_t drawAreaIndex = 0; ///< draw area of its section, from 0 at the top
};

/// A trajectory that is replayed in time. It is handed over to the plot.
///
/// Its limits follow the same rules as those of `Series`.
class ZEL_API TimedSeries : public IBorderable {
public:
    void getRangeX(float& min, float& max) const override;
    void getRangeY(float& min, float& max) const override;
    void getRangeXY(float& xMin, float& xMax, float& yMin, float& yMax) const override;

    std::vector<TimedPointF> points; ///< world units, in ascending order of time
    Color color;                     ///< colour of the trajectory and its arrow head
};

} // namespace Zel
