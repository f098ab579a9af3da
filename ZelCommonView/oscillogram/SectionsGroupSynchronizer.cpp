#include <ZelCommonView/oscillogram/SectionsGroupSynchronizer.h>

#include <ZelCommonView/oscillogram/DrawAreaSections.h>

namespace ZelView {

SectionsGroupSynchronizer::SectionsGroupSynchronizer(DrawerSynchronizerCollection drawerSynchronizers,
                                                     CoordsConverter::Offset offset)
    : drawAreaSynchronizer(std::move(drawerSynchronizers), offset) {}

SectionsGroupSynchronizer::~SectionsGroupSynchronizer() = default;

void SectionsGroupSynchronizer::setupSynchronizerFacade(SynchronizerFacade& facade) {
    drawAreaSynchronizer.setupSynchronizerFacade(facade);
}

void SectionsGroupSynchronizer::addSectionsGroup(DrawAreaSections& sections) {
    sections.setToolbarGroup(toolbarGroup);
    sections.signalDrawAreaCreated.connect(
        sigc::mem_fun(drawAreaSynchronizer, &DrawAreaSynchronizer::addDrawArea));
    // A section may have plots already.
    for (SeriesGroupDrawArea* area : sections.getDrawAreas())
        drawAreaSynchronizer.addDrawArea(*area);
}

} // namespace ZelView
