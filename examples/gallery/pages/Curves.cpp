// What paints signals: curves over a grid whose parts can be switched, and rows of on and off below.

#include "Pages.h"

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtkmm.h>

#include <array>
#include <cmath>

namespace gallery {

namespace {

using ZelView::CoordsDrawerCfg;

/// The configuration of a grid is fixed at its construction; a derived class may change it later.
class SwitchableGrid : public ZelView::CoordsDrawer {
public:
    void setFlag(std::uint32_t flag, bool isSet) {
        cfg.flags = isSet ? cfg.flags | flag : cfg.flags & ~flag;
        getDrawArea().queue_draw();
    }
};

struct FlagButton {
    std::uint32_t flag;
    Gtk::CheckButton button;

    FlagButton(std::uint32_t value, const char* label) : flag(value), button(label) { button.set_active(); }
};

class Curves : public Gtk::Box {
public:
    Curves() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        _fillCurves();
        _fillRows();
        for (FlagButton& flag : flags) {
            flag.button.signal_toggled().connect(
                sigc::bind(sigc::mem_fun(*this, &Curves::_onToggled), sigc::ref(flag)), true);
            buttons.pack_start(flag.button, Gtk::PACK_SHRINK);
        }
        // Legends of one width put the same moment of both plots into one column.
        for (ZelView::SeriesGroupDrawArea* plot : {&curvesPlot, &rowsPlot}) {
            plot->setFragmentableCollectionGroup(legends);
            plot->setFragmentableGroup(legendRows);
        }
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(curvesPlot, Gtk::PACK_EXPAND_WIDGET);
        rowsPlot.set_size_request(-1, 80);
        rowsPlot.set_vexpand(false);
        pack_start(rowsPlot, Gtk::PACK_SHRINK);
    }

private:
    void _fillCurves() {
        auto owned = std::make_unique<SwitchableGrid>();
        grid = owned.get(); // the plot owns it
        curvesPlot.addDrawer(std::move(owned), ZelView::DrawerPosition::BeforeFragments);
        curvesPlot.addDrawer(std::make_unique<ZelView::AnalogSeriesDrawer>());
        for (int i = 0; i <= 500; ++i) {
            const float x = static_cast<float>(i) / 50;
            curve.points.push_back({x, 4 + 4 * std::sin(2 * x)});
        }
        curve.name = words("Sine", "Синус");
        curve.color = {240, 140, 60, 255};
        curve.thickness = 2;
        curvesPlot.addBorderable(curve);
        curvesPlot.addFragmentable(curve);
    }

    void _fillRows() {
        rowsPlot.addDrawer(std::make_unique<ZelView::BinarySeriesDrawer>());
        rowsPlot.setOffset({0, 0, 16, 0}); // room above the first row
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i].type = Zel::SeriesType::Binary;
            rows[i].index = i;
            rows[i].name = words("Input ", "Вход ") + std::to_string(i + 1);
            rows[i].color = {80, 190, 120, 255};
            const float on = 2 + static_cast<float>(i);
            rows[i].points = {{0, 0}, {on, 1}, {on + 3, 0}, {10, 0}};
            rowsPlot.addBorderable(rows[i]);
            rowsPlot.addFragmentable(rows[i]);
        }
    }

    void _onToggled(FlagButton& flag) { grid->setFlag(flag.flag, flag.button.get_active()); }

    Zel::Series curve;
    std::array<Zel::Series, 3> rows;
    std::array<FlagButton, 6> flags{{{CoordsDrawerCfg::AxisX, words("x axis", "ось x")},
                                     {CoordsDrawerCfg::AxisY, words("y axis", "ось y")},
                                     {CoordsDrawerCfg::StepLinesX, words("lines of x", "линии x")},
                                     {CoordsDrawerCfg::StepLinesY, words("lines of y", "линии y")},
                                     {CoordsDrawerCfg::StepTextX, words("numbers of x", "числа x")},
                                     {CoordsDrawerCfg::StepTextY, words("numbers of y", "числа y")}}};
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    ZelView::SizeGroupAdapter legends;
    ZelView::SizeGroupAdapter legendRows;
    ZelView::SeriesGroupDrawArea curvesPlot;
    ZelView::SeriesGroupDrawArea rowsPlot;
    SwitchableGrid* grid = nullptr;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeCurvesPage() {
    return std::make_unique<Curves>();
}

} // namespace gallery
