#include <ZelCommonView/collections/TableCellPresenter.h>

namespace Zel {

struct TableCellPresenter::Impl {
    std::string title;
    bool isHeader;
    bool horizontalExpand;
    unsigned long colspan;
};

TableCellPresenter::TableCellPresenter(const std::string& title, bool isHeader, bool horizontalExpand,
                                       unsigned long colspan)
    : impl(std::make_unique<Impl>(Impl{title, isHeader, horizontalExpand, colspan})) {}

TableCellPresenter::~TableCellPresenter() = default;

unsigned long TableCellPresenter::getColspan() const {
    return impl->colspan;
}

std::unique_ptr<ITableCellView> TableCellPresenter::_createDefaultView() {
    return std::make_unique<TableCellView>();
}

void TableCellPresenter::_onViewInited() {
    ITableCellView* const made = getView();
    made->setTitle(impl->title);
    made->setHorizontalExpand(impl->horizontalExpand);
    made->setHeader(impl->isHeader);
}

} // namespace Zel
