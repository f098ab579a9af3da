#pragma once

#include <ZelCommonView/collections/VirtualizationListColumn.h>
#include <ZelCommonView/common/Export.h>

#include <gtkmm/treemodelsort.h>
#include <gtkmm/treestore.h>
#include <gtkmm/treeview.h>

#include <vector>

namespace Zel {

/// A list of rows with columns of texts. All row indices are counted from 0 in the order in which the rows
/// stand in the store, whatever the order on the screen.
class ZEL_API IVirtualizationListView : public virtual IView {
public:
    ~IVirtualizationListView() override;

    /// Fires after each change of the selection, by a person or a call. A listener may delete the view.
    sigc::signal<void>& signalSelectionChanged();

    /// Whether the titles of the columns are to be seen, as at first.
    virtual void showHeader(bool value) = 0;
    /// Any number of rows at once if true; one row, which can't be unselected by a person, if false.
    virtual void setMultiSelection(bool value) = 0;
    /// Makes the columns. To be called once, before any row is added; the columns stay the application's.
    virtual void setColumns(const std::vector<IVirtualizationListColumn*>& columns) = 0;
    /// Adds a row before the one at the index, at the end if there are fewer. If nothing is selected then,
    /// the first row on the screen is.
    virtual void addRow(unsigned long index, IRowPresenter* presenter) = 0;
    /// Shows the text of a `CellDataView` in a cell. No such row or another kind of view is ignored.
    virtual void updateCell(unsigned long row, unsigned long column, IView* view) = 0;
    /// Takes a row out; no such row is ignored.
    virtual void removeRow(unsigned long index) = 0;
    /// Moves a row, so that it stands at `to`; at the end if there are fewer. No such row is ignored.
    virtual void moveRow(unsigned long from, unsigned long to) = 0;
    /// Takes all rows out.
    virtual void clearAll() = 0;
    /// The presenters of the selected rows in their order on the screen.
    virtual std::vector<IRowPresenter*> getSelection() const = 0;

private:
    sigc::signal<void> selectionChanged;
};

/// A list for many thousands of rows: a row is one line of a model, without a widget, and only those on the
/// screen are painted. A click on a header sorts by its column. The theme reaches it by "CollectionView" and
/// "VirtualizationListView".
///
/// Adding rows one by one costs what Gtk's own models cost, more the longer the list is; `setRows` and
/// `addRows` are for many at once.
class ZEL_API VirtualizationListView : public Gtk::TreeView, public virtual IVirtualizationListView {
public:
    /// The columns of the model: the presenter of the row, then a text for each column of the list.
    class ZEL_API TreeColumns : public Gtk::TreeModelColumnRecord {
    public:
        TreeColumns();
        ~TreeColumns() override;

        Gtk::TreeModelColumn<IRowPresenter*> rowPresenter;    ///< not owned
        std::vector<Gtk::TreeModelColumn<std::string>> texts; ///< one for each column of the list
    };

    VirtualizationListView();
    ~VirtualizationListView() override;

    void showHeader(bool value) override;
    void setMultiSelection(bool value) override;
    /// A column of texts can be sorted and resized and takes room that is left over; one with a renderer of
    /// its own can't and doesn't.
    void setColumns(const std::vector<IVirtualizationListColumn*>& columns) override;
    void addRow(unsigned long index, IRowPresenter* presenter) override;
    void updateCell(unsigned long row, unsigned long column, IView* view) override;
    void removeRow(unsigned long index) override;
    void moveRow(unsigned long from, unsigned long to) override;
    void clearAll() override;
    std::vector<IRowPresenter*> getSelection() const override;

    /// Takes all rows out and adds these as `addRow` at the end would one by one, only much quicker: order,
    /// selection and sorting are the same, and the signal of the selection fires once for all of them. The
    /// view has other models afterwards, filled before it sees them.
    void setRows(const std::vector<IRowPresenter*>& presenters);

    /// Adds rows before the one at the index, in their order, as `setRows` does; the others stay.
    void addRows(unsigned long index, const std::vector<IRowPresenter*>& presenters);

    /// The columns of the model.
    const TreeColumns& getColumns() const;

private:
    class Line;

    Gtk::TreeModel::iterator _findRow(unsigned long index) const;
    void _makeSort();
    template <typename TFill>
    void _swapModels(TFill fill);
    void _fill(unsigned long index, const std::vector<IRowPresenter*>& presenters);
    std::vector<unsigned long> _getSelectedIndices() const;
    void _onSelectionChanged();

    TreeColumns treeColumns;
    Glib::RefPtr<Gtk::TreeStore> store;    ///< the rows in their own order
    Glib::RefPtr<Gtk::TreeModelSort> sort; ///< the rows as they are shown
    /// The comparators of the columns; those without one are empty.
    std::vector<std::function<int(const std::string&, const std::string&)>> comparators;
    sigc::connection selectionConnection;
};

} // namespace Zel
