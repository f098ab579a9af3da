/// What an application gives to a `VirtualizationListView`: columns, rows and the texts of cells.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <functional>
#include <string>
#include <vector>

namespace Zel {

/// Describes one column of a list. It is asked only while the columns are set.
class ZEL_API IVirtualizationListColumn {
public:
    virtual ~IVirtualizationListColumn();

    /// The text of the header.
    virtual std::string getTitle() = 0;

    /// A Gtk::CellRenderer that is also a view and paints the cells of the column by itself; null, or what is
    /// no renderer, for texts. It stays the application's.
    virtual IView* getCellRendererView() = 0;

    /// Compares the texts of two cells: below 0, 0 or above 0 as the first stands before, with or behind the
    /// second. Empty for the ordinary order of texts.
    virtual std::function<int(const std::string&, const std::string&)> getComparator() = 0;
};

/// Stands for one row of a list. The list keeps the pointer, never the ownership: it is to outlive its row.
class ZEL_API IRowPresenter {
public:
    virtual ~IRowPresenter();

    /// The cells in the order of the columns; those that are `CellDataView`s give their texts.
    virtual const std::vector<IView*>& getCells() = 0;
};

/// The text of a cell.
class ZEL_API CellDataView : public IView {
public:
    /// Takes the text, empty by default.
    explicit CellDataView(std::string text = {});
    ~CellDataView() override;

    std::string text; ///< UTF-8; a change is shown by `updateCell`
};

} // namespace Zel
