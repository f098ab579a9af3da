#include <ZelCommonView/diagrams/FiguresDrawer.h>

#include <gtkmm/widget.h>

namespace ZelView {

FiguresDrawer::~FiguresDrawer() = default;

void FiguresDrawer::addFigure(const Zel::Figure& figure) {
    figures.push_back(&figure);
    getDrawArea().queue_draw();
}

void FiguresDrawer::deleteFigures() {
    figures.clear();
    getDrawArea().queue_draw();
}

void FiguresDrawer::setRootFigureDrawer(std::unique_ptr<BaseFigureDrawer> root) {
    converterConnection.disconnect();
    rootFigureDrawer = std::move(root);
    if (rootFigureDrawer) {
        converterConnection =
            drawerConverterChanged.connect(sigc::mem_fun(*this, &FiguresDrawer::_setConverter));
        _setConverter();
    }
    getDrawArea().queue_draw();
}

void FiguresDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) {
    for (const Zel::Figure* figure : figures)
        for (BaseFigureDrawer* link = rootFigureDrawer.get(); link; link = link->next.get()) {
            context->save();
            // The saved state does not hold the path, and a text leaves a current point.
            context->begin_new_path();
            link->_onDrawBaseFigure(context, *figure);
            context->restore();
        }
}

void FiguresDrawer::_setConverter() {
    for (BaseFigureDrawer* link = rootFigureDrawer.get(); link; link = link->next.get())
        link->converter = converter;
}

} // namespace ZelView
