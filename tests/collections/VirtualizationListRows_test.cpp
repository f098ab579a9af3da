// Many rows at once: what is left is what the same rows one by one leave.
#include <ZelCommonView/collections/VirtualizationListView.h>

#include "ListFixture.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>
#include <random>

namespace {

using namespace Zel;
using test::Column;
using test::Row;

int compareNumbers(const std::string& left, const std::string& right) {
    return std::stoi(left) - std::stoi(right);
}

/// A list and what can be seen of it.
class Subject {
public:
    Subject() {
        list.setColumns({&texts, &numbers});
        list.signalSelectionChanged().connect([this] { ++changes; });
    }

    std::vector<std::string> state() {
        std::vector<std::string> found;
        for (const Glib::RefPtr<Gtk::TreeModel>& model :
             {Glib::RefPtr<Gtk::TreeModel>(list.store), list.get_model()}) {
            for (std::size_t column = 0; column < 2; ++column)
                for (const std::string& text : test::textsOf(model, list, column))
                    found.push_back(text);
            found.emplace_back("|");
        }
        for (IRowPresenter* const presenter : list.getSelection())
            found.push_back(std::to_string(reinterpret_cast<std::uintptr_t>(presenter)));
        for (Gtk::TreeViewColumn* const column : list.get_columns()) {
            found.emplace_back(column->get_sort_indicator() ? "indicator" : "none");
            found.push_back(std::to_string(column->get_sort_order()));
        }
        return found;
    }

    Column texts{"Text"};
    Column numbers{"Number", &compareNumbers};
    VirtualizationListView list;
    int changes = 0;
};

class RowsTest : public testing::Test {
protected:
    std::vector<IRowPresenter*> make(unsigned int count) {
        std::vector<IRowPresenter*> made;
        for (unsigned int i = 0; i < count; ++i) {
            const std::string number = std::to_string(std::uniform_int_distribution<int>(0, 999)(random));
            rows.push_back(std::make_unique<Row>(std::vector<std::string>{"row " + number, number}));
            made.push_back(rows.back().get());
        }
        return made;
    }

    unsigned int below(unsigned int limit) {
        return std::uniform_int_distribution<unsigned int>(0, limit - 1)(random);
    }

    std::mt19937 random{7};
    std::vector<std::unique_ptr<Row>> rows;
    Subject once;
    Subject oneByOne;
};

} // namespace

TEST_F(RowsTest, FillingAnEmptyListSelectsTheFirstRowAndReportsOnce) {
    once.list.setRows(make(100));
    EXPECT_EQ(once.changes, 1);
    ASSERT_EQ(once.list.getSelection().size(), 1u);
    EXPECT_EQ(once.list.getSelection()[0], rows[0].get());
    EXPECT_EQ(once.list.store->children().size(), 100u);
}

TEST_F(RowsTest, FillingAFullListReportsOnce) {
    once.list.setRows(make(10));
    once.changes = 0;
    const std::vector<IRowPresenter*> other = make(5);
    once.list.setRows(other);
    EXPECT_EQ(once.changes, 1);
    EXPECT_EQ(once.list.store->children().size(), 5u);
    EXPECT_EQ(once.list.getSelection(), std::vector<IRowPresenter*>{other[0]});
}

TEST_F(RowsTest, NoRowsEmptyTheList) {
    once.list.addRows(0, {});
    EXPECT_EQ(once.changes, 0);
    once.list.setRows(make(3));
    once.changes = 0;
    once.list.setRows({});
    EXPECT_GE(once.changes, 1);
    EXPECT_TRUE(once.list.store->children().empty());
}

TEST_F(RowsTest, RowsWithoutPresentersAreEmptyLines) {
    once.list.setRows({nullptr, nullptr, nullptr});
    EXPECT_EQ(test::textsOf(once.list.store, once.list), (std::vector<std::string>{"", "", ""}));
}

TEST_F(RowsTest, AnIndexBehindTheEndAppends) {
    const std::vector<IRowPresenter*> first = make(3);
    const std::vector<IRowPresenter*> second = make(3);
    once.list.addRows(99, first);
    once.list.addRows(99, second);
    for (std::size_t i = 0; i < 3; ++i) {
        oneByOne.list.addRow(i, first[i]);
        oneByOne.list.addRow(99, second[i]);
    }
    EXPECT_EQ(once.state(), oneByOne.state());
}

TEST_F(RowsTest, LeaveWhatTheSameRowsOneByOneLeave) {
    for (int i = 0; i < 400; ++i) {
        switch (below(8)) {
        case 0: {
            const std::vector<IRowPresenter*> made = make(below(30));
            once.list.setRows(made);
            oneByOne.list.clearAll();
            for (std::size_t k = 0; k < made.size(); ++k)
                oneByOne.list.addRow(k, made[k]);
            break;
        }
        case 1:
        case 2:
        case 3: {
            const auto size = static_cast<unsigned int>(once.list.store->children().size());
            const unsigned int index = below(size + 2);
            const std::vector<IRowPresenter*> made = make(below(12));
            once.changes = oneByOne.changes = 0;
            once.list.addRows(index, made);
            for (std::size_t k = 0; k < made.size(); ++k)
                oneByOne.list.addRow(std::min(index, size) + k, made[k]);
            EXPECT_EQ(once.changes, oneByOne.changes);
            break;
        }
        case 4: {
            const int column = 1 + static_cast<int>(below(2));
            const auto order = below(2) ? Gtk::SORT_ASCENDING : Gtk::SORT_DESCENDING;
            once.list.sort->set_sort_column(column, order);
            oneByOne.list.sort->set_sort_column(column, order);
            break;
        }
        case 5: {
            const bool isMulti = below(2) != 0;
            once.list.setMultiSelection(isMulti);
            oneByOne.list.setMultiSelection(isMulti);
            break;
        }
        case 6: {
            // The same rows of the store: of equal ones each sorting may show another order.
            if (once.list.get_selection()->get_mode() == Gtk::SELECTION_MULTIPLE && below(2)) {
                once.list.get_selection()->unselect_all();
                oneByOne.list.get_selection()->unselect_all();
            }
            const auto size = static_cast<unsigned int>(once.list.store->children().size());
            if (size == 0)
                break;
            const Gtk::TreePath path(std::to_string(below(size)));
            for (Subject* const subject : {&once, &oneByOne})
                subject->list.get_selection()->select(subject->list.sort->convert_child_path_to_path(path));
            break;
        }
        default:
            if (!once.list.store->children().empty()) {
                const unsigned int index =
                    below(static_cast<unsigned int>(once.list.store->children().size()));
                once.list.removeRow(index);
                oneByOne.list.removeRow(index);
            }
        }
        ASSERT_EQ(once.state(), oneByOne.state()) << "after " << i + 1 << " operations";
    }
}
