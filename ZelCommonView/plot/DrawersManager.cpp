#include <ZelCommonView/plot/DrawersManager.h>

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/plot/Series.h>

namespace ZelView {

namespace {

/// Unlike a plain function object a slot does nothing once the object behind it has gone.
using PaintSlot = sigc::slot<void, const Cairo::RefPtr<Cairo::Context>&>;

} // namespace

DrawersManager::DrawersManager(FragmentsDrawArea& area) : fragmentsDrawArea(area) {}

DrawersManager::~DrawersManager() = default;

void DrawersManager::addDrawer(std::unique_ptr<InfoDrawer> drawer, DrawerPosition position) {
    fragmentsDrawArea.addPositionDrawer(PaintSlot(sigc::mem_fun(*drawer, &InfoDrawer::draw)), position);
    infoDrawers.push_back(std::move(drawer));
}

void DrawersManager::addDrawer(std::unique_ptr<BaseFragmentableDrawer> drawer) {
    fragmentableDrawers.push_back(std::move(drawer));
}

void DrawersManager::addFragmentable(const Zel::IFragmentable& fragmentable) {
    const auto draw = [this, &fragmentable](const Cairo::RefPtr<Cairo::Context>& context) {
        _drawFragmentable(context, fragmentable);
    };
    fragmentsDrawArea.addFragment(&fragmentable, PaintSlot(sigc::track_obj(draw, *this)));
}

void DrawersManager::deleteFragmentable(const Zel::IFragmentable& fragmentable) {
    fragmentsDrawArea.removeFragment(&fragmentable);
}

void DrawersManager::clearFragmentables() {
    fragmentsDrawArea.removeFragments();
}

std::vector<Drawer*> DrawersManager::getDrawers() const {
    std::vector<Drawer*> drawers;
    drawers.reserve(infoDrawers.size() + fragmentableDrawers.size());
    for (const auto& drawer : infoDrawers)
        drawers.push_back(drawer.get());
    for (const auto& drawer : fragmentableDrawers)
        drawers.push_back(drawer.get());
    return drawers;
}

void DrawersManager::_drawFragmentable(const Cairo::RefPtr<Cairo::Context>& context,
                                       const Zel::IFragmentable& fragmentable) {
    for (const auto& drawer : fragmentableDrawers) {
        context->save();
        drawer->drawFragmentable(context, fragmentable);
        context->restore();
    }
}

} // namespace ZelView
