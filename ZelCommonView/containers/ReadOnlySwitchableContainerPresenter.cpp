#include <ZelCommonView/containers/ReadOnlySwitchableContainerPresenter.h>

#include <ZelCommonView/containers/ReadOnlySwitchableContainer.h>

namespace Zel {

ReadOnlySwitchableContainerPresenter::ReadOnlySwitchableContainerPresenter()
    : view(std::make_unique<ReadOnlySwitchableContainer>()) {}

ReadOnlySwitchableContainerPresenter::~ReadOnlySwitchableContainerPresenter() = default;

IView* ReadOnlySwitchableContainerPresenter::getView() {
    return view.get();
}

void ReadOnlySwitchableContainerPresenter::setIsReadOnly(bool value) {
    view->setIsReadOnly(value);
}

void ReadOnlySwitchableContainerPresenter::add(IView* child) {
    view->addChild(child);
}

} // namespace Zel
