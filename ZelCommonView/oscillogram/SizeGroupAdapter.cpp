#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>

#include <gtkmm/widget.h>

#include <algorithm>

namespace ZelView {

SizeGroupAdapter::SizeGroupAdapter() : group(Gtk::SizeGroup::create(Gtk::SIZE_GROUP_HORIZONTAL)) {}

SizeGroupAdapter::~SizeGroupAdapter() = default;

SizeGroupAdapter& SizeGroupAdapter::operator=(const SizeGroupAdapter& other) {
    // Assigning an adapter to itself is no exception: each widget leaves the group and comes back.
    for (Gtk::Widget* widget : widgets) {
        group->remove_widget(*widget);
        other.group->add_widget(*widget);
    }
    group = other.group;
    return *this;
}

void SizeGroupAdapter::addWidget(Gtk::Widget& widget) {
    if (std::find(widgets.begin(), widgets.end(), &widget) != widgets.end())
        throw "addWidget";
    group->add_widget(widget);
    widgets.push_back(&widget);
}

} // namespace ZelView
