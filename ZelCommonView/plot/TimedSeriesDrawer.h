/// Trajectories that are replayed in time.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/Series.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>
#include <ZelCommonView/plot/SingleTimedSeriesDrawer.h>

#include <cstdint>
#include <list>
#include <memory>

namespace ZelView {

/// Paints any number of trajectories up to the time of one clock, which it owns.
///
/// It must be made on the thread that runs the main loop, as the clock must.
class ZEL_API TimedSeriesDrawer : public InfoDrawer {
public:
    TimedSeriesDrawer();
    ~TimedSeriesDrawer() override;

    /// Takes ownership of a trajectory; its points must not change any more. It is shown from the next change
    /// of the clock on. The clock's end grows to the largest time of the points, and never shrinks here.
    ///
    /// The host must have set the draw area before: otherwise throws "getDrawArea", a `const char*`, with the
    /// trajectory stored, which then asks for no repaints. Throws "addSeries" for null and changes nothing.
    void addSeries(std::unique_ptr<Zel::TimedSeries> series);

    /// Destroys all trajectories and sets the clock's end to 0, so that it falls to 0 and stands. Asks for no
    /// repaint.
    void deleteSeries();

    /// The clock that moves the trajectories.
    SeriesTimeCounter& getCounter() { return counter; }

    /// Paints the trajectories in the order of adding, on one state of the context.
    void draw(const Cairo::RefPtr<Cairo::Context>& context) override;

private:
    void _updateMaxDuration(unsigned long duration);
    void _onConverterChanged();
    void _onTimeChanged(unsigned long time);

    std::list<SingleTimedSeriesDrawer> drawers;
    SeriesTimeCounter counter;
    std::uint64_t maxDuration = 0; ///< largest time of all points, milliseconds
};

} // namespace ZelView
