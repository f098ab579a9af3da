#include "oscillogram/Sections.h"
#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/oscillogram/Oscillograph.h>
#include <ZelCommonView/oscillogram/OscillographImpl.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using namespace ZelView;
using Range = std::pair<float, float>;
using Ranges = std::vector<Range>;
using Widgets = std::vector<Gtk::Widget*>;

static_assert(std::is_base_of_v<Zel::IView, IOscillograph>);
static_assert(std::is_abstract_v<IOscillograph>);

struct OscillographTest : testing::Test {
    OscillographTest() {
        oscillograph.signalSeriesRangeChanged.connect(
            [this](float from, float to) { told.emplace_back(from, to); });
    }

    Range range() {
        Range result;
        oscillograph.getSeriesRange(result.first, result.second);
        return result;
    }

    /// The x limits that every plot has; fails if they differ.
    Range shown() {
        const auto& areas = impl().facade.sectionsSynchronizer.drawAreaSynchronizer.drawAreas;
        const auto limits = [](const SeriesGroupDrawArea& area) {
            const CoordsConverter& converter = *area.converterProxy.getConverter();
            return Range(converter.xMin, converter.xMax);
        };
        for (const SeriesGroupDrawArea* area : areas)
            EXPECT_EQ(limits(*area), limits(*areas.front()));
        return limits(*areas.front());
    }

    Oscillograph::Impl& impl() { return *oscillograph.impl; }

    Zel::Series analog = test::makeAnalog(), binary = test::makeBinary();
    Ranges told;
    Oscillograph oscillograph;
};

} // namespace

TEST_F(OscillographTest, IsComposedOfToolbarFacadeAndScrollbar) {
    Gtk::Grid& grid = impl().grid;
    EXPECT_EQ(oscillograph.get_child(), &grid);
    EXPECT_EQ(grid.get_child_at(0, 0), &impl().rangeScrollbar.getToolbarWidget());
    EXPECT_EQ(grid.get_child_at(0, 1), &impl().facade);
    EXPECT_EQ(grid.get_child_at(0, 2), &impl().rangeScrollbar.getScrollWidget());
    EXPECT_EQ(grid.get_children().size(), 3u);
    EXPECT_EQ(impl().rangeScrollbar.getToolbarWidget().get_halign(), Gtk::ALIGN_END);
    for (Gtk::Widget* widget :
         Widgets{&oscillograph, &grid, &impl().facade, &impl().rangeScrollbar.getToolbarWidget(),
                 &impl().rangeScrollbar.getScrollWidget()})
        EXPECT_TRUE(widget->get_visible());
    const void* const fields[] = {&impl().grid, &impl().facade, &impl().rangeScrollbar, &impl().activeCheck,
                                  &impl().pixelWidth};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(OscillographTest, IsAViewWhoseSidesAreReachedByCastingAcross) {
    Zel::IView* const view = &static_cast<IOscillograph&>(oscillograph);
    EXPECT_EQ(Zel::GtkWidgetHelper::getWidget(view), &oscillograph);
    EXPECT_EQ(Zel::GtkWidgetHelper::getIView(&oscillograph), view);
    const IOscillograph& interface = oscillograph;
    const void* const signals[] = {&interface.signalSeriesRangeChanged, &interface.signalPixelWidthChanged,
                                   &interface.signalActiveChanged};
    for (std::size_t i = 1; i < std::size(signals); ++i)
        EXPECT_LT(signals[i - 1], signals[i]) << i;
}

TEST_F(OscillographTest, TheCheckButtonIsActiveAndStandsNowhere) {
    EXPECT_TRUE(oscillograph.isActive());
    EXPECT_EQ(impl().activeCheck.get_parent(), nullptr);
    std::vector<bool> active;
    oscillograph.signalActiveChanged.connect([&active](bool value) { active.push_back(value); });
    impl().activeCheck.set_active(false);
    EXPECT_FALSE(oscillograph.isActive());
    impl().activeCheck.set_active(true);
    EXPECT_EQ(active, (std::vector<bool>{false, true}));
}

TEST_F(OscillographTest, SeriesAreHandedToTheSections) {
    oscillograph.addSeries(&analog);
    oscillograph.addSeries(&binary);
    auto& analogs = impl().facade.analogSections;
    auto& binaries = impl().facade.binarySections;
    EXPECT_EQ(test::countSeries(*analogs.getDrawAreas().at(0)), 1u);
    EXPECT_EQ(test::countSeries(*binaries.getDrawAreas().at(0)), 1u);
    oscillograph.deleteSeries(&analog);
    EXPECT_EQ(test::countSeries(*analogs.getDrawAreas().at(0)), 0u);
    EXPECT_EQ(test::thrownBy([this] { oscillograph.deleteSeries(&analog); }), "out of range: map::at");
    oscillograph.clearSeries();
    EXPECT_EQ(test::countSeries(*binaries.getDrawAreas().at(0)), 0u);
    EXPECT_EQ(binaries.get_parent(), nullptr);
}

TEST_F(OscillographTest, ADurationShowsTheWholeRecord) {
    EXPECT_EQ(range(), Range(0, 0));
    EXPECT_EQ(shown(), Range(0, 0));
    oscillograph.setSeriesDuration(100);
    EXPECT_EQ(range(), Range(0, 100));
    EXPECT_EQ(shown(), Range(0, 100));
    EXPECT_EQ(told, (Ranges{{0, 100}}));
    double from = 1;
    double to = 1;
    oscillograph.getSeriesRange(from, to);
    EXPECT_EQ(from, 0);
    EXPECT_EQ(to, 100);
}

TEST_F(OscillographTest, ThePlotsHaveTheRangeBeforeTheApplicationHearsOfIt) {
    Ranges seen;
    oscillograph.signalSeriesRangeChanged.connect([&](float, float) { seen.push_back(shown()); });
    oscillograph.setSeriesDuration(100);
    oscillograph.setSeriesRange(40.0, 60.0);
    oscillograph.setSeriesRange(50.0, 55.0);
    EXPECT_EQ(seen, told);
    EXPECT_GE(told.size(), 3u);
}

TEST_F(OscillographTest, ADurationOfZeroDisablesTheNavigationAndKeepsTheRange) {
    oscillograph.setSeriesDuration(100);
    told.clear();
    oscillograph.setSeriesDuration(0);
    EXPECT_TRUE(impl().rangeScrollbar.slider.disabled);
    EXPECT_EQ(range(), Range(0, 100));
    EXPECT_EQ(shown(), Range(0, 100));
    EXPECT_TRUE(told.empty());
}

TEST_F(OscillographTest, ANegativeDurationThrowsAndChangesNothing) {
    oscillograph.setSeriesDuration(100);
    told.clear();
    EXPECT_EQ(test::thrownBy([this] { oscillograph.setSeriesDuration(-1); }),
              "некорректная длительность серий");
    EXPECT_FALSE(impl().rangeScrollbar.slider.disabled);
    EXPECT_EQ(impl().rangeScrollbar.slider.adjustment->get_upper(), 100);
    EXPECT_EQ(range(), Range(0, 100));
    EXPECT_TRUE(told.empty());
}

TEST_F(OscillographTest, TheTwoFormsOfARangeKeepTheirRules) {
    oscillograph.setSeriesDuration(100);
    oscillograph.setSeriesRange(10.0f, 20.0f);
    EXPECT_EQ(range().first, 0);
    EXPECT_FLOAT_EQ(range().second, 33);
    EXPECT_EQ(shown(), range());
    oscillograph.showRange(0, 100);
    oscillograph.setSeriesRange(10.0, 20.0);
    EXPECT_EQ(range().first, 0);
    EXPECT_FLOAT_EQ(range().second, 11);
    EXPECT_EQ(shown(), range());
}

TEST_F(OscillographTest, AShownRangeIsExactAndToldOfOnce) {
    oscillograph.addSeries(&analog);
    oscillograph.setSeriesDuration(100);
    told.clear();
    oscillograph.showRange(10, 20);
    EXPECT_EQ(told, (Ranges{{10, 20}}));
    EXPECT_EQ(range(), Range(10, 20));
    EXPECT_EQ(shown(), Range(10, 20));
    EXPECT_EQ(test::thrownBy([this] { oscillograph.showRange(20, 10); }), "showRange");
    EXPECT_EQ(shown(), Range(10, 20));
}

TEST_F(OscillographTest, BeforeADurationNoRangeReachesThePlots) {
    oscillograph.setSeriesRange(10.0, 20.0);
    oscillograph.showRange(10, 20);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(shown(), Range(0, 0));
}

TEST_F(OscillographTest, AnIntervalIsHandedToThePlots) {
    oscillograph.setHorizontalInterval(20, 30);
    const auto& drawer =
        *test::findDrawer<IntervalDrawer>(*impl().facade.summarySections.getDrawAreas().at(0));
    EXPECT_EQ(drawer.from, 20);
    EXPECT_EQ(drawer.to, 30);
}

TEST_F(OscillographTest, OnlyALaterOtherWidthIsReported) {
    std::vector<int> widths;
    oscillograph.signalPixelWidthChanged.connect([&widths](int width) { widths.push_back(width); });
    EXPECT_EQ(oscillograph.getPixelWidth(), 1);
    EXPECT_EQ(impl().pixelWidth, -1);
    test::OffscreenHost host(oscillograph, 500, 400);
    const int first = oscillograph.getPixelWidth();
    EXPECT_GT(first, 300);
    EXPECT_EQ(impl().pixelWidth, first);
    EXPECT_TRUE(widths.empty());
    oscillograph.set_size_request(500, 420);
    test::settle();
    EXPECT_TRUE(widths.empty());
    oscillograph.set_size_request(550, 420);
    test::settle();
    EXPECT_EQ(widths, (std::vector<int>{first + 50}));
    EXPECT_EQ(oscillograph.getPixelWidth(), first + 50);
}

TEST_F(OscillographTest, ALegendThatGrowsIsAnotherWidthOfThePlots) {
    std::vector<int> widths;
    oscillograph.signalPixelWidthChanged.connect([&widths](int width) { widths.push_back(width); });
    test::OffscreenHost host(oscillograph, 500, 400);
    const int first = oscillograph.getPixelWidth();
    analog.name = "a signal with a long name";
    oscillograph.addSeries(&analog);
    host.picture();
    ASSERT_FALSE(widths.empty());
    EXPECT_EQ(widths.back(), oscillograph.getPixelWidth());
    EXPECT_LT(widths.back(), first - 50);
}

TEST_F(OscillographTest, ShowAllShowsWhatWasHidden) {
    impl().facade.hide();
    oscillograph.hide();
    oscillograph.showAll();
    EXPECT_TRUE(oscillograph.get_visible());
    EXPECT_TRUE(impl().facade.get_visible());
}

TEST_F(OscillographTest, TheShortestAndTheLongestDurationArePainted) {
    for (float duration : {std::numeric_limits<float>::min(), std::numeric_limits<float>::max()}) {
        Oscillograph fresh;
        fresh.addSeries(&analog);
        fresh.addSeries(&binary);
        fresh.setSeriesDuration(duration);
        fresh.setHorizontalInterval(0, duration);
        test::OffscreenHost host(fresh, 500, 400);
        EXPECT_GT(test::pictureOf(host.picture()).countPainted(), 0) << duration;
    }
}

TEST_F(OscillographTest, SeriesMayOutliveIt) {
    auto shortLived = std::make_unique<Oscillograph>();
    shortLived->addSeries(&analog);
    shortLived->addSeries(&binary);
    shortLived.reset();
    for (const Zel::Series* series : {&analog, &binary}) {
        EXPECT_TRUE(series->changed.empty());
        EXPECT_TRUE(series->rangeChanged.empty());
    }
}

TEST_F(OscillographTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        Oscillograph shortLived;
        if (i % 5 == 0)
            shortLived.addSeries(&analog);
        shortLived.setSeriesDuration(100);
        for (Gtk::Widget* widget :
             Widgets{&shortLived, &shortLived.impl->grid, &shortLived.impl->facade,
                     &shortLived.impl->rangeScrollbar.getScrollWidget(), &shortLived.impl->activeCheck})
            g_object_weak_ref(G_OBJECT(widget->gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 5000);
}
