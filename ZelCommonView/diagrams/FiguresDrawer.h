#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/FigureDrawer.h>
#include <ZelCommonView/plot/Drawer.h>

#include <memory>
#include <vector>

namespace ZelView {

/// The layer of figures of a draw area: holds the figures and the chain of painters.
///
/// Without a draw area the operations that change it throw "getDrawArea", a `const char*`; what they change
/// is changed by then.
class ZEL_API FiguresDrawer : public InfoDrawer {
public:
    ~FiguresDrawer() override;

    /// Paints the figure after all others and asks for a repaint. The figure stays the caller's and must
    /// outlive its removal.
    void addFigure(const Zel::Figure& figure);
    /// Forgets all figures and asks for a repaint.
    void deleteFigures();
    /// Replaces the chain of painters, null for none, and asks for a repaint. From now on all its links have
    /// the converter of the draw area.
    void setRootFigureDrawer(std::unique_ptr<BaseFigureDrawer> root);

    /// Gives each figure, in the order of adding, to every link of the chain.
    void draw(const Cairo::RefPtr<Cairo::Context>& context) override;

private:
    void _setConverter();

    std::vector<const Zel::Figure*> figures;
    std::unique_ptr<BaseFigureDrawer> rootFigureDrawer;
    sigc::connection converterConnection; ///< to the drawer's own `drawerConverterChanged`
};

} // namespace ZelView
