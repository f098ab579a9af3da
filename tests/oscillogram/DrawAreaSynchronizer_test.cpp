#include "oscillogram/Sections.h"

#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/oscillogram/SectionsGroupSynchronizer.h>
#include <ZelCommonView/oscillogram/SeriesSections.h>
#include <ZelCommonView/oscillogram/SummarySections.h>
#include <ZelCommonView/oscillogram/SynchronizerFacade.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ZelView;
using Widgets = std::vector<Gtk::Widget*>;

/// What a synchronizer in the collection is told.
struct Told {
    std::vector<Drawer*> drawers;
    int setups = 0;
};

struct Listener : BaseDrawerSynchronizer {
    explicit Listener(Told& value) : told(value) {}

    void setupSynchronizerFacade(SynchronizerFacade&) override { ++told.setups; }

    void addDrawer(Drawer& drawer) override { told.drawers.push_back(&drawer); }

    Told& told;
};

DrawerSynchronizerCollection makeCollection(Told& told) {
    DrawerSynchronizerCollection collection;
    collection.synchronizers.push_back(std::make_unique<Listener>(told));
    return collection;
}

const CoordsConverter& converterOf(const SeriesGroupDrawArea& area) {
    return *area.converterProxy.getConverter();
}

struct DrawAreaSynchronizerTest : testing::Test {
    Told told;
    DrawAreaSynchronizer synchronizer{makeCollection(told), {1, 2, 3, 4}};
    SeriesGroupDrawArea area;
};

struct SectionsGroupSynchronizerTest : testing::Test {
    Told told;
    SectionsGroupSynchronizer synchronizer{makeCollection(told), {1, 2, 3, 4}};
    const DrawAreaSynchronizer& inner = synchronizer.drawAreaSynchronizer;
};

} // namespace

TEST_F(DrawAreaSynchronizerTest, StartsAtZeroWithThreeHorizontalGroups) {
    EXPECT_EQ(synchronizer.seriesTime.from, 0);
    EXPECT_EQ(synchronizer.seriesTime.to, 0);
    EXPECT_TRUE(synchronizer.drawAreas.empty());
    for (const SizeGroupAdapter* group :
         {&synchronizer.fragmentableGroup, &synchronizer.fragmentableCollectionGroup,
          &synchronizer.drawAreaGroup})
        EXPECT_EQ(group->getGroup()->get_mode(), Gtk::SIZE_GROUP_HORIZONTAL);
    const void* const fields[] = {
        &synchronizer.drawerSynchronizers, &synchronizer.offset,
        &synchronizer.drawAreas,           &synchronizer.seriesTime,
        &synchronizer.fragmentableGroup,   &synchronizer.fragmentableCollectionGroup,
        &synchronizer.drawAreaGroup};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(DrawAreaSynchronizerTest, APlotGetsModesLimitsMarginsColourAndGroups) {
    const Zel::Series series = test::makeAnalog();
    area.addFragmentable(series);
    synchronizer._changeSeriesInterval(20, 40);
    synchronizer.addDrawArea(area);
    EXPECT_EQ(area.converterProxy.xBordersMode, BordersMode::Manual);
    EXPECT_EQ(area.converterProxy.yBordersMode, BordersMode::Auto);
    const CoordsConverter& converter = converterOf(area);
    EXPECT_TRUE(dynamic_cast<const StretchableCoordsConverter*>(&converter));
    EXPECT_EQ(converter.xMin, 20);
    EXPECT_EQ(converter.xMax, 40);
    EXPECT_EQ(converter.offset.left, 1);
    EXPECT_EQ(converter.offset.right, 2);
    EXPECT_EQ(converter.offset.top, 3);
    EXPECT_EQ(converter.offset.bottom, 4);
    const Zel::Color color = area.getFragmensDrawArea().helper.backgroundColor;
    EXPECT_EQ(color.r, 211);
    EXPECT_EQ(color.g, 211);
    EXPECT_EQ(color.b, 211);
    EXPECT_EQ(color.a, 255);
    EXPECT_EQ(synchronizer.fragmentableGroup.getGroup()->get_widgets(),
              (Widgets{&area.fragmentableCollection.widgets.at(&series)}));
    EXPECT_EQ(synchronizer.fragmentableCollectionGroup.getGroup()->get_widgets(),
              (Widgets{&area.fragmentableCollection}));
    EXPECT_EQ(synchronizer.drawAreaGroup.getGroup()->get_widgets(), (Widgets{&area.fragmentsDrawArea}));
    EXPECT_EQ(synchronizer.drawAreas, (std::vector<SeriesGroupDrawArea*>{&area}));
}

TEST_F(DrawAreaSynchronizerTest, AProportionalPlotBecomesStretchable) {
    area.setCoordsConvertMode(CoordsConvertMode::Proportional);
    synchronizer.addDrawArea(area);
    EXPECT_TRUE(dynamic_cast<const StretchableCoordsConverter*>(&converterOf(area)));
}

TEST_F(DrawAreaSynchronizerTest, EachPlotScalesItsOwnY) {
    SeriesGroupDrawArea other;
    Zel::Series high = test::makeAnalog();
    high.points[3].y = 1000;
    synchronizer.addDrawArea(area);
    synchronizer.addDrawArea(other);
    area.addBorderable(high);
    EXPECT_GE(converterOf(area).yMax, 1000);
    EXPECT_LT(converterOf(other).yMax, 1000);
    EXPECT_EQ(converterOf(area).xMax, 0); // x comes from the synchronizer
}

TEST_F(DrawAreaSynchronizerTest, DrawersAreOfferedOnceWhetherTheyCameBeforeOrAfter) {
    area.addDrawer(std::make_unique<MarkerDrawer>(), DrawerPosition::AfterFragments);
    area.addDrawer(std::make_unique<IntervalDrawer>(), DrawerPosition::End);
    EXPECT_TRUE(told.drawers.empty());
    synchronizer.addDrawArea(area);
    EXPECT_EQ(told.drawers, area.getDrawers());
    area.addDrawer(std::make_unique<IntervalDrawer>(), DrawerPosition::End);
    EXPECT_EQ(told.drawers, area.getDrawers());
    EXPECT_EQ(told.drawers.size(), 3u);
}

TEST_F(DrawAreaSynchronizerTest, ARangeReachesAllPlotsInOrderAndMarksTheirSignals) {
    SeriesGroupDrawArea other;
    synchronizer.addDrawArea(area);
    synchronizer.addDrawArea(other);
    for (SeriesGroupDrawArea* each : {&area, &other})
        each->getFragmensDrawArea().redrawAll = false;
    synchronizer._changeSeriesInterval(5, 6);
    EXPECT_EQ(synchronizer.seriesTime.from, 5);
    EXPECT_EQ(synchronizer.seriesTime.to, 6);
    for (SeriesGroupDrawArea* each : {&area, &other}) {
        EXPECT_EQ(converterOf(*each).xMin, 5);
        EXPECT_EQ(converterOf(*each).xMax, 6);
        EXPECT_TRUE(each->getFragmensDrawArea().redrawAll);
    }
}

TEST_F(DrawAreaSynchronizerTest, ANegativeBoundThrowsAndChangesNothing) {
    synchronizer.addDrawArea(area);
    synchronizer._changeSeriesInterval(5, 6);
    for (const TimeRange bad : {TimeRange{-1, 5}, {0, -0.001f}, {-2, -1}}) {
        EXPECT_EQ(test::thrownBy([&] { synchronizer._changeSeriesInterval(bad.from, bad.to); }),
                  "некорректное время серий");
        EXPECT_EQ(synchronizer.seriesTime.from, 5);
        EXPECT_EQ(synchronizer.seriesTime.to, 6);
        EXPECT_EQ(converterOf(area).xMin, 5);
        EXPECT_EQ(converterOf(area).xMax, 6);
    }
    synchronizer._changeSeriesInterval(0, 0);
    EXPECT_EQ(converterOf(area).xMax, 0);
}

TEST_F(DrawAreaSynchronizerTest, ARangeThatRunsBackwardsIsStoredBeforeAPlotThrows) {
    synchronizer.addDrawArea(area);
    synchronizer._changeSeriesInterval(5, 6);
    EXPECT_EQ(test::thrownBy([this] { synchronizer._changeSeriesInterval(9, 8); }), "setXBorders");
    EXPECT_EQ(synchronizer.seriesTime.from, 9);
    EXPECT_EQ(synchronizer.seriesTime.to, 8);
    EXPECT_EQ(converterOf(area).xMin, 5);
    EXPECT_EQ(converterOf(area).xMax, 6);
}

TEST_F(DrawAreaSynchronizerTest, AfterARangeThatRunsBackwardsANewPlotStillJoinsTheOthers) {
    synchronizer._changeSeriesInterval(9, 8);
    area.addDrawer(std::make_unique<IntervalDrawer>(), DrawerPosition::End);
    synchronizer.addDrawArea(area);
    EXPECT_EQ(told.drawers.size(), 1u);
    synchronizer._changeSeriesInterval(5, 6);
    EXPECT_EQ(converterOf(area).xMin, 5);
    EXPECT_EQ(converterOf(area).xMax, 6);
}

TEST_F(DrawAreaSynchronizerTest, TheFacadeIsPassedOn) {
    SynchronizerFacade facade;
    synchronizer.setupSynchronizerFacade(facade);
    EXPECT_EQ(told.setups, 1);
    facade.setSeriesTime(3, 4);
    EXPECT_EQ(synchronizer.seriesTime.from, 3);
    EXPECT_EQ(synchronizer.seriesTime.to, 4);
}

TEST_F(DrawAreaSynchronizerTest, PlotsAndFacadeMayOutliveIt) {
    SynchronizerFacade facade;
    {
        DrawAreaSynchronizer shortLived(makeCollection(told), {});
        shortLived.setupSynchronizerFacade(facade);
        shortLived.addDrawArea(area);
    }
    facade.setSeriesTime(3, 4);
    area.addDrawer(std::make_unique<IntervalDrawer>(), DrawerPosition::End);
    EXPECT_TRUE(told.drawers.empty());
    EXPECT_EQ(converterOf(area).xMax, 0);
}

TEST_F(SectionsGroupSynchronizerTest, HoldsItsPartsInOrderAndForwardsTheFacade) {
    EXPECT_LT(static_cast<void*>(&synchronizer.drawAreaSynchronizer),
              static_cast<void*>(&synchronizer.toolbarGroup));
    EXPECT_EQ(inner.offset.left, 1);
    SynchronizerFacade facade;
    synchronizer.setupSynchronizerFacade(facade);
    EXPECT_EQ(told.setups, 1);
    facade.setSeriesTime(3, 4);
    EXPECT_EQ(inner.seriesTime.to, 4);
}

TEST_F(SectionsGroupSynchronizerTest, PlotsOfASectionJoinWhetherTheyCameBeforeOrAfter) {
    AnalogSections sections;
    const Zel::Series early = test::makeAnalog(0);
    const Zel::Series late = test::makeAnalog(1);
    sections.addSeries(&early);
    synchronizer.addSectionsGroup(sections);
    EXPECT_EQ(inner.drawAreas, sections.getDrawAreas());
    EXPECT_EQ(told.drawers.size(), 5u);
    sections.addSeries(&late);
    EXPECT_EQ(inner.drawAreas, sections.getDrawAreas());
    EXPECT_EQ(inner.drawAreas.size(), 2u);
    EXPECT_EQ(told.drawers.size(), 10u);
}

TEST_F(SectionsGroupSynchronizerTest, TheToolbarsOfAllSectionsShareOneGroup) {
    AnalogSections analogs;
    BinarySections binaries;
    SummarySections summary;
    const Zel::Series analog = test::makeAnalog();
    const Zel::Series binary = test::makeBinary();
    analogs.addSeries(&analog);
    for (DrawAreaSections* sections : std::vector<DrawAreaSections*>{&analogs, &binaries, &summary})
        synchronizer.addSectionsGroup(*sections);
    binaries.addSeries(&binary);
    EXPECT_THAT(synchronizer.toolbarGroup.getGroup()->get_widgets(),
                testing::UnorderedElementsAre(&analogs.packableDrawAreas.front().window.getToolbar(),
                                              &binaries.packableDrawAreas.front().window.getToolbar(),
                                              &summary.spacerLabel));
    EXPECT_EQ(inner.drawAreas.size(), 3u);
}

TEST_F(SectionsGroupSynchronizerTest, TheGroupIsSetBeforeTheFirstPlotIsToldOf) {
    AnalogSections sections;
    Glib::RefPtr<Gtk::SizeGroup> group;
    sections.signalDrawAreaCreated.connect(
        [&](SeriesGroupDrawArea&) { group = sections.packableDrawAreas.back().toolbarGroup.getGroup(); });
    synchronizer.addSectionsGroup(sections);
    sections._createDrawArea();
    EXPECT_EQ(group, synchronizer.toolbarGroup.getGroup());
}

TEST_F(SectionsGroupSynchronizerTest, SectionsMayOutliveIt) {
    AnalogSections sections;
    {
        SectionsGroupSynchronizer shortLived(makeCollection(told), {});
        shortLived.addSectionsGroup(sections);
    }
    sections._createDrawArea();
    EXPECT_TRUE(told.drawers.empty());
}
