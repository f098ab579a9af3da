#include <ZelCommonView/diagrams/ZDiagram.h>

#include <ZelCommonView/diagrams/CircleDrawer.h>
#include <ZelCommonView/diagrams/DiagramScale.h>
#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/FiguresDrawer.h>
#include <ZelCommonView/diagrams/FixedDotDrawer.h>
#include <ZelCommonView/diagrams/PointsSequenceDrawer.h>
#include <ZelCommonView/markers/CursorPosDrawer.h>
#include <ZelCommonView/markers/MarkerDrawer.h>

namespace ZelView {

ZDiagram::ZDiagram() : scrolled(DiagramScale::smallest, DiagramScale::largest, DiagramScale::step) {
    _initDrawArea();
    _initDrawers();
    _initDefaultFigureDrawers();
    _compose();
    show_all();
}

ZDiagram::~ZDiagram() = default;

void ZDiagram::addFigure(std::unique_ptr<Zel::Figure> figure) {
    if (!figure)
        throw "addFigure";
    drawArea.addBorderable(*figure);
    figuresDrawer->addFigure(*figure);
    figures.push_back(std::move(figure));
}

void ZDiagram::deleteFigures() {
    for (const auto& figure : figures)
        drawArea.deleteBorderable(*figure);
    figuresDrawer->deleteFigures();
    figures.clear();
}

void ZDiagram::setRootFigureDrawer(std::unique_ptr<BaseFigureDrawer> root) {
    figuresDrawer->setRootFigureDrawer(std::move(root));
}

void ZDiagram::exportToPng(std::string path) {
    drawArea.getFragmensDrawArea().saveSummaryImage(path, "png");
}

void ZDiagram::_initDrawArea() {
    drawArea.setXBordersMode(BordersMode::Auto);
    drawArea.setYBordersMode(BordersMode::Auto);
    drawArea.setCoordsConvertMode(CoordsConvertMode::Proportional);
}

void ZDiagram::_initDrawers() {
    // The grid lies over the figures, unlike that of the hodograph.
    auto coords = std::make_unique<FiguresCoordsDrawer>();
    coords->setScrollInfo(scrolled.getScrollInfo());
    coordsDrawer = coords.get();
    drawArea.addDrawer(std::move(coords), DrawerPosition::AfterFragments);

    auto painter = std::make_unique<FiguresDrawer>();
    figuresDrawer = painter.get();
    drawArea.addDrawer(std::move(painter), DrawerPosition::BeforeFragments);

    drawArea.addDrawer(std::make_unique<CursorPosDrawer>(), DrawerPosition::End);
    drawArea.addDrawer(std::make_unique<MarkerDrawer>(), DrawerPosition::End);
}

void ZDiagram::_initDefaultFigureDrawers() {
    auto dots = std::make_unique<FixedDotDrawer>();
    auto sequences = std::make_unique<PointsSequenceDrawer>(std::move(dots));
    setRootFigureDrawer(std::make_unique<CircleDrawer>(std::move(sequences)));
}

void ZDiagram::_compose() {
    scrolled.add(drawArea);
    grid.attach(scrolled, 0, 0, 1, 1);
    add(grid);
}

} // namespace ZelView
