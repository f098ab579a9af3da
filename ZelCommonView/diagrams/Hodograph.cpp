#include <ZelCommonView/diagrams/Hodograph.h>

#include <ZelCommonView/diagrams/DiagramScale.h>
#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/plot/TimedSeriesDrawer.h>

namespace ZelView {

Hodograph::Hodograph() : scrolled(DiagramScale::smallest, DiagramScale::largest, DiagramScale::step) {
    _initDrawArea();
    _initDrawers();
    counterControls = std::make_unique<CounterControls>(timedSeriesDrawer->getCounter());
    _compose();
    show_all();
}

Hodograph::~Hodograph() = default;

void Hodograph::addSeries(std::unique_ptr<Zel::TimedSeries> added) {
    if (!added)
        throw "addSeries";
    series.push_back(added.get());
    drawArea.addBorderable(*added);
    timedSeriesDrawer->addSeries(std::move(added));
}

void Hodograph::deleteSeries() {
    for (const Zel::TimedSeries* const one : series)
        drawArea.deleteBorderable(*one);
    series.clear();
    timedSeriesDrawer->deleteSeries();
}

void Hodograph::_initDrawArea() {
    drawArea.setXBordersMode(BordersMode::Auto);
    drawArea.setYBordersMode(BordersMode::Auto);
    drawArea.setCoordsConvertMode(CoordsConvertMode::Proportional);
}

void Hodograph::_initDrawers() {
    auto coordsDrawer = std::make_unique<FiguresCoordsDrawer>();
    coordsDrawer->setScrollInfo(scrolled.getScrollInfo());
    drawArea.addDrawer(std::move(coordsDrawer), DrawerPosition::BeforeFragments);

    auto seriesDrawer = std::make_unique<TimedSeriesDrawer>();
    timedSeriesDrawer = seriesDrawer.get();
    drawArea.addDrawer(std::move(seriesDrawer), DrawerPosition::End);
}

void Hodograph::_compose() {
    scrolled.add(drawArea);
    grid.attach(scrolled, 0, 0, 1, 1);
    grid.attach(counterControls->getRunButton(), 0, 1, 1, 1);
    grid.attach(counterControls->getSpeedSlider(), 0, 2, 1, 1);
    grid.attach(counterControls->getTimeSlider(), 0, 3, 1, 1);
    add(grid);
}

} // namespace ZelView
