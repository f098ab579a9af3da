#include "diagrams/Scrolling.h"
#include "support/Finalised.h"
#include "support/Pictures.h"

#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/Hodograph.h>
#include <ZelCommonView/plot/TimedSeriesDrawer.h>

#include <memory>

namespace {

using namespace ZelView;

std::unique_ptr<Zel::TimedSeries> seriesOf(std::vector<Zel::TimedPointF> points) {
    auto series = std::make_unique<Zel::TimedSeries>();
    series->points = std::move(points);
    series->color = {200, 0, 0, 255};
    return series;
}

/// A square of 10 units that is walked along in 300 ms.
std::unique_ptr<Zel::TimedSeries> makeSquare() {
    return seriesOf({{{-5, -5}, 0}, {{5, -5}, 100}, {{5, 5}, 200}, {{-5, 5}, 300}});
}

template <typename T>
T& drawerOf(SeriesGroupDrawArea& area) {
    for (Drawer* const drawer : area.getDrawers())
        if (auto* const found = dynamic_cast<T*>(drawer))
            return *found;
    throw std::logic_error("no such drawer");
}

class HodographTest : public testing::Test {
protected:
    CounterControls& controls() { return *hodograph.counterControls; }

    SeriesTimeCounter& counter() { return hodograph.timedSeriesDrawer->getCounter(); }

    const CoordsConverter& converter() { return *hodograph.drawArea.converterProxy.getConverter(); }

    void present(int width = 400, int height = 420) {
        window.set_default_size(width, height);
        window.add(hodograph);
        test::present(window);
    }

    Gtk::Window window;
    Hodograph hodograph;
};

} // namespace

TEST_F(HodographTest, StacksThePlotTheButtonAndTheTwoSliders) {
    EXPECT_EQ(hodograph.get_child(), &hodograph.grid);
    EXPECT_EQ(hodograph.grid.get_child_at(0, 0), &hodograph.scrolled);
    EXPECT_EQ(hodograph.grid.get_child_at(0, 1), &controls().getRunButton());
    EXPECT_EQ(hodograph.grid.get_child_at(0, 2), &controls().getSpeedSlider());
    EXPECT_EQ(hodograph.grid.get_child_at(0, 3), &controls().getTimeSlider());
    EXPECT_EQ(hodograph.scrolled.currentWidget, &hodograph.drawArea);
    EXPECT_TRUE(hodograph.get_visible());
    EXPECT_EQ(hodograph.scrolled.minScale, 100u);
    EXPECT_EQ(hodograph.scrolled.maxScale, 500u);
    EXPECT_EQ(hodograph.scrolled.scaleStep, 10u);
}

TEST_F(HodographTest, KeepsOneUnitEquallyLongOnBothAxesWithLimitsOfTheSeries) {
    EXPECT_NE(dynamic_cast<const ProportionalCoordsConverter*>(&converter()), nullptr);
    EXPECT_EQ(hodograph.drawArea.converterProxy.xBordersMode, BordersMode::Auto);
    EXPECT_EQ(hodograph.drawArea.converterProxy.yBordersMode, BordersMode::Auto);
}

TEST_F(HodographTest, PaintsTheGridBelowAndTheSeriesOnTop) {
    const std::vector<Drawer*> drawers = hodograph.drawArea.getDrawers();
    ASSERT_EQ(drawers.size(), 2u);
    auto& coords = drawerOf<FiguresCoordsDrawer>(hodograph.drawArea);
    EXPECT_EQ(coords.scrollInfo, &hodograph.scrolled.getScrollInfo());
    EXPECT_EQ(coords.getHorizontalHeader(), "");
    EXPECT_EQ(&drawerOf<TimedSeriesDrawer>(hodograph.drawArea), hodograph.timedSeriesDrawer);
}

TEST_F(HodographTest, AxesTakeInTheSeriesAndFallBackWithoutThem) {
    present();
    const float before = converter().getVisualX(5);
    hodograph.addSeries(seriesOf({{{-500, -500}, 0}, {{500, 500}, 100}}));
    EXPECT_NE(converter().getVisualX(5), before);
    EXPECT_LT(converter().getVisualX(500), hodograph.drawArea.getFragmensDrawArea().get_allocated_width());
    EXPECT_GT(converter().getVisualX(-500), 0);
    hodograph.deleteSeries();
    EXPECT_EQ(converter().getVisualX(5), before);
}

TEST_F(HodographTest, TheReplayRunsAtOnceAndEndsWithTheLongestSeries) {
    EXPECT_FALSE(counter().getIsPaused());
    EXPECT_EQ(controls().getRunButton().get_label(), "Пауза");
    hodograph.addSeries(makeSquare());
    EXPECT_EQ(counter().getMax(), 300u);
    hodograph.addSeries(seriesOf({{{1, 1}, 0}, {{2, 2}, 200}}));
    EXPECT_EQ(counter().getMax(), 300u);
    EXPECT_EQ(hodograph.series.size(), 2u);
    hodograph.deleteSeries();
    EXPECT_EQ(counter().getMax(), 0u);
    EXPECT_TRUE(hodograph.series.empty());
    hodograph.deleteSeries();
}

TEST_F(HodographTest, ANullSeriesIsRefused) {
    try {
        hodograph.addSeries(nullptr);
        FAIL();
    } catch (const char* failure) {
        EXPECT_STREQ(failure, "addSeries");
    }
    EXPECT_TRUE(hodograph.series.empty());
}

TEST_F(HodographTest, TimeReallyPassesAndBeginsAnew) {
    present();
    hodograph.addSeries(makeSquare());
    std::vector<unsigned long> times;
    counter().timeChanged.connect([&times](unsigned long time) { times.push_back(time); });
    EXPECT_TRUE(test::waitFor([&times] {
        return times.size() > 3 && std::find(std::next(times.begin()), times.end(), 0u) != times.end();
    }));
    for (const unsigned long time : times)
        EXPECT_LE(time, 300u);
}

TEST_F(HodographTest, APersonStopsTheReplayWithTheTimeSlider) {
    present();
    hodograph.addSeries(makeSquare());
    Gtk::Scale& slider = controls().getTimeSlider();
    test::click(slider, slider.get_allocated_width() - 40, slider.get_allocated_height() - 8);
    EXPECT_TRUE(test::waitFor([this] { return counter().getIsPaused(); }));
    EXPECT_EQ(controls().getRunButton().get_label(), "Старт");
    const double value = slider.get_value();
    EXPECT_GT(value, 0);
    test::wait(350);
    EXPECT_EQ(slider.get_value(), value);
    test::click(controls().getRunButton());
    EXPECT_TRUE(test::waitFor([&] { return slider.get_value() != value; }));
    EXPECT_EQ(controls().getRunButton().get_label(), "Пауза");
}

TEST_F(HodographTest, ShowsTheCurveUpToTheTime) {
    counter().setIsPaused(true);
    hodograph.addSeries(makeSquare());
    const auto pictureAt = [this](unsigned long time) {
        counter().setTime(time);
        return test::paint(300, 300,
                           [this](const auto& context) { hodograph.timedSeriesDrawer->draw(context); });
    };
    present();
    const int nothing = pictureAt(0).countPainted();
    const int half = pictureAt(150).countPainted();
    const int whole = pictureAt(300).countPainted();
    EXPECT_EQ(nothing, 0);
    EXPECT_GT(half, 0);
    EXPECT_GT(whole, half);
}

TEST_F(HodographTest, TheWheelZoomsAndARealDragMovesTheView) {
    counter().setIsPaused(true);
    present();
    hodograph.addSeries(makeSquare());
    for (int i = 0; i < 20; ++i)
        test::turnWheel(hodograph.scrolled, 150, 120, -1);
    EXPECT_TRUE(test::waitFor([this] {
        return hodograph.drawArea.get_allocated_width() == 3 * hodograph.scrolled.get_allocated_width();
    }));
    test::settle();
    const double x = hodograph.scrolled.get_hadjustment()->get_value();
    const double y = hodograph.scrolled.get_vadjustment()->get_value();
    test::drag(hodograph.scrolled, 200, 150, 140, 110);
    EXPECT_NEAR(hodograph.scrolled.get_hadjustment()->get_value(), x + 60, 0.1);
    EXPECT_NEAR(hodograph.scrolled.get_vadjustment()->get_value(), y + 40, 0.1);
}

TEST_F(HodographTest, EndsCompletelyEvenWhileItRuns) {
    test::Finalised finalised;
    for (int i = 0; i < 300; ++i) {
        auto one = std::make_unique<Hodograph>();
        one->addSeries(makeSquare());
        finalised.watch(*one);
        finalised.watch(one->drawArea);
        finalised.watch(one->counterControls->getRunButton());
        finalised.watch(one->counterControls->getTimeSlider());
        if (i % 3 == 0)
            one->deleteSeries();
        if (i % 50 == 0) {
            window.add(*one);
            test::present(window);
        }
    }
    EXPECT_TRUE(finalised.all());
    test::wait(250);
}
