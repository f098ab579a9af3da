#include <ZelCommonView/oscillogram/SynchronizerFacade.h>

#include <ZelCommonView/oscillogram/IntervalDrawerSynchronizer.h>
#include <ZelCommonView/oscillogram/MarkerDrawerSynchronizer.h>
#include <ZelCommonView/plot/Series.h>

namespace ZelView {

namespace {

constexpr CoordsConverter::Offset margins{35, 0, 20, 20}; // pixels

DrawerSynchronizerCollection makeDrawerSynchronizers() {
    DrawerSynchronizerCollection collection;
    collection.synchronizers.push_back(std::make_unique<MarkerDrawerSynchronizer>());
    collection.synchronizers.push_back(std::make_unique<IntervalDrawerSynchronizer>());
    return collection;
}

} // namespace

SynchronizerFacade::SynchronizerFacade() : sectionsSynchronizer(makeDrawerSynchronizers(), margins) {
    sectionsSynchronizer.setupSynchronizerFacade(*this);
    sectionsSynchronizer.addSectionsGroup(analogSections);
    sectionsSynchronizer.addSectionsGroup(binarySections);
    sectionsSynchronizer.addSectionsGroup(summarySections);
    _compose();
    show_all();
}

SynchronizerFacade::~SynchronizerFacade() = default;

void SynchronizerFacade::addSeries(const Zel::Series* series) {
    SeriesSections& section = _getSection(*series);
    section.addSeries(series);
    if (section.get_parent())
        return;
    _attach(section);
    seriesGrid.show_all();
}

void SynchronizerFacade::deleteSeries(const Zel::Series* series) {
    SeriesSections& section = _getSection(*series);
    section.deleteSeries(series);
    if (section.getDrawAreas().empty())
        seriesGrid.remove(section);
}

void SynchronizerFacade::clearSeries() {
    analogSections.clearSeries();
    binarySections.clearSeries();
    // One that is out already is no error.
    seriesGrid.remove(analogSections);
    seriesGrid.remove(binarySections);
}

void SynchronizerFacade::setSeriesTime(float from, float to) {
    signalSeriesTimeChanged.emit(from, to);
}

void SynchronizerFacade::setHorizontalInterval(float from, float to) {
    signalHorizontalIntervalChanged.emit(from, to);
}

int SynchronizerFacade::getPixelWidth() {
    return summarySections.getDrawAreas().front()->getFragmensDrawArea().get_width();
}

void SynchronizerFacade::_compose() {
    _attach(analogSections);
    _attach(binarySections);
    scrolledWindow.add(seriesGrid);
    mainGrid.attach(scrolledWindow, 0, 0, 1, 1);
    mainGrid.attach(summarySections, 0, 1, 1, 1);
    add(mainGrid);
}

void SynchronizerFacade::_attach(SeriesSections& section) {
    seriesGrid.attach(section, 0, &section == &binarySections ? 1 : 0, 1, 1);
}

SeriesSections& SynchronizerFacade::_getSection(const Zel::Series& series) {
    if (series.type == Zel::SeriesType::Analog)
        return analogSections;
    return binarySections;
}

} // namespace ZelView
