#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/ZoomableScrolledWindow.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CounterControls.h>
#include <ZelCommonView/plot/Series.h>

#include <gtkmm/bin.h>
#include <gtkmm/grid.h>

#include <memory>
#include <vector>

namespace ZelView {

class TimedSeriesDrawer;

/// Trajectories in the plane that unfold in time, with a button and two sliders to replay them below. One
/// unit is equally long on both axes, and the axes cover all trajectories. The wheel zooms from 100 to 500
/// percent about the pointer, the left button drags the plane.
///
/// It is shown when it is made, and the replay runs as soon as there is a trajectory.
class ZEL_API Hodograph : public Gtk::Bin {
public:
    Hodograph();
    ~Hodograph() override;

    /// Takes ownership of a trajectory, whose points must not change any more. The time goes on up to the
    /// largest one of all trajectories and then begins anew. Throws "addSeries", a `const char*`, for null.
    void addSeries(std::unique_ptr<Zel::TimedSeries> series);
    /// Deletes all trajectories; the time stands at 0.
    void deleteSeries();

private:
    void _initDrawArea();
    void _initDrawers();
    void _compose();

    // The controls outlive the clock that they steer, which goes with the draw area.
    TimedSeriesDrawer* timedSeriesDrawer = nullptr; ///< owned by the draw area
    std::vector<Zel::TimedSeries*> series;          ///< owned by the drawer
    std::unique_ptr<CounterControls> counterControls;
    Gtk::Grid grid;
    SeriesGroupDrawArea drawArea;
    ZoomableScrolledWindow scrolled;
};

} // namespace ZelView
