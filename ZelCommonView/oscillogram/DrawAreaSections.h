#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>

#include <gtkmm/bin.h>

#include <list>
#include <vector>

namespace Zel {
class Series;
}

namespace ZelView {

/// A stack of plots that show one class of signal. `Series::drawAreaIndex` is the number of a signal's plot,
/// from 0 at the top.
///
/// Plots are made when they are first asked for, with all plots before them, and stay until the section dies,
/// also without signals. A section keeps the place of a signal by the signal's own fields: `type` and
/// `drawAreaIndex` must not change between adding and deleting it.
class ZEL_API DrawAreaSections : public Gtk::Bin {
public:
    /// A plot was made and has its drawers; a signal that it was made for is not on it yet.
    sigc::signal<void, SeriesGroupDrawArea&> signalDrawAreaCreated;

    DrawAreaSections();
    ~DrawAreaSections() override;

    /// Shows a series on its plot; one that the section does not accept is ignored. The series stays the
    /// caller's and must outlive its removal. One that is there already throws "addWidget", a `const char*`.
    void addSeries(const Zel::Series* series);
    /// Takes a series from its plot; one that the section does not accept is ignored. One that was never
    /// added throws `std::out_of_range`, and the plots up to its number are then made all the same.
    void deleteSeries(const Zel::Series* series);
    /// Takes all series away; the plots stay.
    void clearSeries();
    /// Asks all plots for a repaint of all their signals.
    void redrawSeries();

    /// Gives what stands right of the plots the width of others, also of those in other sections.
    void setToolbarGroup(SizeGroupAdapter& group);

    /// The group that was set last.
    SizeGroupAdapter& getToolbarGroup() { return toolbarGroup; }

    /// All plots in the order of their numbers; they stay the section's.
    std::vector<SeriesGroupDrawArea*> getDrawAreas();

protected:
    /// Height that a new plot requests, in pixels; the fraction is cut.
    virtual float _getDrawAreaMinHeight() const = 0;
    /// Whether the section shows such a series.
    virtual bool _isCorrectSeries(const Zel::Series* series) const = 0;
    /// For a new plot, before anyone else hears of it: the place to add drawers and to put it into the
    /// section. The default does nothing.
    virtual void _onDrawAreaCreate(SeriesGroupDrawArea& drawArea);
    /// After `toolbarGroup` has become another one. The default does nothing.
    virtual void _onToolbarGroupChange();

    /// The plot of this number, counted from 0; it and those before it are made where they are missing.
    SeriesGroupDrawArea& _getSeriesGroupDrawArea(unsigned long index);
    /// Makes one more plot, lets `_onDrawAreaCreate` fill it, and then emits `signalDrawAreaCreated`.
    void _createDrawArea();

private:
    std::list<SeriesGroupDrawArea> drawAreas; ///< in the order of their numbers; their addresses stay
    SizeGroupAdapter toolbarGroup;            ///< what stands right of the plots
};

} // namespace ZelView
