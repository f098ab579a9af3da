#include <ZelCommonView/collections/RemoveCellRenderer.h>
#include <ZelCommonView/common/Directories.h>

#include "ListFixture.h"
#include "support/Finalised.h"
#include "support/Hands.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;
using test::Column;
using test::Row;

class RemoveCellTest : public testing::Test {
protected:
    RemoveCellTest() {
        presenter->signalRemoveRow().connect([this](IRowPresenter* row) { removed.push_back(row); });
        list.setColumns({&names, &remove});
        for (unsigned long i = 0; i < 3; ++i)
            list.addRow(i, &rows[i]);
    }

    RemoveCellRenderer& renderer() { return dynamic_cast<RemoveCellRenderer&>(*presenter->getView()); }

    bool activate(Gtk::Widget& widget, const std::string& path) {
        return renderer().activate_vfunc(nullptr, widget, path, Gdk::Rectangle(), Gdk::Rectangle(),
                                         Gtk::CellRendererState());
    }

    Row rows[3] = {Row({"b"}), Row({"a"}), Row({"c"})};
    std::unique_ptr<RemoveCellRendererPresenter> presenter = std::make_unique<RemoveCellRendererPresenter>();
    Column names{"Name"};
    Column remove{"", nullptr, presenter->getView()};
    VirtualizationListView list;
    std::vector<IRowPresenter*> removed;
};

using Rows = std::vector<IRowPresenter*>;

} // namespace

TEST_F(RemoveCellTest, PaintsTheCrossOfTheThemeAndCanBePressed) {
    EXPECT_EQ(renderer().property_mode().get_value(), Gtk::CELL_RENDERER_MODE_ACTIVATABLE);
    EXPECT_EQ(renderer().property_xpad().get_value(), 5u);
    EXPECT_TRUE(renderer().property_pixbuf().get_value());
}

TEST(RemoveCellRenderer, AMissingPictureIsAnError) {
    test::TemporaryFolder folder;
    setThemesDir(folder.path.string());
    EXPECT_THROW(RemoveCellRenderer(), Glib::Error);
    setThemesDir("");
}

TEST_F(RemoveCellTest, ReportsTheRowOfTheScreen) {
    list.sort->set_sort_column(1, Gtk::SORT_ASCENDING);
    EXPECT_TRUE(activate(list, "0"));
    EXPECT_EQ(removed, Rows{&rows[1]});
}

TEST_F(RemoveCellTest, ReportsNothingElsewhere) {
    Gtk::TreeView other(list.get_model());
    VirtualizationListView empty;
    EXPECT_FALSE(activate(other, "0"));
    EXPECT_FALSE(activate(empty, "0"));
    EXPECT_FALSE(activate(list, "3"));
    list.addRow(3, nullptr);
    EXPECT_FALSE(activate(list, "3"));
    EXPECT_TRUE(removed.empty());
}

TEST_F(RemoveCellTest, ARealClickReportsItsRowAndRemovesNothing) {
    Gtk::Window window;
    window.set_default_size(300, 200);
    window.add(list);
    window.show_all();
    test::present(window);
    Gdk::Rectangle area;
    list.get_cell_area(Gtk::TreePath("2"), *list.get_column(1), area);
    int x = 0;
    int y = 0;
    list.convert_bin_window_to_widget_coords(area.get_x() + area.get_width() / 2,
                                             area.get_y() + area.get_height() / 2, x, y);
    test::click(list, x, y);
    EXPECT_TRUE(test::waitFor([this] { return removed == Rows{&rows[2]}; }));
    EXPECT_EQ(list.store->children().size(), 3u);
}

TEST_F(RemoveCellTest, AListenerMayRemoveTheRowAndDeleteThePresenter) {
    presenter->signalRemoveRow().connect([this](IRowPresenter*) {
        list.removeRow(0);
        presenter.reset();
    });
    EXPECT_TRUE(activate(list, "0"));
    EXPECT_EQ(list.store->children().size(), 2u);
}

TEST_F(RemoveCellTest, TheListMayOutliveThePresenter) {
    presenter.reset();
    Gtk::OffscreenWindow window;
    window.add(list);
    window.show_all();
    test::settle();
    EXPECT_TRUE(list.get_mapped());
}

TEST(RemoveCellRendererPresenter, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        RemoveCellRendererPresenter presenter;
        finalised.watch(dynamic_cast<RemoveCellRenderer&>(*presenter.getView()));
    }
    EXPECT_TRUE(finalised.all());
}
