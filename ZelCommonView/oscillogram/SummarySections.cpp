#include <ZelCommonView/oscillogram/SummarySections.h>

#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/plot/CoordsDrawer.h>

namespace ZelView {

SummarySections::SummarySections() {
    getToolbarGroup().addWidget(spacerLabel);
    _createDrawArea();
    show_all();
}

SummarySections::~SummarySections() = default;

float SummarySections::_getDrawAreaMinHeight() const {
    return 25;
}

bool SummarySections::_isCorrectSeries(const Zel::Series*) const {
    return false;
}

void SummarySections::_onDrawAreaCreate(SeriesGroupDrawArea& drawArea) {
    CoordsDrawerCfg coordsCfg;
    coordsCfg.flags = CoordsDrawerCfg::StepLinesX | CoordsDrawerCfg::StepTextX;
    drawArea.addDrawer(std::make_unique<CoordsDrawer>(coordsCfg), DrawerPosition::BeforeFragments);

    // A drawer builds its menu while it is added; here there is none.
    auto marker = std::make_unique<MarkerDrawer>();
    marker->getCfg().menuFlags = 0;
    drawArea.addDrawer(std::move(marker), DrawerPosition::AfterFragments);

    drawArea.addDrawer(std::make_unique<IntervalDrawer>(), DrawerPosition::End);
    drawArea.set_vexpand(false);
    summaryGrid.add(drawArea);
    summaryGrid.add(spacerLabel);
    add(summaryGrid);
}

} // namespace ZelView
