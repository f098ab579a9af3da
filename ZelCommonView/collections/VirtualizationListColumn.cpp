#include <ZelCommonView/collections/VirtualizationListColumn.h>

namespace Zel {

IVirtualizationListColumn::~IVirtualizationListColumn() = default;

IRowPresenter::~IRowPresenter() = default;

CellDataView::CellDataView(std::string givenText) : text(std::move(givenText)) {}

CellDataView::~CellDataView() = default;

} // namespace Zel
