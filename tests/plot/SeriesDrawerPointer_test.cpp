#include "support/Hands.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtest/gtest.h>

#include <list>
#include <memory>

namespace {

using namespace ZelView;

class SeriesDrawerPointerTest : public testing::Test {
protected:
    SeriesDrawerPointerTest() {
        binary.type = Zel::SeriesType::Binary;
        binary.changed.connect([this] { ++binaryHeard; });
        curve.changed.connect([this] { ++curveHeard; });
        drawer->fragmentables = &all;
        drawer->drawArea = &area;
        drawer->initDrawArea();
        area.set_size_request(200, 100);
        window.add(area);
        window.show_all();
        test::movePointer(1900, 1100);
        EXPECT_TRUE(test::waitFor([this] { return window.is_visible() && window.is_active(); }));
        test::wait(200);
        binaryHeard = 0;
    }

    Zel::Series binary;
    Zel::Series curve;
    std::list<const Zel::IFragmentable*> all{&curve, &binary};
    int binaryHeard = 0;
    int curveHeard = 0;
    FragmentsDrawArea area;
    std::unique_ptr<BinarySeriesDrawer> drawer = std::make_unique<BinarySeriesDrawer>();
    Gtk::Window window;
};

} // namespace

TEST_F(SeriesDrawerPointerTest, EnteringAndLeavingRepaintsTheBinariesAndNoCurve) {
    test::movePointer(area, 100, 50);
    EXPECT_TRUE(test::waitFor([this] { return binaryHeard == 1; })) << binaryHeard;
    test::movePointer(area, 110, 55);
    test::wait(100);
    EXPECT_EQ(binaryHeard, 1);
    test::movePointer(1900, 1100);
    EXPECT_TRUE(test::waitFor([this] { return binaryHeard == 2; })) << binaryHeard;
    EXPECT_EQ(curveHeard, 0);
}

TEST_F(SeriesDrawerPointerTest, ADrawerThatIsGoneHearsNoMoreOfThePointer) {
    drawer.reset();
    test::movePointer(area, 100, 50);
    test::wait(200);
    EXPECT_EQ(binaryHeard, 0);
}
