// What lies over everything and is no part of a saved picture: a shaded interval and the readout that follows
// the pointer.

#include "Pages.h"

#include <ZelCommonView/markers/CursorPosDrawer.h>
#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtkmm.h>

#include <cmath>

namespace gallery {

namespace {

class Overlays : public Gtk::Box {
public:
    Overlays() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        _fillPlot();
        _addInterval();
        _addCursor();
        _initScale(from, 3);
        _initScale(to, 6);
        _onInterval();
        buttons.pack_start(showX, Gtk::PACK_SHRINK);
        buttons.pack_start(showY, Gtk::PACK_SHRINK);
        for (Gtk::CheckButton* button : {&showX, &showY}) {
            button->set_active();
            button->signal_toggled().connect(sigc::mem_fun(*this, &Overlays::_onFlags), true);
        }
        for (Gtk::Widget* widget : std::initializer_list<Gtk::Widget*>{&hint, &from, &to, &buttons})
            pack_start(*widget, Gtk::PACK_SHRINK);
        pack_start(plot, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    void _fillPlot() {
        plot.addDrawer(std::make_unique<ZelView::CoordsDrawer>(), ZelView::DrawerPosition::BeforeFragments);
        plot.addDrawer(std::make_unique<ZelView::AnalogSeriesDrawer>());
        for (int i = 0; i <= 500; ++i) {
            const float x = static_cast<float>(i) / 50;
            curve.points.push_back({x, 5 + 3 * std::sin(x) + std::sin(7 * x)});
        }
        curve.name = words("Current", "Ток");
        curve.color = {170, 120, 220, 255};
        plot.addBorderable(curve);
        plot.addFragmentable(curve);
    }

    void _addInterval() {
        auto owned = std::make_unique<ZelView::IntervalDrawer>();
        interval = owned.get(); // the plot owns it
        plot.addDrawer(std::move(owned), ZelView::DrawerPosition::End);
    }

    void _addCursor() {
        auto owned = std::make_unique<ZelView::CursorPosDrawer>();
        cursor = owned.get();
        plot.addDrawer(std::move(owned), ZelView::DrawerPosition::End);
    }

    void _initScale(Gtk::Scale& scale, double value) {
        scale.set_range(0, 10);
        scale.set_value_pos(Gtk::POS_LEFT);
        scale.set_value(value);
        scale.signal_value_changed().connect(sigc::mem_fun(*this, &Overlays::_onInterval), true);
    }

    void _onInterval() {
        interval->setHorizontalInterval(static_cast<float>(from.get_value()),
                                        static_cast<float>(to.get_value()));
    }

    void _onFlags() {
        using Cfg = ZelView::CursorPosDrawerCfg;
        cursor->getCfg().flags =
            (showX.get_active() ? Cfg::ShowX : 0u) | (showY.get_active() ? Cfg::ShowY : 0u);
    }

    Zel::Series curve;
    Gtk::Label hint{words("The edges of the interval; the readout is under the pointer",
                          "Края интервала; отсчёт следует за указателем"),
                    Gtk::ALIGN_START};
    Gtk::Scale from;
    Gtk::Scale to;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::CheckButton showX{words("x in the readout", "x в отсчёте")};
    Gtk::CheckButton showY{words("y in the readout", "y в отсчёте")};
    ZelView::SeriesGroupDrawArea plot;
    ZelView::IntervalDrawer* interval = nullptr;
    ZelView::CursorPosDrawer* cursor = nullptr;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeOverlaysPage() {
    return std::make_unique<Overlays>();
}

} // namespace gallery
