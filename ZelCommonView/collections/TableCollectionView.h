#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/grid.h>

#include <vector>

namespace Zel {

/// A table of views. A row is a vector of cells: a null entry behind a cell makes that cell one column wider,
/// and what is no widget leaves its column empty. Rows are counted from 0 below the header.
class ZEL_API ITableCollectionView : public virtual IView {
public:
    ~ITableCollectionView() override;

    /// Lays out the row above all others. To be called once, before the rows.
    virtual void setHeader(const std::vector<IView*>& cells) = 0;
    /// Lays a row at the index, which is meant to be the end: cells at an index in use lie over the old ones.
    virtual void addRow(unsigned long index, const std::vector<IView*>& cells) = 0;
    /// Takes the row's cells out; the rows below move up.
    virtual void removeRow(unsigned long index) = 0;
    /// Moves a row of simple cells; those that span columns lose that, and gaps close.
    virtual void moveRow(unsigned long from, unsigned long to) = 0;
    /// Takes all rows out; the header stays.
    virtual void clearAll() = 0;
};

/// A grid of real widgets, for small tables; long ones are for `VirtualizationListView`. The cells stay their
/// presenters'.
///
/// The theme reaches the table by "CollectionView" and "table", and all cells but the first of each row by
/// "leftMarginM1", all below the header by "topMarginM1": they are meant to pull the cell over its
/// neighbour's border by one pixel. Whether a column expands is decided by its header cell alone.
class ZEL_API TableCollectionView : public Gtk::Grid, public virtual ITableCollectionView {
public:
    TableCollectionView();
    ~TableCollectionView() override;

    void setHeader(const std::vector<IView*>& cells) override;
    void addRow(unsigned long index, const std::vector<IView*>& cells) override;
    void removeRow(unsigned long index) override;
    void moveRow(unsigned long from, unsigned long to) override;
    void clearAll() override;

private:
    void _addGridRow(int row, const std::vector<IView*>& cells);
    int _countColumns();
    int _countRows();
};

} // namespace Zel
