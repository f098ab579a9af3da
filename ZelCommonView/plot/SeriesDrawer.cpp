#include <ZelCommonView/plot/SeriesDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtkmm/widget.h>

#include <vector>

namespace ZelView {

namespace {

void setLine(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series) {
    context->set_line_width(series.thickness);
    setSource(context, series.color);
}

/// Adds a path element of its own for each segment: what is joined or merged is seen in the pixels. The cairo
/// calls are made directly, since the wrapper's check after each would cost more than the call.
template <typename ToVisualX, typename ToVisualY>
void addSegments(cairo_t* cr, const std::vector<Zel::PointF>& points, ToVisualX toVisualX,
                 ToVisualY toVisualY) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        const float x = toVisualX(points[i].x);
        const float y = toVisualY(points[i].y);
        cairo_line_to(cr, x, y);
        cairo_move_to(cr, x, y);
    }
}

// The formulas of the two converters, written out so that the loop has no virtual calls and keeps its inputs
// in registers. The association of every sum and product is that of the converters.

void addSegments(cairo_t* cr, const std::vector<Zel::PointF>& points,
                 const StretchableCoordsConverter& converter) {
    const float xMin = converter.xMin;
    const float yMin = converter.yMin;
    const float realWidth = converter.realWidth;
    const float realHeight = converter.realHeight;
    const float visualWidth = converter.visualWidth;
    const float visualHeight = converter.visualHeight;
    const float left = converter.offset.left;
    const float top = converter.offset.top;
    addSegments(
        cr, points, [=](float x) { return (x - xMin) / realWidth * visualWidth + left; },
        [=](float y) { return (1 - (y - yMin) / realHeight) * visualHeight + top; });
}

void addSegments(cairo_t* cr, const std::vector<Zel::PointF>& points,
                 const ProportionalCoordsConverter& converter) {
    const float xMin = converter.xMin;
    const float yMin = converter.yMin;
    const float realHeight = converter.realHeight;
    const float scale = converter.scale;
    const float left = converter.offset.left + converter.paddingX;
    const float top = converter.offset.top + converter.paddingY;
    addSegments(
        cr, points, [=](float x) { return (x - xMin) * scale + left; },
        [=](float y) { return (yMin + (realHeight - y)) * scale + top; });
}

} // namespace

SeriesDrawer::~SeriesDrawer() = default;

void AnalogSeriesDrawer::_draw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series) {
    if (series.type != Zel::SeriesType::Analog || series.points.size() < 2)
        return;

    setLine(context, series);
    const Zel::PointF first = series.points.front();
    context->move_to(converter->getVisualX(first.x), converter->getVisualY(first.y));
    if (const auto* stretchable = dynamic_cast<const StretchableCoordsConverter*>(converter))
        addSegments(context->cobj(), series.points, *stretchable);
    else if (const auto* proportional = dynamic_cast<const ProportionalCoordsConverter*>(converter))
        addSegments(context->cobj(), series.points, *proportional);
    context->stroke();
}

void BinarySeriesDrawer::initDrawArea() {
    Gtk::Widget& widget = getDrawArea();
    widget.add_events(Gdk::ENTER_NOTIFY_MASK | Gdk::LEAVE_NOTIFY_MASK);
    widget.signal_enter_notify_event().connect(sigc::mem_fun(*this, &BinarySeriesDrawer::_onCrossing), true);
    widget.signal_leave_notify_event().connect(sigc::mem_fun(*this, &BinarySeriesDrawer::_onCrossing), true);
}

void BinarySeriesDrawer::_draw(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series) {
    if (series.type != Zel::SeriesType::Binary || series.points.size() < 2)
        return;

    float start = series.points.front().x;
    bool isOn = series.points.front().y != 0;
    for (const Zel::PointF& point : series.points) {
        if ((point.y != 0) == isOn)
            continue;
        _drawRun(context, series, isOn, start, point.x);
        isOn = !isOn;
        start = point.x;
    }
    const float last = series.points.back().x;
    if (last != start)
        _drawRun(context, series, isOn, start, last);
}

float BinarySeriesDrawer::_getSeriesThickness(const Zel::Series& series) const {
    return series.thickness;
}

float BinarySeriesDrawer::_getFirstNonZeroY(const Zel::Series& series) const {
    for (const Zel::PointF& point : series.points)
        if (point.y != 0)
            return point.y;
    return 0;
}

bool BinarySeriesDrawer::_onCrossing(GdkEventCrossing*) {
    _callRedraw();
    return false;
}

void BinarySeriesDrawer::_callRedraw() {
    // A listener may change the list, so it is read whole before the first signal.
    std::vector<const Zel::Series*> all;
    for (const Zel::IFragmentable* fragmentable : *fragmentables)
        if (const auto* series = dynamic_cast<const Zel::Series*>(fragmentable))
            all.push_back(series);
    for (const Zel::Series* series : all)
        if (series->type == Zel::SeriesType::Binary)
            series->changed.emit();
}

void BinarySeriesDrawer::_drawRun(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series,
                                  bool isOn, float fromX, float toX) const {
    context->save();
    if (isOn)
        _drawOn(context, series, fromX, toX);
    else
        _drawOff(context, series, fromX, toX);
    context->restore();
}

void BinarySeriesDrawer::_drawOff(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series,
                                  float fromX, float toX) const {
    setLine(context, series);
    const float y = converter->getZeroVisualY(series.index);
    context->move_to(converter->getVisualX(fromX), y);
    context->line_to(converter->getVisualX(toX), y);
    context->stroke();
}

void BinarySeriesDrawer::_drawOn(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Series& series,
                                 float fromX, float toX) const {
    const float yLow = converter->getOneVisualY(series.index, false);
    const float yHigh = converter->getOneVisualY(series.index, true);
    const float vFrom = converter->getVisualX(fromX);
    const float vTo = converter->getVisualX(toX);
    setLine(context, series);
    context->move_to(vFrom, yLow);
    context->line_to(vTo, yLow);
    context->line_to(vTo, yHigh);
    context->line_to(vFrom, yHigh);
    context->line_to(vFrom, yLow);
    context->stroke_preserve();
    setSource(context, series.color, 127 / 255.0);
    context->fill();
}

} // namespace ZelView
