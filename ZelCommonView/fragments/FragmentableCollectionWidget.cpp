#include <ZelCommonView/fragments/FragmentableCollectionWidget.h>

#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>

#include <algorithm>

namespace ZelView {

// The rows join the size group itself and not its adapter: an adapter never forgets a widget, and a new row
// may stand where a deleted one stood.

FragmentableCollectionWidget::FragmentableCollectionWidget()
    : sizeGroup(std::make_unique<SizeGroupAdapter>()) {
    grid.set_orientation(Gtk::ORIENTATION_VERTICAL);
    grid.set_margin_top(10);
    add(grid);
    show_all();
}

FragmentableCollectionWidget::~FragmentableCollectionWidget() = default;

void FragmentableCollectionWidget::addFragmentable(const Zel::IFragmentable& fragmentable) {
    collection.push_back(&fragmentable);
    FragmentableWidget& row = widgets.try_emplace(&fragmentable, fragmentable).first->second;
    grid.add(row);
    if (std::find(addedWidgets.begin(), addedWidgets.end(), &row) != addedWidgets.end())
        throw "addWidget";
    sizeGroup->getGroup()->add_widget(row);
    addedWidgets.push_back(&row);
}

void FragmentableCollectionWidget::deleteFragmentable(const Zel::IFragmentable& fragmentable) {
    collection.remove(&fragmentable);
    FragmentableWidget& row = widgets.at(&fragmentable);
    grid.remove(row);
    const auto added = std::find(addedWidgets.begin(), addedWidgets.end(), &row);
    if (added == addedWidgets.end())
        throw "removeWidget";
    sizeGroup->getGroup()->remove_widget(row);
    addedWidgets.erase(added);
    widgets.erase(&fragmentable);
}

void FragmentableCollectionWidget::setFragmentableGroup(SizeGroupAdapter& group) {
    for (Gtk::Widget* row : addedWidgets) {
        sizeGroup->getGroup()->remove_widget(*row);
        group.getGroup()->add_widget(*row);
    }
    *sizeGroup = group;
}

} // namespace ZelView
