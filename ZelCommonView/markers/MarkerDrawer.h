#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/markers/Marker.h>
#include <ZelCommonView/markers/MarkerDrawerCfg.h>
#include <ZelCommonView/plot/Drawer.h>

#include <gdk/gdk.h>

#include <list>
#include <memory>

namespace ZelView {

class ContextMenuAdapter;
class MarkersManager;

/// Connects the markers of a draw area to its widget: the mouse, the context menu, the export of the picture.
/// A host adds it after the fragments, so that markers lie over the curves and are part of the exported
/// picture.
class ZEL_API MarkerDrawer : public InfoDrawer {
public:
    /// Something visible changed.
    sigc::signal<void> markerChanged;
    /// A marker was created.
    sigc::signal<void, Marker&> markerAdded;
    /// A marker is about to be deleted.
    sigc::signal<void, Marker&> markerRemoved;

    /// Copies the configuration.
    explicit MarkerDrawer(const MarkerDrawerCfg& cfg = MarkerDrawerCfg());
    ~MarkerDrawer() override;

    /// For the host to adjust before the drawer is initialised; the menu is built then and stays as it is.
    MarkerDrawerCfg& getCfg();
    /// Markers of other areas that are shown here too; the list stays the caller's and must outlive the
    /// drawer. Only after the drawer was initialised.
    void setGlobalMarkersSource(const std::list<const Marker*>& source);

    /// Needs a converter. Throws "getDrawArea", a `const char*`, without a draw area.
    void initDrawArea() override;
    void draw(const Cairo::RefPtr<Cairo::Context>& context) override;

private:
    void _initMarkers();
    void _initMenu();
    void _initDrawAreaEvents();
    void _setConverter();
    void _onChanged();
    void _createMarker(Orientation orientation, MarkerType type);
    bool _onButtonPress(GdkEventButton* event);
    bool _onButtonRelease(GdkEventButton* event);
    bool _onMotion(GdkEventMotion* event);
    void _exportToPng();

    MarkerDrawerCfg cfg;
    std::unique_ptr<ContextMenuAdapter> contextMenu;
    std::unique_ptr<MarkersManager> manager;
    Zel::PointF lastRightClick; ///< pixels
};

} // namespace ZelView
