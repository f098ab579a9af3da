#include "oscillogram/Sections.h"
#include "support/Hands.h"

#include <ZelCommonView/markers/ContextMenuAdapter.h>
#include <ZelCommonView/markers/CursorPosDrawer.h>
#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/oscillogram/SeriesSections.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <typeinfo>
#include <vector>

namespace {

using namespace ZelView;
using Widgets = std::vector<Gtk::Widget*>;

/// Whether the action marks the signals of this plot.
bool marks(SeriesGroupDrawArea& area, const std::function<void()>& action) {
    area.getFragmensDrawArea().redrawAll = false;
    action();
    return area.getFragmensDrawArea().redrawAll;
}

struct SeriesSectionsTest : testing::Test {
    SeriesGroupDrawArea& area(std::size_t index) { return *sections.getDrawAreas().at(index); }

    PackableDrawArea& packable(std::ptrdiff_t index) {
        return *std::next(sections.packableDrawAreas.begin(), index);
    }

    Gtk::ToolButton& button(std::ptrdiff_t index, std::size_t which) {
        return *packable(index).window.getToolbar().buttons.at(which);
    }

    Zel::Series first = test::makeAnalog(0), second = test::makeAnalog(1), third = test::makeAnalog(2);
    AnalogSections sections;
};

struct SeriesSectionsOnScreen : SeriesSectionsTest {
    SeriesSectionsOnScreen() {
        window.set_default_size(500, 400);
        window.add(sections);
        test::present(window);
    }

    Gtk::Window window;
};

} // namespace

TEST_F(SeriesSectionsTest, StartsWithAnEmptyVerticalSequence) {
    EXPECT_EQ(sections.get_child(), &sections.separators);
    EXPECT_FALSE(sections.separators.horizontal);
    EXPECT_TRUE(sections.separators.get_visible());
    EXPECT_TRUE(sections.get_visible());
    EXPECT_TRUE(sections.packableDrawAreas.empty());
    EXPECT_TRUE(sections.getDrawAreas().empty());
    EXPECT_TRUE(BinarySections().getDrawAreas().empty());
    EXPECT_LT(static_cast<void*>(&sections.toolbarGroup), static_cast<void*>(&sections.separators));
    EXPECT_LT(static_cast<void*>(&sections.separators), static_cast<void*>(&sections.packableDrawAreas));
}

TEST_F(SeriesSectionsTest, EachClassAcceptsItsTypeAlone) {
    const BinarySections binaries;
    const Zel::Series binary = test::makeBinary();
    const Zel::Series unknown = test::makeUnknown();
    EXPECT_TRUE(sections._isCorrectSeries(&first));
    EXPECT_FALSE(sections._isCorrectSeries(&binary));
    EXPECT_FALSE(sections._isCorrectSeries(&unknown));
    EXPECT_FALSE(binaries._isCorrectSeries(&first));
    EXPECT_TRUE(binaries._isCorrectSeries(&binary));
    EXPECT_FALSE(binaries._isCorrectSeries(&unknown));
    EXPECT_EQ(sections._getDrawAreaMinHeight(), 50);
    EXPECT_EQ(binaries._getDrawAreaMinHeight(), 50);
}

TEST_F(SeriesSectionsTest, EachPlotHasAFrameWithItsButtons) {
    sections.addSeries(&first);
    ASSERT_EQ(sections.packableDrawAreas.size(), 1u);
    PackableDrawArea& frame = packable(0);
    EXPECT_EQ(&frame.getDrawArea(), &area(0));
    EXPECT_EQ(frame.get_child(), &frame.grid);
    EXPECT_EQ(frame.grid.get_child_at(0, 0), &frame.window);
    EXPECT_EQ(frame.grid.get_child_at(1, 0), &frame.window.getToolbar());
    EXPECT_TRUE(area(0).is_ancestor(frame.window.getWindow()));
    EXPECT_EQ(sections.separators.widgets, (Widgets{&frame}));
    for (Gtk::Widget* widget : Widgets{&frame, &frame.grid, &frame.window, &frame.window.getToolbar()})
        EXPECT_TRUE(widget->get_visible());
    int width = 0;
    int height = 0;
    area(0).get_size_request(width, height);
    EXPECT_EQ(width, -1);
    EXPECT_EQ(height, 50);
    const void* const fields[] = {&frame.drawArea, &frame.toolbarGroup, &frame.grid, &frame.window};
    for (std::size_t i = 2; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(SeriesSectionsTest, AFrameByItselfHasAGroupOfItsOwn) {
    SeriesGroupDrawArea plot;
    PackableDrawArea frame(plot);
    EXPECT_EQ(frame.toolbarGroup.getGroup()->get_mode(), Gtk::SIZE_GROUP_HORIZONTAL);
    EXPECT_EQ(frame.toolbarGroup.getGroup()->get_widgets(), (Widgets{&frame.window.getToolbar()}));
}

TEST_F(SeriesSectionsTest, TheButtonsOfEarlyAndLatePlotsFollowTheGroup) {
    sections.addSeries(&first);
    EXPECT_EQ(sections.getToolbarGroup().getGroup()->get_widgets(),
              (Widgets{&packable(0).window.getToolbar()}));
    SizeGroupAdapter outer;
    sections.setToolbarGroup(outer);
    EXPECT_EQ(outer.getGroup()->get_widgets(), (Widgets{&packable(0).window.getToolbar()}));
    sections.addSeries(&second);
    EXPECT_THAT(
        outer.getGroup()->get_widgets(),
        testing::UnorderedElementsAre(&packable(0).window.getToolbar(), &packable(1).window.getToolbar()));
}

TEST_F(SeriesSectionsTest, OnlyTwoPlotsAreStacked) {
    sections.addSeries(&third);
    ASSERT_EQ(sections.getDrawAreas().size(), 3u);
    Gtk::Paned& paned = sections.separators.paneds.front();
    EXPECT_EQ(paned.get_child1(), &packable(0));
    EXPECT_EQ(paned.get_child2(), &packable(1));
    EXPECT_EQ(packable(2).get_parent(), nullptr);
    EXPECT_EQ(test::countSeries(area(0)), 0u);
    EXPECT_EQ(test::countSeries(area(1)), 0u);
    EXPECT_EQ(test::countSeries(area(2)), 1u);
}

TEST_F(SeriesSectionsTest, ScrollingAPlotRepaintsItAndNoOther) {
    sections.addSeries(&second);
    const auto scroll = [this] {
        const auto adjustment = packable(0).window.getWindow().get_vadjustment();
        adjustment->configure(adjustment->get_value() + 1, 0, 100, 1, 1, 10);
    };
    EXPECT_TRUE(marks(area(0), scroll));
    EXPECT_FALSE(marks(area(1), scroll));
}

TEST_F(SeriesSectionsTest, MovingTheSeparatorRepaintsEveryPlot) {
    sections.addSeries(&third);
    for (SeriesGroupDrawArea* plot : sections.getDrawAreas())
        EXPECT_TRUE(marks(*plot, [this] {
            Gtk::Paned& paned = sections.separators.paneds.front();
            paned.set_position(paned.get_position() + 1);
        }));
    EXPECT_FALSE(marks(area(0), [this] { sections._onSeparatorMoved(packable(1)); }));
}

TEST_F(SeriesSectionsTest, AForeignWidgetAtTheSeparatorIsABadCast) {
    Gtk::Label foreign;
    EXPECT_THROW(sections._onSeparatorMoved(foreign), std::bad_cast);
}

TEST_F(SeriesSectionsTest, AnAnalogPlotHasAllItsDrawersWhenItIsTold) {
    std::vector<Drawer*> drawers;
    sections.signalDrawAreaCreated.connect(
        [&drawers](SeriesGroupDrawArea& plot) { drawers = plot.getDrawers(); });
    sections.addSeries(&first);
    ASSERT_EQ(drawers.size(), 5u);
    auto* const coords = dynamic_cast<CoordsDrawer*>(drawers[0]);
    auto* const marker = dynamic_cast<MarkerDrawer*>(drawers[1]);
    auto* const cursor = dynamic_cast<CursorPosDrawer*>(drawers[3]);
    ASSERT_TRUE(coords && marker && cursor);
    EXPECT_TRUE(dynamic_cast<IntervalDrawer*>(drawers[2]));
    EXPECT_TRUE(dynamic_cast<AnalogSeriesDrawer*>(drawers[4]));
    EXPECT_EQ(coords->cfg.flags, 0xFFFFFFFFu);
    EXPECT_EQ(marker->getCfg().menuFlags, 0xFFFFFFFFu);
    EXPECT_EQ(marker->contextMenu->items.size(), 7u);
    EXPECT_EQ(cursor->getCfg().flags, 0xFFFFFFFFu);
    const FragmentsDrawArea& canvas = area(0).getFragmensDrawArea();
    EXPECT_EQ(canvas.startDrawers.size(), 0u);
    EXPECT_EQ(canvas.beforeDrawers.size(), 1u);
    EXPECT_EQ(canvas.afterDrawers.size(), 1u);
    EXPECT_EQ(canvas.endDrawers.size(), 2u);
}

TEST_F(SeriesSectionsTest, ABinaryPlotLeavesOutWhatYWouldMean) {
    BinarySections binaries;
    const Zel::Series binary = test::makeBinary();
    binaries.addSeries(&binary);
    const std::vector<Drawer*> drawers = binaries.getDrawAreas().at(0)->getDrawers();
    ASSERT_EQ(drawers.size(), 5u);
    auto* const coords = dynamic_cast<CoordsDrawer*>(drawers[0]);
    auto* const marker = dynamic_cast<MarkerDrawer*>(drawers[1]);
    auto* const cursor = dynamic_cast<CursorPosDrawer*>(drawers[3]);
    ASSERT_TRUE(coords && marker && cursor);
    EXPECT_TRUE(dynamic_cast<IntervalDrawer*>(drawers[2]));
    EXPECT_TRUE(dynamic_cast<BinarySeriesDrawer*>(drawers[4]));
    EXPECT_EQ(coords->cfg.flags, 0x6u);
    EXPECT_EQ(marker->getCfg().menuFlags, 6u);
    EXPECT_EQ(marker->contextMenu->items.size(), 5u);
    EXPECT_EQ(cursor->getCfg().flags, 1u);
    int width = 0;
    int height = 0;
    binaries.getDrawAreas().at(0)->get_size_request(width, height);
    EXPECT_EQ(height, 50);
    const FragmentsDrawArea& canvas = binaries.getDrawAreas().at(0)->getFragmensDrawArea();
    EXPECT_EQ(canvas.startDrawers.size(), 0u);
    EXPECT_EQ(canvas.beforeDrawers.size(), 1u);
    EXPECT_EQ(canvas.afterDrawers.size(), 1u);
    EXPECT_EQ(canvas.endDrawers.size(), 2u);
}

TEST_F(SeriesSectionsTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        auto shortLived = i % 2 == 0 ? std::unique_ptr<SeriesSections>(std::make_unique<AnalogSections>())
                                     : std::make_unique<BinarySections>();
        shortLived->_createDrawArea();
        PackableDrawArea& frame = shortLived->packableDrawAreas.front();
        g_object_weak_ref(G_OBJECT(shortLived->gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived->separators.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(frame.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(frame.grid.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(frame.window.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(frame.getDrawArea().gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 6000);
}

TEST_F(SeriesSectionsOnScreen, APlotIsSeenAsSoonAsItsFirstSeriesIsAdded) {
    sections.addSeries(&first);
    EXPECT_TRUE(test::waitFor([this] { return area(0).getFragmensDrawArea().get_mapped(); }));
    sections.addSeries(&second);
    EXPECT_TRUE(test::waitFor([this] { return area(1).getFragmensDrawArea().get_mapped(); }));
    sections.addSeries(&third);
    test::settle();
    EXPECT_FALSE(area(2).getFragmensDrawArea().get_mapped());
}

TEST_F(SeriesSectionsOnScreen, ADraggedSeparatorGivesOnePlotWhatItTakesFromTheOther) {
    sections.addSeries(&first);
    sections.addSeries(&second);
    test::settle();
    Gtk::Paned& paned = sections.separators.paneds.front();
    const int upper = area(0).getFragmensDrawArea().get_allocated_height();
    const int lower = area(1).getFragmensDrawArea().get_allocated_height();
    const int position = paned.get_position();
    EXPECT_NEAR(upper, lower, 10);
    test::drag(paned, 200, position + 2, 200, position + 52);
    const int gained = paned.get_position() - position;
    EXPECT_NEAR(gained, 50, 4);
    EXPECT_TRUE(test::waitFor(
        [&] { return area(0).getFragmensDrawArea().get_allocated_height() == upper + gained; }));
    EXPECT_EQ(area(1).getFragmensDrawArea().get_allocated_height(), lower - gained);
    // The converters know it.
    EXPECT_EQ(area(0).converterProxy.getConverter()->widgetHeight, static_cast<float>(upper + gained));
    EXPECT_EQ(area(1).converterProxy.getConverter()->widgetHeight, static_cast<float>(lower - gained));
}

TEST_F(SeriesSectionsOnScreen, TheButtonsGrowShrinkAndFreeAPlot) {
    sections.addSeries(&first);
    test::settle();
    const FragmentsDrawArea& canvas = area(0).getFragmensDrawArea();
    const int natural = canvas.get_allocated_height();

    enum { Shrink, Grow, Natural };

    test::click(button(0, Grow));
    const int grown = static_cast<int>(1.1f * static_cast<float>(natural));
    EXPECT_TRUE(test::waitFor([&] { return canvas.get_allocated_height() == grown; }));
    test::click(button(0, Grow));
    const int twice = static_cast<int>(1.1f * static_cast<float>(grown));
    EXPECT_TRUE(test::waitFor([&] { return canvas.get_allocated_height() == twice; }));
    test::click(button(0, Shrink));
    const int shrunk = static_cast<int>(0.9f * static_cast<float>(twice));
    EXPECT_TRUE(test::waitFor([&] { return canvas.get_allocated_height() == shrunk; }));
    test::click(button(0, Natural));
    EXPECT_TRUE(test::waitFor([&] { return canvas.get_allocated_height() == natural; }));
    int width = 0;
    int height = 0;
    area(0).get_size_request(width, height);
    EXPECT_EQ(height, -1);
}
