#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/Figure.h>
#include <ZelCommonView/diagrams/ZoomableScrolledWindow.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>

#include <gtkmm/bin.h>
#include <gtkmm/grid.h>

#include <memory>
#include <string>
#include <vector>

namespace ZelView {

class BaseFigureDrawer;
class FiguresCoordsDrawer;
class FiguresDrawer;

/// The Z plane: figures under a grid, with a cursor that reads the place and with markers. One unit is
/// equally long on both axes, and the axes cover all figures. The wheel zooms from 100 to 500 percent about
/// the pointer, the left button drags the plane. It is shown when it is made.
class ZEL_API ZDiagram : public Gtk::Bin {
public:
    ZDiagram();
    ~ZDiagram() override;

    /// Takes ownership of a figure and paints it after all others. Throws "addFigure", a `const char*`, for
    /// null.
    void addFigure(std::unique_ptr<Zel::Figure> figure);
    /// Deletes all figures.
    void deleteFigures();
    /// Replaces all painters of figures, null for none. The default ones know `Zel::Circle`,
    /// `Zel::PointsSequence` and `Zel::FixedDot`.
    void setRootFigureDrawer(std::unique_ptr<BaseFigureDrawer> root);

    /// The plot, for an application that sets the axes or adds drawers; stays the diagram's.
    SeriesGroupDrawArea& getDrawArea() { return drawArea; }

    /// The grid, to name the axes and to set the distances; stays the diagram's.
    FiguresCoordsDrawer* getCoordsDrawer() { return coordsDrawer; }

    /// Writes the whole plane at its present scale as a PNG file, without cursor and markers. The diagram has
    /// to have been painted, at least off the screen. What can't be written is told as by
    /// `FragmentsDrawArea::saveSummaryImage`.
    void exportToPng(std::string path);

private:
    void _initDrawArea();
    void _initDrawers();
    void _initDefaultFigureDrawers();
    void _compose();

    std::vector<std::unique_ptr<Zel::Figure>> figures; ///< outlive the draw area that refers to them
    FiguresCoordsDrawer* coordsDrawer = nullptr;       ///< owned by the draw area
    FiguresDrawer* figuresDrawer = nullptr;            ///< owned by the draw area
    SeriesGroupDrawArea drawArea;
    ZoomableScrolledWindow scrolled;
    Gtk::Grid grid;
};

} // namespace ZelView
