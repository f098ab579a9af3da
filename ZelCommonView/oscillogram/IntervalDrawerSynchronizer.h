#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/oscillogram/Synchronizer.h>

namespace ZelView {

/// Shades the same stretch of time on all plots.
class ZEL_API IntervalDrawerSynchronizer : public DrawerSynchronizer<IntervalDrawer> {
public:
    ~IntervalDrawerSynchronizer() override;

    void setupSynchronizerFacade(SynchronizerFacade& facade) override;

protected:
    /// Shows the current interval on a late plot at once.
    void _onDrawerAdd(IntervalDrawer& drawer) override;

private:
    void _changeInterval(float from, float to);

    TimeRange interval; ///< the last one received
};

} // namespace ZelView
