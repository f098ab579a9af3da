#include <ZelCommonView/oscillogram/RangeScrollbar.h>

namespace ZelView {

RangeScrollbar::RangeScrollbar() {
    toolbar.addButton("<>", [this] { slider.decSize(); });
    toolbar.addButton("><", [this] { slider.incSize(); });
    toolbar.addButton("=", [this] { slider.resetSize(); });
    slider.signalRangeChanged.connect(signalRangeChanged.make_slot());
    scrollbar.set_hexpand(true);
}

RangeScrollbar::~RangeScrollbar() = default;

void RangeScrollbar::getRange(float& start, float& end) const {
    slider.getRange(start, end);
}

void RangeScrollbar::getRange(double& start, double& end) const {
    slider.getRange(start, end);
}

void RangeScrollbar::setRange(float a, float b) {
    slider.setRange(a, b);
    slider.incSize();
}

void RangeScrollbar::setRange(double a, double b) {
    slider.setRange(a, b);
    slider.incSize();
}

void RangeScrollbar::showRange(float from, float to) {
    slider.showRange(from, to);
}

void RangeScrollbar::setMax(float max) {
    slider.setMaxValue(max);
}

} // namespace ZelView
