#include <ZelCommonView/markers/MarkersManager.h>

#include <ZelCommonView/markers/MarkerDrawerCfg.h>

#include <algorithm>

namespace ZelView {

MarkersManager::MarkersManager(const MarkerDrawerCfg& value) : cfg(value) {}

MarkersManager::~MarkersManager() = default;

void MarkersManager::setConverter(const CoordsConverter& value) {
    converter = &value;
    for (const auto& marker : markers)
        marker->setConverter(value);
}

void MarkersManager::setGlobalMarkersSource(const std::list<const Marker*>& source) {
    globalMarkers = &source;
}

void MarkersManager::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    if (globalMarkers)
        for (const Marker* marker : *globalMarkers)
            marker->drawAsGlobal(context);

    for (const auto& marker : markers) {
        if (marker.get() == creating || marker.get() == selected)
            continue;
        if (clickPending && marker->isCollide(context, clickPoint)) {
            clickPending = false;
            selected = marker.get();
        } else {
            marker->drawAsNormal(context);
        }
    }
    clickPending = false;

    if (creating)
        creating->drawAsCreating(context);
    if (selected)
        selected->drawAsSelected(context);
}

void MarkersManager::click(Zel::PointF pixel) {
    if (creating) {
        creating->fixPoint(pixel);
        return;
    }
    clickPoint = pixel;
    clickPending = true;
    changed.emit();
}

void MarkersManager::createMarker(Orientation orientation, MarkerType type, Zel::PointF pixel) {
    if (creating)
        return;
    if (type == MarkerType::Single)
        markers.push_back(std::make_unique<SingleMarker>(cfg, orientation));
    else
        markers.push_back(std::make_unique<DoubleMarker>(cfg, orientation));
    creating = markers.back().get();
    creating->setConverter(*converter);
    creating->move(pixel);
    creating->finishCreating.connect(sigc::mem_fun(*this, &MarkersManager::_onMarkerFinishCreating));
    markerAdded.emit(*creating);
    click(pixel);
}

void MarkersManager::deleteAllMarkers() {
    for (const auto& marker : markers)
        markerRemoved.emit(*marker);
    creating = nullptr;
    selected = nullptr;
    markers.clear();
}

void MarkersManager::deleteCurrentMarker() {
    const auto found = std::find_if(markers.begin(), markers.end(), [this](const auto& marker) {
        return marker.get() == creating || marker.get() == selected;
    });
    if (found == markers.end())
        return;
    creating = nullptr;
    selected = nullptr;
    markerRemoved.emit(**found);
    markers.erase(found);
}

void MarkersManager::release() {
    if (!selected)
        return;
    selected = nullptr;
    changed.emit();
}

void MarkersManager::move(Zel::PointF pixel) {
    if (creating) {
        creating->move(pixel);
        changed.emit();
    }
    if (selected) {
        selected->move(pixel);
        changed.emit();
    }
}

void MarkersManager::_onMarkerFinishCreating() {
    creating = nullptr;
    changed.emit();
}

} // namespace ZelView
