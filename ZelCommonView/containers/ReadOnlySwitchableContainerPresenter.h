#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <memory>

namespace Zel {

class IReadOnlySwitchableContainerView;

/// The presenter of a form that can be locked, a `ReadOnlySwitchableContainer`, which it makes at once.
class ZEL_API ReadOnlySwitchableContainerPresenter : public IPresenter {
public:
    ReadOnlySwitchableContainerPresenter();
    ~ReadOnlySwitchableContainerPresenter() override;

    IView* getView() override;

    /// Locks the form or lifts the lock.
    void setIsReadOnly(bool value);

    /// Puts a view, which stays its presenter's, into the form; null and what is no widget are ignored.
    void add(IView* child);

private:
    std::unique_ptr<IReadOnlySwitchableContainerView> view;
};

} // namespace Zel
