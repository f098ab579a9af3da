#include <ZelCommonView/collections/SelectionManagerPresenter.h>

#include <ZelCommonView/common/EmitKept.h>

namespace Zel {

SelectionManagerPresenter::SelectionManagerPresenter() = default;

SelectionManagerPresenter::~SelectionManagerPresenter() {
    // The child and the view go after this and may tell of it.
    viewConnection.disconnect();
}

void SelectionManagerPresenter::setChild(std::unique_ptr<IPresenter> presenter) {
    child = std::move(presenter);
}

void SelectionManagerPresenter::setContent(IView* content) {
    getView()->setContent(content);
}

void SelectionManagerPresenter::setAutoselect(bool value) {
    autoselect = value;
}

IPresenter* SelectionManagerPresenter::getSelectedItem() {
    return isViewInited ? getView()->getSelectedItem() : nullptr;
}

std::unique_ptr<ISelectionManagerView> SelectionManagerPresenter::_createDefaultView() {
    return std::make_unique<SelectionManagerView>();
}

void SelectionManagerPresenter::_onViewInited() {
    isViewInited = true;
    ISelectionManagerView* const made = getView();
    if (child)
        made->setContent(child->getView());
    made->setAutoselect(autoselect);
    viewConnection = made->signalSelectionChanged().connect(
        sigc::mem_fun(*this, &SelectionManagerPresenter::_onViewSelectionChanged));
}

void SelectionManagerPresenter::_onViewSelectionChanged() {
    emitKept(signalSelectionChanged);
}

} // namespace Zel
