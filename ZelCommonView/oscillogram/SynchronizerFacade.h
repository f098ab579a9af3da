#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/SectionsGroupSynchronizer.h>
#include <ZelCommonView/oscillogram/SeriesSections.h>
#include <ZelCommonView/oscillogram/SummarySections.h>

#include <gtkmm/bin.h>
#include <gtkmm/grid.h>
#include <gtkmm/scrolledwindow.h>

namespace ZelView {

/// The middle of an oscillogram: its three sections, and the one place through which the time range and the
/// interval reach all plots. The curves and rows scroll together; the summary strip stays in view below them.
class ZEL_API SynchronizerFacade : public Gtk::Bin {
public:
    /// The visible time range, for the synchronizers.
    sigc::signal<void, float, float> signalSeriesTimeChanged;
    /// The shaded interval, for the synchronizers.
    sigc::signal<void, float, float> signalHorizontalIntervalChanged;

    SynchronizerFacade();
    ~SynchronizerFacade() override;

    /// Shows a series in the section of its type, which comes back into view if it was removed. A type that
    /// no section knows is ignored by the binary section. The series stays the caller's and must outlive its
    /// removal.
    void addSeries(const Zel::Series* series);
    /// Takes a series away, as `DrawAreaSections::deleteSeries` does. A section that has never had a plot is
    /// removed from view.
    void deleteSeries(const Zel::Series* series);
    /// Takes all series away and removes both series sections from view.
    void clearSeries();

    /// Limits of x of all plots, in world units; each call is passed on. A negative bound throws
    /// "некорректное время серий", a `const char*`, and `from` above `to` throws "setXBorders".
    void setSeriesTime(float from, float to);
    /// Shades this stretch of x on all plots; unchecked.
    void setHorizontalInterval(float from, float to);
    /// Width of the canvases in pixels; 1 before the first allocation.
    int getPixelWidth();

private:
    void _compose();
    void _attach(SeriesSections& section);
    SeriesSections& _getSection(const Zel::Series& series);

    // The synchronizers die after the sections whose plots they know.
    Gtk::ScrolledWindow scrolledWindow;
    SectionsGroupSynchronizer sectionsSynchronizer;
    AnalogSections analogSections;
    BinarySections binarySections;
    SummarySections summarySections;
    Gtk::Grid mainGrid;
    Gtk::Grid seriesGrid;
};

} // namespace ZelView
