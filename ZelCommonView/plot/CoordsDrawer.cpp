#include <ZelCommonView/plot/CoordsDrawer.h>

#include <ZelCommonView/plot/CairoColor.h>
#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/CoordsStepsCalc.h>

#include <cmath>
#include <limits>
#include <vector>

namespace ZelView {

namespace {

/// Whether the value keeps its digits before the point in an `int`.
bool fitsInt(float value) {
    using Limits = std::numeric_limits<int>;
    return value > static_cast<float>(Limits::min()) && value < static_cast<float>(Limits::max());
}

struct Steps {
    int first;
    int last;
    float step;
};

Steps stepsX(const CoordsConverter& converter, const CoordsDrawerCfg& cfg) {
    Steps steps;
    CoordsStepsCalc(converter, cfg).getStepsInfoX(steps.first, steps.last, steps.step);
    return steps;
}

Steps stepsY(const CoordsConverter& converter, const CoordsDrawerCfg& cfg) {
    Steps steps;
    CoordsStepsCalc(converter, cfg).getStepsInfoY(steps.first, steps.last, steps.step);
    return steps;
}

} // namespace

CoordsDrawer::CoordsDrawer(const CoordsDrawerCfg& value) : cfg(value) {}

CoordsDrawer::~CoordsDrawer() = default;

void CoordsDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    static const std::vector<double> dashes{5.0};

    context->set_antialias(Cairo::ANTIALIAS_NONE);
    setSource(context, cfg.color);
    context->set_font_size(cfg.fontSize);
    context->set_line_width(cfg.axisLineWidth);
    _drawAxis(context);
    context->set_line_width(1.0);
    context->set_dash(dashes, 0);
    _drawStepsX(context);
    _drawStepsY(context);
}

void CoordsDrawer::_onDrawAxis(const Cairo::RefPtr<Cairo::Context>&, Zel::PointF, Zel::PointF, Zel::PointF,
                               Zel::PointF, Zel::PointF) {}

void CoordsDrawer::_onDrawStepLineX(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                                    Zel::PointF from, Zel::PointF) {
    context->move_to(from.x + cfg.stepTextXOffsetX, from.y + cfg.stepTextXOffsetY);
    context->show_text(text);
}

void CoordsDrawer::_onDrawStepLineY(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                                    Zel::PointF from, Zel::PointF) {
    context->move_to(from.x + cfg.stepTextYOffsetX, from.y + cfg.stepTextYOffsetY);
    context->show_text(text);
}

void CoordsDrawer::_getFirstStepLineXPos(Zel::PointF& from, Zel::PointF& to) const {
    const Steps steps = stepsX(*converter, cfg);
    _getLineX(static_cast<float>(steps.first) * steps.step, from, to);
}

void CoordsDrawer::_getLastStepLineXPos(Zel::PointF& from, Zel::PointF& to) const {
    const Steps steps = stepsX(*converter, cfg);
    _getLineX(static_cast<float>(steps.last) * steps.step, from, to);
}

void CoordsDrawer::_getCenterStepLineXPos(Zel::PointF& from, Zel::PointF& to) const {
    _getLineX(0, from, to);
}

void CoordsDrawer::_getFirstStepLineYPos(Zel::PointF& from, Zel::PointF& to) const {
    const Steps steps = stepsY(*converter, cfg);
    _getLineY(static_cast<float>(steps.first) * steps.step, from, to);
}

void CoordsDrawer::_getLastStepLineYPos(Zel::PointF& from, Zel::PointF& to) const {
    const Steps steps = stepsY(*converter, cfg);
    _getLineY(static_cast<float>(steps.last) * steps.step, from, to);
}

void CoordsDrawer::_getCenterStepLineYPos(Zel::PointF& from, Zel::PointF& to) const {
    _getLineY(0, from, to);
}

void CoordsDrawer::_drawAxis(const Cairo::RefPtr<Cairo::Context>& context) const {
    _onDrawAxisX(context);
    _onDrawAxisY(context);
}

void CoordsDrawer::_onDrawAxisX(const Cairo::RefPtr<Cairo::Context>& context) const {
    if (!(cfg.flags & CoordsDrawerCfg::AxisX))
        return;
    Zel::PointF from, to;
    _getLineY(0, from, to);
    context->move_to(from.x, from.y);
    context->line_to(to.x, to.y);
    context->stroke();
}

void CoordsDrawer::_onDrawAxisY(const Cairo::RefPtr<Cairo::Context>& context) const {
    if (!(cfg.flags & CoordsDrawerCfg::AxisY))
        return;
    Zel::PointF from, to;
    _getLineX(0, from, to);
    context->move_to(from.x, from.y);
    context->line_to(to.x, to.y);
    context->stroke();
}

void CoordsDrawer::_drawStepsX(const Cairo::RefPtr<Cairo::Context>& context) {
    const auto [first, last, step] = stepsX(*converter, cfg);
    const std::size_t precision = _getPrecision(step);
    // The last line is left out here and painted for y; that is meant. The counter is wide, so that it passes
    // the largest `last` that there is.
    for (std::int64_t i = first; i < last; ++i) {
        const float value = static_cast<float>(i) * step;
        Zel::PointF from, to;
        _getLineX(value, from, to);
        if (cfg.flags & CoordsDrawerCfg::StepLinesX) {
            context->move_to(from.x, from.y);
            context->line_to(to.x, to.y);
        }
        if (cfg.flags & CoordsDrawerCfg::StepTextX)
            _onDrawStepLineX(context, _getStepText(precision, step, value), from, to);
    }
    context->stroke();
}

void CoordsDrawer::_drawStepsY(const Cairo::RefPtr<Cairo::Context>& context) {
    const auto [first, last, step] = stepsY(*converter, cfg);
    const std::size_t precision = _getPrecision(step);
    for (std::int64_t i = first; i <= last; ++i) {
        const float value = static_cast<float>(i) * step;
        Zel::PointF from, to;
        _getLineY(value, from, to);
        if (cfg.flags & CoordsDrawerCfg::StepLinesY) {
            context->move_to(from.x, from.y);
            context->line_to(to.x, to.y);
        }
        if (cfg.flags & CoordsDrawerCfg::StepTextY)
            _onDrawStepLineY(context, _getStepText(precision, step, value), from, to);
    }
    context->stroke();
}

std::size_t CoordsDrawer::_getPrecision(float step) {
    return std::to_string(step).find_last_not_of('0') + 1;
}

std::string CoordsDrawer::_getStepText(std::size_t precision, float step, float value) {
    std::string text = std::to_string(value);
    if (step >= 1)
        return fitsInt(value) ? std::to_string(static_cast<int>(value)) : text.substr(0, text.size() - 7);

    // The digits behind the precision are cut and not rounded: with a round step they are zeros.
    std::size_t length = precision;
    if (value < 0)
        ++length;
    if (std::fabs(value) > 1)
        length += static_cast<std::size_t>(std::log10(std::fabs(value)));
    return text.erase(length);
}

void CoordsDrawer::_getLineX(float x, Zel::PointF& from, Zel::PointF& to) const {
    const float visualX = converter->getVisualX(x);
    from = {visualX, 0};
    to = {visualX, converter->widgetHeight};
}

void CoordsDrawer::_getLineY(float y, Zel::PointF& from, Zel::PointF& to) const {
    const float visualY = converter->getVisualY(y);
    from = {0, visualY};
    to = {converter->widgetWidth, visualY};
}

} // namespace ZelView
