#include <ZelCommonView/collections/SelectionManagerView.h>

#include <ZelCommonView/collections/SelectionView.h>
#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/LifeWatch.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <algorithm>
#include <vector>

namespace Zel {

ISelectionManagerView::~ISelectionManagerView() = default;

sigc::signal<void>& ISelectionManagerView::signalSelectionChanged() {
    return selectionChanged;
}

SelectionManagerView::SelectionManagerView() : self(this, [](SelectionManagerView*) {}) {
    get_style_context()->add_class("SelectionManagerView");
}

SelectionManagerView::~SelectionManagerView() {
    self.reset();
    if (auto* const item = dynamic_cast<SelectionView*>(selectedView))
        item->_giveUp();
}

void SelectionManagerView::setContent(IView* content) {
    if (auto* const widget = dynamic_cast<Gtk::Widget*>(content))
        add(*widget);
}

void SelectionManagerView::setAutoselect(bool value) {
    if (value == autoselect)
        return;
    autoselect = value;
    // Also if an item is selected already, which is meant.
    if (autoselect)
        _moveSelection(nullptr);
}

IPresenter* SelectionManagerView::getSelectedItem() {
    return selectedView ? selectedView->getContext() : nullptr;
}

ISelectionView* SelectionManagerView::getSelectedView() {
    return selectedView;
}

void SelectionManagerView::setSelectedView(ISelectionView* view) {
    if (view == selectedView)
        return;
    const LifeWatch life(*this);
    ISelectionView* const previous = selectedView;
    selectedView = view;
    if (previous)
        previous->setIsSelected(false);
    // A listener may have deleted the manager or selected something meanwhile.
    if (life && !view && !selectedView && autoselect && get_mapped())
        _moveSelection(previous);
    if (life)
        emitKept(signalSelectionChanged());
}

void SelectionManagerView::updateState() {
    if (!selectedView && autoselect)
        _moveSelection(nullptr);
}

/// `current` is only looked for: it may be dead.
void SelectionManagerView::_moveSelection(const ISelectionView* current) {
    std::vector<ISelectionView*> items;
    GtkWidgetHelper::findChildrens<ISelectionView>(this, items);
    // Those that are dying still stand in the tree.
    items.erase(std::remove_if(items.begin(), items.end(),
                               [current](ISelectionView* item) {
                                   const auto* const view = dynamic_cast<SelectionView*>(item);
                                   return item != current && view && view->isDying;
                               }),
                items.end());
    if (!current) {
        if (!items.empty())
            items.front()->setIsSelected(true);
        return;
    }
    const auto found = std::find(items.begin(), items.end(), current);
    if (found == items.end())
        return;
    if (found != items.end() - 1)
        found[1]->setIsSelected(true);
    else if (found != items.begin())
        found[-1]->setIsSelected(true);
}

/// As when the item is hidden, but the item itself is told nothing any more.
void SelectionManagerView::_onItemDies(SelectionView& item) {
    if (selectedView != &item)
        return;
    const LifeWatch life(*this);
    selectedView = nullptr;
    if (autoselect && get_mapped())
        _moveSelection(&item);
    if (life)
        emitKept(signalSelectionChanged());
}

} // namespace Zel
