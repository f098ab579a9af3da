#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/bin.h>

#include <memory>

namespace Zel {

class ISelectionView;
class SelectionView;

/// Keeps at most one of the items below it selected.
class ZEL_API ISelectionManagerView : public IView {
public:
    ~ISelectionManagerView() override;

    /// Fires when another item, or none, is the selected one. A listener may delete the manager.
    sigc::signal<void>& signalSelectionChanged();

    /// Puts in the view under which the items stand, which stays its presenter's; null and what is no widget
    /// are ignored.
    virtual void setContent(IView* content) = 0;
    /// Whether an item is to be selected whenever there is one; false at first. Switching it on selects the
    /// first one, also while another one is selected; that is meant.
    virtual void setAutoselect(bool value) = 0;
    /// The presenter of the selected item; null without one.
    virtual IPresenter* getSelectedItem() = 0;

private:
    sigc::signal<void> selectionChanged;
};

/// Stands anywhere above the items: they find it by walking up the tree of widgets, and it finds them by
/// walking down. With autoselect an item that goes away hands the selection to the next one, the last one to
/// the one before it; items that are hidden take part in that. The theme reaches it by
/// "SelectionManagerView".
class ZEL_API SelectionManagerView : public Gtk::Bin, public ISelectionManagerView {
public:
    SelectionManagerView();
    /// The selected item gives up the selection; no signal tells of that.
    ~SelectionManagerView() override;

    void setContent(IView* content) override;
    void setAutoselect(bool value) override;
    IPresenter* getSelectedItem() override;

    /// The selected item; null without one.
    ISelectionView* getSelectedView();

    /// Moves the selection to an item or, with null, away from all. An own class of items calls it with null
    /// before a selected item dies; a `SelectionView` needs no such call.
    void setSelectedView(ISelectionView* view);

    /// Selects the first item if none is selected and autoselect is on.
    void updateState();

private:
    friend class SelectionView;

    void _moveSelection(const ISelectionView* current);
    void _onItemDies(SelectionView& item);

    ISelectionView* selectedView = nullptr; ///< not owned
    bool autoselect = false;
    /// What the items keep of the manager, without owning it: it goes before anything else of the manager.
    std::shared_ptr<SelectionManagerView> self;
};

} // namespace Zel
