// A replay of one's own: trajectories on any plot, the clock that moves them, and what a person steers it
// with. All clocks of a program share one beat.

#include "Pages.h"

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/CounterControls.h>
#include <ZelCommonView/plot/TimeCounterManager.h>
#include <ZelCommonView/plot/TimedSeriesDrawer.h>

#include <gtkmm.h>

#include <cmath>

namespace gallery {

namespace {

constexpr unsigned long minute = 60000; // milliseconds

class Replay : public Gtk::Box {
public:
    Replay() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        plot.addDrawer(std::make_unique<ZelView::CoordsDrawer>(), ZelView::DrawerPosition::BeforeFragments);
        auto made = std::make_unique<ZelView::TimedSeriesDrawer>();
        drawer = made.get(); // the plot owns it
        plot.addDrawer(std::move(made), ZelView::DrawerPosition::AfterFragments);
        _addSpiral({0, 93, 170, 255}, 1);
        _addSpiral({192, 57, 43, 255}, -1);

        ZelView::SeriesTimeCounter& clock = drawer->getCounter();
        controls = std::make_unique<ZelView::CounterControls>(clock);
        clock.timeChanged.connect(sigc::mem_fun(*this, &Replay::_onTime));
        clock.setIsPaused(true); // it runs from the beginning otherwise
        clock.setTime(6400);
        beat.tick.connect(sigc::mem_fun(*this, &Replay::_onMinute));
        _onMinute(0);

        grid.set_column_spacing(8);
        grid.attach(controls->getRunButton(), 0, 0);
        grid.attach(speedName, 1, 0);
        grid.attach(controls->getSpeedSlider(), 2, 0);
        grid.attach(timeName, 1, 1);
        grid.attach(controls->getTimeSlider(), 2, 1);
        grid.attach(age, 0, 1);
        for (Gtk::Scale* slider : {&controls->getSpeedSlider(), &controls->getTimeSlider()})
            slider->set_hexpand();
        pack_start(grid, Gtk::PACK_SHRINK);
        pack_start(plot, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    /// Outward in ten seconds, one way round or the other.
    void _addSpiral(Zel::Color color, float direction) {
        auto series = std::make_unique<Zel::TimedSeries>();
        series->color = color;
        for (int i = 0; i <= 400; ++i) {
            const float part = static_cast<float>(i) / 400;
            const float angle = direction * 20 * part;
            series->points.push_back({{10 * part * std::cos(angle), 10 * part * std::sin(angle)},
                                      static_cast<std::uint64_t>(25 * i)});
        }
        plot.addBorderable(*series); // the axes cover it; it stays with the drawer
        drawer->addSeries(std::move(series));
    }

    void _onTime(unsigned long time) {
        timeName.set_text(words("Time, ms: ", "Время, мс: ") + std::to_string(time));
    }

    /// A beat coarser than that of the clocks; it tells how long it really took.
    void _onMinute(unsigned long milliseconds) {
        shown += milliseconds;
        age.set_text(words("Shown for, min: ", "Показано, мин: ") + std::to_string(shown / minute));
    }

    unsigned long shown = 0; ///< milliseconds
    ZelView::TimedSeriesDrawer* drawer = nullptr;
    Gtk::Grid grid;
    Gtk::Label speedName{words("Speed", "Скорость")};
    Gtk::Label timeName;
    Gtk::Label age;
    ZelView::SeriesGroupDrawArea plot;
    std::unique_ptr<ZelView::CounterControls> controls;
    ZelView::TimeCounterManager beat{minute};
};

} // namespace

std::unique_ptr<Gtk::Widget> makeReplayPage() {
    return std::make_unique<Replay>();
}

} // namespace gallery
