#include "oscillogram/Sections.h"

#include <ZelCommonView/markers/ContextMenuAdapter.h>
#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/oscillogram/SummarySections.h>
#include <ZelCommonView/plot/CoordsDrawer.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace ZelView;
using Widgets = std::vector<Gtk::Widget*>;

struct SummarySectionsTest : testing::Test {
    SummarySections summary;
    SeriesGroupDrawArea& area = *summary.getDrawAreas().at(0);
};

} // namespace

TEST_F(SummarySectionsTest, HasOnePlotFromTheBeginning) {
    EXPECT_EQ(summary.getDrawAreas().size(), 1u);
    int width = 0;
    int height = 0;
    area.get_size_request(width, height);
    EXPECT_EQ(width, -1);
    EXPECT_EQ(height, 25);
    EXPECT_FALSE(area.get_vexpand());
    EXPECT_TRUE(area.property_vexpand_set());
}

TEST_F(SummarySectionsTest, StandsBesideASpacerInTheToolbarGroup) {
    EXPECT_EQ(summary.get_child(), &summary.summaryGrid);
    EXPECT_EQ(summary.summaryGrid.get_child_at(0, 0), &area);
    EXPECT_EQ(summary.summaryGrid.get_child_at(1, 0), &summary.spacerLabel);
    EXPECT_EQ(summary.spacerLabel.get_text(), "");
    EXPECT_EQ(summary.getToolbarGroup().getGroup()->get_widgets(), (Widgets{&summary.spacerLabel}));
    EXPECT_LT(static_cast<void*>(&summary.toolbarGroup), static_cast<void*>(&summary.spacerLabel));
    EXPECT_LT(static_cast<void*>(&summary.spacerLabel), static_cast<void*>(&summary.summaryGrid));
    EXPECT_TRUE(summary.get_visible());
    EXPECT_TRUE(summary.summaryGrid.get_visible());
    EXPECT_TRUE(summary.spacerLabel.get_visible());
    EXPECT_TRUE(area.get_visible());
}

TEST_F(SummarySectionsTest, AnOuterGroupTakesTheSpacerOver) {
    SizeGroupAdapter outer;
    summary.setToolbarGroup(outer);
    EXPECT_EQ(outer.getGroup()->get_widgets(), (Widgets{&summary.spacerLabel}));
}

TEST_F(SummarySectionsTest, AcceptsNoSeries) {
    for (const Zel::Series& series : {test::makeAnalog(3), test::makeBinary(3), test::makeUnknown()}) {
        EXPECT_FALSE(summary._isCorrectSeries(&series));
        summary.addSeries(&series);
        summary.deleteSeries(&series);
    }
    EXPECT_EQ(summary.getDrawAreas().size(), 1u);
    EXPECT_EQ(test::countSeries(area), 0u);
}

TEST_F(SummarySectionsTest, ShowsGridMarkersAndInterval) {
    const std::vector<Drawer*> drawers = area.getDrawers();
    ASSERT_EQ(drawers.size(), 3u);
    auto* const coords = dynamic_cast<CoordsDrawer*>(drawers[0]);
    auto* const marker = dynamic_cast<MarkerDrawer*>(drawers[1]);
    ASSERT_TRUE(coords);
    ASSERT_TRUE(marker);
    EXPECT_TRUE(dynamic_cast<IntervalDrawer*>(drawers[2]));
    EXPECT_EQ(coords->cfg.flags, 0x14u);
    EXPECT_EQ(coords->cfg.fontSize, CoordsDrawerCfg().fontSize);
    EXPECT_EQ(marker->getCfg().menuFlags, 0u);
    EXPECT_TRUE(marker->contextMenu->items.empty());
    const FragmentsDrawArea& canvas = area.getFragmensDrawArea();
    EXPECT_EQ(canvas.startDrawers.size(), 0u);
    EXPECT_EQ(canvas.beforeDrawers.size(), 1u);
    EXPECT_EQ(canvas.afterDrawers.size(), 1u);
    EXPECT_EQ(canvas.endDrawers.size(), 1u);
}

TEST_F(SummarySectionsTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        SummarySections shortLived;
        g_object_weak_ref(G_OBJECT(shortLived.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived.spacerLabel.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived.summaryGrid.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived.drawAreas.front().gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 4000);
}
