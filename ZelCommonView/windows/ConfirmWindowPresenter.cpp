#include <ZelCommonView/windows/ConfirmWindowPresenter.h>

#include <ZelCommonView/common/EmitKept.h>

namespace Zel {

ConfirmWindowPresenter::~ConfirmWindowPresenter() = default;

bool ConfirmWindowPresenter::isConfirmed() {
    return getView()->isConfirmed();
}

void ConfirmWindowPresenter::setIsReadOnly(bool value) {
    if (value == isReadOnly)
        return;
    isReadOnly = value;
    getView()->setIsReadOnly(value);
}

bool ConfirmWindowPresenter::getIsReadOnly() const {
    return isReadOnly;
}

std::unique_ptr<IConfirmWindowView> ConfirmWindowPresenter::_createDefaultView() {
    return std::make_unique<ConfirmWindowView>();
}

void ConfirmWindowPresenter::_onViewInited() {
    InternalWindowBasePresenter<IConfirmWindowView>::_onViewInited();
    getView()->signalApply.connect(sigc::mem_fun(*this, &ConfirmWindowPresenter::_onViewApply));
}

bool ConfirmWindowPresenter::_onViewApply() {
    return signalApply.empty() || emitKept(signalApply);
}

} // namespace Zel
