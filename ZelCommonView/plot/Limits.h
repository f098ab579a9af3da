// Not installed: for the sources of the library only.
#pragma once

#include <ZelCommonView/plot/Series.h>

#include <cmath>
#include <vector>

namespace Zel {

/// The limits of a sequence of numbers, which starts as the pair that stands for "no data".
struct Limits {
    float min = 2147483648.0f;
    float max = -2147483648.0f;
    bool isEmpty = true;

    /// Leaves out what is not finite.
    void add(float value) {
        if (!std::isfinite(value))
            return;
        if (isEmpty || value < min)
            min = value;
        if (isEmpty || value > max)
            max = value;
        isEmpty = false;
    }

    void write(float& toMin, float& toMax) const {
        toMin = min;
        toMax = max;
    }
};

inline PointF position(const PointF& point) {
    return point;
}

inline PointF position(const TimedPointF& point) {
    return point.point;
}

template <typename TPoint>
void rangeX(const std::vector<TPoint>& points, float& min, float& max) {
    Limits limits;
    for (const TPoint& point : points)
        limits.add(position(point).x);
    limits.write(min, max);
}

template <typename TPoint>
void rangeY(const std::vector<TPoint>& points, float& min, float& max) {
    Limits limits;
    for (const TPoint& point : points)
        limits.add(position(point).y);
    limits.write(min, max);
}

} // namespace Zel
