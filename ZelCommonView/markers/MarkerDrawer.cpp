#include <ZelCommonView/markers/MarkerDrawer.h>

#include <ZelCommonView/dialogs/FileDialogPresenter.h>
#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/markers/ContextMenuAdapter.h>
#include <ZelCommonView/markers/MarkerWords.h>
#include <ZelCommonView/markers/MarkersManager.h>

namespace ZelView {

namespace {

template <typename TEvent>
Zel::PointF pointOf(const TEvent& event) {
    return {static_cast<float>(event.x), static_cast<float>(event.y)};
}

} // namespace

MarkerDrawer::MarkerDrawer(const MarkerDrawerCfg& value) : cfg(value) {}

MarkerDrawer::~MarkerDrawer() = default;

MarkerDrawerCfg& MarkerDrawer::getCfg() {
    return cfg;
}

void MarkerDrawer::setGlobalMarkersSource(const std::list<const Marker*>& source) {
    manager->setGlobalMarkersSource(source);
}

void MarkerDrawer::initDrawArea() {
    _initMarkers();
    _initMenu();
    _initDrawAreaEvents();
}

void MarkerDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    manager->draw(context);
}

void MarkerDrawer::_initMarkers() {
    manager = std::make_unique<MarkersManager>(cfg);
    drawerConverterChanged.connect(sigc::mem_fun(*this, &MarkerDrawer::_setConverter));
    _setConverter();
    manager->changed.connect(sigc::mem_fun(*this, &MarkerDrawer::_onChanged));
    manager->markerAdded.connect(markerAdded.make_slot());
    manager->markerRemoved.connect(markerRemoved.make_slot());
}

void MarkerDrawer::_initMenu() {
    contextMenu = std::make_unique<ContextMenuAdapter>(getDrawArea());
    const auto addCreation = [this](const char* text, Orientation orientation, MarkerType type) {
        contextMenu->addAction(text, [=] { _createMarker(orientation, type); });
    };
    if (cfg.menuFlags & MarkerDrawerCfg::CreateHorizontal) {
        addCreation(lngCreateSingleHorizontalMarker(), Orientation::Horizontal, MarkerType::Single);
        addCreation(lngCreateDoubleHorizontalMarker(), Orientation::Horizontal, MarkerType::Double);
    }
    if (cfg.menuFlags & MarkerDrawerCfg::CreateVertical) {
        addCreation(lngCreateSingleVerticalMarker(), Orientation::Vertical, MarkerType::Single);
        addCreation(lngCreateDoubleVerticalMarker(), Orientation::Vertical, MarkerType::Double);
    }
    if (cfg.menuFlags & MarkerDrawerCfg::DeleteAndExport) {
        contextMenu->addAction(lngDeleteCurrentMarker(), [this] { manager->deleteCurrentMarker(); });
        contextMenu->addAction(lngDeleteAllMarkers(), [this] { manager->deleteAllMarkers(); });
        contextMenu->addAction(lngExportPng(), [this] { _exportToPng(); });
    }
}

void MarkerDrawer::_initDrawAreaEvents() {
    Gtk::Widget& widget = getDrawArea();
    widget.add_events(Gdk::POINTER_MOTION_MASK | Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK);
    widget.signal_button_press_event().connect(sigc::mem_fun(*this, &MarkerDrawer::_onButtonPress), true);
    widget.signal_button_release_event().connect(sigc::mem_fun(*this, &MarkerDrawer::_onButtonRelease), true);
    widget.signal_motion_notify_event().connect(sigc::mem_fun(*this, &MarkerDrawer::_onMotion), true);
}

void MarkerDrawer::_setConverter() {
    manager->setConverter(*converter);
}

void MarkerDrawer::_onChanged() {
    markerChanged.emit();
    getDrawArea().queue_draw();
}

void MarkerDrawer::_createMarker(Orientation orientation, MarkerType type) {
    manager->createMarker(orientation, type, lastRightClick);
}

bool MarkerDrawer::_onButtonPress(GdkEventButton* event) {
    if (event->button == 1)
        manager->click(pointOf(*event));
    else if (event->button == 3)
        lastRightClick = pointOf(*event);
    return false;
}

bool MarkerDrawer::_onButtonRelease(GdkEventButton* event) {
    if (event->button == 1)
        manager->release();
    return false;
}

bool MarkerDrawer::_onMotion(GdkEventMotion* event) {
    manager->move(pointOf(*event));
    return false;
}

void MarkerDrawer::_exportToPng() {
    auto* const area = dynamic_cast<FragmentsDrawArea*>(&getDrawArea());
    if (!area)
        return;
    Zel::FileDialogPresenter presenter;
    const std::string path = presenter.show(nullptr, lngExportPng(), {{"*.png", "*.png"}}, true);
    if (!path.empty())
        area->saveSummaryImage(path, "png");
}

} // namespace ZelView
