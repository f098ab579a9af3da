#include "oscillogram/Sections.h"
#include "support/Hands.h"

#include <ZelCommonView/markers/MarkersManager.h>
#include <ZelCommonView/oscillogram/IntervalDrawerSynchronizer.h>
#include <ZelCommonView/oscillogram/MarkerDrawerSynchronizer.h>
#include <ZelCommonView/oscillogram/SynchronizerFacade.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ZelView;

/// Writes down what it is offered.
struct Listener : BaseDrawerSynchronizer {
    Listener(std::string givenName, std::vector<std::string>& givenCalls)
        : name(std::move(givenName)), calls(givenCalls) {}

    void addDrawer(Drawer&) override { calls.push_back(name); }

    std::string name;
    std::vector<std::string>& calls;
};

/// A plot with one marker drawer and one interval drawer.
struct Plot {
    Plot() {
        auto ownedMarker = std::make_unique<MarkerDrawer>();
        auto ownedInterval = std::make_unique<IntervalDrawer>();
        marker = ownedMarker.get();
        interval = ownedInterval.get();
        area.addDrawer(std::move(ownedMarker), DrawerPosition::AfterFragments);
        area.addDrawer(std::move(ownedInterval), DrawerPosition::End);
        area.getFragmensDrawArea().signal_draw().connect(
            [this](const Cairo::RefPtr<Cairo::Context>&) {
                ++draws;
                return false;
            },
            false);
        area.set_size_request(200, 100);
    }

    void create(Orientation orientation, MarkerType type = MarkerType::Single) {
        marker->manager->createMarker(orientation, type, {50, 50});
    }

    SeriesGroupDrawArea area;
    MarkerDrawer* marker = nullptr;
    IntervalDrawer* interval = nullptr;
    int draws = 0;
};

struct MarkerDrawerSynchronizerTest : testing::Test {
    MarkerDrawerSynchronizerTest() {
        for (Plot* plot : {&one, &two}) {
            synchronizer.addDrawer(*plot->marker);
            box.add(plot->area);
        }
        host.picture();
        forgetDraws();
    }

    void forgetDraws() { one.draws = two.draws = 0; }

    /// Whether both plots are painted because of the action.
    bool repaintsBoth(const std::function<void()>& action) {
        test::settle();
        forgetDraws();
        action();
        test::settle();
        return one.draws > 0 && two.draws > 0;
    }

    MarkerDrawerSynchronizer synchronizer;
    Plot one, two;
    Gtk::Box box;
    test::OffscreenHost host{box, 400, 100};
};

} // namespace

TEST(DrawerSynchronizerCollectionTest, OffersADrawerToEachInOrder) {
    std::vector<std::string> calls;
    DrawerSynchronizerCollection collection;
    for (const char* name : {"first", "second"})
        collection.synchronizers.push_back(std::make_unique<Listener>(name, calls));
    IntervalDrawer drawer;
    collection.addDrawer(drawer);
    EXPECT_EQ(calls, (std::vector<std::string>{"first", "second"}));
}

TEST(SynchronizerTest, ListensToNothingUnlessItSaysSo) {
    std::vector<std::string> calls;
    Listener listener("plain", calls);
    SynchronizerFacade facade;
    const auto before = facade.signalSeriesTimeChanged.size() + facade.signalHorizontalIntervalChanged.size();
    listener.setupSynchronizerFacade(facade);
    MarkerDrawerSynchronizer markers;
    markers.setupSynchronizerFacade(facade);
    EXPECT_EQ(facade.signalSeriesTimeChanged.size() + facade.signalHorizontalIntervalChanged.size(), before);
}

TEST(DrawerSynchronizerTest, TakesDrawersOfItsTypeAlone) {
    Plot plot;
    IntervalDrawerSynchronizer intervals;
    MarkerDrawerSynchronizer markers;
    for (Drawer* drawer : plot.area.getDrawers()) {
        intervals.addDrawer(*drawer);
        markers.addDrawer(*drawer);
    }
    EXPECT_EQ(intervals.drawers, (std::vector<IntervalDrawer*>{plot.interval}));
    EXPECT_EQ(markers.drawers, (std::vector<MarkerDrawer*>{plot.marker}));
}

TEST(IntervalDrawerSynchronizerTest, AnIntervalReachesAllDrawersEarlyAndLate) {
    SynchronizerFacade facade;
    IntervalDrawerSynchronizer synchronizer;
    synchronizer.setupSynchronizerFacade(facade);
    Plot early, late;
    early.interval->setHorizontalInterval(7, 8);
    synchronizer.addDrawer(*early.interval);
    EXPECT_EQ(early.interval->from, 0); // nothing was received so far
    EXPECT_EQ(early.interval->to, 0);
    facade.setHorizontalInterval(30, 20);
    EXPECT_EQ(early.interval->from, 30);
    EXPECT_EQ(early.interval->to, 20);
    synchronizer.addDrawer(*late.interval);
    EXPECT_EQ(late.interval->from, 30);
    EXPECT_EQ(late.interval->to, 20);
    facade.setHorizontalInterval(1, 2);
    EXPECT_EQ(early.interval->from, 1);
    EXPECT_EQ(late.interval->to, 2);
    EXPECT_EQ(synchronizer.interval.from, 1);
    EXPECT_EQ(synchronizer.interval.to, 2);
}

TEST(IntervalDrawerSynchronizerTest, ADrawerWithoutADrawAreaThrowsWithTheIntervalStored) {
    IntervalDrawer bare;
    Plot plot;
    IntervalDrawerSynchronizer synchronizer;
    EXPECT_EQ(test::thrownBy([&] { synchronizer.addDrawer(bare); }), "getDrawArea");
    EXPECT_EQ(test::thrownBy([&] { synchronizer._changeInterval(1, 2); }), "getDrawArea");
    EXPECT_EQ(synchronizer.interval.to, 2);
}

TEST(IntervalDrawerSynchronizerTest, TheFacadeMayOutliveIt) {
    SynchronizerFacade facade;
    {
        IntervalDrawerSynchronizer synchronizer;
        synchronizer.setupSynchronizerFacade(facade);
        EXPECT_EQ(facade.signalHorizontalIntervalChanged.size(), 2u);
    }
    facade.setHorizontalInterval(1, 2);
    EXPECT_EQ(facade.signalHorizontalIntervalChanged.size(), 1u);
}

TEST_F(MarkerDrawerSynchronizerTest, AllDrawersReadTheOneList) {
    EXPECT_EQ(one.marker->manager->globalMarkers, &synchronizer.globalMarkers);
    EXPECT_EQ(two.marker->manager->globalMarkers, &synchronizer.globalMarkers);
    EXPECT_TRUE(synchronizer.globalMarkers.empty());
}

TEST_F(MarkerDrawerSynchronizerTest, VerticalMarkersAreSharedAndHorizontalOnesAreNot) {
    one.create(Orientation::Vertical);
    one.create(Orientation::Horizontal);
    two.create(Orientation::Vertical);
    const auto& ofOne = one.marker->manager->markers;
    const auto& ofTwo = two.marker->manager->markers;
    EXPECT_EQ(synchronizer.globalMarkers,
              (std::list<const Marker*>{ofOne.front().get(), ofTwo.front().get()}));
    one.marker->manager->deleteAllMarkers();
    EXPECT_EQ(synchronizer.globalMarkers, (std::list<const Marker*>{ofTwo.front().get()}));
    two.marker->manager->deleteAllMarkers();
    EXPECT_TRUE(synchronizer.globalMarkers.empty());
}

TEST_F(MarkerDrawerSynchronizerTest, ARemovedMarkerLeavesTheListWithEveryEntry) {
    one.create(Orientation::Vertical);
    synchronizer.globalMarkers.push_back(synchronizer.globalMarkers.front());
    one.marker->manager->deleteAllMarkers();
    EXPECT_TRUE(synchronizer.globalMarkers.empty());
}

TEST_F(MarkerDrawerSynchronizerTest, EveryChangeOfAMarkerRepaintsAllPlots) {
    EXPECT_TRUE(repaintsBoth([this] { one.marker->markerChanged.emit(); }));
    EXPECT_TRUE(repaintsBoth([this] { one.create(Orientation::Vertical, MarkerType::Double); }));
    EXPECT_TRUE(repaintsBoth([this] { one.marker->manager->move({20, 20}); }));
    EXPECT_TRUE(repaintsBoth([this] { one.marker->manager->deleteCurrentMarker(); }));
    EXPECT_TRUE(repaintsBoth([this] { two.create(Orientation::Horizontal); }));
    EXPECT_TRUE(repaintsBoth([this] { two.marker->manager->deleteAllMarkers(); }));
}

TEST_F(MarkerDrawerSynchronizerTest, AddedAndRemovedHorizontalMarkersRepaintAllPlotsByThemselves) {
    SingleMarker marker(one.marker->getCfg(), Orientation::Horizontal);
    EXPECT_TRUE(repaintsBoth([&] { one.marker->markerAdded.emit(marker); }));
    EXPECT_TRUE(repaintsBoth([&] { one.marker->markerRemoved.emit(marker); }));
    EXPECT_TRUE(synchronizer.globalMarkers.empty());
}

TEST_F(MarkerDrawerSynchronizerTest, ADrawerWithoutADrawAreaThrowsAfterThoseBeforeIt) {
    MarkerDrawer bare;
    synchronizer.drawers.push_back(&bare);
    EXPECT_TRUE(repaintsBoth([this] {
        EXPECT_EQ(test::thrownBy([this] { synchronizer._redrawAllDrawAreas(); }), "getDrawArea");
    }));
}

TEST(MarkerDrawerSynchronizerLife, DrawersMayOutliveIt) {
    Plot plot;
    {
        MarkerDrawerSynchronizer synchronizer;
        synchronizer.addDrawer(*plot.marker);
        EXPECT_EQ(plot.marker->markerChanged.size(), 1u);
    }
    EXPECT_TRUE(plot.marker->markerChanged.empty());
    EXPECT_TRUE(plot.marker->markerAdded.empty());
    EXPECT_TRUE(plot.marker->markerRemoved.empty());
}
