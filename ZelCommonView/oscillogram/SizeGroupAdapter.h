#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/sizegroup.h>

#include <vector>

namespace ZelView {

/// A group of widgets of one width that remembers which of them were added here, so that all of these can be
/// moved to another group later. It owns no widget.
class ZEL_API SizeGroupAdapter {
public:
    /// A horizontal group of its own, without widgets.
    SizeGroupAdapter();
    ~SizeGroupAdapter();
    SizeGroupAdapter(const SizeGroupAdapter&) = delete;

    /// Moves the widgets that were added here to the group of `other`, which both share from then on. `other`
    /// does not learn of them: a later assignment to it moves only what was added to it itself. What was
    /// added must still live.
    SizeGroupAdapter& operator=(const SizeGroupAdapter& other);

    /// Throws "addWidget", a `const char*`, if this widget was added before.
    void addWidget(Gtk::Widget& widget);

    /// The group as it is now. A widget that is put there directly is not moved by an assignment.
    const Glib::RefPtr<Gtk::SizeGroup>& getGroup() const { return group; }

private:
    Glib::RefPtr<Gtk::SizeGroup> group;
    std::vector<Gtk::Widget*> widgets; ///< in the order of adding; not owned
};

} // namespace ZelView
