/// The geometric figures of a plane diagram: plain data in world units, painted by a chain of figure drawers.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Series.h>

#include <string>
#include <vector>

namespace Zel {

/// What all figures have in common: an extent that the axes of a diagram can cover.
///
/// Whoever changes a figure that is on a diagram emits `rangeChanged`. A copy starts with no listeners.
class ZEL_API Figure : public IBorderable {
public:
    Figure() = default;
    /// A copy starts with no listeners.
    Figure(const Figure&) = default;
    /// Listeners stay as they are.
    Figure& operator=(const Figure&) = default;
    ~Figure() override;
};

/// A circle, with an optional caption that begins at its centre.
///
/// Its limits are those of its outline; with a radius below 0, which has no outline, those of its centre. If
/// any of its three numbers is not finite it reports itself as empty.
class ZEL_API Circle : public Figure {
public:
    void getRangeX(float& min, float& max) const override;
    void getRangeY(float& min, float& max) const override;

    float x = 0;         ///< centre, world units
    float y = 0;         ///< centre, world units
    float radius = 0;    ///< world units
    Color color;         ///< of the outline and of the inside; opaque black at first
    std::string text;    ///< caption; may be empty
    bool filled = false; ///< filled with `color`, too
};

/// A dot whose size on the screen does not depend on the scale. Its limits are its position; a coordinate
/// that is not finite is left out, as with `Series`.
class ZEL_API FixedDot : public Figure {
public:
    void getRangeX(float& min, float& max) const override;
    void getRangeY(float& min, float& max) const override;

    float x = 0; ///< world units
    float y = 0; ///< world units
    Color color; ///< opaque black at first
};

/// A path through points, or a dot for each of them. Its limits follow the same rules as those of `Series`.
class ZEL_API PointsSequence : public Figure {
public:
    void getRangeX(float& min, float& max) const override;
    void getRangeY(float& min, float& max) const override;

    std::vector<PointF> points; ///< world units, in drawing order
    Color color;                ///< opaque black at first
    std::string text;    ///< painted at the origin of the draw area, not at the figure; mostly left empty
    bool closed = false; ///< the path returns to its first point
    bool lines = true;   ///< a path; otherwise a dot for each point
};

} // namespace Zel
