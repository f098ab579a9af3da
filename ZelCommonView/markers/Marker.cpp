#include <ZelCommonView/markers/Marker.h>

#include <ZelCommonView/markers/MarkerDrawerCfg.h>
#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace ZelView {

Marker::Marker(const MarkerDrawerCfg& value, Orientation markerOrientation, unsigned long pointsCount)
    : cfg(value), helper(value, markerOrientation), orientation(markerOrientation), points(pointsCount) {
    if (pointsCount == 0)
        throw "если будет нужна такая возможность надо усложнить код";
}

Marker::~Marker() = default;

void Marker::drawAsCreating(const Cairo::RefPtr<Cairo::Context>&) const {}

void Marker::drawAsNormal(const Cairo::RefPtr<Cairo::Context>&) const {}

void Marker::drawAsSelected(const Cairo::RefPtr<Cairo::Context>&) const {}

void Marker::drawAsGlobal(const Cairo::RefPtr<Cairo::Context>&) const {}

void Marker::setConverter(const CoordsConverter& value) {
    converter = &value;
    helper.setConverter(value);
}

Orientation Marker::getOrientation() const {
    return orientation;
}

void Marker::move(Zel::PointF pixel) {
    _updateCurrentPointPos(pixel);
}

void Marker::fixPoint(Zel::PointF pixel) {
    if (created)
        throw "fixPoint";
    _updateCurrentPointPos(pixel);
    ++current;
    if (current < points.size())
        return;
    created = true;
    finishCreating.emit();
}

Zel::PointF Marker::_getPoint(unsigned long number) const {
    return points[number - 1];
}

void Marker::_selectPoint(unsigned long number, Zel::PointF offset) {
    current = number - 1;
    grabOffset = offset;
}

unsigned long Marker::_getCurrentPointNumber() const {
    return current < points.size() ? current + 1 : 0;
}

unsigned long Marker::_getCreatingPointNumber() const {
    // The 9 is meant: it is no point's number, so a marker that is being created never counts as one whose
    // first point is the current one, and is drawn with all its points.
    return created ? _getCurrentPointNumber() : 9;
}

unsigned long Marker::_getSelectedPointNumber() const {
    return created ? _getCurrentPointNumber() : 0;
}

void Marker::_updateCurrentPointPos(Zel::PointF pixel) {
    if (current >= points.size())
        return;
    const float x = std::max(0.0f, std::min(pixel.x + grabOffset.x, converter->widgetWidth));
    const float y = std::max(0.0f, std::min(pixel.y + grabOffset.y, converter->widgetHeight));
    // Both coordinates are kept whatever the orientation; it decides only what is drawn and measured.
    points[current] = {converter->getRealX(x), converter->getRealY(y)};
}

SingleMarker::SingleMarker(const MarkerDrawerCfg& value, Orientation markerOrientation)
    : Marker(value, markerOrientation, 1) {}

void SingleMarker::drawAsCreating(const Cairo::RefPtr<Cairo::Context>& context) const {
    drawAsSelected(context);
}

void SingleMarker::drawAsNormal(const Cairo::RefPtr<Cairo::Context>& context) const {
    helper.drawLine(context, _getPoint(1), false);
    helper.drawText(context, _getPoint(1), false);
}

void SingleMarker::drawAsSelected(const Cairo::RefPtr<Cairo::Context>& context) const {
    helper.drawLine(context, _getPoint(1), false);
    helper.drawText(context, _getPoint(1), true);
}

void SingleMarker::drawAsGlobal(const Cairo::RefPtr<Cairo::Context>& context) const {
    helper.drawLine(context, _getPoint(1), true);
}

bool SingleMarker::isCollide(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF cursor) {
    Zel::PointF offset;
    const bool isHit = helper.isCollide(context, _getPoint(1), cursor, offset);
    if (isHit)
        _selectPoint(1, offset);
    return isHit;
}

DoubleMarker::DoubleMarker(const MarkerDrawerCfg& value, Orientation markerOrientation)
    : Marker(value, markerOrientation, 2) {}

void DoubleMarker::drawAsCreating(const Cairo::RefPtr<Cairo::Context>& context) const {
    if (_getCreatingPointNumber() == 1) {
        helper.drawLine(context, _getPoint(1), false);
        helper.drawText(context, _getPoint(1), true);
    } else {
        _drawBothPoints(context, true);
    }
}

void DoubleMarker::drawAsNormal(const Cairo::RefPtr<Cairo::Context>& context) const {
    _drawBothPoints(context, false);
}

void DoubleMarker::drawAsSelected(const Cairo::RefPtr<Cairo::Context>& context) const {
    _drawBothPoints(context, true);
}

void DoubleMarker::drawAsGlobal(const Cairo::RefPtr<Cairo::Context>& context) const {
    helper.drawLine(context, _getPoint(1), true);
    if (_getCreatingPointNumber() != 1)
        helper.drawLine(context, _getPoint(2), true);
}

bool DoubleMarker::isCollide(const Cairo::RefPtr<Cairo::Context>& context, Zel::PointF cursor) {
    Zel::PointF offset1;
    Zel::PointF offset2;
    const bool isHit1 = helper.isCollide(context, _getPoint(1), cursor, offset1);
    const bool isHit2 = helper.isCollide(context, _getPoint(2), cursor, offset2);
    if (isHit1)
        _selectPoint(1, offset1);
    else if (isHit2)
        _selectPoint(2, offset2);
    return isHit1 || isHit2;
}

void DoubleMarker::_drawBothPoints(const Cairo::RefPtr<Cairo::Context>& context, bool selected) const {
    helper.drawLine(context, _getPoint(1), false);
    helper.drawLine(context, _getPoint(2), false);
    _fillBackground(context);
    helper.drawText(context, _getPoint(1), selected);
    helper.drawText(context, _getPoint(2), selected);
    helper.drawText(context, _getMiddlePoint(), selected, std::to_string(_getValueBetweenPoints()));
}

void DoubleMarker::_fillBackground(const Cairo::RefPtr<Cairo::Context>& context) const {
    const float x1 = converter->getVisualX(_getPoint(1).x);
    const float y1 = converter->getVisualY(_getPoint(1).y);
    const float x2 = converter->getVisualX(_getPoint(2).x);
    const float y2 = converter->getVisualY(_getPoint(2).y);
    setSource(context, cfg.fillColor);
    context->rectangle(x1, y1, x2 - x1, y2 - y1);
    context->fill();
}

Zel::PointF DoubleMarker::_getMiddlePoint() const {
    return {(_getPoint(1).x + _getPoint(2).x) * 0.5f, (_getPoint(1).y + _getPoint(2).y) * 0.5f};
}

float DoubleMarker::_getValueBetweenPoints() const {
    return orientation == Orientation::Horizontal ? std::fabs(_getPoint(2).y - _getPoint(1).y)
                                                  : std::fabs(_getPoint(2).x - _getPoint(1).x);
}

} // namespace ZelView
