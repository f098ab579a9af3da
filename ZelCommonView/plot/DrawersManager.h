#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Drawer.h>

#include <memory>
#include <vector>

namespace ZelView {

class FragmentsDrawArea;

/// Owns the drawers of one draw area and registers them with its canvas, which fixes the order of painting.
///
/// What the canvas holds of the drawers falls silent with them, so the manager may go before the canvas.
class ZEL_API DrawersManager : public sigc::trackable {
public:
    /// The canvas stays the caller's and must outlive the last call.
    explicit DrawersManager(FragmentsDrawArea& fragmentsDrawArea);
    ~DrawersManager();
    DrawersManager(const DrawersManager&) = delete;
    DrawersManager& operator=(const DrawersManager&) = delete;

    /// Gives the layer to the canvas and takes ownership of its drawer.
    void addDrawer(std::unique_ptr<InfoDrawer> drawer, DrawerPosition position);
    /// Takes ownership. The order of adding is the order of painting within a fragment.
    void addDrawer(std::unique_ptr<BaseFragmentableDrawer> drawer);

    /// Adds a fragment to the canvas under the object's address; adding it again replaces it there. It stays
    /// the caller's and must outlive its removal.
    void addFragmentable(const Zel::IFragmentable& fragmentable);
    /// Removes the object's fragment; an unknown one is no error.
    void deleteFragmentable(const Zel::IFragmentable& fragmentable);
    /// Removes the fragments of all objects.
    void clearFragmentables();

    /// All layers, then all drawers of fragments, each in the order of adding. They stay the manager's.
    std::vector<Drawer*> getDrawers() const;

private:
    void _drawFragmentable(const Cairo::RefPtr<Cairo::Context>& context,
                           const Zel::IFragmentable& fragmentable);

    FragmentsDrawArea& fragmentsDrawArea;
    std::vector<std::unique_ptr<InfoDrawer>> infoDrawers;
    std::vector<std::unique_ptr<BaseFragmentableDrawer>> fragmentableDrawers;
};

} // namespace ZelView
