#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/DrawAreaSections.h>

#include <gtkmm/grid.h>
#include <gtkmm/label.h>

namespace ZelView {

/// The summary strip: one low plot, there from the beginning, that accepts no series and shows the time axis,
/// the vertical markers and the interval.
class ZEL_API SummarySections : public DrawAreaSections {
public:
    SummarySections();
    ~SummarySections() override;

protected:
    float _getDrawAreaMinHeight() const override;
    bool _isCorrectSeries(const Zel::Series* series) const override;
    void _onDrawAreaCreate(SeriesGroupDrawArea& drawArea) override;

private:
    /// Empty. It has the width of the toolbars of the other sections, so that the strip's plot ends where
    /// theirs end.
    Gtk::Label spacerLabel;
    Gtk::Grid summaryGrid;
};

} // namespace ZelView
