#include <ZelCommonView/plot/Series.h>

#include <cmath>

namespace Zel {

namespace {

/// The limits of a sequence of numbers, which starts as the pair that stands for "no data".
struct Limits {
    float min = 2147483648.0f;
    float max = -2147483648.0f;
    bool isEmpty = true;

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

PointF position(const PointF& point) {
    return point;
}

PointF position(const TimedPointF& point) {
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

template <typename TPoint>
void rangeXY(const std::vector<TPoint>& points, float& xMin, float& xMax, float& yMin, float& yMax) {
    Limits x;
    Limits y;
    for (const TPoint& point : points) {
        x.add(position(point).x);
        y.add(position(point).y);
    }
    x.write(xMin, xMax);
    y.write(yMin, yMax);
}

} // namespace

IBorderable::~IBorderable() = default;

void IBorderable::getRangeX(float&, float&) const {}

void IBorderable::getRangeY(float&, float&) const {}

void IBorderable::getRangeXY(float& xMin, float& xMax, float& yMin, float& yMax) const {
    getRangeX(xMin, xMax);
    getRangeY(yMin, yMax);
}

IFragmentable::~IFragmentable() = default;

void Series::getRangeX(float& min, float& max) const {
    rangeX(points, min, max);
}

void Series::getRangeY(float& min, float& max) const {
    rangeY(points, min, max);
}

void Series::getRangeXY(float& xMin, float& xMax, float& yMin, float& yMax) const {
    rangeXY(points, xMin, xMax, yMin, yMax);
}

const std::string& Series::getName() const {
    return name;
}

Color Series::getColor() const {
    return color;
}

void TimedSeries::getRangeX(float& min, float& max) const {
    rangeX(points, min, max);
}

void TimedSeries::getRangeY(float& min, float& max) const {
    rangeY(points, min, max);
}

void TimedSeries::getRangeXY(float& xMin, float& xMax, float& yMin, float& yMax) const {
    rangeXY(points, xMin, xMax, yMin, yMax);
}

} // namespace Zel
