#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ZelView;

/// A plot with a grid and a drawer for each kind of series, whose x axis is set by hand.
struct Plot : SeriesGroupDrawArea {
    explicit Plot(const std::vector<const Zel::Series*>& series) {
        setXBordersMode(BordersMode::Manual);
        setOffset({35, 0, 20, 20});
        addDrawer(std::make_unique<CoordsDrawer>(), DrawerPosition::BeforeFragments);
        addDrawer(std::make_unique<AnalogSeriesDrawer>());
        addDrawer(std::make_unique<BinarySeriesDrawer>());
        for (const Zel::Series* each : series) {
            addBorderable(*each);
            addFragmentable(*each);
        }
    }
};

Zel::Series makeSeries(const std::string& name, Zel::Color color, const std::function<int(int)>& y) {
    Zel::Series series;
    series.name = name;
    series.color = color;
    for (int i = 0; i <= 100; ++i)
        series.points.push_back({static_cast<float>(i), static_cast<float>(y(i))});
    return series;
}

Zel::Series makeBinary(std::uint64_t index) {
    Zel::Series series = makeSeries("binary", {0, 120, 0, 255}, [](int i) { return i / 7 % 2; });
    series.type = Zel::SeriesType::Binary;
    series.index = index;
    return series;
}

class SeriesGroupDrawAreaPictureTest : public testing::Test {
protected:
    SeriesGroupDrawAreaPictureTest() {
        plot.setXBorders(0, 100);
        host.picture();
    }

    /// Fails unless the plot looks like one that never showed anything else.
    void expectFresh(float from, float to) {
        Plot fresh(all);
        fresh.setXBorders(from, to);
        test::OffscreenHost freshHost(fresh, 400, 200);
        const test::Picture seen = test::pictureOf(host.picture());
        // Fragments that are painted one by one blend a little differently where they cross.
        fresh.redrawFragmentable();
        fresh.fragmentsDrawArea.redrawAll = plot.fragmentsDrawArea.redrawAll;
        test::expectSame(seen, test::pictureOf(freshHost.picture()));
    }

    Zel::Series curve = makeSeries("curve", {200, 0, 0, 255}, [](int i) { return i % 10; });
    Zel::Series straight = makeSeries("straight", {0, 0, 200, 255}, [](int i) { return i / 5; });
    Zel::Series binary = makeBinary(1);
    std::vector<const Zel::Series*> all{&curve, &straight, &binary};
    Plot plot{all};
    test::OffscreenHost host{plot, 400, 200};
};

} // namespace

TEST_F(SeriesGroupDrawAreaPictureTest, TheCurvesFollowTheAxis) {
    expectFresh(0, 100);
    plot.setXBorders(20, 40);
    expectFresh(20, 40);
}

TEST_F(SeriesGroupDrawAreaPictureTest, TheCurvesFollowTheAxisAfterOneHasChanged) {
    curve.color = {200, 200, 0, 255};
    curve.changed.emit();
    host.picture();
    ASSERT_FALSE(plot.getFragmensDrawArea().redrawAll);
    plot.setXBorders(20, 40);
    expectFresh(20, 40);
    straight.changed.emit();
    plot.setXBorders(30, 50);
    curve.changed.emit();
    expectFresh(30, 50);
    plot.setXBorders(0, 100);
    expectFresh(0, 100);
}

TEST_F(SeriesGroupDrawAreaPictureTest, TheCurvesFollowTheAutomaticAxisToo) {
    curve.changed.emit();
    host.picture();
    curve.points[50].y = 30;
    curve.rangeChanged.emit();
    expectFresh(0, 100);
}

TEST_F(SeriesGroupDrawAreaPictureTest, AFormerSignalLeavesNoTrace) {
    curve.changed.emit();
    host.picture();
    plot.deleteFragmentable(straight);
    plot.deleteBorderable(straight);
    straight.changed.emit();
    all = {&curve, &binary};
    expectFresh(0, 100);
    plot.clearFragmentable();
    plot.clearBorderable();
    curve.changed.emit();
    binary.changed.emit();
    all.clear();
    expectFresh(0, 100);
}

TEST_F(SeriesGroupDrawAreaPictureTest, MarginsAndTheConverterAreFollowed) {
    curve.changed.emit();
    host.picture();
    plot.setOffset({60, 10, 5, 50});
    plot.setCoordsConvertMode(CoordsConvertMode::Proportional);
    Plot fresh(all);
    fresh.setXBorders(0, 100);
    fresh.setCoordsConvertMode(CoordsConvertMode::Proportional);
    fresh.setOffset({60, 10, 5, 50});
    test::OffscreenHost freshHost(fresh, 400, 200);
    test::expectSame(test::pictureOf(host.picture()), test::pictureOf(freshHost.picture()));
}

TEST(SeriesGroupDrawAreaOnScreen, TheBinariesFollowTheAxisAfterThePointerCameAndWent) {
    const Zel::Series binary = makeBinary(1);
    const Zel::Series other = makeBinary(2);
    const std::vector<const Zel::Series*> all{&binary, &other};
    Plot plot(all);
    plot.setXBorders(0, 100);
    Gtk::Window window;
    window.set_default_size(400, 200);
    window.add(plot);
    test::present(window);
    FragmentsDrawArea& canvas = plot.getFragmensDrawArea();
    ASSERT_TRUE(canvas.redrawAll);

    test::movePointer(canvas, 100, 60);
    EXPECT_TRUE(test::waitFor([&canvas] { return !canvas.redrawAll; }));
    test::settle();
    test::movePointerAway();
    test::settle();
    plot.setXBorders(20, 40);
    test::settle();
    const test::Picture seen = test::pictureOf(canvas.helper.getBackground());

    Plot fresh(all);
    fresh.setXBorders(20, 40);
    test::OffscreenHost freshHost(fresh, plot.get_allocated_width(), plot.get_allocated_height());
    freshHost.picture();
    test::expectSame(seen, test::pictureOf(fresh.getFragmensDrawArea().helper.getBackground()));
}
