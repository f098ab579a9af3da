#include <ZelCommonView/diagrams/ScrolledWindowAdjustments.h>

#include <algorithm>
#include <cmath>

namespace ZelView {

namespace {

using Adjustment = Glib::RefPtr<Gtk::Adjustment>;

constexpr float middle = 0.5f;

/// A place of the viewport, in pixels, as a part of the viewport's size; 0 as long as it has none.
float toProgress(const Adjustment& adjustment, float place) {
    const double page = adjustment->get_page_size();
    return page > 0 ? static_cast<float>(place / page) : 0;
}

/// The point of the content that is seen at a place of the viewport, in pixels, as a part of the content's
/// size; `progress` as long as it has none.
float toAnchor(const Adjustment& adjustment, double place, float progress) {
    const double upper = adjustment->get_upper();
    return upper > 0 ? static_cast<float>((place + adjustment->get_value()) / upper) : progress;
}

std::pair<double, double> getSizes(const Adjustment& adjustment) {
    return {adjustment->get_upper(), adjustment->get_page_size()};
}

double getMiddle(const Adjustment& adjustment) {
    return middle * adjustment->get_page_size();
}

/// The value that shows the anchored point where it belongs.
double toValue(const Adjustment& adjustment, float anchor, float progress) {
    return anchor * adjustment->get_upper() - progress * adjustment->get_page_size();
}

/// Whether the anchored point isn't seen where it belongs, although the content reaches far enough.
bool isAstray(const Adjustment& adjustment, float anchor, float progress) {
    constexpr double visible = 0.5; // pixels; more than what the rounding of the anchor makes
    const double lower = adjustment->get_lower();
    const double last = std::max(lower, adjustment->get_upper() - adjustment->get_page_size());
    const double value = std::clamp(toValue(adjustment, anchor, progress), lower, last);
    return std::abs(value - adjustment->get_value()) >= visible;
}

} // namespace

ScrolledWindowAdjustments::ScrolledWindowAdjustments(Glib::RefPtr<Gtk::Adjustment> horizontal,
                                                     Glib::RefPtr<Gtk::Adjustment> vertical)
    : hAdjustment(std::move(horizontal)), vAdjustment(std::move(vertical)) {
    settle();
}

ScrolledWindowAdjustments::~ScrolledWindowAdjustments() = default;

int ScrolledWindowAdjustments::getWidthBefore() const {
    return static_cast<int>(hAdjustment->get_value());
}

int ScrolledWindowAdjustments::getHeightBefore() const {
    return static_cast<int>(vAdjustment->get_value());
}

int ScrolledWindowAdjustments::getWidthCurrent() const {
    return static_cast<int>(hAdjustment->get_page_size());
}

int ScrolledWindowAdjustments::getHeightCurrent() const {
    return static_cast<int>(vAdjustment->get_page_size());
}

int ScrolledWindowAdjustments::getWidthAfter() const {
    return getWidthTotal() - getWidthCurrent() - getWidthBefore();
}

int ScrolledWindowAdjustments::getHeightAfter() const {
    return getHeightTotal() - getHeightCurrent() - getHeightBefore();
}

int ScrolledWindowAdjustments::getWidthTotal() const {
    return static_cast<int>(hAdjustment->get_upper());
}

int ScrolledWindowAdjustments::getHeightTotal() const {
    return static_cast<int>(vAdjustment->get_upper());
}

void ScrolledWindowAdjustments::setProgress(float x, float y) {
    progressX = toProgress(hAdjustment, x);
    progressY = toProgress(vAdjustment, y);
    anchorX = toAnchor(hAdjustment, x, progressX);
    anchorY = toAnchor(vAdjustment, y, progressY);
}

void ScrolledWindowAdjustments::setProgressCenter() {
    _anchorMiddle(0, 0);
}

void ScrolledWindowAdjustments::refresh() {
    hAdjustment->set_value(toValue(hAdjustment, anchorX, progressX));
    vAdjustment->set_value(toValue(vAdjustment, anchorY, progressY));
}

void ScrolledWindowAdjustments::move(float dx, float dy) {
    _anchorMiddle(dx * speed, dy * speed);
    refresh();
}

void ScrolledWindowAdjustments::followX() {
    if (hSizes == getSizes(hAdjustment) && isAstray(hAdjustment, anchorX, progressX)) {
        progressX = middle;
        anchorX = toAnchor(hAdjustment, getMiddle(hAdjustment), middle);
    }
}

void ScrolledWindowAdjustments::followY() {
    if (vSizes == getSizes(vAdjustment) && isAstray(vAdjustment, anchorY, progressY)) {
        progressY = middle;
        anchorY = toAnchor(vAdjustment, getMiddle(vAdjustment), middle);
    }
}

void ScrolledWindowAdjustments::settle() {
    hSizes = getSizes(hAdjustment);
    vSizes = getSizes(vAdjustment);
}

void ScrolledWindowAdjustments::_anchorMiddle(float dx, float dy) {
    progressX = progressY = middle;
    anchorX = toAnchor(hAdjustment, dx + getMiddle(hAdjustment), middle);
    anchorY = toAnchor(vAdjustment, dy + getMiddle(vAdjustment), middle);
}

} // namespace ZelView
