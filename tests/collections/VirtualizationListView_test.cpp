#include <ZelCommonView/collections/VirtualizationListView.h>

#include "ListFixture.h"
#include "support/Finalised.h"
#include "support/Hands.h"
#include "support/Keyboard.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <limits>
#include <memory>

namespace {

using namespace Zel;
using test::Column;
using test::Row;

int compareNumbers(const std::string& left, const std::string& right) {
    return std::stoi(left) - std::stoi(right);
}

class RendererAsView : public Gtk::CellRendererPixbuf, public IView {};

class NoRenderer : public IView {};

class ListTest : public testing::Test {
protected:
    ListTest() {
        list->setColumns({&names, &numbers});
        list->signalSelectionChanged().connect([this] { ++changes; });
    }

    Row* row(const std::string& name, const std::string& number = "0") {
        rows.push_back(std::make_unique<Row>(std::vector<std::string>{name, number}));
        return rows.back().get();
    }

    /// Adds rows of these names at the end.
    void fill(const std::vector<std::string>& given) {
        for (const std::string& name : given)
            list->addRow(list->store->children().size(), row(name));
    }

    std::vector<std::string> stored() { return test::textsOf(list->store, *list); }

    std::vector<std::string> shown() { return test::textsOf(list->get_model(), *list); }

    std::vector<std::string> selected() {
        std::vector<std::string> found;
        for (IRowPresenter* const presenter : list->getSelection())
            found.push_back(dynamic_cast<Row&>(*presenter).views[0].text);
        return found;
    }

    /// A real click into the cell of a row on the screen.
    void clickRow(int position) {
        Gdk::Rectangle area;
        list->get_cell_area(Gtk::TreePath(std::to_string(position)), *list->get_column(0), area);
        int x = 0;
        int y = 0;
        list->convert_bin_window_to_widget_coords(area.get_x() + 10, area.get_y() + area.get_height() / 2, x,
                                                  y);
        test::click(*list, x, y);
    }

    void present() {
        window.set_default_size(300, 300);
        window.add(*list);
        window.show_all();
        test::present(window);
    }

    Column names{"Name"};
    Column numbers{"Number", &compareNumbers};
    std::vector<std::unique_ptr<Row>> rows;
    Gtk::Window window;
    std::unique_ptr<VirtualizationListView> list = std::make_unique<VirtualizationListView>();
    int changes = 0;
};

using Texts = std::vector<std::string>;

} // namespace

TEST_F(ListTest, HasItsClassesAndAlwaysOneRowSelected) {
    EXPECT_TRUE(list->get_style_context()->has_class("CollectionView"));
    EXPECT_TRUE(list->get_style_context()->has_class("VirtualizationListView"));
    EXPECT_EQ(list->get_selection()->get_mode(), Gtk::SELECTION_BROWSE);
    list->setMultiSelection(true);
    EXPECT_EQ(list->get_selection()->get_mode(), Gtk::SELECTION_MULTIPLE);
    list->setMultiSelection(false);
    EXPECT_EQ(list->get_selection()->get_mode(), Gtk::SELECTION_BROWSE);
}

TEST_F(ListTest, ShowsAndHidesItsHeader) {
    list->showHeader(false);
    EXPECT_FALSE(list->get_headers_visible());
    list->showHeader(true);
    EXPECT_TRUE(list->get_headers_visible());
}

TEST_F(ListTest, TheModelHasThePresenterFirst) {
    EXPECT_EQ(list->getColumns().rowPresenter.index(), 0);
    ASSERT_EQ(list->getColumns().texts.size(), 2u);
    EXPECT_EQ(list->getColumns().texts[1].index(), 2);
    EXPECT_EQ(list->get_model(), list->sort);
    EXPECT_EQ(list->sort->get_model(), list->store);
    EXPECT_TRUE(list->get_visible());
}

TEST_F(ListTest, AColumnOfTextsCanBeSortedAndResized) {
    Gtk::TreeViewColumn& column = *list->get_column(0);
    EXPECT_EQ(column.get_title(), "Name");
    EXPECT_TRUE(column.get_resizable());
    EXPECT_TRUE(column.get_expand());
    EXPECT_EQ(column.get_alignment(), 0.5F);
    EXPECT_EQ(column.get_sort_column_id(), 1);
    EXPECT_TRUE(column.get_sort_indicator());
    ASSERT_EQ(column.get_cells().size(), 1u);
    EXPECT_NE(dynamic_cast<Gtk::CellRendererText*>(column.get_cells()[0]), nullptr);
}

TEST(VirtualizationListView, AColumnWithItsOwnRendererCantBeSortedOrResized) {
    VirtualizationListView list;
    RendererAsView renderer;
    NoRenderer noRenderer;
    Column own("Own", nullptr, &renderer);
    Column text("Text", nullptr, &noRenderer);
    list.setColumns({&own, &text});
    Gtk::TreeViewColumn& column = *list.get_column(0);
    EXPECT_EQ(column.get_title(), "Own");
    EXPECT_EQ(column.get_cells(), std::vector<Gtk::CellRenderer*>{&renderer});
    EXPECT_FALSE(column.get_resizable());
    EXPECT_FALSE(column.get_expand());
    EXPECT_EQ(column.get_sort_column_id(), -1);
    EXPECT_FALSE(column.get_sort_indicator());
    // What is no renderer makes a column of texts.
    EXPECT_EQ(list.get_column(1)->get_sort_column_id(), 2);
}

TEST(VirtualizationListView, ASecondSetOfColumnsIsAddedToTheFirst) {
    VirtualizationListView list;
    Column first("a");
    Column second("b");
    list.setColumns({&first});
    list.setColumns({&second, &first});
    EXPECT_EQ(list.getColumns().texts.size(), 3u);
    EXPECT_EQ(list.get_n_columns(), 3u);
    EXPECT_EQ(list.get_model()->get_n_columns(), 4);
    EXPECT_EQ(list.get_column(1)->get_sort_column_id(), 1);
}

TEST(VirtualizationListView, WithoutColumnsItTakesNoRows) {
    VirtualizationListView list;
    Row row({"a"});
    list.addRow(0, &row);
    list.addRows(0, {&row});
    list.setRows({&row});
    list.updateCell(0, 0, nullptr);
    list.removeRow(0);
    list.moveRow(0, 1);
    list.clearAll();
    EXPECT_TRUE(list.getSelection().empty());
}

TEST_F(ListTest, TheFirstRowOfAnEmptyListIsSelected) {
    list->addRow(0, row("a"));
    EXPECT_EQ(selected(), Texts{"a"});
    EXPECT_EQ(changes, 1);
    list->addRow(0, row("b"));
    list->addRow(2, row("c"));
    EXPECT_EQ(selected(), Texts{"a"});
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(stored(), (Texts{"b", "a", "c"}));
}

TEST_F(ListTest, AnIndexBehindTheEndAppends) {
    fill({"a"});
    list->addRow(5, row("b"));
    list->addRow(std::numeric_limits<unsigned long>::max(), row("c"));
    EXPECT_EQ(stored(), (Texts{"a", "b", "c"}));
}

TEST_F(ListTest, OnlyTextsGiveCells) {
    NoRenderer other;
    Row& mixed = *row("a", "1");
    mixed.cells = {&other, nullptr};
    list->addRow(0, &mixed);
    Row& tooLong = *row("b", "2");
    tooLong.cells.push_back(tooLong.cells[0]);
    list->addRow(1, &tooLong);
    Row& tooShort = *row("c", "3");
    tooShort.cells.pop_back();
    list->addRow(2, &tooShort);
    list->addRow(3, nullptr);
    EXPECT_EQ(stored(), (Texts{"", "b", "c", ""}));
    EXPECT_EQ(test::textsOf(list->store, *list, 1), (Texts{"", "2", "", ""}));
}

TEST_F(ListTest, UpdatesACell) {
    fill({"a", "b"});
    CellDataView text("new");
    NoRenderer other;
    list->updateCell(1, 0, &text);
    EXPECT_EQ(stored(), (Texts{"a", "new"}));
    list->updateCell(0, 1, &text);
    EXPECT_EQ(test::textsOf(list->store, *list, 1), (Texts{"new", "0"}));
    list->updateCell(2, 0, &text);
    list->updateCell(std::numeric_limits<unsigned long>::max(), 0, &text);
    list->updateCell(0, 2, &text);
    list->updateCell(0, 0, nullptr);
    list->updateCell(0, 0, &other);
    EXPECT_EQ(stored(), (Texts{"a", "new"}));
}

TEST_F(ListTest, RemovesARowAndNoneThatIsNotThere) {
    fill({"a", "b", "c"});
    list->removeRow(1);
    EXPECT_EQ(stored(), (Texts{"a", "c"}));
    list->removeRow(2);
    list->removeRow(std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(stored(), (Texts{"a", "c"}));
}

TEST_F(ListTest, AMovedRowStandsAtItsNewIndex) {
    const Texts letters{"a", "b", "c", "d", "e", "f", "g"};
    for (unsigned long from = 0; from < letters.size(); ++from)
        for (unsigned long to = 0; to < letters.size(); ++to) {
            list->clearAll();
            fill(letters);
            list->moveRow(from, to);
            Texts expected = letters;
            expected.erase(expected.begin() + static_cast<long>(from));
            expected.insert(expected.begin() + static_cast<long>(to), letters[from]);
            EXPECT_EQ(stored(), expected) << from << " to " << to;
        }
    list->clearAll();
    fill({"a", "b", "c"});
    list->moveRow(0, 77);
    EXPECT_EQ(stored(), (Texts{"b", "c", "a"}));
    list->moveRow(3, 0);
    EXPECT_EQ(stored(), (Texts{"b", "c", "a"}));
}

TEST_F(ListTest, ClearsAll) {
    fill({"a", "b"});
    changes = 0;
    list->clearAll();
    EXPECT_TRUE(stored().empty());
    EXPECT_TRUE(list->getSelection().empty());
    EXPECT_GE(changes, 1);
    fill({"c"});
    EXPECT_EQ(selected(), Texts{"c"});
}

TEST_F(ListTest, AClickSelectsAndTheSelectionCantBeTakenAway) {
    fill({"a", "b", "c"});
    present();
    changes = 0;
    clickRow(2);
    EXPECT_TRUE(test::waitFor([this] { return selected() == Texts{"c"}; }));
    EXPECT_EQ(changes, 1);
    const test::HeldKey control(GDK_KEY_Control_L);
    clickRow(2);
    test::settle();
    EXPECT_EQ(selected(), Texts{"c"});
    EXPECT_EQ(changes, 1);
}

TEST_F(ListTest, SelectsManyIfAllowedInTheOrderOfTheScreen) {
    fill({"a", "c", "b"});
    list->setMultiSelection(true);
    list->sort->set_sort_column(1, Gtk::SORT_DESCENDING);
    list->get_selection()->select_all();
    EXPECT_EQ(selected(), (Texts{"c", "b", "a"}));
    list->get_selection()->unselect_all();
    EXPECT_TRUE(selected().empty());
}

TEST_F(ListTest, AClickOnTheHeaderSortsByTheComparator) {
    for (const char* const number : {"10", "9", "100"})
        list->addRow(list->store->children().size(), row(number, number));
    present();
    Gtk::Widget& header = *list->get_column(1)->get_button();
    test::click(header);
    EXPECT_TRUE(test::waitFor([this] { return shown() == Texts{"9", "10", "100"}; }));
    EXPECT_EQ(stored(), (Texts{"10", "9", "100"}));
    test::wait(500); // not a double click
    test::click(header);
    EXPECT_TRUE(test::waitFor([this] { return shown() == Texts{"100", "10", "9"}; }));
    // Texts without a comparator have their ordinary order.
    test::wait(500);
    test::click(*list->get_column(0)->get_button());
    EXPECT_TRUE(test::waitFor([this] { return shown() == Texts{"10", "100", "9"}; }));
}

TEST_F(ListTest, SortedOrNotIndicesAreThoseOfTheStore) {
    for (const char* const number : {"3", "1", "2"})
        list->addRow(list->store->children().size(), row(number, number));
    list->sort->set_sort_column(2, Gtk::SORT_ASCENDING);
    ASSERT_EQ(shown(), (Texts{"1", "2", "3"}));
    list->get_selection()->select(Gtk::TreePath("0"));
    EXPECT_EQ(selected(), Texts{"1"});
    CellDataView text("new");
    list->updateCell(0, 0, &text);
    EXPECT_EQ(stored(), (Texts{"new", "1", "2"}));
    list->removeRow(1);
    EXPECT_EQ(shown(), (Texts{"2", "new"}));
}

TEST_F(ListTest, RowsWithoutAPresenterAreNotInTheSelection) {
    list->addRow(0, nullptr);
    EXPECT_EQ(list->get_selection()->count_selected_rows(), 1);
    EXPECT_TRUE(list->getSelection().empty());
}

TEST_F(ListTest, AListenerMayDeleteIt) {
    list->signalSelectionChanged().connect([this] { list.reset(); });
    fill({"a"});
    EXPECT_EQ(list, nullptr);
}

TEST_F(ListTest, TheComparatorMayOutliveTheList) {
    fill({"2", "1"});
    const Glib::RefPtr<Gtk::TreeModelSort> sort = list->sort;
    list.reset();
    sort->set_sort_column(2, Gtk::SORT_ASCENDING);
    EXPECT_EQ(sort->children().size(), 2u);
}

TEST(VirtualizationListView, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    Column column("a", &compareNumbers);
    Row row({"1"});
    int changes = 0;
    for (int i = 0; i < 1000; ++i) {
        VirtualizationListView list;
        list.setColumns({&column});
        list.addRow(0, &row);
        list.addRows(1, {&row, &row});
        list.signalSelectionChanged().connect([&changes] { ++changes; });
        finalised.watch(list);
        finalised.watch(*list.store.operator->());
        finalised.watch(*list.sort.operator->());
    }
    EXPECT_TRUE(finalised.all());
    EXPECT_EQ(changes, 0);
}
