#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/oscillogram/Synchronizer.h>

#include <list>

namespace ZelView {

class Marker;

/// Shows a vertical marker, which stands at a moment, on all plots. A horizontal one, which stands at a
/// level, stays on the plot where it was made.
class ZEL_API MarkerDrawerSynchronizer : public DrawerSynchronizer<MarkerDrawer> {
public:
    ~MarkerDrawerSynchronizer() override;

protected:
    /// Gives the drawer, which must be set up, the list of shared markers and listens to it.
    void _onDrawerAdd(MarkerDrawer& drawer) override;

private:
    void _onMarkerAdded(Marker& marker);
    void _onMarkerRemoved(Marker& marker);
    /// Throws "getDrawArea", a `const char*`, at a drawer without a draw area.
    void _redrawAllDrawAreas();

    std::list<const Marker*> globalMarkers; ///< every marker drawer reads this list; not owned
};

} // namespace ZelView
