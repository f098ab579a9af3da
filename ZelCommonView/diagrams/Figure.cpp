#include <ZelCommonView/diagrams/Figure.h>

#include <ZelCommonView/plot/Limits.h>

#include <algorithm>
#include <limits>

namespace Zel {

namespace {

void rangeOf(const Circle& circle, float centre, float& min, float& max) {
    Limits limits;
    if (std::isfinite(circle.x) && std::isfinite(circle.y) && std::isfinite(circle.radius)) {
        // An edge beyond the largest number stays the largest number.
        constexpr float largest = std::numeric_limits<float>::max();
        const float reach = std::max(circle.radius, 0.0f);
        limits.add(std::max(centre - reach, -largest));
        limits.add(std::min(centre + reach, largest));
    }
    limits.write(min, max);
}

void rangeOf(float value, float& min, float& max) {
    Limits limits;
    limits.add(value);
    limits.write(min, max);
}

} // namespace

Figure::~Figure() = default;

void Circle::getRangeX(float& min, float& max) const {
    rangeOf(*this, x, min, max);
}

void Circle::getRangeY(float& min, float& max) const {
    rangeOf(*this, y, min, max);
}

void FixedDot::getRangeX(float& min, float& max) const {
    rangeOf(x, min, max);
}

void FixedDot::getRangeY(float& min, float& max) const {
    rangeOf(y, min, max);
}

void PointsSequence::getRangeX(float& min, float& max) const {
    rangeX(points, min, max);
}

void PointsSequence::getRangeY(float& min, float& max) const {
    rangeY(points, min, max);
}

} // namespace Zel
