#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>
#include <ZelCommonView/oscillogram/Synchronizer.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <vector>

namespace ZelView {

class SeriesGroupDrawArea;

/// Gives all plots one time axis, equal margins, one background, and legends and canvases of equal width, and
/// lets their drawers share what drawers share. Each plot scales its own y axis to its own signals.
class ZEL_API DrawAreaSynchronizer : public Synchronizer {
public:
    /// `offset` are the margins of all plots, in pixels.
    DrawAreaSynchronizer(DrawerSynchronizerCollection drawerSynchronizers, CoordsConverter::Offset offset);
    ~DrawAreaSynchronizer() override;

    void setupSynchronizerFacade(SynchronizerFacade& facade) override;

    /// Takes a plot with its drawers, and those that are added to it later, into step.
    void addDrawArea(SeriesGroupDrawArea& area);

private:
    /// Shows the range on all plots. A negative bound throws "некорректное время серий", a `const char*`, and
    /// changes nothing. One with `from` above `to` throws "setXBorders" at the first plot; it is kept
    /// nevertheless, and this is meant.
    void _changeSeriesInterval(float from, float to);

    DrawerSynchronizerCollection drawerSynchronizers;
    CoordsConverter::Offset offset;
    std::vector<SeriesGroupDrawArea*> drawAreas;  ///< not owned
    TimeRange seriesTime;                         ///< current limits of x
    SizeGroupAdapter fragmentableGroup;           ///< rows of the legends
    SizeGroupAdapter fragmentableCollectionGroup; ///< legends
    SizeGroupAdapter drawAreaGroup;               ///< canvases
};

} // namespace ZelView
