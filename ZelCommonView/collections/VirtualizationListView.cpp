#include <ZelCommonView/collections/VirtualizationListView.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/LifeWatch.h>

#include <gtkmm/cellrenderertext.h>

#include <algorithm>
#include <limits>
#include <numeric>

namespace Zel {

/// One line of the store, kept to be filled again and again.
class VirtualizationListView::Line {
public:
    explicit Line(GtkTreeStore* givenStore)
        : store(givenStore), columns(static_cast<std::size_t>(gtk_tree_model_get_n_columns(model()))),
          values(columns.size(), GValue(G_VALUE_INIT)) {
        std::iota(columns.begin(), columns.end(), 0);
        for (std::size_t i = 0; i < values.size(); ++i)
            g_value_init(&values[i], gtk_tree_model_get_column_type(model(), columns[i]));
    }

    ~Line() {
        for (GValue& value : values)
            g_value_unset(&value);
    }

    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    /// Takes the texts of the cells there are columns for; other kinds of cells leave theirs empty.
    void take(IRowPresenter* presenter) {
        for (GValue& value : values)
            g_value_reset(&value);
        g_value_set_pointer(values.data(), presenter);
        if (!presenter)
            return;
        const std::vector<IView*>& cells = presenter->getCells();
        for (std::size_t i = 0; i < cells.size() && i + 1 < values.size(); ++i)
            if (const auto* const cell = dynamic_cast<const CellDataView*>(cells[i]))
                g_value_set_static_string(&values[i + 1], cell->text.c_str());
    }

    /// Takes a line of another store with the same columns.
    void take(GtkTreeModel* other, GtkTreeIter* row) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            g_value_unset(&values[i]);
            gtk_tree_model_get_value(other, row, columns[i], &values[i]);
        }
    }

    /// Writes the line before the one at the position, at the end if there are fewer.
    void insert(int position) {
        gtk_tree_store_insert_with_valuesv(store, nullptr, nullptr, position, columns.data(), values.data(),
                                           static_cast<gint>(values.size()));
    }

private:
    GtkTreeModel* model() const { return GTK_TREE_MODEL(store); }

    GtkTreeStore* store;
    std::vector<gint> columns;
    std::vector<GValue> values;
};

namespace {

/// A position that Gtk can count; those beyond mean the end.
int positionOf(unsigned long index) {
    return index > std::numeric_limits<int>::max() ? -1 : static_cast<int>(index);
}

Gtk::TreePath pathOf(int position) {
    Gtk::TreePath path;
    path.push_back(position);
    return path;
}

} // namespace

IVirtualizationListView::~IVirtualizationListView() = default;

sigc::signal<void>& IVirtualizationListView::signalSelectionChanged() {
    return selectionChanged;
}

VirtualizationListView::TreeColumns::TreeColumns() {
    add(rowPresenter);
}

VirtualizationListView::TreeColumns::~TreeColumns() = default;

VirtualizationListView::VirtualizationListView() {
    get_style_context()->add_class("CollectionView");
    get_style_context()->add_class("VirtualizationListView");
    get_selection()->set_mode(Gtk::SELECTION_BROWSE);
    selectionConnection = get_selection()->signal_changed().connect(
        sigc::mem_fun(*this, &VirtualizationListView::_onSelectionChanged), true);
}

VirtualizationListView::~VirtualizationListView() {
    selectionConnection.disconnect();
}

void VirtualizationListView::showHeader(bool value) {
    set_headers_visible(value);
}

void VirtualizationListView::setMultiSelection(bool value) {
    get_selection()->set_mode(value ? Gtk::SELECTION_MULTIPLE : Gtk::SELECTION_BROWSE);
}

void VirtualizationListView::setColumns(const std::vector<IVirtualizationListColumn*>& columns) {
    // A second call adds to what the first one left.
    treeColumns.texts.reserve(treeColumns.texts.size() + columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        treeColumns.texts.emplace_back();
        treeColumns.add(treeColumns.texts.back());
    }
    comparators.clear();
    for (IVirtualizationListColumn* const column : columns)
        comparators.push_back(column->getComparator());
    store = Gtk::TreeStore::create(treeColumns);
    _makeSort();
    set_model(sort);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        auto* const column = Gtk::make_managed<Gtk::TreeViewColumn>(columns[i]->getTitle());
        if (auto* const own = dynamic_cast<Gtk::CellRenderer*>(columns[i]->getCellRendererView())) {
            column->pack_start(*own, false);
            column->set_expand(false);
            append_column(*column);
            continue;
        }
        const Gtk::TreeModelColumn<std::string>& text = treeColumns.texts.at(i);
        auto* const renderer = Gtk::make_managed<Gtk::CellRendererText>();
        column->pack_start(*renderer, true);
        column->set_resizable(true);
        column->set_expand(true);
        column->set_alignment(0.5F);
        column->add_attribute(renderer->property_text(), text);
        column->set_sort_column(text);
        append_column(*column);
        // Behind the appending, which takes the mark away.
        column->set_sort_indicator(true);
    }
    show_all();
}

void VirtualizationListView::addRow(unsigned long index, IRowPresenter* presenter) {
    if (!store)
        return;
    Line line(store->gobj());
    line.take(presenter);
    line.insert(positionOf(index));
    if (get_selection()->count_selected_rows() == 0)
        get_selection()->select(pathOf(0));
}

void VirtualizationListView::updateCell(unsigned long row, unsigned long column, IView* view) {
    const auto* const cell = dynamic_cast<CellDataView*>(view);
    const Gtk::TreeModel::iterator found = _findRow(row);
    if (found && cell && column < treeColumns.texts.size())
        (*found)[treeColumns.texts[column]] = cell->text;
}

void VirtualizationListView::removeRow(unsigned long index) {
    if (const Gtk::TreeModel::iterator row = _findRow(index))
        store->erase(row);
}

void VirtualizationListView::moveRow(unsigned long from, unsigned long to) {
    Gtk::TreeModel::iterator row = _findRow(from);
    if (!row || from == to)
        return;
    // Gtk moves a row before another one, which is the next one as long as the row itself stands in front.
    Gtk::TreeModel::iterator next = _findRow(from < to ? to + 1 : to);
    gtk_tree_store_move_before(store->gobj(), row.gobj(), next ? next.gobj() : nullptr);
}

void VirtualizationListView::clearAll() {
    // Not row by row: the models and the view would count anew for each of them.
    if (store && !store->children().empty())
        _swapModels([](Line&) {});
}

std::vector<IRowPresenter*> VirtualizationListView::getSelection() const {
    std::vector<IRowPresenter*> selected;
    for (const Gtk::TreePath& path : get_selection()->get_selected_rows()) {
        const Gtk::TreeModel::iterator row = sort->get_iter(path);
        if (!row)
            continue;
        IRowPresenter* const presenter = (*row)[treeColumns.rowPresenter];
        if (presenter)
            selected.push_back(presenter);
    }
    return selected;
}

void VirtualizationListView::setRows(const std::vector<IRowPresenter*>& presenters) {
    // The signal of the first new row tells of the rows that go as well.
    if (!presenters.empty())
        selectionConnection.block();
    clearAll();
    selectionConnection.unblock();
    addRows(0, presenters);
}

void VirtualizationListView::addRows(unsigned long index, const std::vector<IRowPresenter*>& presenters) {
    if (!store || presenters.empty())
        return;
    // The first one in the ordinary way: it finds what is to be selected.
    index = std::min(index, static_cast<unsigned long>(store->children().size()));
    addRow(index, presenters.front());
    if (presenters.size() > 1)
        _fill(index + 1, presenters);
}

const VirtualizationListView::TreeColumns& VirtualizationListView::getColumns() const {
    return treeColumns;
}

Gtk::TreeModel::iterator VirtualizationListView::_findRow(unsigned long index) const {
    if (!store || positionOf(index) < 0)
        return {};
    return store->get_iter(pathOf(positionOf(index)));
}

void VirtualizationListView::_makeSort() {
    sort = Gtk::TreeModelSort::create(store);
    for (std::size_t i = 0; i < comparators.size(); ++i) {
        if (!comparators[i])
            continue;
        const Gtk::TreeModelColumn<std::string> text = treeColumns.texts.at(i);
        sort->set_sort_func(text, [text, comparator = comparators[i]](const Gtk::TreeModel::iterator& left,
                                                                      const Gtk::TreeModel::iterator& right) {
            return comparator((*left)[text], (*right)[text]);
        });
    }
}

void VirtualizationListView::_fill(unsigned long index, const std::vector<IRowPresenter*>& presenters) {
    const std::size_t added = presenters.size() - 1;
    const std::vector<unsigned long> selected = _getSelectedIndices();
    const Glib::RefPtr<Gtk::TreeStore> old = store;
    selectionConnection.block();
    // From the end to the beginning: Gtk counts all rows before the one it adds, which are none then.
    _swapModels([&](Line& line) {
        GtkTreeModel* const model = GTK_TREE_MODEL(old->gobj());
        const int size = gtk_tree_model_iter_n_children(model, nullptr);
        GtkTreeIter row;
        gtk_tree_model_iter_nth_child(model, &row, nullptr, size - 1);
        for (auto i = static_cast<unsigned long>(size); i > 0; --i) {
            if (i == index)
                for (std::size_t k = presenters.size(); k-- > 1;) {
                    line.take(presenters[k]);
                    line.insert(0);
                }
            line.take(model, &row);
            line.insert(0);
            gtk_tree_model_iter_previous(model, &row);
        }
    });
    for (const unsigned long before : selected) {
        const int now = positionOf(before < index ? before : before + added);
        get_selection()->select(sort->convert_child_path_to_path(pathOf(now)));
    }
    selectionConnection.unblock();
}

// No model and no view looks on while the new store is filled: each of them would count anew for each row.
template <typename TFill>
void VirtualizationListView::_swapModels(TFill fill) {
    int sortColumn = 0;
    Gtk::SortType order = Gtk::SORT_ASCENDING;
    const bool isSorted = sort->get_sort_column_id(sortColumn, order);
    std::vector<bool> indicators;
    for (const Gtk::TreeViewColumn* const column : get_columns())
        indicators.push_back(column->get_sort_indicator());
    const Glib::RefPtr<Gtk::TreeStore> filled = Gtk::TreeStore::create(treeColumns);
    Line line(filled->gobj());
    fill(line);
    store = filled;
    _makeSort();
    if (isSorted)
        sort->set_sort_column(sortColumn, order);
    // What hears of the selection may look at the rows already, or delete the list.
    const LifeWatch life(*this);
    set_model(sort);
    for (std::size_t i = 0; life && i < indicators.size(); ++i)
        get_column(static_cast<int>(i))->set_sort_indicator(indicators[i]);
}

std::vector<unsigned long> VirtualizationListView::_getSelectedIndices() const {
    std::vector<unsigned long> indices;
    for (const Gtk::TreePath& path : get_selection()->get_selected_rows())
        indices.push_back(static_cast<unsigned long>(sort->convert_path_to_child_path(path).front()));
    return indices;
}

void VirtualizationListView::_onSelectionChanged() {
    emitKept(signalSelectionChanged());
}

} // namespace Zel
