#pragma once

#include <ZelCommonView/collections/SelectionManagerView.h>
#include <ZelCommonView/common/Export.h>

#include <memory>

namespace Zel {

/// The presenter of what keeps at most one item selected, by default a `SelectionManagerView`.
class ZEL_API SelectionManagerPresenter : public PresenterBase<ISelectionManagerView> {
public:
    /// Another item, or none, is the selected one. A listener may delete the presenter.
    sigc::signal<void> signalSelectionChanged;

    SelectionManagerPresenter();
    ~SelectionManagerPresenter() override;

    /// The presenter of the content, which it owns from now on; null for none. To be set before there is a
    /// view.
    void setChild(std::unique_ptr<IPresenter> presenter);

    /// Puts in a view as the content, which stays its presenter's, and makes the own view if need be.
    void setContent(IView* content);

    /// Whether an item is to be selected whenever there is one; false at the beginning. Once there is a view
    /// a change has no effect, which is meant.
    void setAutoselect(bool value);

    /// The presenter of the selected item; null without one and before there is a view.
    IPresenter* getSelectedItem();

protected:
    std::unique_ptr<ISelectionManagerView> _createDefaultView() override;
    void _onViewInited() override;

private:
    void _onViewSelectionChanged();

    std::unique_ptr<IPresenter> child;
    bool autoselect = false;
    bool isViewInited = false;
    sigc::connection viewConnection;
};

} // namespace Zel
