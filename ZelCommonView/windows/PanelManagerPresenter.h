#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/windows/PanelManagerView.h>

namespace Zel {

/// The panels of a window for an application that keeps no widget.
class ZEL_API PanelManagerPresenter : public IPresenter {
public:
    /// Makes the `PanelManagerView`.
    PanelManagerPresenter();
    ~PanelManagerPresenter() override;

    IPanelManagerView* getView() override;

    /// See `IPanelManagerView::newPanel`.
    IPanelView* newPanel(const std::string& title, Positions position, IView& child, IPanelView* sibling);
    /// See `IPanelManagerView::deleteAll`.
    void deleteAll();
    /// See `IPanelManagerView::deletePanel`.
    void deletePanel(IPanelView* panel);

private:
    std::unique_ptr<IPanelManagerView> view;
};

} // namespace Zel
