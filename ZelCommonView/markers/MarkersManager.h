#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/markers/Marker.h>
#include <ZelCommonView/plot/Series.h>

#include <cairomm/context.h>
#include <sigc++/sigc++.h>

#include <list>
#include <memory>

namespace ZelView {

class CoordsConverter;
struct MarkerDrawerCfg;

/// Owns the markers of one draw area and knows which one is being created or dragged. Pixels are those of the
/// area.
///
/// A click waits for the next paint, since the size of a label needs a cairo context.
class ZEL_API MarkersManager : public sigc::trackable {
public:
    /// Something visible changed.
    sigc::signal<void> changed;
    /// A marker was created; its first point has its place already.
    sigc::signal<void, Marker&> markerAdded;
    /// A marker is about to be deleted.
    sigc::signal<void, Marker&> markerRemoved;

    /// The configuration must outlive the manager.
    explicit MarkersManager(const MarkerDrawerCfg& cfg);
    ~MarkersManager();
    MarkersManager(const MarkersManager&) = delete;
    MarkersManager& operator=(const MarkersManager&) = delete;

    /// Passed on to all markers, those to come included.
    void setConverter(const CoordsConverter& converter);
    /// Markers of other areas that are shown here too; the list stays the caller's and must outlive the
    /// manager.
    void setGlobalMarkersSource(const std::list<const Marker*>& source);

    /// Paints all markers in the order of creation, what is being created and then what is dragged on top. A
    /// waiting click selects the first label that it hits.
    void draw(const Cairo::RefPtr<Cairo::Context>& context);

    /// Fixes a point of the marker that is being created; without one, waits for the next paint and emits
    /// `changed`.
    void click(Zel::PointF pixel);
    /// Starts a marker at the pixel; ignored while another one is being created. A single marker is finished
    /// at once, the second point of a double one follows the pointer until the next click. Emits
    /// `markerAdded`.
    void createMarker(Orientation orientation, MarkerType type, Zel::PointF pixel);
    /// Emits `markerRemoved` for each marker, then deletes them, also one that is being created or dragged.
    void deleteAllMarkers();
    /// Deletes the marker that is being created or dragged, if there is one; emits `markerRemoved`.
    void deleteCurrentMarker();
    /// Ends a drag; emits `changed` if there was one.
    void release();
    /// Moves what is being created and what is dragged; emits `changed` for each.
    void move(Zel::PointF pixel);

private:
    void _onMarkerFinishCreating();

    const CoordsConverter* converter = nullptr;
    const MarkerDrawerCfg& cfg;
    std::list<std::unique_ptr<Marker>> markers;
    const std::list<const Marker*>* globalMarkers = nullptr;
    Marker* creating = nullptr;
    Marker* selected = nullptr;
    bool clickPending = false;
    Zel::PointF clickPoint;
};

} // namespace ZelView
