#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>
#include <ZelCommonView/windows/Window.h>

namespace Zel {

class PanelView;

/// The window of one floating panel.
class ZEL_API WindwView : public IView, public Window {
public:
    /// The window is being closed, with this panel in it. A listener may delete both.
    sigc::signal<void, PanelView*> signalClose;

    WindwView();
    ~WindwView() override;

    /// Puts a panel, which stays its owner's, into the window.
    void setView(PanelView* panel);

private:
    void _onClose(GdkEventAny* event);
};

} // namespace Zel
