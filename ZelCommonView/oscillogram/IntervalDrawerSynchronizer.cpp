#include <ZelCommonView/oscillogram/IntervalDrawerSynchronizer.h>

#include <ZelCommonView/oscillogram/SynchronizerFacade.h>

namespace ZelView {

IntervalDrawerSynchronizer::~IntervalDrawerSynchronizer() = default;

void IntervalDrawerSynchronizer::setupSynchronizerFacade(SynchronizerFacade& facade) {
    facade.signalHorizontalIntervalChanged.connect(
        sigc::mem_fun(*this, &IntervalDrawerSynchronizer::_changeInterval));
}

void IntervalDrawerSynchronizer::_onDrawerAdd(IntervalDrawer& drawer) {
    drawer.setHorizontalInterval(interval.from, interval.to);
}

void IntervalDrawerSynchronizer::_changeInterval(float from, float to) {
    interval = {from, to};
    for (IntervalDrawer* drawer : drawers)
        drawer->setHorizontalInterval(from, to);
}

} // namespace ZelView
