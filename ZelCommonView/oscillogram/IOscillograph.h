#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <sigc++/sigc++.h>

namespace Zel {
class Series;
}

namespace ZelView {

/// An oscillogram as a view. Times are in the unit of the series' x.
class ZEL_API IOscillograph : public Zel::IView {
public:
    /// The user, or a call, changed the visible range: its start and its end. The plots show it already.
    sigc::signal<void, float, float> signalSeriesRangeChanged;
    /// The plots have another width, in pixels. The first width is not reported.
    sigc::signal<void, int> signalPixelWidthChanged;
    /// `isActive` has changed.
    sigc::signal<void, bool> signalActiveChanged;

    IOscillograph();
    ~IOscillograph() override;

    /// The visible range; 0 and 0 before the duration is set.
    virtual void getSeriesRange(float& from, float& to) = 0;
    /// The same, widened.
    virtual void getSeriesRange(double& from, double& to) = 0;
    /// Sets the visible range by the rules of `RangeScrollbar::setRange`: what is shown then is longer than
    /// what was asked for, and the two forms differ. That is meant.
    virtual void setSeriesRange(float from, float to) = 0;
    /// The other form.
    virtual void setSeriesRange(double from, double to) = 0;
    /// Width of the plots in pixels; 1 before the first allocation.
    virtual int getPixelWidth() = 0;

    /// Shows a series: `type` chooses the section, `drawAreaIndex` the plot in it. It stays the caller's,
    /// must not move and must outlive its removal. One that is there already throws "addWidget", a
    /// `const char*`; a type that isn't known is ignored.
    virtual void addSeries(const Zel::Series* series) = 0;
    /// Takes a series away; one that was never added throws `std::out_of_range`. Its type and plot must be
    /// those it was added with.
    virtual void deleteSeries(const Zel::Series* series) = 0;
    /// Takes all series away. The plots stay, and come back into view with the next series of their type.
    virtual void clearSeries() = 0;

    /// Duration of the record; shows all of it. 0 disables the navigation and leaves the range. The duration
    /// that is set already changes nothing, nor does a first one of exactly 1; that is meant. Below 0 throws
    /// "некорректная длительность серий", a `const char*`.
    virtual void setSeriesDuration(float duration) = 0;
    /// Shades a stretch of time on all plots, in the unit of the series' x; either bound may be the earlier
    /// one. Equal bounds, as at first, show nothing.
    virtual void setHorizontalInterval(float from, float to) = 0;
    /// Whether the check button is set; it is from the beginning.
    virtual bool isActive() = 0;
    /// Shows the widget and all in it.
    virtual void showAll() = 0;
};

} // namespace ZelView
