#pragma once

#include <ZelCommonView/collections/TableCellView.h>
#include <ZelCommonView/common/Export.h>

#include <memory>
#include <string>

namespace Zel {

/// The presenter of a cell of a table, by default a `TableCellView`.
class ZEL_API TableCellPresenter : public PresenterBase<ITableCellView> {
public:
    /// `colspan` is the number of columns that the cell shall cover. The presenter passes it to nobody: the
    /// application puts that many minus one null entries behind the cell into the row that it gives to the
    /// table.
    TableCellPresenter(const std::string& title, bool isHeader, bool horizontalExpand, unsigned long colspan);
    ~TableCellPresenter() override;

    /// The number of columns that the cell shall cover.
    unsigned long getColspan() const;

protected:
    std::unique_ptr<ITableCellView> _createDefaultView() override;
    void _onViewInited() override;

private:
    struct Impl;

    std::unique_ptr<Impl> impl;
};

} // namespace Zel
