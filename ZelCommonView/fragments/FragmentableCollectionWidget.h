#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/fragments/FragmentableWidget.h>

#include <gtkmm/bin.h>
#include <gtkmm/grid.h>

#include <list>
#include <map>
#include <memory>
#include <vector>

namespace ZelView {

class SizeGroupAdapter;

/// The legend of a plot: a column with one row for each fragmentable. It also keeps the list of them in the
/// order of adding.
class ZEL_API FragmentableCollectionWidget : public Gtk::Bin {
public:
    FragmentableCollectionWidget();
    ~FragmentableCollectionWidget() override;

    /// Appends a row. The fragmentable stays the caller's and must outlive its removal. One that is there
    /// already throws "addWidget", a `const char*`, and then stands in the list once more.
    void addFragmentable(const Zel::IFragmentable& fragmentable);
    /// Removes the row, and every entry of the list. Throws `std::out_of_range` for an unknown one, and
    /// "removeWidget", a `const char*`, for one whose row is in no group.
    void deleteFragmentable(const Zel::IFragmentable& fragmentable);

    /// Moves the rows to this group, so that those of several legends get one width. Rows that are added
    /// later join it too. The adapter does not learn of the rows.
    void setFragmentableGroup(SizeGroupAdapter& group);

    /// What is shown, in the order of adding; it lives as long as the legend.
    const std::list<const Zel::IFragmentable*>& getFragmentableCollection() const { return collection; }

private:
    std::list<const Zel::IFragmentable*> collection;
    std::map<const Zel::IFragmentable*, FragmentableWidget> widgets;
    Gtk::Grid grid;
    std::unique_ptr<SizeGroupAdapter> sizeGroup; ///< common width of the rows
    std::vector<Gtk::Widget*> addedWidgets;      ///< the rows that are in `sizeGroup`
};

} // namespace ZelView
