#include <ZelCommonView/oscillogram/MarkerDrawerSynchronizer.h>

#include <gtkmm/widget.h>

namespace ZelView {

MarkerDrawerSynchronizer::~MarkerDrawerSynchronizer() = default;

void MarkerDrawerSynchronizer::_onDrawerAdd(MarkerDrawer& drawer) {
    drawer.setGlobalMarkersSource(globalMarkers);
    drawer.markerChanged.connect(sigc::mem_fun(*this, &MarkerDrawerSynchronizer::_redrawAllDrawAreas));
    drawer.markerAdded.connect(sigc::mem_fun(*this, &MarkerDrawerSynchronizer::_onMarkerAdded));
    drawer.markerRemoved.connect(sigc::mem_fun(*this, &MarkerDrawerSynchronizer::_onMarkerRemoved));
}

void MarkerDrawerSynchronizer::_onMarkerAdded(Marker& marker) {
    if (marker.getOrientation() == Orientation::Vertical)
        globalMarkers.push_back(&marker);
    _redrawAllDrawAreas();
}

void MarkerDrawerSynchronizer::_onMarkerRemoved(Marker& marker) {
    if (marker.getOrientation() == Orientation::Vertical)
        globalMarkers.remove(&marker);
    _redrawAllDrawAreas();
}

void MarkerDrawerSynchronizer::_redrawAllDrawAreas() {
    for (MarkerDrawer* drawer : drawers)
        drawer->getDrawArea().queue_draw();
}

} // namespace ZelView
