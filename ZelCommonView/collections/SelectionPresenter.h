#pragma once

#include <ZelCommonView/collections/SelectionView.h>
#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/Object.h>

#include <memory>

namespace Zel {

/// The presenter of an item that can be selected, by default a `SelectionView`.
class ZEL_API SelectionPresenter : public PresenterBase<ISelectionView> {
public:
    /// The item became the selected one or ceased to be. A listener may delete the presenter.
    sigc::signal<void> signalSelectionChanged;

    /// `context` is only handed back. The content belongs to the item. With a content that isn't interactive
    /// the whole item is one target of clicks.
    SelectionPresenter(Object* context, std::unique_ptr<IPresenter> contentPresenter,
                       bool contentIsInteractive);
    ~SelectionPresenter() override;

    /// What the application gave along.
    Object* getContext() const;
    /// The presenter of what the item shows; it stays the item's. Null if there is none.
    IPresenter* getContentPresenter() const;

    /// Selects the item, see `ISelectionView::setIsSelected`. Before there is a view the value waits for it,
    /// and if the view then stands under no manager yet, once more until it is shown under one.
    void setIsSelected(bool value);

    /// Whether the item is the selected one; false before there is a view.
    bool getIsSelected();

protected:
    std::unique_ptr<ISelectionView> _createDefaultView() override;
    void _onViewInited() override;

private:
    void _onViewMapped();
    void _onViewSelectionChanged();

    Object* context;
    std::unique_ptr<IPresenter> contentPresenter;
    bool pendingSelected = false;
    bool contentIsInteractive;
    bool isViewInited = false;
    sigc::connection mapConnection; ///< while the item waits for a manager
    sigc::connection viewConnection;
};

} // namespace Zel
