#include "oscillogram/Sections.h"
#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
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
using Widgets = std::vector<Gtk::Widget*>;

struct SynchronizerFacadeTest : testing::Test {
    const DrawAreaSynchronizer& synchronizer() { return facade.sectionsSynchronizer.drawAreaSynchronizer; }

    Zel::Series analog = test::makeAnalog(), binary = test::makeBinary(), unknown = test::makeUnknown();
    SynchronizerFacade facade;
};

/// A facade with two curves, two plots of rows and the strip, painted off the screen.
struct SynchronizerFacadePicture : testing::Test {
    SynchronizerFacadePicture() {
        for (const Zel::Series* series : {&analog, &other, &binary, &late})
            facade.addSeries(series);
        facade.setSeriesTime(0, 100);
        host.picture();
    }

    SeriesGroupDrawArea& analogArea(std::size_t i) { return *facade.analogSections.getDrawAreas().at(i); }

    SeriesGroupDrawArea& binaryArea(std::size_t i) { return *facade.binarySections.getDrawAreas().at(i); }

    SeriesGroupDrawArea& summaryArea() { return *facade.summarySections.getDrawAreas().at(0); }

    std::vector<SeriesGroupDrawArea*> all() {
        return {&analogArea(0), &analogArea(1), &binaryArea(0), &binaryArea(1), &summaryArea()};
    }

    MarkersManager& markers(SeriesGroupDrawArea& area) {
        return *test::findDrawer<MarkerDrawer>(area)->manager;
    }

    /// How many pixels of a column of the plot have the colour of marker lines.
    int blues(SeriesGroupDrawArea& area, int x) {
        host.picture();
        const test::Picture seen = test::pictureOf(area.getFragmensDrawArea().helper.getBackground());
        int count = 0;
        for (int y = 0; y < seen.height; ++y) {
            const std::vector<int> pixel = seen.at(x, y);
            count += pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 255;
        }
        return count;
    }

    Zel::Series analog = test::makeAnalog(0), other = test::makeAnalog(1), binary = test::makeBinary(0, 1),
                late = test::makeBinary(1, 1);
    SynchronizerFacade facade;
    test::OffscreenHost host{facade, 600, 800};
};

} // namespace

TEST_F(SynchronizerFacadeTest, IsComposedOfScrollingSeriesAboveTheStrip) {
    EXPECT_EQ(facade.get_child(), &facade.mainGrid);
    EXPECT_EQ(facade.mainGrid.get_child_at(0, 0), &facade.scrolledWindow);
    EXPECT_EQ(facade.mainGrid.get_child_at(0, 1), &facade.summarySections);
    EXPECT_TRUE(facade.seriesGrid.is_ancestor(facade.scrolledWindow));
    EXPECT_EQ(facade.seriesGrid.get_child_at(0, 0), &facade.analogSections);
    EXPECT_EQ(facade.seriesGrid.get_child_at(0, 1), &facade.binarySections);
    for (Gtk::Widget* widget : Widgets{&facade, &facade.scrolledWindow, &facade.analogSections,
                                       &facade.binarySections, &facade.summarySections, &facade.mainGrid,
                                       &facade.seriesGrid, &facade.analogSections.separators})
        EXPECT_TRUE(widget->get_visible());
    Gtk::PolicyType horizontal, vertical;
    facade.scrolledWindow.get_policy(horizontal, vertical);
    EXPECT_EQ(horizontal, Gtk::POLICY_AUTOMATIC);
    EXPECT_EQ(vertical, Gtk::POLICY_AUTOMATIC);
    const void* const fields[] = {&facade.signalSeriesTimeChanged,
                                  &facade.signalHorizontalIntervalChanged,
                                  &facade.scrolledWindow,
                                  &facade.sectionsSynchronizer,
                                  &facade.analogSections,
                                  &facade.binarySections,
                                  &facade.summarySections,
                                  &facade.mainGrid,
                                  &facade.seriesGrid};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(SynchronizerFacadeTest, TheSynchronizersHaveTheirValues) {
    const auto& collection = synchronizer().drawerSynchronizers.synchronizers;
    ASSERT_EQ(collection.size(), 2u);
    EXPECT_TRUE(dynamic_cast<MarkerDrawerSynchronizer*>(collection[0].get()));
    EXPECT_TRUE(dynamic_cast<IntervalDrawerSynchronizer*>(collection[1].get()));
    EXPECT_EQ(synchronizer().offset.left, 35);
    EXPECT_EQ(synchronizer().offset.right, 0);
    EXPECT_EQ(synchronizer().offset.top, 20);
    EXPECT_EQ(synchronizer().offset.bottom, 20);
    EXPECT_EQ(synchronizer().seriesTime.from, 0);
    EXPECT_EQ(synchronizer().seriesTime.to, 0);
    EXPECT_EQ(synchronizer().drawAreas, facade.summarySections.getDrawAreas());
}

TEST_F(SynchronizerFacadeTest, TheTypeChoosesTheSection) {
    facade.addSeries(&analog);
    EXPECT_EQ(facade.analogSections.getDrawAreas().size(), 1u);
    EXPECT_TRUE(facade.binarySections.getDrawAreas().empty());
    facade.addSeries(&binary);
    EXPECT_EQ(facade.binarySections.getDrawAreas().size(), 1u);
    facade.addSeries(&unknown);
    EXPECT_EQ(facade.analogSections.getDrawAreas().size(), 1u);
    EXPECT_EQ(test::countSeries(*facade.analogSections.getDrawAreas()[0]), 1u);
    EXPECT_EQ(test::countSeries(*facade.binarySections.getDrawAreas()[0]), 1u);
    facade.deleteSeries(&analog);
    facade.deleteSeries(&binary);
    EXPECT_EQ(test::countSeries(*facade.analogSections.getDrawAreas()[0]), 0u);
    EXPECT_EQ(test::countSeries(*facade.binarySections.getDrawAreas()[0]), 0u);
    // Empty plots stay in view.
    EXPECT_EQ(facade.analogSections.get_parent(), &facade.seriesGrid);
    EXPECT_EQ(facade.binarySections.get_parent(), &facade.seriesGrid);
}

TEST_F(SynchronizerFacadeTest, ClearingTakesBothSectionsOutAndASeriesBringsItsOwnBack) {
    facade.clearSeries(); // neither has held a series
    EXPECT_EQ(facade.analogSections.get_parent(), nullptr);
    EXPECT_EQ(facade.binarySections.get_parent(), nullptr);
    facade.addSeries(&analog);
    EXPECT_EQ(facade.seriesGrid.get_child_at(0, 0), &facade.analogSections);
    EXPECT_EQ(facade.binarySections.get_parent(), nullptr);
    facade.addSeries(&binary);
    EXPECT_EQ(facade.seriesGrid.get_child_at(0, 1), &facade.binarySections);
    facade.clearSeries();
    EXPECT_EQ(test::countSeries(*facade.analogSections.getDrawAreas()[0]), 0u);
    EXPECT_EQ(test::countSeries(*facade.binarySections.getDrawAreas()[0]), 0u);
    EXPECT_TRUE(analog.changed.empty());
    EXPECT_TRUE(binary.rangeChanged.empty());
    facade.clearSeries(); // again, without a complaint
    facade.addSeries(&binary);
    EXPECT_EQ(facade.seriesGrid.get_child_at(0, 1), &facade.binarySections);
    EXPECT_EQ(facade.analogSections.get_parent(), nullptr);
}

TEST_F(SynchronizerFacadeTest, DeletingOfAnUnknownTypeRemovesASectionThatNeverHeldAPlot) {
    facade.deleteSeries(&unknown);
    EXPECT_EQ(facade.binarySections.get_parent(), nullptr);
    EXPECT_EQ(facade.analogSections.get_parent(), &facade.seriesGrid);
    facade.deleteSeries(&unknown); // again, without a complaint
    facade.addSeries(&unknown);    // ignored, but the section is back
    EXPECT_EQ(facade.seriesGrid.get_child_at(0, 1), &facade.binarySections);
    facade.addSeries(&binary);
    facade.deleteSeries(&unknown);
    EXPECT_EQ(facade.binarySections.get_parent(), &facade.seriesGrid);
}

TEST_F(SynchronizerFacadeTest, DeletingASeriesThatWasNeverAddedIsOutOfRange) {
    EXPECT_EQ(test::thrownBy([this] { facade.deleteSeries(&analog); }), "out of range: map::at");
    EXPECT_EQ(facade.analogSections.getDrawAreas().size(), 1u);
    EXPECT_EQ(facade.analogSections.get_parent(), &facade.seriesGrid);
}

TEST_F(SynchronizerFacadeTest, EachTimeIsPassedOnAlsoAnEqualOne) {
    std::vector<std::string> told;
    facade.signalSeriesTimeChanged.connect(
        [&](float from, float to) { told.push_back(std::to_string(from) + ' ' + std::to_string(to)); });
    facade.setSeriesTime(1, 2);
    facade.setSeriesTime(1, 2);
    EXPECT_EQ(told, (std::vector<std::string>(2, "1.000000 2.000000")));
    facade.addSeries(&analog);
    EXPECT_EQ(facade.analogSections.getDrawAreas()[0]->converterProxy.getConverter()->xMin, 1);
    EXPECT_EQ(facade.analogSections.getDrawAreas()[0]->converterProxy.getConverter()->xMax, 2);
}

TEST_F(SynchronizerFacadeTest, ABadTimeReachesTheCaller) {
    facade.setSeriesTime(1, 2);
    EXPECT_EQ(test::thrownBy([this] { facade.setSeriesTime(-1, 2); }), "некорректное время серий");
    EXPECT_EQ(synchronizer().seriesTime.from, 1);
    EXPECT_EQ(test::thrownBy([this] { facade.setSeriesTime(4, 3); }), "setXBorders");
    // The signal works on.
    facade.addSeries(&analog);
    facade.setSeriesTime(5, 6);
    for (SeriesGroupDrawArea* area : synchronizer().drawAreas)
        EXPECT_EQ(area->converterProxy.getConverter()->xMax, 6);
}

TEST_F(SynchronizerFacadeTest, AnIntervalReachesAllPlotsAndLateOnes) {
    facade.addSeries(&analog);
    facade.setHorizontalInterval(30, 20);
    facade.addSeries(&binary);
    ASSERT_EQ(synchronizer().drawAreas.size(), 3u);
    for (SeriesGroupDrawArea* area : synchronizer().drawAreas) {
        EXPECT_EQ(test::findDrawer<IntervalDrawer>(*area)->from, 30);
        EXPECT_EQ(test::findDrawer<IntervalDrawer>(*area)->to, 20);
    }
}

TEST_F(SynchronizerFacadeTest, ThePixelWidthIsThatOfTheStripsCanvas) {
    EXPECT_EQ(facade.getPixelWidth(), 1);
    test::OffscreenHost host(facade, 500, 400);
    EXPECT_EQ(facade.getPixelWidth(),
              facade.summarySections.getDrawAreas()[0]->getFragmensDrawArea().get_allocated_width());
    EXPECT_GT(facade.getPixelWidth(), 300);
}

TEST_F(SynchronizerFacadeTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        SynchronizerFacade shortLived;
        if (i % 2 == 0) {
            shortLived.addSeries(&analog);
            test::findDrawer<MarkerDrawer>(*shortLived.analogSections.getDrawAreas()[0])
                ->manager->createMarker(Orientation::Vertical, MarkerType::Double, {1, 1});
        }
        if (i % 3 == 0)
            shortLived.clearSeries();
        for (Gtk::Widget* widget :
             Widgets{&shortLived, &shortLived.scrolledWindow, &shortLived.analogSections,
                     &shortLived.binarySections, &shortLived.summarySections, &shortLived.seriesGrid})
            g_object_weak_ref(G_OBJECT(widget->gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 6000);
    EXPECT_TRUE(analog.changed.empty());
}

TEST_F(SynchronizerFacadePicture, AllPlotsBeginAndEndAtTheSamePixels) {
    const int width = facade.getPixelWidth();
    int expected = -1;
    for (SeriesGroupDrawArea* area : all()) {
        FragmentsDrawArea& canvas = area->getFragmensDrawArea();
        EXPECT_EQ(canvas.get_allocated_width(), width);
        int x = 0;
        int y = 0;
        canvas.translate_coordinates(facade, 0, 0, x, y);
        if (expected < 0)
            expected = x;
        EXPECT_EQ(x, expected);
        EXPECT_EQ(area->converterProxy.getConverter()->widgetWidth, static_cast<float>(width));
    }
}

TEST_F(SynchronizerFacadePicture, AVerticalMarkerIsSeenOnAllPlotsUntilItIsRemoved) {
    constexpr int x = 200;
    for (SeriesGroupDrawArea* area : all())
        EXPECT_EQ(blues(*area, x), 0);
    markers(analogArea(0)).createMarker(Orientation::Vertical, MarkerType::Single, {x, 10});
    for (SeriesGroupDrawArea* area : all())
        EXPECT_GT(blues(*area, x), area->getFragmensDrawArea().get_allocated_height() / 2);
    facade.setSeriesTime(0, 50); // it stays at its moment
    for (SeriesGroupDrawArea* area : all()) {
        EXPECT_EQ(blues(*area, x), 0);
        EXPECT_GT(blues(*area, 35 + 2 * (x - 35)), area->getFragmensDrawArea().get_allocated_height() / 2);
    }
    facade.setSeriesTime(0, 100);
    markers(analogArea(0)).deleteAllMarkers();
    for (SeriesGroupDrawArea* area : all())
        EXPECT_EQ(blues(*area, x), 0);
}

TEST_F(SynchronizerFacadePicture, AHorizontalMarkerIsSeenWhereItWasMadeAlone) {
    markers(analogArea(1)).createMarker(Orientation::Horizontal, MarkerType::Single, {200, 30});
    for (SeriesGroupDrawArea* area : all())
        EXPECT_EQ(blues(*area, 100) > 0, area == &analogArea(1));
}

TEST_F(SynchronizerFacadePicture, ALatePlotShowsTheMarkersTheTimeAndTheInterval) {
    const auto shaded = [](SeriesGroupDrawArea& area) {
        const IntervalDrawer& drawer = *test::findDrawer<IntervalDrawer>(area);
        return std::make_pair(drawer.from, drawer.to);
    };
    SynchronizerFacade fresh;
    test::OffscreenHost freshHost(fresh, 600, 400);
    fresh.addSeries(&analog);
    fresh.setSeriesTime(0, 100);
    fresh.setHorizontalInterval(60, 70);
    freshHost.picture();
    markers(*fresh.analogSections.getDrawAreas()[0])
        .createMarker(Orientation::Vertical, MarkerType::Single, {200, 10});
    fresh.addSeries(&other);
    freshHost.picture();
    SeriesGroupDrawArea& area = *fresh.analogSections.getDrawAreas().at(1);
    EXPECT_EQ(area.converterProxy.getConverter()->xMax, 100);
    EXPECT_EQ(shaded(area), std::make_pair(60.0f, 70.0f));
    EXPECT_GT(blues(area, 200), area.getFragmensDrawArea().get_allocated_height() / 2);
}

TEST_F(SynchronizerFacadePicture, WithoutATimeThePlotsArePaintedAllTheSame) {
    SynchronizerFacade fresh;
    test::OffscreenHost freshHost(fresh, 600, 400);
    for (const Zel::Series* series : {&analog, &binary})
        fresh.addSeries(series);
    fresh.setHorizontalInterval(0, 0);
    EXPECT_GT(test::pictureOf(freshHost.picture()).countPainted(), 0);
}
