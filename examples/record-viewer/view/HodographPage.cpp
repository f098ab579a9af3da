#include "HodographPage.h"

#include "FindWidget.h"

#include <gtkmm/grid.h>

namespace viewer {

namespace {

constexpr int sliderMargin = 12; // pixels

} // namespace

HodographPage::HodographPage() {
    // The number above a slider at its end stands out to the side.
    hodograph.set_margin_start(sliderMargin);
    hodograph.set_margin_end(sliderMargin);
    _setPlane(hodograph);
    // The sliders stand below one another; the last is that of the time.
    timeSlider = dynamic_cast<Gtk::Scale*>(findWidget<Gtk::Grid>(hodograph)->get_child_at(0, 3));
    timeSlider->signal_value_changed().connect(sigc::mem_fun(*this, &HodographPage::_onTimeChanged));
    // The axes of a hodograph take in what reaches from -1 to 10 at least, which would hide small impedances.
    auto* const area = findWidget<ZelView::SeriesGroupDrawArea>(hodograph);
    area->setXBordersMode(ZelView::BordersMode::Manual);
    area->setYBordersMode(ZelView::BordersMode::Manual);
}

HodographPage::~HodographPage() = default;

void HodographPage::stopAtEnd() {
    const double end = timeSlider->get_adjustment()->get_upper();
    // What isn't moved doesn't stop the clock.
    if (timeSlider->get_value() == end)
        timeSlider->set_value(0);
    timeSlider->set_value(end);
}

void HodographPage::_showLoop() {
    const LoopView& seen = _getView();
    hodograph.deleteSeries();
    Bounds bounds = seen.bounds();
    bounds.addMargin();
    auto* const area = findWidget<ZelView::SeriesGroupDrawArea>(hodograph);
    area->setXBorders(static_cast<float>(bounds.xMin), static_cast<float>(bounds.xMax));
    area->setYBorders(static_cast<float>(bounds.yMin), static_cast<float>(bounds.yMax));
    for (const auto& [first, end] : seen.runs) {
        auto series = std::make_unique<Zel::TimedSeries>();
        series->color = {200, 0, 0, 255};
        for (std::size_t i = first; i < end; ++i) {
            const impedance::Point& point = seen.points[i];
            series->points.push_back(
                {{static_cast<float>(point.r), static_cast<float>(point.x)}, point.time - seen.start});
        }
        hodograph.addSeries(std::move(series));
    }
}

void HodographPage::_onTimeChanged() {
    signalTimeChanged.emit(static_cast<std::uint64_t>(timeSlider->get_value()));
}

} // namespace viewer
