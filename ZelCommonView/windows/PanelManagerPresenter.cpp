#include <ZelCommonView/windows/PanelManagerPresenter.h>

namespace Zel {

PanelManagerPresenter::PanelManagerPresenter() : view(std::make_unique<PanelManagerView>()) {}

PanelManagerPresenter::~PanelManagerPresenter() = default;

IPanelManagerView* PanelManagerPresenter::getView() {
    return view.get();
}

IPanelView* PanelManagerPresenter::newPanel(const std::string& title, Positions position, IView& child,
                                            IPanelView* sibling) {
    return view->newPanel(title, position, child, sibling);
}

void PanelManagerPresenter::deleteAll() {
    view->deleteAll();
}

void PanelManagerPresenter::deletePanel(IPanelView* panel) {
    view->deletePanel(panel);
}

} // namespace Zel
