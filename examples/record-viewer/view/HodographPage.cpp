#include "HodographPage.h"

#include "Words.h"

#include <ZelCommonView/plot/SeriesTimeCounter.h>

namespace viewer {

namespace {

constexpr int sliderMargin = 12; // pixels

} // namespace

HodographPage::HodographPage() {
    lockButton.set_label(words::lockWhileReplaying());
    lockButton.set_margin_start(12);
    // It opens the lock as well.
    lockButton.get_style_context()->add_class(Zel::ReadOnlySwitchableContainer::EXEMPT_CLASS);
    lockButton.signal_toggled().connect(sigc::mem_fun(*this, &HodographPage::_updateLock), true);
    lockButton.show();
    choices.pack_start(lockButton, Gtk::PACK_SHRINK);

    // The number above a slider at its end stands out to the side.
    hodograph.set_margin_start(sliderMargin);
    hodograph.set_margin_end(sliderMargin);
    _setPlane(hodograph);
    hodograph.getCounter().timeChanged.connect(sigc::mem_fun(*this, &HodographPage::_onTimeChanged));
    hodograph.getCounter().pausedChanged.connect(
        sigc::hide(sigc::mem_fun(*this, &HodographPage::_updateLock)));
    hodograph.getCounter().maxChanged.connect(sigc::hide(sigc::mem_fun(*this, &HodographPage::_updateLock)));
    // Automatic axes reach from -1 to 10 at least, which would hide small impedances.
    hodograph.getDrawArea().setXBordersMode(ZelView::BordersMode::Manual);
    hodograph.getDrawArea().setYBordersMode(ZelView::BordersMode::Manual);
}

HodographPage::~HodographPage() = default;

void HodographPage::stopAtEnd() {
    ZelView::SeriesTimeCounter& counter = hodograph.getCounter();
    counter.setIsPaused(true);
    counter.setTime(counter.getMax());
}

void HodographPage::_showLoop() {
    const LoopView& seen = _getView();
    hodograph.deleteSeries();
    Bounds bounds = seen.bounds();
    bounds.addMargin();
    ZelView::SeriesGroupDrawArea& area = hodograph.getDrawArea();
    area.setXBorders(static_cast<float>(bounds.xMin), static_cast<float>(bounds.xMax));
    area.setYBorders(static_cast<float>(bounds.yMin), static_cast<float>(bounds.yMax));
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

void HodographPage::_onTimeChanged(unsigned long time) {
    signalTimeChanged.emit(time);
}

void HodographPage::_updateLock() {
    const ZelView::SeriesTimeCounter& counter = hodograph.getCounter();
    // Without a trajectory nothing is replayed, though the clock isn't paused.
    const bool isReplaying = !counter.getIsPaused() && counter.getMax() > 0;
    const bool shallLock = lockButton.get_active() && isReplaying;
    if (shallLock == isLocked)
        return;
    isLocked = shallLock;
    setIsLocked(isLocked);
    signalLockChanged.emit(isLocked);
}

} // namespace viewer
