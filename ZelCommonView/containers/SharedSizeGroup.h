#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/bin.h>
#include <gtkmm/sizegroup.h>

#include <map>
#include <string>

namespace Zel {

/// Gives all `SharedSizeGroup`s of one name below it, at any depth, one width.
class ZEL_API SharedSizeGroupOwner : public Gtk::Bin {
public:
    SharedSizeGroupOwner();
    ~SharedSizeGroupOwner() override;

    /// The groups by name. Groups without members stay.
    std::map<std::string, Glib::RefPtr<Gtk::SizeGroup>>& getGroupMap();

private:
    std::map<std::string, Glib::RefPtr<Gtk::SizeGroup>> groupMap;
};

/// A cell that is as wide as the widest of its name under the nearest `SharedSizeGroupOwner`. It joins when
/// it comes under an owner and leaves when it goes. Gtk tells of that only below a window: what is taken from
/// an owner that stands in none stays in the group until it comes somewhere else.
class ZEL_API SharedSizeGroup : public Gtk::Bin {
public:
    /// A cell of the group of this name, which never changes.
    explicit SharedSizeGroup(const std::string& groupName);
    ~SharedSizeGroup() override;

    /// The name that it was made with.
    const std::string& getGroupName() const;

protected:
    void on_hierarchy_changed(Gtk::Widget* previousTop) override;

private:
    void _removeTargetGroup();

    std::string groupName;
    Glib::RefPtr<Gtk::SizeGroup> targetGroup; ///< the one it is in; null without an owner
};

} // namespace Zel
