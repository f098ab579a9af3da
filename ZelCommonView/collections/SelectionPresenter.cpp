#include <ZelCommonView/collections/SelectionPresenter.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/LifeWatch.h>

namespace Zel {

SelectionPresenter::SelectionPresenter(Object* givenContext, std::unique_ptr<IPresenter> content,
                                       bool isInteractive)
    : context(givenContext), contentPresenter(std::move(content)), contentIsInteractive(isInteractive) {}

SelectionPresenter::~SelectionPresenter() {
    // The view goes after this and may tell of it.
    mapConnection.disconnect();
    viewConnection.disconnect();
}

Object* SelectionPresenter::getContext() const {
    return context;
}

IPresenter* SelectionPresenter::getContentPresenter() const {
    return contentPresenter.get();
}

void SelectionPresenter::setIsSelected(bool value) {
    pendingSelected = value;
    mapConnection.disconnect();
    if (isViewInited)
        getView()->setIsSelected(value);
}

bool SelectionPresenter::getIsSelected() {
    return isViewInited && getView()->getIsSelected();
}

std::unique_ptr<ISelectionView> SelectionPresenter::_createDefaultView() {
    return std::make_unique<SelectionView>(contentIsInteractive);
}

void SelectionPresenter::_onViewInited() {
    isViewInited = true;
    ISelectionView* const made = getView();
    made->setContext(this);
    made->setContent(contentPresenter ? contentPresenter->getView() : nullptr);
    made->setIsSelected(pendingSelected);
    auto* const widget = dynamic_cast<Gtk::Widget*>(made);
    if (pendingSelected && !made->getIsSelected() && widget)
        mapConnection =
            widget->signal_map().connect(sigc::mem_fun(*this, &SelectionPresenter::_onViewMapped), true);
    viewConnection = made->signalSelectionChanged().connect(
        sigc::mem_fun(*this, &SelectionPresenter::_onViewSelectionChanged));
}

void SelectionPresenter::_onViewMapped() {
    const LifeWatch life(*this);
    getView()->setIsSelected(true);
    // Without a manager it goes on waiting.
    if (life && getView()->getIsSelected())
        mapConnection.disconnect();
}

void SelectionPresenter::_onViewSelectionChanged() {
    emitKept(signalSelectionChanged);
}

} // namespace Zel
