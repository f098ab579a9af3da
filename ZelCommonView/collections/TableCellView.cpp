#include <ZelCommonView/collections/TableCellView.h>

namespace Zel {

ITableCellView::~ITableCellView() = default;

TableCellView::TableCellView() {
    label.get_style_context()->add_class("standartSmallContentMargin");
    label.set_halign(Gtk::ALIGN_CENTER);
    label.set_valign(Gtk::ALIGN_CENTER);
    add(label);
    TableCellView::setHorizontalExpand(false);
    show_all();
}

TableCellView::~TableCellView() = default;

void TableCellView::setTitle(const std::string& title) {
    label.set_text(title);
}

void TableCellView::setHorizontalExpand(bool value) {
    set_hexpand(value);
}

void TableCellView::setHeader(bool value) {
    // Classes are only added, never taken away, which is meant.
    if (value) {
        get_style_context()->add_class("TableHeaderCellView");
        get_style_context()->add_class("tableScrolledHeaderCell");
    } else {
        get_style_context()->add_class("tableScrolledCell");
    }
}

} // namespace Zel
