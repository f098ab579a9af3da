#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>

#include <ZelCommonView/plot/Series.h>

#include <algorithm>
#include <list>

namespace ZelView {

SeriesGroupDrawArea::SeriesGroupDrawArea() {
    grid.add(fragmentableCollection);
    grid.add(fragmentsDrawArea);
    add(grid);
    drawAreaGroup.addWidget(fragmentsDrawArea);
    fragmentableCollectionGroup.addWidget(fragmentableCollection);

    converterProxy.xBordersChanged.connect(sigc::mem_fun(*this, &SeriesGroupDrawArea::redrawFragmentable));
    converterProxy.yBordersChanged.connect(sigc::mem_fun(*this, &SeriesGroupDrawArea::redrawFragmentable));
    fragmentsDrawArea.signal_configure_event().connect(
        sigc::mem_fun(*this, &SeriesGroupDrawArea::_onConfigure), true);
    show_all();
}

SeriesGroupDrawArea::~SeriesGroupDrawArea() = default;

std::vector<Drawer*> SeriesGroupDrawArea::getDrawers() const {
    return drawersManager.getDrawers();
}

void SeriesGroupDrawArea::setBackgroundColor(Zel::Color color) {
    fragmentsDrawArea.setBackgroundColor(color);
}

void SeriesGroupDrawArea::addFragmentable(const Zel::IFragmentable& fragmentable) {
    fragmentableCollection.addFragmentable(fragmentable);
    drawersManager.addFragmentable(fragmentable);
    const auto redraw = sigc::mem_fun(
        fragmentsDrawArea, static_cast<void (FragmentsDrawArea::*)(const void*)>(&FragmentsDrawArea::redraw));
    fragmentableConnections.connect(&fragmentable,
                                    fragmentable.changed.connect(sigc::bind(redraw, &fragmentable)));
}

void SeriesGroupDrawArea::deleteFragmentable(const Zel::IFragmentable& fragmentable) {
    // Nothing may emit between the first two steps: a `changed` without a fragment would make an empty one,
    // whose paint throws.
    drawersManager.deleteFragmentable(fragmentable);
    fragmentableConnections.disconnect(&fragmentable);
    fragmentableCollection.deleteFragmentable(fragmentable);
}

void SeriesGroupDrawArea::clearFragmentable() {
    drawersManager.clearFragmentables();
    fragmentableConnections.disconnectAll();
    // A copy, since the list itself shrinks below. An object that was added twice stands in it twice,
    // although the second time failed; its row is deleted once.
    std::list<const Zel::IFragmentable*> all;
    for (const Zel::IFragmentable* fragmentable : fragmentableCollection.getFragmentableCollection())
        if (std::find(all.begin(), all.end(), fragmentable) == all.end())
            all.push_back(fragmentable);
    for (const Zel::IFragmentable* fragmentable : all)
        fragmentableCollection.deleteFragmentable(*fragmentable);
}

void SeriesGroupDrawArea::redrawFragmentable() {
    fragmentsDrawArea.redraw();
}

void SeriesGroupDrawArea::setXBordersMode(BordersMode mode) {
    converterProxy.setXBordersMode(mode);
}

void SeriesGroupDrawArea::setYBordersMode(BordersMode mode) {
    converterProxy.setYBordersMode(mode);
}

void SeriesGroupDrawArea::setXBorders(float min, float max) {
    converterProxy.setXBorders(min, max);
    // The cached pictures show the former limits.
    redrawFragmentable();
    queue_draw();
}

void SeriesGroupDrawArea::setYBorders(float min, float max) {
    converterProxy.setYBorders(min, max);
    redrawFragmentable();
    queue_draw();
}

void SeriesGroupDrawArea::addBorderable(const Zel::IBorderable& borderable) {
    converterProxy.addBorderable(borderable);
}

void SeriesGroupDrawArea::deleteBorderable(const Zel::IBorderable& borderable) {
    converterProxy.deleteBorderable(borderable);
}

void SeriesGroupDrawArea::clearBorderable() {
    converterProxy.clearBorderable();
}

void SeriesGroupDrawArea::setCoordsConvertMode(CoordsConvertMode mode) {
    // The proxy would throw the same, but its converter would be gone while all drawers still read it.
    if (mode != CoordsConvertMode::Stretchable && mode != CoordsConvertMode::Proportional)
        throw "_createConverter";
    converterProxy.setCoordsConvertMode(mode);
    redrawFragmentable();
}

void SeriesGroupDrawArea::setOffset(CoordsConverter::Offset offset) {
    converterProxy.setOffset(offset);
    redrawFragmentable();
}

void SeriesGroupDrawArea::setDrawAreaGroup(SizeGroupAdapter& group) {
    drawAreaGroup = group;
}

void SeriesGroupDrawArea::setFragmentableCollectionGroup(SizeGroupAdapter& group) {
    fragmentableCollectionGroup = group;
}

void SeriesGroupDrawArea::setFragmentableGroup(SizeGroupAdapter& group) {
    fragmentableCollection.setFragmentableGroup(group);
}

void SeriesGroupDrawArea::addDrawer(std::unique_ptr<InfoDrawer> drawer, DrawerPosition position) {
    _initDrawer(*drawer);
    drawersManager.addDrawer(std::move(drawer), position);
}

void SeriesGroupDrawArea::addDrawer(std::unique_ptr<BaseFragmentableDrawer> drawer) {
    drawer->fragmentables = &fragmentableCollection.getFragmentableCollection();
    _initDrawer(*drawer);
    drawersManager.addDrawer(std::move(drawer));
    // Whose share the next picture of all fragments holds, too.
    fragmentsDrawArea.forgetRetained();
}

void SeriesGroupDrawArea::_initDrawer(Drawer& drawer) {
    const auto setConverter = [this, &drawer] { _setConverter(drawer); };
    converterProxy.converterChanged.connect(sigc::track_obj(setConverter, drawer));
    _setConverter(drawer);
    drawer.drawArea = &fragmentsDrawArea;
    drawer.initDrawArea();
    signalDrawerAdded.emit(drawer);
}

void SeriesGroupDrawArea::_setConverter(Drawer& drawer) {
    drawer.converter = converterProxy.getConverter();
    drawer.drawerConverterChanged.emit();
}

bool SeriesGroupDrawArea::_onConfigure(GdkEventConfigure* event) {
    converterProxy.setWidgetSize(static_cast<float>(event->width), static_cast<float>(event->height));
    return false;
}

} // namespace ZelView
