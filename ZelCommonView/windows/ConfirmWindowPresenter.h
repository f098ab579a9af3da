#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/windows/ConfirmWindowView.h>
#include <ZelCommonView/windows/WindowPresenter.h>

namespace Zel {

/// The presenter of a window with OK and Cancel, by default a `ConfirmWindowView`. The application may veto
/// OK.
class ZEL_API ConfirmWindowPresenter : public InternalWindowBasePresenter<IConfirmWindowView> {
public:
    /// OK was pressed: may the window close? The answer of the last slot counts; without a slot it may.
    sigc::signal<bool> signalApply;

    ~ConfirmWindowPresenter() override;

    /// Whether the window was ended by OK.
    bool isConfirmed();

    /// Hides or shows the two buttons; see `IConfirmWindowView::setIsReadOnly`. The value that stands already
    /// does nothing and makes no view.
    void setIsReadOnly(bool value);
    /// What was set last.
    bool getIsReadOnly() const;

protected:
    std::unique_ptr<IConfirmWindowView> _createDefaultView() override;
    void _onViewInited() override;

private:
    bool _onViewApply();

    bool isReadOnly = false;
};

} // namespace Zel
