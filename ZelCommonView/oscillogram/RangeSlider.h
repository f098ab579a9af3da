#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/adjustment.h>

namespace ZelView {

/// Makes a range picker of an adjustment: its whole span is the record, its page is the visible part.
///
/// It is disabled until `setMaxValue` has given it a duration: then nothing is reported, and the buttons'
/// operations do nothing. All values are in the unit of the duration.
class ZEL_API RangeSlider {
public:
    /// The visible part has changed: its start and its end.
    sigc::signal<void, float, float> signalRangeChanged;

    /// Sets the adjustment to a span and a page of 1. `stepFactor` is the relative change for one press of a
    /// button. Throws "RangeSlider", a `const char*`, unless it is above 0 and below 1.
    RangeSlider(Glib::RefPtr<Gtk::Adjustment> adjustment, float stepFactor);
    ~RangeSlider();
    RangeSlider(const RangeSlider&) = delete;
    RangeSlider& operator=(const RangeSlider&) = delete;

    /// The range that was reported or set last; 0 and 0 at first.
    void getRange(float& start, float& end) const;
    /// The same in double precision; the values are those of single precision.
    void getRange(double& start, double& end) const;

    /// Takes `b` for the length if `a` is 0, and makes the page `a + b` long otherwise. The start is set
    /// before the length, so that the former page limits it, and a start that moves is reported with the
    /// former page. Else nothing is reported. All this is meant.
    void setRange(float a, float b);
    /// Shows what lies between `a` and `b`, with the same order and reports as the other form.
    void setRange(double a, double b);
    /// Shows exactly what lies between `from` and `to` and reports it once, also if it is shown already. What
    /// reaches beyond the duration is cut; a disabled slider does nothing. Throws "showRange", a
    /// `const char*`, unless both are numbers and `from` is not above `to`.
    void showRange(float from, float to);

    /// Sets the duration and shows the whole record. 0 disables the slider and leaves its range. The duration
    /// that is set already changes nothing, not even a disabled slider: so a first duration of exactly 1
    /// does not enable it. That is meant. Throws "setMaxValue", a `const char*`, below 0.
    void setMaxValue(float max);

    /// Shows more: the page grows by the step factor, at most to the whole record.
    void incSize();
    /// Shows less: the page shrinks by the step factor. There is no minimum.
    void decSize();
    /// Shows the whole record.
    void resetSize();

private:
    void _onRangeChanged();
    void _report(float start, float end);
    void _setPageSize(float size);

    Glib::RefPtr<Gtk::Adjustment> adjustment; ///< lower 0, upper the duration, value the start
    float stepFactor;
    float rangeStart = 0; ///< last range reported or set
    float rangeEnd = 0;
    bool disabled = true; ///< no duration is set
    sigc::connection valueChanged;
};

} // namespace ZelView
