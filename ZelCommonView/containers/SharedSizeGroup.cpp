#include <ZelCommonView/containers/SharedSizeGroup.h>

namespace Zel {

SharedSizeGroupOwner::SharedSizeGroupOwner() = default;

SharedSizeGroupOwner::~SharedSizeGroupOwner() = default;

std::map<std::string, Glib::RefPtr<Gtk::SizeGroup>>& SharedSizeGroupOwner::getGroupMap() {
    return groupMap;
}

SharedSizeGroup::SharedSizeGroup(const std::string& name) : groupName(name) {}

SharedSizeGroup::~SharedSizeGroup() = default;

const std::string& SharedSizeGroup::getGroupName() const {
    return groupName;
}

void SharedSizeGroup::on_hierarchy_changed(Gtk::Widget*) {
    Gtk::Widget* parent = get_parent();
    while (parent && !dynamic_cast<SharedSizeGroupOwner*>(parent))
        parent = parent->get_parent();
    if (!parent) {
        _removeTargetGroup();
        return;
    }
    Glib::RefPtr<Gtk::SizeGroup>& group =
        dynamic_cast<SharedSizeGroupOwner*>(parent)->getGroupMap()[groupName];
    if (!group)
        group = Gtk::SizeGroup::create(Gtk::SIZE_GROUP_HORIZONTAL);
    if (group == targetGroup)
        return;
    _removeTargetGroup();
    targetGroup = group;
    targetGroup->add_widget(*this);
}

void SharedSizeGroup::_removeTargetGroup() {
    if (!targetGroup)
        return;
    targetGroup->remove_widget(*this);
    targetGroup.reset();
}

} // namespace Zel
