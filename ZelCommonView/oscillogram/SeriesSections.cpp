#include <ZelCommonView/oscillogram/SeriesSections.h>

#include <ZelCommonView/markers/CursorPosDrawer.h>
#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

namespace ZelView {

namespace {

/// What the layers of a plot show, as the flags of their configurations.
struct LayerFlags {
    std::uint32_t coords;
    std::uint32_t markerMenu;
    std::uint32_t cursor;
};

void addLayers(SeriesGroupDrawArea& drawArea, LayerFlags flags) {
    CoordsDrawerCfg coordsCfg;
    coordsCfg.flags = flags.coords;
    drawArea.addDrawer(std::make_unique<CoordsDrawer>(coordsCfg), DrawerPosition::BeforeFragments);

    // A drawer builds its menu while it is added.
    auto marker = std::make_unique<MarkerDrawer>();
    marker->getCfg().menuFlags = flags.markerMenu;
    drawArea.addDrawer(std::move(marker), DrawerPosition::AfterFragments);

    drawArea.addDrawer(std::make_unique<IntervalDrawer>(), DrawerPosition::End);

    auto cursor = std::make_unique<CursorPosDrawer>();
    cursor->getCfg().flags = flags.cursor;
    drawArea.addDrawer(std::move(cursor), DrawerPosition::End);
}

constexpr std::uint32_t everything = 0xFFFFFFFF;
constexpr float minHeight = 50; // pixels

} // namespace

SeriesSections::SeriesSections() {
    separators.signalSeparatorMoved.connect(sigc::mem_fun(*this, &SeriesSections::_onSeparatorMoved));
    add(separators);
    show_all();
}

SeriesSections::~SeriesSections() = default;

void SeriesSections::_onDrawAreaCreate(SeriesGroupDrawArea& drawArea) {
    PackableDrawArea& packable = packableDrawAreas.emplace_back(drawArea);
    packable.setToolbarGroup(getToolbarGroup());
    separators.addWidget(packable);
    _onSeriesGroupDrawAreaCreate(drawArea);
}

void SeriesSections::_onToolbarGroupChange() {
    for (PackableDrawArea& packable : packableDrawAreas)
        packable.setToolbarGroup(getToolbarGroup());
}

void SeriesSections::_onSeriesGroupDrawAreaCreate(SeriesGroupDrawArea&) {}

void SeriesSections::_onSeparatorMoved(Gtk::Widget& widget) {
    dynamic_cast<PackableDrawArea&>(widget).getDrawArea().redrawFragmentable();
}

AnalogSections::~AnalogSections() = default;

float AnalogSections::_getDrawAreaMinHeight() const {
    return minHeight;
}

bool AnalogSections::_isCorrectSeries(const Zel::Series* series) const {
    return series->type == Zel::SeriesType::Analog;
}

void AnalogSections::_onSeriesGroupDrawAreaCreate(SeriesGroupDrawArea& drawArea) {
    addLayers(drawArea, {everything, everything, everything});
    drawArea.addDrawer(std::make_unique<AnalogSeriesDrawer>());
}

BinarySections::~BinarySections() = default;

float BinarySections::_getDrawAreaMinHeight() const {
    return minHeight;
}

bool BinarySections::_isCorrectSeries(const Zel::Series* series) const {
    return series->type == Zel::SeriesType::Binary;
}

void BinarySections::_onSeriesGroupDrawAreaCreate(SeriesGroupDrawArea& drawArea) {
    addLayers(drawArea, {CoordsDrawerCfg::AxisY | CoordsDrawerCfg::StepLinesX,
                         MarkerDrawerCfg::CreateVertical | MarkerDrawerCfg::DeleteAndExport,
                         CursorPosDrawerCfg::ShowX});
    drawArea.addDrawer(std::make_unique<BinarySeriesDrawer>());
}

} // namespace ZelView
