// The navigation of a record: a scrollbar whose thumb is the visible part, three buttons, and a plot that
// shows what they report.

#include "Pages.h"

#include <ZelCommonView/oscillogram/RangeScrollbar.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtkmm.h>

#include <cmath>
#include <iomanip>

namespace gallery {

namespace {

constexpr float duration = 20; // seconds

class Range : public Gtk::Box {
public:
    Range() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        plot.addDrawer(std::make_unique<ZelView::CoordsDrawer>(), ZelView::DrawerPosition::BeforeFragments);
        plot.addDrawer(std::make_unique<ZelView::AnalogSeriesDrawer>());
        for (int i = 0; i <= 2000; ++i) {
            const float x = duration * static_cast<float>(i) / 2000;
            curve.points.push_back({x, std::sin(x * x / 2)});
        }
        curve.name = words("Chirp", "Сигнал");
        curve.color = {60, 180, 170, 255};
        plot.setXBordersMode(ZelView::BordersMode::Manual);
        plot.setYBordersMode(ZelView::BordersMode::Manual);
        plot.setYBorders(-1.2f, 1.2f);
        plot.addFragmentable(curve);

        // Connected before there is a duration, so that its first report shows the whole record.
        navigation.signalRangeChanged.connect(sigc::mem_fun(*this, &Range::_onRangeChanged));
        navigation.setMax(duration);

        pack_start(plot, Gtk::PACK_EXPAND_WIDGET);
        row.pack_start(navigation.getToolbarWidget(), Gtk::PACK_SHRINK);
        row.pack_start(navigation.getScrollWidget(), Gtk::PACK_EXPAND_WIDGET);
        pack_start(row, Gtk::PACK_SHRINK);
        pack_start(report, Gtk::PACK_SHRINK);
    }

private:
    void _onRangeChanged(float start, float end) {
        plot.setXBorders(start, end);
        report.set_text(Glib::ustring::compose(words("From %1 s to %2 s", "От %1 с до %2 с"),
                                               Glib::ustring::format(std::fixed, std::setprecision(2), start),
                                               Glib::ustring::format(std::fixed, std::setprecision(2), end)));
    }

    Zel::Series curve;
    ZelView::SeriesGroupDrawArea plot;
    ZelView::RangeScrollbar navigation;
    Gtk::Box row{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Label report;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeRangePage() {
    return std::make_unique<Range>();
}

} // namespace gallery
