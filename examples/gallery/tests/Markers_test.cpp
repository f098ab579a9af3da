// Markers placed by a person on the page that shows them.
#include "Pages.h"
#include "Search.h"

#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/markers/ContextMenuAdapter.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/markers/MarkersManager.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>

#include <gtest/gtest.h>

namespace {

struct MarkersPageTest : testing::Test {
    MarkersPageTest() {
        window.set_default_size(800, 500);
        window.add(*page);
        test::present(window);
    }

    ~MarkersPageTest() override {
        test::movePointerAway();
        window.remove();
    }

    ZelView::MarkerDrawer& markersOf(std::size_t plot) {
        for (ZelView::Drawer* drawer : plots.at(plot)->getDrawers())
            if (auto* const markers = dynamic_cast<ZelView::MarkerDrawer*>(drawer))
                return *markers;
        throw std::runtime_error("the plot has no markers");
    }

    /// Chooses an item of the upper plot's menu by its number from 0, over the middle of the plot.
    void choose(int number) {
        Gtk::Widget& canvas = plots.front()->getFragmensDrawArea();
        test::click(canvas, 3);
        auto& items = markersOf(0).contextMenu->items;
        auto item = std::next(items.begin(), number);
        ASSERT_TRUE(test::waitFor([&] { return item->get_mapped(); }));
        test::click(*item);
    }

    test::Picture lowerPicture() {
        test::settle();
        auto& canvas = plots.at(1)->getFragmensDrawArea();
        return test::paint(canvas.get_allocated_width(), canvas.get_allocated_height(),
                           [&](const auto& context) { canvas.on_draw(context); });
    }

    std::unique_ptr<Gtk::Widget> page = gallery::findPage("markers")->create();
    std::vector<ZelView::SeriesGroupDrawArea*> plots = test::findAll<ZelView::SeriesGroupDrawArea>(*page);
    Gtk::Window window;
};

} // namespace

TEST_F(MarkersPageTest, TheMenuHoldsAllItems) {
    ASSERT_EQ(plots.size(), 2u);
    for (std::size_t i = 0; i < plots.size(); ++i)
        EXPECT_EQ(markersOf(i).contextMenu->items.size(), 7u);
}

TEST_F(MarkersPageTest, AVerticalMarkerOfTheUpperPlotIsSeenOnTheLowerOneUntilItIsDeleted) {
    const test::Picture without = lowerPicture();
    choose(2);
    EXPECT_EQ(markersOf(0).manager->markers.size(), 1u);
    EXPECT_EQ(markersOf(1).manager->markers.size(), 0u);
    const test::Picture with = lowerPicture();
    EXPECT_FALSE(with == without);
    choose(5);
    EXPECT_EQ(markersOf(0).manager->markers.size(), 0u);
    test::expectSame(lowerPicture(), without);
}

TEST_F(MarkersPageTest, AHorizontalMarkerStaysOnItsOwnPlot) {
    const test::Picture without = lowerPicture();
    choose(0);
    EXPECT_EQ(markersOf(0).manager->markers.size(), 1u);
    test::expectSame(lowerPicture(), without);
}
