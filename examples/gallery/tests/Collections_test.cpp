// The pages of collections and containers, used by hand in a window.
#include "Pages.h"
#include "Search.h"
#include "common/Look.h"

#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/Pictures.h"

#include <ZelCommonView/collections/SelectionView.h>
#include <ZelCommonView/collections/TableCellView.h>
#include <ZelCommonView/collections/TableCollectionView.h>
#include <ZelCommonView/collections/VirtualizationListView.h>
#include <ZelCommonView/containers/ExtendedCheckView.h>
#include <ZelCommonView/containers/ExtendedExpander.h>
#include <ZelCommonView/containers/RefreshSpinner.h>
#include <ZelCommonView/containers/ResultStateView.h>
#include <ZelCommonView/containers/ScrollAreaView.h>
#include <ZelCommonView/containers/SensitiveHidingPanel.h>
#include <ZelCommonView/containers/SharedSizeGroup.h>
#include <ZelCommonView/containers/SwitchableContainer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace {

/// A page in a window on the screen.
class PageInWindow {
public:
    explicit PageInWindow(const char* name) : page(gallery::findPage(name)->create()) {
        examples::installLook();
        page->show_all();
        window.set_default_size(900, 640);
        window.add(*page);
        test::present(window);
    }

    template <typename T>
    T& find(std::size_t position = 0) {
        return *test::findAll<T>(*page).at(position);
    }

    template <typename T = Gtk::Button>
    void press(const char* text) {
        auto* const button = test::findLabelled<T>(*page, text);
        if (!button)
            throw std::runtime_error(std::string("no button says ") + text);
        test::click(*button);
        test::settle();
    }

    bool says(const std::string& text) {
        const std::vector<Gtk::Label*> all = test::findAll<Gtk::Label>(*page);
        return std::any_of(all.begin(), all.end(), [&text](Gtk::Label* label) {
            return label->get_mapped() && label->get_text() == text;
        });
    }

private:
    std::unique_ptr<Gtk::Widget> page;
    Gtk::Window window;
};

/// The texts of a table's row, an empty one where a cell covers its column from the left.
std::string rowOf(Zel::TableCollectionView& table, int row) {
    std::string texts;
    const Gtk::Widget* before = nullptr;
    for (int column = 0; column < 4; ++column) {
        Gtk::Widget* const cell = table.get_child_at(column, row);
        if (cell && cell != before)
            texts += dynamic_cast<Zel::TableCellView&>(*cell).label.get_text();
        texts += "|";
        before = cell;
    }
    return texts;
}

/// Clicks a cell of a list after bringing it into view.
void clickCell(Zel::VirtualizationListView& list, int row, int column) {
    const Gtk::TreePath path(std::to_string(row));
    list.scroll_to_row(path);
    test::settle();
    Gdk::Rectangle area;
    list.get_cell_area(path, *list.get_column(column), area);
    int x = 0;
    int y = 0;
    list.convert_bin_window_to_widget_coords(area.get_x() + area.get_width() / 2,
                                             area.get_y() + area.get_height() / 2, x, y);
    test::click(list, x, y);
    test::settle();
}

std::string firstNumbers(const Zel::VirtualizationListView& list, int count) {
    std::string numbers;
    for (const Gtk::TreeModel::Row& row : list.get_model()->children()) {
        if (count-- == 0)
            break;
        numbers += row.get_value(list.getColumns().texts[0]) + " ";
    }
    return numbers;
}

/// What a widget shows by itself.
test::Picture pictureOf(Gtk::Widget& widget) {
    const auto surface = test::makeSurface(widget.get_allocated_width(), widget.get_allocated_height());
    const auto context = Cairo::Context::create(surface);
    gtk_widget_draw(widget.gobj(), context->cobj());
    return test::pictureOf(surface);
}

} // namespace

TEST(TablesPage, RowsAreAddedMovedAndRemovedBelowAHeaderThatSpans) {
    PageInWindow page("tables");
    auto& table = page.find<Zel::TableCollectionView>();
    EXPECT_EQ(rowOf(table, 0), "Channel|Limits||Unit|");
    EXPECT_EQ(rowOf(table, 1), "UA|-90|90|kV|");
    page.press("Add a row");
    EXPECT_EQ(rowOf(table, 5), "IB|-5|5|kA|");
    page.press("First row to the end");
    EXPECT_EQ(rowOf(table, 1), "UB|-90|90|kV|");
    EXPECT_EQ(rowOf(table, 5), "UA|-90|90|kV|");
    page.press("Remove the last");
    EXPECT_EQ(rowOf(table, 5), "||||");
    page.press("Clear");
    EXPECT_EQ(rowOf(table, 1), "||||");
    EXPECT_EQ(rowOf(table, 0), "Channel|Limits||Unit|");
    page.press("Remove the last"); // there is none
    page.press("First row to the end");
    page.press("Add a row");
    EXPECT_EQ(rowOf(table, 1), "UA|-90|90|kV|");
}

TEST(TablesPage, NeighboursShareTheirBorders) {
    PageInWindow page("tables");
    auto& table = page.find<Zel::TableCollectionView>();
    const test::Picture picture = pictureOf(table);
    const Gtk::Allocation first = table.get_child_at(0, 1)->get_allocation();
    const int left = first.get_x() - table.get_allocation().get_x();
    const int top = first.get_y() - table.get_allocation().get_y();
    const std::vector<int> inside = picture.at(left + 3, top + 3);
    // Lines of more than a pixel, and how many there are: beside the texts of the row and down the first
    // column.
    const auto linesOf = [&inside](int length, const std::function<std::vector<int>(int)>& pixel) {
        std::string lines;
        for (int i = 0; i < length; ++i)
            if (pixel(i) != inside)
                lines += i > 0 && pixel(i - 1) != inside ? "+" : "|";
        return lines;
    };
    EXPECT_EQ(linesOf(picture.width, [&](int x) { return picture.at(x, top + 3); }), "|||||");
    EXPECT_EQ(linesOf(picture.height - top, [&](int y) { return picture.at(left + 3, top + y); }), "||||");
}

TEST(TablesPage, TheBoxTurnsFromARowIntoAColumn) {
    PageInWindow page("tables");
    std::vector<Zel::TableCellView*> cells = test::findAll<Zel::TableCellView>(page.find<Gtk::Box>());
    Gtk::Widget& last = *cells.back();
    const int x = last.get_allocation().get_x();
    const int y = last.get_allocation().get_y();
    page.press<Gtk::CheckButton>("in a row");
    EXPECT_LT(last.get_allocation().get_x(), x);
    EXPECT_GT(last.get_allocation().get_y(), y);
}

TEST(ListsPage, AHeaderSortsNumbersAndTheCrossRemovesItsRow) {
    PageInWindow page("lists");
    auto& list = page.find<Zel::VirtualizationListView>();
    EXPECT_TRUE(page.says("Selected: Event 1"));
    test::click(*list.get_column(0)->get_button());
    test::settle();
    EXPECT_EQ(firstNumbers(list, 12), "1 2 3 4 5 6 7 8 9 10 11 12 ");
    test::click(*list.get_column(0)->get_button());
    test::settle();
    EXPECT_EQ(firstNumbers(list, 3), "12 11 10 ");
    clickCell(list, 1, 1);
    EXPECT_TRUE(page.says("Selected: Event 11"));
    clickCell(list, 2, 2);
    EXPECT_EQ(firstNumbers(list, 4), "12 11 9 8 ");
    clickCell(list, 0, 2);
    EXPECT_EQ(firstNumbers(list, 4), "11 9 8 7 ");
    for (int left = 10; left > 0; --left)
        clickCell(list, 0, 2);
    EXPECT_EQ(list.get_model()->children().size(), 0u);
    page.press("12 rows");
    EXPECT_EQ(firstNumbers(list, 3), "12 11 10 ");
}

TEST(ListsPage, AHundredThousandRowsComeAndGoAtOnePress) {
    PageInWindow page("lists");
    auto& list = page.find<Zel::VirtualizationListView>();
    const auto start = std::chrono::steady_clock::now();
    page.press("100 000 rows");
    EXPECT_EQ(list.get_model()->children().size(), 100'000u);
    clickCell(list, 99'999, 1);
    EXPECT_TRUE(page.says("Selected: Event 100000"));
    clickCell(list, 99'999, 2);
    EXPECT_EQ(list.get_model()->children().size(), 99'999u);
    page.press("12 rows");
    EXPECT_EQ(list.get_model()->children().size(), 12u);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    EXPECT_LT(took.count(), 30 * test::patience) << "seconds; row by row it takes minutes";
}

TEST(SelectionPage, AClickSelectsAndTheNeighbourTakesOver) {
    PageInWindow page("selection");
    const auto item = [&page](std::size_t position) -> Zel::SelectionView& {
        return page.find<Zel::SelectionView>(position);
    };
    EXPECT_TRUE(page.says("Selected: Terminal 1"));
    test::click(item(2));
    EXPECT_TRUE(page.says("Selected: Terminal 3"));
    EXPECT_TRUE(item(2).get_style_context()->has_class("Selected"));
    EXPECT_FALSE(item(0).get_style_context()->has_class("Selected"));
    page.press("Hide the selected one");
    EXPECT_TRUE(page.says("Selected: nothing"));
    page.press<Gtk::CheckButton>("always one");
    EXPECT_TRUE(page.says("Selected: Terminal 1"));
    test::click(item(3));
    page.press("Hide the selected one");
    EXPECT_FALSE(page.says("Selected: nothing"));
    page.press("Add an item");
    page.press("Show all");
    test::click(item(4));
    EXPECT_TRUE(page.says("Selected: Terminal 5"));
}

TEST(TabsPage, APageIsBuiltWhenItIsOpenedAndKeepsItsState) {
    PageInWindow page("tabs");
    auto& tabs = page.find<Gtk::Notebook>();
    const auto open = [&tabs](int number) {
        test::click(*tabs.get_tab_label(*tabs.get_nth_page(number)));
        test::settle();
    };
    EXPECT_TRUE(page.says("Built so far: Settings"));
    open(2);
    EXPECT_TRUE(page.says("Built so far: Settings, Oscillograms"));
    page.press("Press me");
    page.press("Pressed: 1");
    open(0);
    EXPECT_EQ(test::findLabelled<Gtk::Button>(tabs, "Pressed: 2"), nullptr);
    open(2);
    EXPECT_TRUE(page.says("Pressed: 2"));
    EXPECT_TRUE(page.says("Built so far: Settings, Oscillograms"));
    page.press<Gtk::CheckButton>("hide the last page");
    EXPECT_FALSE(tabs.get_nth_page(2)->get_visible());
    page.press<Gtk::CheckButton>("hide the last page");
    EXPECT_TRUE(tabs.get_nth_page(2)->get_visible());
}

TEST(FormPage, TheSwitchLocksAllButTheExceptions) {
    PageInWindow page("form");
    const auto switchLock = [&page] {
        test::click(page.find<Gtk::Switch>());
        test::wait(300); // it slides
    };
    Gtk::Entry* found = nullptr;
    for (Gtk::Entry* const entry : test::findAll<Gtk::Entry>(page.find<Gtk::Grid>()))
        if (entry->get_text() == "Line 1, terminal A")
            found = entry;
    ASSERT_NE(found, nullptr);
    Gtk::Entry& name = *found;
    auto& copy = *test::findLabelled<Gtk::Button>(page.find<Gtk::Box>(), "Copy");
    auto& apply = *test::findLabelled<Gtk::Button>(page.find<Gtk::Box>(), "Apply");
    auto& one = *test::findLabelled<Gtk::RadioButton>(page.find<Gtk::Box>(), "secondary");
    switchLock();
    EXPECT_FALSE(name.is_sensitive());
    EXPECT_TRUE(copy.is_sensitive());
    EXPECT_FALSE(apply.get_mapped());
    EXPECT_FALSE(one.is_sensitive());
    EXPECT_TRUE(one.get_sensitive()) << "only what it stands in is locked";
    EXPECT_TRUE(test::findLabelled<Gtk::Label>(page.find<Gtk::Box>(), "Name")->is_sensitive());
    test::click(name);
    test::type("x");
    test::wait(200);
    EXPECT_EQ(name.get_text(), "Line 1, terminal A");
    const auto countLocked = [&page] {
        const std::vector<Gtk::Entry*> all = test::findAll<Gtk::Entry>(page.find<Gtk::Grid>());
        return std::count_if(all.begin(), all.end(),
                             [](Gtk::Entry* entry) { return !entry->is_sensitive(); });
    };
    const auto before = countLocked();
    page.press("Add a row");
    EXPECT_EQ(countLocked(), before + 1);
    EXPECT_FALSE(apply.get_mapped()) << "showing the new row must not bring it back";
    switchLock();
    EXPECT_EQ(countLocked(), 0);
    EXPECT_TRUE(apply.get_mapped());
    test::click(name);
    test::type("x");
    EXPECT_TRUE(test::waitFor([&name] { return name.get_text() != "Line 1, terminal A"; }));
}

TEST(ExpanderPage, AClickOnTheArrowOpensAndCloses) {
    PageInWindow page("expander");
    auto& inputs = page.find<Zel::ExtendedExpander>();
    EXPECT_TRUE(page.says("Lockout"));
    test::click(inputs.expandArea);
    test::settle();
    EXPECT_FALSE(page.says("Lockout"));
    EXPECT_FALSE(inputs.get_expanded());
    test::wait(600); // the next click is one of its own, not the second of a double one
    test::click(inputs.expandArea);
    test::settle();
    EXPECT_TRUE(page.says("Lockout"));
}

TEST(ExpanderPage, TheArrowsAreSeen) {
    PageInWindow page("expander");
    auto& empty = page.find<Zel::ExtendedExpander>(2);
    auto& inputs = page.find<Zel::ExtendedExpander>();
    test::settle();
    const test::Picture down = pictureOf(inputs.expandArea);
    EXPECT_GT(down.countPainted(), 20);
    inputs.set_expanded(false);
    test::settle();
    const test::Picture right = pictureOf(inputs.expandArea);
    EXPECT_GT(right.countPainted(), 20);
    EXPECT_FALSE(down == right);
    page.press<Gtk::CheckButton>("arrow without a content");
    EXPECT_GT(pictureOf(empty.expandArea).countPainted(), 20);
}

TEST(ExpanderPage, TheNamesAreEquallyWideAndTheFirstCheckMayBeUnknown) {
    PageInWindow page("expander");
    const std::vector<Zel::SharedSizeGroup*> cells =
        test::findAll<Zel::SharedSizeGroup>(page.find<Zel::SharedSizeGroupOwner>());
    ASSERT_EQ(cells.size(), 4u);
    for (Zel::SharedSizeGroup* const cell : cells)
        EXPECT_EQ(cell->get_width(), cells.front()->get_width());
    auto& check = page.find<Zel::ExtendedCheckView>().checkButton;
    EXPECT_TRUE(check.get_active());
    auto& states = page.find<Gtk::ComboBoxText>();
    test::click(states);
    EXPECT_TRUE(test::waitFor([&states] { return states.property_popup_shown().get_value(); }));
    test::wait(300);
    test::pressKey(GDK_KEY_Down);
    test::pressKey(GDK_KEY_Down);
    test::pressKey(GDK_KEY_Return);
    EXPECT_TRUE(test::waitFor([&check] { return check.get_inconsistent(); }));
    test::click(check);
    EXPECT_TRUE(check.get_inconsistent());
}

TEST(ContainersPage, TheSpinnerTurnsUntilItIsStopped) {
    PageInWindow page("containers");
    auto& spinner = page.find<Zel::RefreshSpinner>();
    EXPECT_EQ(spinner.angle, 0);
    page.press<Gtk::ToggleButton>("Turn");
    EXPECT_TRUE(test::waitFor([&spinner] { return spinner.angle > 0; }));
    page.press<Gtk::ToggleButton>("Turn");
    const double angle = spinner.angle;
    test::wait(100);
    EXPECT_EQ(spinner.angle, angle);
}

TEST(ContainersPage, WhatIsNotThereGivesItsPlaceBack) {
    PageInWindow page("containers");
    page.press<Gtk::CheckButton>("with a view");
    EXPECT_FALSE(page.says("The view of a presenter"));
    EXPECT_NE(page.find<Zel::SwitchableContainer>().get_child(), nullptr);
    page.press<Gtk::CheckButton>("with a view");
    EXPECT_TRUE(page.says("The view of a presenter"));

    page.press<Gtk::CheckButton>("sensitive");
    EXPECT_FALSE(page.find<Zel::SensitiveHidingPanel>().get_visible());
    page.press<Gtk::CheckButton>("sensitive");
    EXPECT_TRUE(page.says("Here as long as it is sensitive"));
}

TEST(ContainersPage, OnlyAnErrorIsExplained) {
    PageInWindow page("containers");
    auto& result = page.find<Zel::ResultStateView>();
    EXPECT_TRUE(result.get_style_context()->has_class("stateErrorContainer"));
    EXPECT_TRUE(result.markFrame.get_mapped());
    EXPECT_EQ(result.markFrame.get_tooltip_text(), "The terminal doesn't answer");
    auto& states = page.find<Gtk::ComboBoxText>();
    test::click(states);
    EXPECT_TRUE(test::waitFor([&states] { return states.property_popup_shown().get_value(); }));
    test::wait(300);
    test::pressKey(GDK_KEY_Down);
    test::pressKey(GDK_KEY_Return);
    EXPECT_TRUE(
        test::waitFor([&result] { return result.get_style_context()->has_class("stateOkContainer"); }));
    EXPECT_FALSE(result.markFrame.get_mapped());
    EXPECT_TRUE(page.says("OK"));
}

TEST(ContainersPage, TheAreaScrollsByTheWheel) {
    PageInWindow page("containers");
    auto& area = page.find<Zel::ScrollAreaView>();
    test::movePointer(area, 60, 60);
    test::click(area, 60, 60, 5);
    EXPECT_TRUE(test::waitFor([&area] { return area.get_vadjustment()->get_value() > 0; }));
}
