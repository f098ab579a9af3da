#include <ZelCommonView/collections/TableCellPresenter.h>
#include <ZelCommonView/collections/TableCollectionView.h>

#include "support/Finalised.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <limits>
#include <memory>

namespace {

using namespace Zel;

class NoWidget : public IView {};

class TableTest : public testing::Test {
protected:
    /// A new cell that lives as long as the test.
    TableCellView* cell() {
        cells.push_back(std::make_unique<TableCellView>());
        return cells.back().get();
    }

    /// Where the cell stands: column, row, columns that it covers, rows.
    std::vector<int> placeOf(TableCellView* view) {
        if (!view->get_parent())
            return {};
        return {table.child_property_left_attach(*view), table.child_property_top_attach(*view),
                table.child_property_width(*view), table.child_property_height(*view)};
    }

    static bool hasClass(TableCellView* view, const char* name) {
        return view->get_style_context()->has_class(name);
    }

    std::vector<std::unique_ptr<TableCellView>> cells;
    TableCollectionView table;
};

using Place = std::vector<int>;

} // namespace

TEST_F(TableTest, HasItsClassesAndNoSpacing) {
    EXPECT_TRUE(table.get_style_context()->has_class("CollectionView"));
    EXPECT_TRUE(table.get_style_context()->has_class("table"));
    EXPECT_EQ(table.get_row_spacing(), 0u);
    EXPECT_EQ(table.get_column_spacing(), 0u);
}

TEST_F(TableTest, TheHeaderStandsAboveTheRows) {
    TableCellView* const header = cell();
    TableCellView* const body = cell();
    TableCellView* const last = cell();
    table.setHeader({header});
    table.addRow(0, {body});
    table.addRow(4, {last});
    EXPECT_EQ(placeOf(header), (Place{0, 0, 1, 1}));
    EXPECT_EQ(placeOf(body), (Place{0, 1, 1, 1}));
    EXPECT_EQ(placeOf(last), (Place{0, 5, 1, 1}));
    EXPECT_TRUE(body->get_visible());
}

TEST_F(TableTest, NullsBehindACellMakeItWider) {
    TableCellView* const first = cell();
    TableCellView* const second = cell();
    table.addRow(0, {first, nullptr, nullptr, second});
    EXPECT_EQ(placeOf(first), (Place{0, 1, 3, 1}));
    EXPECT_EQ(placeOf(second), (Place{3, 1, 1, 1}));
}

TEST_F(TableTest, NullsAtTheEndCountAndThoseAtTheBeginningLeaveAGap) {
    TableCellView* const only = cell();
    table.addRow(0, {nullptr, only, nullptr, nullptr});
    EXPECT_EQ(placeOf(only), (Place{1, 1, 3, 1}));
    EXPECT_EQ(table.get_child_at(0, 1), nullptr);
    EXPECT_TRUE(hasClass(only, "leftMarginM1"));
}

TEST_F(TableTest, WhatIsNoWidgetLeavesItsColumnEmptyAndWidensNothing) {
    NoWidget noWidget;
    TableCellView* const first = cell();
    TableCellView* const second = cell();
    table.addRow(0, {first, &noWidget, nullptr, second});
    EXPECT_EQ(placeOf(first), (Place{0, 1, 1, 1}));
    EXPECT_EQ(placeOf(second), (Place{3, 1, 1, 1}));
}

TEST_F(TableTest, InnerCellsPullOverTheirNeighboursBorders) {
    TableCellView* const cellsOf[2][2] = {{cell(), cell()}, {cell(), cell()}};
    table.setHeader({cellsOf[0][0], cellsOf[0][1]});
    table.addRow(0, {cellsOf[1][0], cellsOf[1][1]});
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 2; ++column) {
            EXPECT_EQ(hasClass(cellsOf[row][column], "leftMarginM1"), column == 1);
            EXPECT_EQ(hasClass(cellsOf[row][column], "topMarginM1"), row == 1);
        }
}

TEST_F(TableTest, ABodyCellExpandsAsItsHeaderDoes) {
    TableCellView* const wide = cell();
    TableCellView* const narrow = cell();
    TableCellView* const first = cell();
    TableCellView* const second = cell();
    TableCellView* const third = cell();
    wide->setHorizontalExpand(true);
    second->setHorizontalExpand(true);
    third->setHorizontalExpand(true);
    table.setHeader({wide, narrow});
    table.addRow(0, {first, second, third});
    EXPECT_TRUE(wide->get_hexpand());
    EXPECT_TRUE(first->get_hexpand());
    EXPECT_FALSE(second->get_hexpand());
    EXPECT_TRUE(third->get_hexpand()); // above it is no header
}

TEST_F(TableTest, ARowAtAnIndexInUseLiesOverTheOldOne) {
    TableCellView* const below = cell();
    TableCellView* const above = cell();
    table.addRow(0, {below});
    table.addRow(0, {above});
    EXPECT_EQ(placeOf(below), placeOf(above));
}

TEST_F(TableTest, RemovingARowMovesTheOthersUp) {
    std::vector<TableCellView*> rows;
    for (unsigned long i = 0; i < 3; ++i) {
        rows.push_back(cell());
        table.addRow(i, {rows.back()});
    }
    table.removeRow(1);
    EXPECT_EQ(placeOf(rows[0]), (Place{0, 1, 1, 1}));
    EXPECT_EQ(placeOf(rows[1]), Place());
    EXPECT_EQ(placeOf(rows[2]), (Place{0, 2, 1, 1}));
    table.removeRow(77);
    table.removeRow(std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(placeOf(rows[2]), (Place{0, 2, 1, 1}));
}

TEST_F(TableTest, MovesARowInBothDirections) {
    TableCellView* const header = cell();
    table.setHeader({header});
    std::vector<std::vector<TableCellView*>> rows;
    for (unsigned long i = 0; i < 4; ++i) {
        rows.push_back({cell(), cell()});
        table.addRow(i, {rows[i][0], rows[i][1]});
    }
    const auto order = [&] {
        std::vector<int> found;
        for (const auto& row : rows)
            found.push_back(placeOf(row[0])[1] - 1);
        return found;
    };
    table.moveRow(0, 2);
    EXPECT_EQ(order(), (std::vector<int>{2, 0, 1, 3}));
    table.moveRow(2, 0);
    EXPECT_EQ(order(), (std::vector<int>{0, 1, 2, 3}));
    table.moveRow(1, 1);
    EXPECT_EQ(order(), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(placeOf(rows[1][1]), (Place{1, 2, 1, 1}));
    EXPECT_EQ(placeOf(header), (Place{0, 0, 1, 1}));
}

TEST_F(TableTest, AMovedRowLosesItsGapsAndSpans) {
    TableCellView* const first = cell();
    TableCellView* const second = cell();
    TableCellView* const other = cell();
    table.addRow(0, {nullptr, first, second});
    table.addRow(1, {other});
    table.moveRow(0, 1);
    EXPECT_EQ(placeOf(first), (Place{0, 2, 1, 1}));
    EXPECT_EQ(placeOf(second), (Place{1, 2, 1, 1}));
    TableCellView* const wide = cell();
    TableCellView* const behind = cell();
    table.addRow(2, {wide, nullptr, behind});
    table.moveRow(2, 0);
    EXPECT_EQ(placeOf(wide), (Place{0, 1, 1, 1}));
    EXPECT_EQ(placeOf(behind), (Place{2, 1, 1, 1}));
}

TEST_F(TableTest, ARowThatNobodyElseHoldsSurvivesItsMove) {
    class ManagedCell : public TableCellView {};

    auto* const managed = Gtk::make_managed<ManagedCell>();
    TableCellView* const other = cell();
    table.addRow(0, {managed});
    table.addRow(1, {other});
    table.moveRow(0, 1);
    EXPECT_EQ(placeOf(managed), (Place{0, 2, 1, 1}));
}

TEST_F(TableTest, ClearingLeavesTheHeader) {
    table.clearAll();
    TableCellView* const header = cell();
    table.setHeader({header});
    table.clearAll();
    EXPECT_EQ(placeOf(header), (Place{0, 0, 1, 1}));
    std::vector<TableCellView*> rows{cell(), cell()};
    table.addRow(0, {rows[0]});
    table.addRow(5, {rows[1]});
    table.clearAll();
    EXPECT_EQ(placeOf(header), (Place{0, 0, 1, 1}));
    EXPECT_EQ(table.get_children().size(), 1u);
    for (TableCellView* const row : rows)
        EXPECT_EQ(row->get_parent(), nullptr);
}

TEST(TableCellView, FramesAText) {
    TableCellView view;
    EXPECT_EQ(view.get_child(), &view.label);
    EXPECT_TRUE(view.label.get_style_context()->has_class("standartSmallContentMargin"));
    EXPECT_EQ(view.label.get_halign(), Gtk::ALIGN_CENTER);
    EXPECT_EQ(view.label.get_valign(), Gtk::ALIGN_CENTER);
    EXPECT_FALSE(view.get_hexpand());
    EXPECT_TRUE(view.get_hexpand_set());
    EXPECT_TRUE(view.get_visible());
    EXPECT_TRUE(view.label.get_visible());
    view.setTitle("Ток, А");
    EXPECT_EQ(view.label.get_text(), "Ток, А");
}

TEST(TableCellView, OnlyAddsTheClassesOfHeaderAndBody) {
    TableCellView view;
    const auto classes = [&view] {
        std::string found;
        for (const char* const name : {"TableHeaderCellView", "tableScrolledHeaderCell", "tableScrolledCell"})
            found += view.get_style_context()->has_class(name) ? '1' : '0';
        return found;
    };
    EXPECT_EQ(classes(), "000");
    view.setHeader(false);
    EXPECT_EQ(classes(), "001");
    view.setHeader(true);
    EXPECT_EQ(classes(), "111");
    TableCellView header;
    header.setHeader(true);
    EXPECT_FALSE(header.get_style_context()->has_class("tableScrolledCell"));
}

TEST(TableCellPresenter, PreparesItsViewInOrder) {
    class Recording : public ITableCellView {
    public:
        explicit Recording(std::vector<std::string>& givenCalls) : calls(givenCalls) {}

        void setTitle(const std::string& title) override { calls.push_back("title " + title); }

        void setHorizontalExpand(bool value) override { calls.push_back(value ? "wide" : "narrow"); }

        void setHeader(bool value) override { calls.push_back(value ? "header" : "body"); }

        std::vector<std::string>& calls;
    };

    class Presenter : public TableCellPresenter {
    public:
        using TableCellPresenter::TableCellPresenter;

        std::vector<std::string> calls;

    protected:
        std::unique_ptr<ITableCellView> _createDefaultView() override {
            return std::make_unique<Recording>(calls);
        }
    };

    Presenter header("a", true, false, 3);
    header.getView();
    EXPECT_EQ(header.calls, (std::vector<std::string>{"title a", "narrow", "header"}));
    EXPECT_EQ(header.getColspan(), 3u);
    Presenter body("b", false, true, 1);
    body.getView();
    EXPECT_EQ(body.calls, (std::vector<std::string>{"title b", "wide", "body"}));
}

TEST(TableCellPresenter, MakesACell) {
    TableCellPresenter presenter("title", false, true, 1);
    auto* const view = dynamic_cast<TableCellView*>(presenter.getView());
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->label.get_text(), "title");
    EXPECT_TRUE(view->get_hexpand());
}

TEST(TableCollectionView, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    TableCellPresenter cell("cell", false, true, 1);
    for (int i = 0; i < 1000; ++i) {
        TableCollectionView table;
        table.addRow(0, {cell.getView()});
        finalised.watch(table);
    }
    EXPECT_TRUE(finalised.all());
}
