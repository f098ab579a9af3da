#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/eventbox.h>
#include <gtkmm/frame.h>
#include <gtkmm/overlay.h>

#include <memory>

namespace Zel {

class SelectionManagerView;

/// An item that can be the selected one of those below a `SelectionManagerView`.
class ZEL_API ISelectionView : public IView {
public:
    ~ISelectionView() override;

    /// Fires when the item becomes the selected one and when it ceases to be. A listener may delete it.
    sigc::signal<void>& signalSelectionChanged();

    /// The item's presenter, which the item only keeps; null at the beginning.
    virtual void setContext(IPresenter* presenter) = 0;
    /// The item's presenter.
    virtual IPresenter* getContext() = 0;
    /// Puts in what the item shows, which stays its presenter's; null and what is no widget are ignored.
    virtual void setContent(IView* content) = 0;
    /// Selects the item, or makes it give up the selection after its manager has moved on: a selected item
    /// can't be unselected from here. Without a manager above it nothing happens.
    virtual void setIsSelected(bool value) = 0;
    /// Whether the item is the selected one.
    virtual bool getIsSelected() = 0;

private:
    sigc::signal<void> selectionChanged;
};

/// Wraps the view of an item. A click with the left button selects it. Hidden or destroyed it gives up the
/// selection.
///
/// The theme reaches it by "SelectionView", its frame by "SelectionFrame", what it shows by
/// "SelectionContent", and the selected one by "Selected" as well.
class ZEL_API SelectionView : public Gtk::Overlay, public ISelectionView {
public:
    /// With a content that isn't interactive the whole item is one target of clicks: the widgets inside never
    /// get them.
    explicit SelectionView(bool contentIsInteractive);
    ~SelectionView() override;

    void setContext(IPresenter* presenter) override;
    IPresenter* getContext() override;
    void setContent(IView* content) override;
    void setIsSelected(bool value) override;
    bool getIsSelected() override;

protected:
    void on_map() override;
    void on_unmap() override;

private:
    friend class SelectionManagerView;

    bool _onEventLayerButtonPressed(GdkEventButton* event);
    SelectionManagerView* _findManager();
    void _giveUp();

    Gtk::EventBox contentBox;
    std::unique_ptr<Gtk::EventBox> eventLayer; ///< over the content; null if that is interactive
    Gtk::Frame frame;
    bool selected = false;
    bool isDying = false; ///< can't be selected any more
    IPresenter* context = nullptr;
    std::weak_ptr<SelectionManagerView> manager; ///< the one that was found first; not owned
};

} // namespace Zel
