#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/ButtonsToolbar.h>
#include <ZelCommonView/oscillogram/RangeSlider.h>

#include <gtkmm/scrollbar.h>

namespace ZelView {

/// The navigation of an oscillogram: a scrollbar whose thumb is the visible part of the record, and a toolbar
/// that makes this part shorter ("<>"), longer ("><") or the whole record ("="). The owner places both.
class ZEL_API RangeScrollbar {
public:
    /// The visible part has changed: its start and its end, in the unit of the duration.
    sigc::signal<void, float, float> signalRangeChanged;

    RangeScrollbar();
    ~RangeScrollbar();
    RangeScrollbar(const RangeScrollbar&) = delete;
    RangeScrollbar& operator=(const RangeScrollbar&) = delete;

    /// The range that was reported or set last; 0 and 0 at first.
    void getRange(float& start, float& end) const;
    /// The same in double precision; the values are those of single precision.
    void getRange(double& start, double& end) const;

    /// Sets the range as `RangeSlider::setRange` does and then makes the page a tenth longer, which reports
    /// it: a caller reads back more than it has set, and may hear of two changes. That is meant.
    void setRange(float a, float b);
    /// Does the same with the other form of `RangeSlider::setRange`.
    void setRange(double a, double b);
    /// Shows exactly this range and reports it once, as `RangeSlider::showRange` does.
    void showRange(float from, float to);

    /// Sets the duration of the record, as `RangeSlider::setMaxValue` does. Throws "setMaxValue", a
    /// `const char*`, below 0.
    void setMax(float max);

    /// The scrollbar; it stays this object's.
    Gtk::Scrollbar& getScrollWidget() { return scrollbar; }

    /// The three buttons; they stay this object's.
    ButtonsToolbar& getToolbarWidget() { return toolbar; }

private:
    Gtk::Scrollbar scrollbar;
    RangeSlider slider{scrollbar.get_adjustment(), 0.1f};
    ButtonsToolbar toolbar{true};
};

} // namespace ZelView
