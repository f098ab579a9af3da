#include <ZelCommonView/oscillogram/Synchronizer.h>

namespace ZelView {

Synchronizer::~Synchronizer() = default;

void Synchronizer::setupSynchronizerFacade(SynchronizerFacade&) {}

BaseDrawerSynchronizer::~BaseDrawerSynchronizer() = default;

DrawerSynchronizerCollection::DrawerSynchronizerCollection() = default;

DrawerSynchronizerCollection::~DrawerSynchronizerCollection() = default;

DrawerSynchronizerCollection::DrawerSynchronizerCollection(DrawerSynchronizerCollection&&) noexcept = default;

DrawerSynchronizerCollection&
DrawerSynchronizerCollection::operator=(DrawerSynchronizerCollection&&) noexcept = default;

void DrawerSynchronizerCollection::addDrawer(Drawer& drawer) {
    for (const auto& synchronizer : synchronizers)
        synchronizer->addDrawer(drawer);
}

} // namespace ZelView
