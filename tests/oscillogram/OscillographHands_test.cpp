// Looking around in a record, as a person does it.
#include "oscillogram/OscillographScreen.h"

#include <ZelCommonView/markers/CursorPosDrawer.h>

namespace {

using namespace ZelView;

enum Zoom : std::size_t { Shorter, Longer, Whole };

enum Resize : std::size_t { Shrink, Grow, Natural };

class OscillographHands : public test::OscillographScreen {
protected:
    Gtk::ToolButton& zoomButton(Zoom which) {
        return *impl().rangeScrollbar.getToolbarWidget().buttons.at(which);
    }

    Gtk::ToolButton& sizeButton(std::size_t plot, Resize which) {
        auto packable = impl().facade.analogSections.packableDrawAreas.begin();
        std::advance(packable, static_cast<std::ptrdiff_t>(plot));
        return *packable->window.getToolbar().buttons.at(which);
    }

    test::Range range() {
        test::Range result;
        oscillograph.getSeriesRange(result.first, result.second);
        return result;
    }

    void dragThumb(int pixels) {
        Gtk::Scrollbar& scrollbar = impl().rangeScrollbar.getScrollWidget();
        int start = 0;
        int end = 0;
        scrollbar.get_slider_range(start, end);
        const int middle = scrollbar.get_allocated_height() / 2;
        test::drag(scrollbar, (start + end) / 2, middle, (start + end) / 2 + pixels, middle);
    }

    /// What stands on the screen where the plot is.
    static test::Picture screen(SeriesGroupDrawArea& area) {
        test::settle();
        FragmentsDrawArea& widget = canvas(area);
        return test::pictureOf(Gdk::Pixbuf::create(widget.get_window(), 0, 0, widget.get_allocated_width(),
                                                   widget.get_allocated_height()));
    }
};

const std::vector<int> dark{50, 50, 50};

} // namespace

TEST_F(OscillographHands, AllPlotsAreSeenAboveEachOtherOnOneAxis) {
    int bottom = 0;
    int left = 0;
    int ignored = 0;
    canvas(summaryArea()).translate_coordinates(oscillograph, 0, 0, left, ignored);
    for (SeriesGroupDrawArea* area : all()) {
        FragmentsDrawArea& widget = canvas(*area);
        ASSERT_TRUE(widget.get_mapped());
        int x = 0;
        int y = 0;
        widget.translate_coordinates(oscillograph, 0, 0, x, y);
        EXPECT_GE(y, bottom);
        bottom = y + 20;
        EXPECT_EQ(widget.get_allocated_width(), oscillograph.getPixelWidth());
        EXPECT_EQ(x, left);
    }
    expectFresh(0, 100);
}

TEST_F(OscillographHands, TheButtonsNarrowWidenAndResetWhatIsShown) {
    told.clear();
    test::click(zoomButton(Shorter));
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(range().first, 0);
    EXPECT_FLOAT_EQ(range().second, 90);
    expectFresh(range().first, range().second);
    test::click(zoomButton(Shorter));
    test::click(zoomButton(Longer));
    EXPECT_EQ(told.size(), 3u);
    EXPECT_FLOAT_EQ(range().second, 89.1f);
    test::click(zoomButton(Whole));
    EXPECT_EQ(told.size(), 4u);
    EXPECT_EQ(range(), test::Range(0, 100));
    expectFresh(0, 100);
    test::click(zoomButton(Whole));
    EXPECT_EQ(told.size(), 4u);
}

TEST_F(OscillographHands, TheDraggedThumbMovesThroughTheRecord) {
    oscillograph.showRange(0, 40);
    test::settle();
    told.clear();
    dragThumb(160);
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back(), range());
    EXPECT_NEAR(range().first, 20, 2);
    EXPECT_NEAR(range().second - range().first, 40, 0.001);
    expectFresh(range().first, range().second);
    dragThumb(2000);
    EXPECT_EQ(range(), test::Range(60, 100));
    expectFresh(60, 100);
}

TEST_F(OscillographHands, TheCurvesFollowTheAxisAfterOneHasChanged) {
    analog.color = {200, 200, 0, 255};
    analog.changed.emit();
    binary.changed.emit();
    test::settle();
    ASSERT_FALSE(canvas(analogArea(0)).redrawAll);
    oscillograph.showRange(20, 40);
    expectFresh(20, 40);
    second.changed.emit();
    test::click(zoomButton(Shorter));
    other.changed.emit();
    expectFresh(range().first, range().second);
    oscillograph.setSeriesRange(50.0, 60.0);
    expectFresh(range().first, range().second);
}

TEST_F(OscillographHands, TheRowsFollowTheAxisAfterThePointerCameAndWent) {
    test::movePointer(canvas(binaryArea()), 300, 40);
    ASSERT_TRUE(test::waitFor([this] { return !canvas(binaryArea()).redrawAll; }));
    test::settle();
    oscillograph.showRange(20, 40);
    expectFresh(20, 40);
    test::movePointer(canvas(analogArea(1)), 300, 40);
    test::settle();
    test::click(zoomButton(Whole));
    expectFresh(0, 100);
}

TEST_F(OscillographHands, TheCrossAndTheReadoutFollowThePointerOnThePlotUnderIt) {
    const auto countDarks = [this] {
        const test::Picture seen = screen(analogArea(0));
        int count = 0;
        for (int x = 0; x < seen.width; ++x)
            count += seen.at(x, 44) == dark;
        return count;
    };
    EXPECT_EQ(countDarks(), 0);
    test::movePointer(canvas(analogArea(0)), 320, 45);
    const auto& cursor = *test::findDrawer<CursorPosDrawer>(analogArea(0));
    ASSERT_TRUE(test::waitFor([&cursor] { return !cursor.hidden; }));
    EXPECT_GT(countDarks(), canvas(analogArea(0)).get_allocated_width() / 3); // dashed
    const std::string text = cursor._getText();
    EXPECT_NE(text.find(", "), std::string::npos);
    EXPECT_NEAR(std::stof(text), realX(320), 1e-3);
    EXPECT_TRUE(test::findDrawer<CursorPosDrawer>(binaryArea())->hidden);

    // The first movement into another plot is told as a crossing only.
    test::movePointer(canvas(binaryArea()), 325, 40);
    test::settle();
    test::movePointer(canvas(binaryArea()), 330, 40);
    const auto& binaryCursor = *test::findDrawer<CursorPosDrawer>(binaryArea());
    ASSERT_TRUE(test::waitFor([&binaryCursor] { return !binaryCursor.hidden; }));
    EXPECT_EQ(binaryCursor._getText().find(", "), std::string::npos);
    EXPECT_TRUE(test::waitFor([&cursor] { return cursor.hidden; }));
    EXPECT_EQ(countDarks(), 0);
}

TEST_F(OscillographHands, TheIntervalIsShadedOnAllPlotsAndNotPartOfThePicture) {
    std::vector<test::Picture> before;
    for (SeriesGroupDrawArea* area : all())
        before.push_back(composed(*area));
    oscillograph.setHorizontalInterval(40, 60);
    const int inside = static_cast<int>(summaryArea().converterProxy.getConverter()->getVisualX(50));
    const int outside = static_cast<int>(summaryArea().converterProxy.getConverter()->getVisualX(31));
    for (std::size_t i = 0; i < all().size(); ++i) {
        const test::Picture seen = screen(*all()[i]);
        EXPECT_NE(seen.at(inside, 2), before[i].at(inside, 2));
        EXPECT_EQ(seen.at(outside, 2)[0], before[i].at(outside, 2)[0]);
        test::expectSame(composed(*all()[i]), before[i]);
    }
}

TEST_F(OscillographHands, ADraggedSeparatorGivesOnePlotWhatItTakesFromTheOther) {
    Gtk::Paned& paned = impl().facade.analogSections.separators.paneds.front();
    const int upper = canvas(analogArea(0)).get_allocated_height();
    const int lower = canvas(analogArea(1)).get_allocated_height();
    const int position = paned.get_position();
    test::drag(paned, 300, position + 2, 300, position + 42);
    const int gained = paned.get_position() - position;
    EXPECT_NEAR(gained, 40, 4);
    EXPECT_TRUE(test::waitFor([&] {
        return canvas(analogArea(0)).get_allocated_height() == upper + gained &&
               canvas(analogArea(1)).get_allocated_height() == lower - gained;
    }));
    const test::Picture seen = composed(analogArea(0));
    EXPECT_EQ(seen.height, upper + gained);
}

TEST_F(OscillographHands, APlotGrowsShrinksAndIsFreedByItsButtons) {
    const FragmentsDrawArea& widget = canvas(analogArea(0));
    const int natural = widget.get_allocated_height();
    test::click(sizeButton(0, Grow));
    const int grown = static_cast<int>(1.1f * static_cast<float>(natural));
    EXPECT_TRUE(test::waitFor([&] { return widget.get_allocated_height() == grown; }));
    EXPECT_EQ(composed(analogArea(0)).height, grown);
    test::click(sizeButton(0, Shrink));
    test::click(sizeButton(0, Natural));
    EXPECT_TRUE(test::waitFor([&] { return widget.get_allocated_height() == natural; }));
    EXPECT_NEAR(canvas(analogArea(1)).get_allocated_height(), natural, 1);
}

TEST_F(OscillographHands, ASeriesIsSeenAsSoonAsItIsAdded) {
    oscillograph.clearSeries();
    test::settle();
    EXPECT_FALSE(canvas(analogArea(0)).get_mapped());
    EXPECT_FALSE(canvas(binaryArea()).get_mapped());
    EXPECT_TRUE(canvas(summaryArea()).get_mapped());
    oscillograph.addSeries(&binary);
    EXPECT_TRUE(test::waitFor([this] { return canvas(binaryArea()).get_mapped(); }));
    EXPECT_FALSE(canvas(analogArea(0)).get_mapped());
    oscillograph.addSeries(&analog);
    EXPECT_TRUE(test::waitFor([this] { return canvas(analogArea(0)).get_mapped(); }));
    for (const Zel::Series* series : {&second, &other})
        oscillograph.addSeries(series);
    expectFresh(0, 100);
}

TEST(OscillographOnScreen, TheFirstSeriesOfAnEmptyOscillographIsSeenAtOnce) {
    Oscillograph oscillograph;
    Gtk::Window window;
    window.set_default_size(600, 400);
    window.add(oscillograph);
    oscillograph.setSeriesDuration(100);
    test::present(window);
    const Zel::Series series = test::makeAnalog();
    oscillograph.addSeries(&series);
    auto& sections = oscillograph.impl->facade.analogSections;
    FragmentsDrawArea& canvas = sections.getDrawAreas().at(0)->getFragmensDrawArea();
    EXPECT_TRUE(test::waitFor([&canvas] { return canvas.get_mapped() && canvas.helper.getBackground(); }));
    test::settle();
    const test::Picture seen = test::pictureOf(canvas.helper.getBackground());
    int reds = 0;
    for (int y = 0; y < seen.height; ++y)
        for (int x = 0; x < seen.width; ++x) {
            const std::vector<int> pixel = seen.at(x, y);
            reds += pixel[0] > 180 && pixel[1] < 60 && pixel[2] < 60;
        }
    EXPECT_GT(reds, 100);
    oscillograph.deleteSeries(&series);
}

TEST(OscillographOnScreen, AWindowOfAnotherWidthIsToldOf) {
    Oscillograph oscillograph;
    std::vector<int> widths;
    oscillograph.signalPixelWidthChanged.connect([&widths](int width) { widths.push_back(width); });
    Gtk::Window window;
    window.set_default_size(600, 400);
    window.add(oscillograph);
    test::present(window);
    EXPECT_TRUE(widths.empty());
    const int first = oscillograph.getPixelWidth();
    window.resize(700, 400);
    EXPECT_TRUE(test::waitFor([&widths] { return !widths.empty(); }));
    EXPECT_EQ(widths.back(), first + 100);
    EXPECT_EQ(oscillograph.getPixelWidth(), first + 100);
}
