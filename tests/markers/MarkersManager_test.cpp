#include "support/Pictures.h"

#include <ZelCommonView/markers/MarkerDrawerCfg.h>
#include <ZelCommonView/markers/MarkersManager.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

constexpr int width = 300;
constexpr int height = 200;

class MarkersManagerTest : public testing::Test {
protected:
    MarkersManagerTest() {
        converter.widgetWidth = width;
        converter.widgetHeight = height;
        converter.setBorder({0, 30, 0, 20});
        converter.recalc();
        manager.setConverter(converter);
        manager.changed.connect([this] { ++changed; });
        manager.markerAdded.connect([this](Marker& marker) { added.push_back(&marker); });
        manager.markerRemoved.connect([this](Marker& marker) { removed.push_back(&marker); });
    }

    test::Picture paint() {
        return test::paint(width, height, [this](const Context& context) { manager.draw(context); });
    }

    Marker& addSingle(Zel::PointF pixel) {
        manager.createMarker(Orientation::Vertical, MarkerType::Single, pixel);
        return *manager.markers.back();
    }

    StretchableCoordsConverter converter;
    MarkerDrawerCfg cfg;
    MarkersManager manager{cfg};
    int changed = 0;
    std::vector<Marker*> added;
    std::vector<Marker*> removed;
};

} // namespace

TEST_F(MarkersManagerTest, ASingleMarkerIsFinishedAtOnce) {
    Marker& marker = addSingle({60, 50});
    EXPECT_NE(dynamic_cast<SingleMarker*>(&marker), nullptr);
    EXPECT_TRUE(marker.created);
    EXPECT_EQ(manager.creating, nullptr);
    EXPECT_EQ(added, std::vector<Marker*>{&marker});
    EXPECT_EQ(changed, 1);
    EXPECT_FLOAT_EQ(marker._getPoint(1).x, 6);
}

TEST_F(MarkersManagerTest, ADoubleMarkerFollowsThePointerUntilTheNextClick) {
    manager.createMarker(Orientation::Horizontal, MarkerType::Double, {60, 50});
    Marker& marker = *manager.markers.back();
    EXPECT_NE(dynamic_cast<DoubleMarker*>(&marker), nullptr);
    EXPECT_EQ(manager.creating, &marker);
    EXPECT_EQ(changed, 0);
    manager.move({90, 90});
    EXPECT_EQ(changed, 1);
    EXPECT_FLOAT_EQ(marker._getPoint(2).x, 9);
    manager.click({150, 120});
    EXPECT_EQ(manager.creating, nullptr);
    EXPECT_EQ(changed, 2);
    EXPECT_FALSE(manager.clickPending);
    EXPECT_FLOAT_EQ(marker._getPoint(2).x, 15);
    manager.move({10, 10});
    EXPECT_EQ(changed, 2);
}

TEST_F(MarkersManagerTest, AnyOtherTypeMakesADoubleMarker) {
    manager.createMarker(Orientation::Horizontal, static_cast<MarkerType>(5), {60, 50});
    EXPECT_NE(dynamic_cast<DoubleMarker*>(manager.creating), nullptr);
}

TEST_F(MarkersManagerTest, TellsOfANewMarkerWhenItHasItsPlaceButBeforeItIsFixed) {
    manager.markerAdded.connect([this](Marker& marker) {
        EXPECT_EQ(manager.creating, &marker);
        EXPECT_FALSE(marker.created);
        EXPECT_FLOAT_EQ(marker._getPoint(1).x, 6);
    });
    addSingle({60, 50});
    EXPECT_EQ(added.size(), 1u);
}

TEST_F(MarkersManagerTest, OneMarkerIsCreatedAtATime) {
    manager.createMarker(Orientation::Horizontal, MarkerType::Double, {60, 50});
    manager.createMarker(Orientation::Horizontal, MarkerType::Single, {60, 50});
    EXPECT_EQ(manager.markers.size(), 1u);
    EXPECT_EQ(added.size(), 1u);
}

TEST_F(MarkersManagerTest, AClickSelectsAtTheNextPaint) {
    Marker& marker = addSingle({60, 50});
    changed = 0;
    manager.click({62, 51});
    EXPECT_TRUE(manager.clickPending);
    EXPECT_EQ(manager.selected, nullptr);
    EXPECT_EQ(changed, 1);
    const auto selected = paint();
    EXPECT_FALSE(manager.clickPending);
    EXPECT_EQ(manager.selected, &marker);
    // It was not painted as a normal one below.
    test::expectSame(selected, test::paint(width, height,
                                           [&](const Context& context) { marker.drawAsSelected(context); }));
    manager.move({72, 61});
    EXPECT_EQ(changed, 2);
    EXPECT_NEAR(marker._getPoint(1).x, 7, 1e-4);
    manager.release();
    EXPECT_EQ(manager.selected, nullptr);
    EXPECT_EQ(changed, 3);
    manager.release();
    EXPECT_EQ(changed, 3);
    test::expectSame(
        paint(), test::paint(width, height, [&](const Context& context) { marker.drawAsNormal(context); }));
    // And it can be taken again.
    manager.click({72, 61});
    paint();
    EXPECT_EQ(manager.selected, &marker);
}

TEST_F(MarkersManagerTest, AClickOnEmptySpaceIsSpentByOnePaint) {
    addSingle({60, 50});
    changed = 0;
    manager.click({200, 150});
    EXPECT_EQ(changed, 1);
    paint();
    EXPECT_EQ(manager.selected, nullptr);
    EXPECT_FALSE(manager.clickPending);
}

TEST_F(MarkersManagerTest, OfOverlappingLabelsTheEarlierMarkerIsTaken) {
    Marker& first = addSingle({60, 50});
    addSingle({62, 51});
    manager.click({61, 50});
    paint();
    EXPECT_EQ(manager.selected, &first);
}

TEST_F(MarkersManagerTest, TheSelectedMarkerIsPaintedLastAndNotTestedAgain) {
    Marker& first = addSingle({60, 50});
    Marker& second = addSingle({62, 51});
    manager.click({61, 50});
    paint();
    const auto expected = test::paint(width, height, [&](const Context& context) {
        second.drawAsNormal(context);
        first.drawAsSelected(context);
    });
    test::expectSame(paint(), expected);
    manager.click({61, 50}); // now the other one is the first that can be hit
    paint();
    EXPECT_EQ(manager.selected, &second);
}

TEST_F(MarkersManagerTest, PaintsMarkersOfOtherAreasFirst) {
    SingleMarker other(cfg, Orientation::Vertical);
    other.setConverter(converter);
    other.fixPoint({100, 50});
    const std::list<const Marker*> others{&other};
    manager.setGlobalMarkersSource(others);
    Marker& own = addSingle({100, 60});
    test::expectSame(paint(), test::paint(width, height, [&](const Context& context) {
                         other.drawAsGlobal(context);
                         own.drawAsNormal(context);
                     }));
}

TEST_F(MarkersManagerTest, WhatIsBeingCreatedIsPaintedAboveTheOthers) {
    Marker& own = addSingle({60, 50});
    manager.createMarker(Orientation::Horizontal, MarkerType::Double, {60, 50});
    test::expectSame(paint(), test::paint(width, height, [&](const Context& context) {
                         own.drawAsNormal(context);
                         manager.creating->drawAsCreating(context);
                     }));
}

TEST_F(MarkersManagerTest, DeletesTheCurrentMarkerOnly) {
    manager.deleteCurrentMarker();
    EXPECT_TRUE(removed.empty());
    Marker& first = addSingle({60, 50});
    addSingle({160, 50});
    manager.click({60, 50});
    paint();
    changed = 0;
    manager.markerRemoved.connect([&](Marker& marker) {
        EXPECT_EQ(&marker, &first);
        EXPECT_EQ(manager.selected, nullptr); // cleared before, and the marker still lives
        EXPECT_EQ(marker.getOrientation(), Orientation::Vertical);
    });
    manager.deleteCurrentMarker();
    EXPECT_EQ(removed, std::vector<Marker*>{&first});
    EXPECT_EQ(manager.markers.size(), 1u);
    EXPECT_EQ(changed, 0);
    manager.deleteCurrentMarker();
    EXPECT_EQ(removed.size(), 1u);
}

TEST_F(MarkersManagerTest, DeletesAMarkerThatIsBeingCreated) {
    manager.createMarker(Orientation::Horizontal, MarkerType::Double, {60, 50});
    manager.deleteCurrentMarker();
    EXPECT_EQ(manager.creating, nullptr);
    EXPECT_TRUE(manager.markers.empty());
    EXPECT_EQ(removed.size(), 1u);
    addSingle({60, 50}); // and another one can be made
    EXPECT_EQ(manager.markers.size(), 1u);
}

TEST_F(MarkersManagerTest, DeletesAllAlsoInTheMiddleOfAGesture) {
    addSingle({60, 50});
    addSingle({160, 50});
    manager.click({60, 50});
    paint();
    manager.createMarker(Orientation::Horizontal, MarkerType::Double, {60, 150});
    changed = 0;
    std::size_t listed = 0;
    manager.markerRemoved.connect([&](Marker&) { listed += manager.markers.size(); });
    manager.deleteAllMarkers();
    EXPECT_EQ(removed.size(), 3u);
    EXPECT_EQ(removed, added);
    EXPECT_EQ(listed, 9u); // all are told of before the first goes
    EXPECT_EQ(changed, 0);
    EXPECT_TRUE(manager.markers.empty());
    // Nothing points at what is gone.
    manager.move({10, 10});
    manager.release();
    manager.click({10, 10});
    EXPECT_EQ(paint().countPainted(), 0);
}

TEST_F(MarkersManagerTest, ANewConverterReachesEveryMarker) {
    Marker& marker = addSingle({60, 50});
    StretchableCoordsConverter other = converter;
    other.setBorder({0, 60, 0, 20});
    other.recalc();
    manager.setConverter(other);
    EXPECT_EQ(marker.converter, &other);
    EXPECT_EQ(marker.helper.converter, &other);
    EXPECT_FLOAT_EQ(marker._getPoint(1).x, 6); // it stays on the signal
    EXPECT_EQ(addSingle({60, 50}).converter, &other);
}

TEST_F(MarkersManagerTest, KeepsItsDataInOrder) {
    const void* const fields[] = {&manager.changed,   &manager.markerAdded, &manager.markerRemoved,
                                  &manager.converter, &manager.markers,     &manager.globalMarkers,
                                  &manager.creating,  &manager.selected,    &manager.clickPending,
                                  &manager.clickPoint};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}
