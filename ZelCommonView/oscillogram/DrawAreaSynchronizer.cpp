#include <ZelCommonView/oscillogram/DrawAreaSynchronizer.h>

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/oscillogram/SynchronizerFacade.h>

namespace ZelView {

DrawAreaSynchronizer::DrawAreaSynchronizer(DrawerSynchronizerCollection givenSynchronizers,
                                           CoordsConverter::Offset givenOffset)
    : drawerSynchronizers(std::move(givenSynchronizers)), offset(givenOffset) {}

DrawAreaSynchronizer::~DrawAreaSynchronizer() = default;

void DrawAreaSynchronizer::setupSynchronizerFacade(SynchronizerFacade& facade) {
    facade.signalSeriesTimeChanged.connect(
        sigc::mem_fun(*this, &DrawAreaSynchronizer::_changeSeriesInterval));
    for (const auto& synchronizer : drawerSynchronizers.synchronizers)
        synchronizer->setupSynchronizerFacade(facade);
}

void DrawAreaSynchronizer::addDrawArea(SeriesGroupDrawArea& area) {
    area.setXBordersMode(BordersMode::Manual);
    area.setYBordersMode(BordersMode::Auto);
    // A range that the other plots have refused must not keep this one from joining them: it would be out of
    // step for good.
    if (!(seriesTime.from > seriesTime.to))
        area.setXBorders(seriesTime.from, seriesTime.to);
    area.setCoordsConvertMode(CoordsConvertMode::Stretchable);
    area.setOffset(offset);
    area.setBackgroundColor({211, 211, 211, 255});
    area.setFragmentableGroup(fragmentableGroup);
    area.setFragmentableCollectionGroup(fragmentableCollectionGroup);
    area.setDrawAreaGroup(drawAreaGroup);
    drawAreas.push_back(&area);

    const auto addDrawer = [this](Drawer& drawer) { drawerSynchronizers.addDrawer(drawer); };
    area.signalDrawerAdded.connect(sigc::track_obj(addDrawer, *this));
    for (Drawer* drawer : area.getDrawers())
        drawerSynchronizers.addDrawer(*drawer);
}

void DrawAreaSynchronizer::_changeSeriesInterval(float from, float to) {
    if (from < 0 || to < 0)
        throw "некорректное время серий";
    seriesTime = {from, to};
    for (SeriesGroupDrawArea* area : drawAreas)
        area->setXBorders(from, to);
}

} // namespace ZelView
