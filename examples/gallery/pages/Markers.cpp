// Markers that a person places by the menu of the right button, and one that the application has placed. The
// vertical ones of the upper plot are seen on the lower one too.

#include "Pages.h"

#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtkmm.h>

#include <cmath>
#include <list>

namespace gallery {

namespace {

/// Shows a horizontal marker at a world level. It is no handle for the pointer.
class Threshold : public ZelView::InfoDrawer {
public:
    void draw(const Cairo::RefPtr<Cairo::Context>& context) override {
        marker.setConverter(*converter);
        // A marker takes its place in pixels, which are known once there is something to paint on.
        if (!isPlaced)
            marker.fixPoint({converter->getCenterVisualX(), converter->getVisualY(2)});
        isPlaced = true;
        marker.drawAsNormal(context);
    }

private:
    const ZelView::MarkerDrawerCfg cfg{};
    ZelView::SingleMarker marker{cfg, ZelView::Orientation::Horizontal};
    bool isPlaced = false;
};

class Markers : public Gtk::Box {
public:
    Markers() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        ZelView::MarkerDrawer& upperMarkers = _fill(upper, upperCurve, {240, 140, 60, 255});
        ZelView::MarkerDrawer& lowerMarkers = _fill(lower, lowerCurve, {90, 160, 230, 255});
        upper.addDrawer(std::make_unique<Threshold>(), ZelView::DrawerPosition::AfterFragments);

        upperMarkers.markerAdded.connect(sigc::mem_fun(*this, &Markers::_onAdded));
        upperMarkers.markerRemoved.connect(sigc::mem_fun(*this, &Markers::_onRemoved));
        upperMarkers.markerChanged.connect(sigc::mem_fun(lower, &Gtk::Widget::queue_draw));
        lowerMarkers.setGlobalMarkersSource(verticals);

        pack_start(hint, Gtk::PACK_SHRINK);
        pack_start(upper, Gtk::PACK_EXPAND_WIDGET);
        pack_start(lower, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    ZelView::MarkerDrawer& _fill(ZelView::SeriesGroupDrawArea& plot, Zel::Series& curve, Zel::Color color) {
        plot.addDrawer(std::make_unique<ZelView::CoordsDrawer>(), ZelView::DrawerPosition::BeforeFragments);
        plot.addDrawer(std::make_unique<ZelView::AnalogSeriesDrawer>());
        auto drawer = std::make_unique<ZelView::MarkerDrawer>();
        ZelView::MarkerDrawer& markers = *drawer;
        plot.addDrawer(std::move(drawer), ZelView::DrawerPosition::AfterFragments);

        for (int i = 0; i <= 500; ++i) {
            const float x = static_cast<float>(i) / 50;
            curve.points.push_back({x, 8 * std::exp(-x / 4) * std::fabs(std::cos(2 * x))});
        }
        curve.color = color;
        curve.name = &plot == &upper ? words("Voltage", "Напряжение") : words("Current", "Ток");
        // Legends of one width put the same moment of both plots into one column.
        plot.setFragmentableCollectionGroup(legends);
        plot.setFragmentableGroup(legendRows);
        plot.addBorderable(curve);
        plot.addFragmentable(curve);
        return markers;
    }

    void _onAdded(ZelView::Marker& marker) {
        if (marker.getOrientation() == ZelView::Orientation::Vertical)
            verticals.push_back(&marker);
    }

    void _onRemoved(ZelView::Marker& marker) {
        verticals.remove(&marker);
        lower.queue_draw();
    }

    Zel::Series upperCurve;
    Zel::Series lowerCurve;
    std::list<const ZelView::Marker*> verticals;
    Gtk::Label hint{words("Right button: menu. Left button on a label: move the marker.",
                          "Правая кнопка: меню. Левая кнопка на подписи: перемещение маркера."),
                    Gtk::ALIGN_START};
    ZelView::SizeGroupAdapter legends;
    ZelView::SizeGroupAdapter legendRows;
    ZelView::SeriesGroupDrawArea upper;
    ZelView::SeriesGroupDrawArea lower;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeMarkersPage() {
    return std::make_unique<Markers>();
}

} // namespace gallery
