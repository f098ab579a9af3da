// Long lists and large forms, against the bare calls of Gtk that do the same.
//
// Both sides of a ratio are run by turns within one run, each first as often as the other, so that what else
// the machine does hits both; the ratio of the medians is what counts. Needs a display.

#include "Timing.h"

#include <ZelCommonView/collections/VirtualizationListView.h>
#include <ZelCommonView/containers/ReadOnlySwitchableContainer.h>

#include <benchmark/benchmark.h>
#include <gtkmm.h>
#include <malloc.h>

#include <algorithm>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace {

using bench::median;
using bench::secondsOf;

using namespace Zel;

constexpr int columns = 3;

class Column : public IVirtualizationListColumn {
public:
    std::string getTitle() override { return "Column"; }

    IView* getCellRendererView() override { return nullptr; }

    std::function<int(const std::string&, const std::string&)> getComparator() override { return nullptr; }
};

class Row : public IRowPresenter {
public:
    explicit Row(std::size_t number) {
        for (int i = 0; i < columns; ++i) {
            views[i].text = std::to_string(number * 7919 % 1'000'003);
            cells.push_back(&views[i]);
        }
    }

    const std::vector<IView*>& getCells() override { return cells; }

    CellDataView views[columns];
    std::vector<IView*> cells;
};

/// Rows as an application has them, made once.
const std::vector<IRowPresenter*>& rows(std::size_t count) {
    static std::deque<Row> made;
    static std::vector<IRowPresenter*> pointers;
    while (made.size() < count)
        made.emplace_back(made.size());
    pointers.clear();
    for (std::size_t i = 0; i < count; ++i)
        pointers.push_back(&made[i]);
    return pointers;
}

/// A list with its columns, in a window that is painted nowhere.
struct List {
    List() {
        view.setColumns({&column, &column, &column});
        scrolled.add(view);
        window.set_default_size(400, 600);
        window.add(scrolled);
    }

    Column column;
    Gtk::OffscreenWindow window;
    Gtk::ScrolledWindow scrolled;
    VirtualizationListView view;
};

/// The same two models under a tree view, filled by the calls of Gtk.
struct Bare {
    Bare() {
        GType types[columns + 1] = {G_TYPE_POINTER};
        std::fill(types + 1, types + columns + 1, G_TYPE_STRING);
        store = gtk_tree_store_newv(columns + 1, types);
        sort = gtk_tree_model_sort_new_with_model(GTK_TREE_MODEL(store));
        view = gtk_tree_view_new_with_model(sort);
        g_object_ref_sink(view);
        for (int i = 0; i < columns; ++i)
            gtk_tree_view_append_column(GTK_TREE_VIEW(view),
                                        gtk_tree_view_column_new_with_attributes(
                                            "Column", gtk_cell_renderer_text_new(), "text", i + 1, nullptr));
    }

    ~Bare() {
        gtk_widget_destroy(view);
        g_object_unref(view);
        g_object_unref(sort);
        g_object_unref(store);
    }

    void append(IRowPresenter* presenter) {
        const Row& row = static_cast<const Row&>(*presenter);
        GtkTreeIter iter;
        gtk_tree_store_append(store, &iter, nullptr);
        gtk_tree_store_set(store, &iter, 0, presenter, 1, row.views[0].text.c_str(), 2,
                           row.views[1].text.c_str(), 3, row.views[2].text.c_str(), -1);
    }

    GtkTreeStore* store;
    GtkTreeModel* sort;
    GtkWidget* view;
};

/// Two hundred rows at the end of a list of this length. Target of the ratio: at most 1.2.
void addRowsOneByOne(benchmark::State& state) {
    constexpr std::size_t step = 200;
    const auto length = static_cast<std::size_t>(state.range(0));
    std::vector<double> own;
    std::vector<double> bare;
    for ([[maybe_unused]] auto _ : state) {
        const std::vector<IRowPresenter*>& given = rows(length + 10 * step);
        List list;
        Bare other;
        list.view.setRows({given.begin(), given.begin() + static_cast<std::ptrdiff_t>(length)});
        for (std::size_t i = 0; i < length; ++i)
            other.append(given[i]);
        for (std::size_t turn = 0; turn < 10; ++turn) {
            const std::size_t first = length + turn * step;
            const auto addOwn = [&] {
                own.push_back(secondsOf([&] {
                    for (std::size_t i = first; i < first + step; ++i)
                        list.view.addRow(i, given[i]);
                }));
            };
            if (turn % 2 == 0)
                addOwn();
            bare.push_back(secondsOf([&] {
                for (std::size_t i = first; i < first + step; ++i)
                    other.append(given[i]);
            }));
            if (turn % 2 == 1)
                addOwn();
        }
    }
    state.counters["own_us"] = median(own) / step * 1e6;
    state.counters["bare_us"] = median(bare) / step * 1e6;
    state.counters["ratio"] = median(own) / median(bare);
}

BENCHMARK(addRowsOneByOne)->Arg(1'000)->Arg(10'000)->Iterations(1)->Unit(benchmark::kMillisecond);

/// The whole list at once. Targets: 100 thousand rows within 1 s, 1 million within 12 s.
void setRows(benchmark::State& state) {
    const std::vector<IRowPresenter*>& given = rows(static_cast<std::size_t>(state.range(0)));
    double clearing = 0;
    for ([[maybe_unused]] auto _ : state) {
        List list;
        state.SetIterationTime(secondsOf([&] { list.view.setRows(given); }));
        clearing = secondsOf([&] { list.view.clearAll(); });
    }
    state.counters["clear_s"] = clearing;
}

BENCHMARK(setRows)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Iterations(1)->UseManualTime()->Unit(
    benchmark::kMillisecond);

/// The same by single rows, to compare with.
void setRowsOneByOne(benchmark::State& state) {
    const std::vector<IRowPresenter*>& given = rows(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        List list;
        state.SetIterationTime(secondsOf([&] {
            for (std::size_t i = 0; i < given.size(); ++i)
                list.view.addRow(i, given[i]);
        }));
    }
}

BENCHMARK(setRowsOneByOne)->Arg(10'000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

double heapBytes() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Bytes that a row takes, with the texts of its cells, on the screen, against a bare store without sorting
/// and view.
/// To be run with G_SLICE=always-malloc: the slices of GLib are not seen otherwise.
void memory(benchmark::State& state) {
    constexpr std::size_t count = 100'000;
    const std::vector<IRowPresenter*>& given = rows(count);
    for ([[maybe_unused]] auto _ : state) {
        List list;
        list.window.show_all();
        const double before = heapBytes();
        list.view.setRows(given);
        while (Gtk::Main::events_pending())
            Gtk::Main::iteration();
        const double own = heapBytes() - before;
        const Glib::RefPtr<Gtk::TreeStore> store = Gtk::TreeStore::create(list.view.getColumns());
        const double beforeBare = heapBytes();
        const auto sort = Glib::RefPtr<Gtk::TreeModelSort>::cast_dynamic(list.view.get_model());
        for (const Gtk::TreeRow& row : sort->get_model()->children()) {
            const Gtk::TreeRow copy = *store->prepend();
            copy.set_value(list.view.getColumns().rowPresenter,
                           row.get_value(list.view.getColumns().rowPresenter));
            for (const auto& text : list.view.getColumns().texts)
                copy.set_value(text, row.get_value(text));
        }
        const double bare = heapBytes() - beforeBare;
        state.counters["own_B"] = own / count;
        state.counters["store_B"] = bare / count;
        state.counters["ratio"] = own / bare;
    }
}

BENCHMARK(memory)->Iterations(1)->Unit(benchmark::kMillisecond);

/// From a move of the scrollbar to the painted picture.
void scroll(benchmark::State& state) {
    const std::vector<IRowPresenter*>& given = rows(static_cast<std::size_t>(state.range(0)));
    List list;
    list.view.setRows(given);
    list.window.show_all();
    const auto paint = [&list] {
        while (Gtk::Main::events_pending())
            Gtk::Main::iteration();
        list.window.get_window()->process_updates(true);
    };
    paint();
    const Glib::RefPtr<Gtk::Adjustment> adjustment = list.scrolled.get_vadjustment();
    double place = 0;
    for ([[maybe_unused]] auto _ : state) {
        place = place + 0.37 > 1 ? place - 0.63 : place + 0.37;
        adjustment->set_value(place * (adjustment->get_upper() - adjustment->get_page_size()));
        paint();
    }
}

BENCHMARK(scroll)->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Iterations(200)->Unit(benchmark::kMillisecond);

/// A form of 500 controls and as many labels in nested boxes, notebooks and scrolled areas.
void fill(Gtk::Container& parent, int depth, int& controls) {
    for (int i = 0; i < 13 && controls < 500; ++i, ++controls) {
        parent.add(*Gtk::make_managed<Gtk::Label>("name"));
        if (i % 2)
            parent.add(*Gtk::make_managed<Gtk::Entry>());
        else
            parent.add(*Gtk::make_managed<Gtk::CheckButton>("value"));
    }
    if (depth == 0)
        return;
    auto* const box = Gtk::make_managed<Gtk::Box>();
    parent.add(*box);
    fill(*box, depth - 1, controls);
    auto* const scrolled = Gtk::make_managed<Gtk::ScrolledWindow>();
    auto* const inner = Gtk::make_managed<Gtk::Box>();
    scrolled->add(*inner);
    parent.add(*scrolled);
    fill(*inner, depth - 1, controls);
    auto* const notebook = Gtk::make_managed<Gtk::Notebook>();
    auto* const page = Gtk::make_managed<Gtk::Box>();
    notebook->append_page(*page, "page");
    parent.add(*notebook);
    fill(*page, depth - 1, controls);
}

class BoxAsView : public Gtk::Box, public IView {};

/// A walk that makes the same controls insensitive and nothing else.
void walk(Gtk::Widget& widget, bool isSensitive) {
    if (auto* const container = dynamic_cast<Gtk::Container*>(&widget))
        container->forall([isSensitive](Gtk::Widget& child) { walk(child, isSensitive); });
    if (dynamic_cast<Gtk::Button*>(&widget) || dynamic_cast<Gtk::Entry*>(&widget))
        widget.set_sensitive(isSensitive);
}

/// Target of the ratio: at most 2.
void readOnly(benchmark::State& state) {
    BoxAsView box;
    int controls = 0;
    fill(box, 3, controls);
    ReadOnlySwitchableContainer container;
    container.addChild(&box);
    Gtk::OffscreenWindow window;
    window.add(container);
    window.show_all();
    std::vector<double> own;
    std::vector<double> bare;
    bool isReadOnly = false;
    for ([[maybe_unused]] auto _ : state) {
        isReadOnly = !isReadOnly;
        own.push_back(secondsOf([&] { container.setIsReadOnly(isReadOnly); }));
        walk(box, isReadOnly);
        bare.push_back(secondsOf([&] { walk(box, !isReadOnly); }));
    }
    state.counters["controls"] = controls;
    state.counters["own_us"] = median(own) * 1e6;
    state.counters["walk_us"] = median(bare) * 1e6;
    state.counters["ratio"] = median(own) / median(bare);
}

BENCHMARK(readOnly)->Iterations(100)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const auto application = Gtk::Application::create();
    application->register_application();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
