#pragma once

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>
#include <ZelCommonView/windows/WindowView.h>

#include <sigc++/functors/mem_fun.h>

namespace Zel {

/// The presenter of a window, with the two events that every window has. `TView` is `IWindowView` or an
/// interface derived from it.
///
/// A listener of `signalClosed` may delete the presenter.
template <typename TView>
class ZEL_API WindowBasePresenter : public PresenterBase<TView> {
public:
    sigc::signal<void> signalOpened; ///< the window is shown
    sigc::signal<void> signalClosed; ///< the window is gone; it can be shown again

    ~WindowBasePresenter() override = default;

protected:
    void _onViewInited() override {
        TView* const made = this->getView();
        made->signalOpened.connect(sigc::mem_fun(*this, &WindowBasePresenter::_onViewOpened));
        made->signalClosed.connect(sigc::mem_fun(*this, &WindowBasePresenter::_onViewClosed));
    }

    /// Passes on that the window is shown.
    void _onViewOpened() { emitKept(signalOpened); }

    /// Passes on that the window is gone; the presenter may be deleted then.
    void _onViewClosed() { emitKept(signalClosed); }
};

/// The layer from which the presenters of windows derive.
template <typename TView>
class ZEL_API InternalWindowBasePresenter : public WindowBasePresenter<TView> {};

/// The presenter of a plain window. All that the window can do is reached through `getView`, by default a
/// `WindowView`.
class ZEL_API WindowPresenter : public InternalWindowBasePresenter<IWindowView> {
public:
    ~WindowPresenter() override;

protected:
    std::unique_ptr<IWindowView> _createDefaultView() override;
};

} // namespace Zel
