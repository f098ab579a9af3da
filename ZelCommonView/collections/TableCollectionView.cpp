#include <ZelCommonView/collections/TableCollectionView.h>

#include <algorithm>
#include <limits>

namespace Zel {

namespace {

/// The header is row 0 of the grid. An index beyond what a grid can count is the last row it can.
int gridRowOf(unsigned long index) {
    return static_cast<int>(std::min<unsigned long>(index, std::numeric_limits<int>::max() / 2)) + 1;
}

} // namespace

ITableCollectionView::~ITableCollectionView() = default;

TableCollectionView::TableCollectionView() {
    get_style_context()->add_class("CollectionView");
    get_style_context()->add_class("table");
    set_row_spacing(0);
    set_column_spacing(0);
}

TableCollectionView::~TableCollectionView() = default;

void TableCollectionView::setHeader(const std::vector<IView*>& cells) {
    _addGridRow(0, cells);
}

void TableCollectionView::addRow(unsigned long index, const std::vector<IView*>& cells) {
    _addGridRow(gridRowOf(index), cells);
}

void TableCollectionView::removeRow(unsigned long index) {
    remove_row(gridRowOf(index));
}

void TableCollectionView::moveRow(unsigned long from, unsigned long to) {
    if (from == to)
        return;
    std::vector<Gtk::Widget*> cells;
    for (int column = 0; column < _countColumns(); ++column)
        if (Gtk::Widget* const cell = get_child_at(column, gridRowOf(from)))
            cells.push_back(cell);
    // A cell that nobody else holds would die when it is taken out.
    for (Gtk::Widget* const cell : cells)
        cell->reference();
    remove_row(gridRowOf(from));
    insert_row(gridRowOf(to));
    for (std::size_t i = 0; i < cells.size(); ++i)
        // A cell that spanned two columns was met twice.
        if (!cells[i]->get_parent())
            attach(*cells[i], static_cast<int>(i), gridRowOf(to), 1, 1);
    for (Gtk::Widget* const cell : cells)
        cell->unreference();
}

void TableCollectionView::clearAll() {
    for (int row = _countRows() - 1; row >= 1; --row)
        remove_row(row);
}

void TableCollectionView::_addGridRow(int row, const std::vector<IView*>& cells) {
    for (std::size_t c = 0; c < cells.size();) {
        auto* const cell = dynamic_cast<Gtk::Widget*>(cells[c]);
        if (!cell) {
            ++c;
            continue;
        }
        const auto next = std::find_if(cells.begin() + static_cast<std::ptrdiff_t>(c) + 1, cells.end(),
                                       [](const IView* entry) { return entry != nullptr; });
        const auto span = static_cast<int>(next - cells.begin()) - static_cast<int>(c);
        const auto column = static_cast<int>(c);
        if (const Gtk::Widget* const header = get_child_at(column, 0))
            cell->set_hexpand(header->get_hexpand());
        if (column != 0)
            cell->get_style_context()->add_class("leftMarginM1");
        if (row != 0)
            cell->get_style_context()->add_class("topMarginM1");
        attach(*cell, column, row, span, 1);
        c += static_cast<std::size_t>(span);
    }
    show_all_children(true);
}

int TableCollectionView::_countColumns() {
    int columns = 0;
    for (Gtk::Widget* const child : get_children())
        columns = std::max(columns, child_property_left_attach(*child) + child_property_width(*child));
    return columns;
}

int TableCollectionView::_countRows() {
    int rows = 0;
    for (Gtk::Widget* const child : get_children())
        rows = std::max(rows, child_property_top_attach(*child) + child_property_height(*child));
    return rows;
}

} // namespace Zel
