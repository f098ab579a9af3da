#include <ZelCommonView/plot/Series.h>

#include <ZelCommonView/plot/Limits.h>

namespace Zel {

namespace {

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
