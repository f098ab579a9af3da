#include <ZelCommonView/oscillogram/RangeSlider.h>

#include <algorithm>

namespace ZelView {

RangeSlider::RangeSlider(Glib::RefPtr<Gtk::Adjustment> givenAdjustment, float givenFactor)
    : adjustment(std::move(givenAdjustment)), stepFactor(givenFactor) {
    if (!(stepFactor > 0 && stepFactor < 1))
        throw "RangeSlider";
    adjustment->set_lower(0.0);
    adjustment->set_upper(1.0);
    _setPageSize(1.0f);
    // The adjustment may outlive the slider.
    valueChanged =
        adjustment->signal_value_changed().connect(sigc::mem_fun(*this, &RangeSlider::_onRangeChanged), true);
}

RangeSlider::~RangeSlider() {
    valueChanged.disconnect();
}

void RangeSlider::getRange(float& start, float& end) const {
    start = rangeStart;
    end = rangeEnd;
}

void RangeSlider::getRange(double& start, double& end) const {
    start = rangeStart;
    end = rangeEnd;
}

void RangeSlider::setRange(float a, float b) {
    rangeStart = a;
    rangeEnd = b;
    adjustment->set_value(a);
    adjustment->set_page_size(a + b);
}

void RangeSlider::setRange(double a, double b) {
    rangeStart = static_cast<float>(a);
    rangeEnd = static_cast<float>(b);
    adjustment->set_value(a);
    adjustment->set_page_size(b - a);
    adjustment->changed();
}

void RangeSlider::showRange(float from, float to) {
    if (!(from <= to))
        throw "showRange";
    if (disabled)
        return;
    const double upper = adjustment->get_upper();
    const double start = std::clamp<double>(from, 0, upper);
    const double end = std::clamp<double>(to, 0, upper);
    // Start and length go together, so that neither is limited by the former value of the other.
    valueChanged.block();
    adjustment->configure(start, adjustment->get_lower(), upper, adjustment->get_step_increment(),
                          adjustment->get_page_increment(), end - start);
    valueChanged.unblock();
    _report(static_cast<float>(start), static_cast<float>(end));
}

void RangeSlider::setMaxValue(float max) {
    if (max < 0)
        throw "setMaxValue";
    if (max == 0) {
        disabled = true;
        return;
    }
    if (max == adjustment->get_upper())
        return;
    disabled = false;
    adjustment->set_upper(max);
    _setPageSize(max);
}

void RangeSlider::incSize() {
    if (!disabled)
        _setPageSize(static_cast<float>((1 + stepFactor) * adjustment->get_page_size()));
}

void RangeSlider::decSize() {
    if (!disabled)
        _setPageSize(static_cast<float>((1 - stepFactor) * adjustment->get_page_size()));
}

void RangeSlider::resetSize() {
    if (!disabled)
        _setPageSize(static_cast<float>(adjustment->get_upper()));
}

void RangeSlider::_onRangeChanged() {
    if (disabled)
        return;
    const auto start = static_cast<float>(adjustment->get_value());
    const auto end = static_cast<float>(adjustment->get_value() + adjustment->get_page_size());
    // A page that was set anew without a change must not repaint every plot.
    if (start == rangeStart && end == rangeEnd)
        return;
    _report(start, end);
}

void RangeSlider::_report(float start, float end) {
    rangeStart = start;
    rangeEnd = end;
    signalRangeChanged.emit(start, end);
}

void RangeSlider::_setPageSize(float size) {
    size = std::max(0.0f, size);
    size = std::min(static_cast<float>(adjustment->get_upper()), size);
    adjustment->set_page_size(size);
    if (size + adjustment->get_value() > adjustment->get_upper())
        adjustment->set_value(adjustment->get_upper() - size);
    else
        _onRangeChanged();
}

} // namespace ZelView
