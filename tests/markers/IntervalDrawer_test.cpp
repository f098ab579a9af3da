#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/markers/IntervalDrawer.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

constexpr int width = 100;
constexpr int height = 40;

struct IntervalDrawerTest : testing::Test {
    IntervalDrawerTest() {
        converter.widgetWidth = width;
        converter.widgetHeight = height;
        converter.offset = {10, 0, 5, 5};
        converter.xMin = 0;
        converter.xMax = 90; // one pixel for each world unit, right of the margin
        converter.recalc();
        drawer.converter = &converter;
        drawer.drawArea = &area;
    }

    test::Picture paint() {
        return test::paint(width, height, [this](const Context& context) { drawer.draw(context); });
    }

    static test::Picture band(double from, double to) {
        return test::paint(width, height, [=](const Context& context) {
            context->set_source_rgba(190 / 255.0, 190 / 255.0, 190 / 255.0, 127 / 255.0);
            context->rectangle(from, 0, to - from, height);
            context->fill();
        });
    }

    StretchableCoordsConverter converter;
    FragmentsDrawArea area;
    IntervalDrawer drawer;
};

} // namespace

TEST_F(IntervalDrawerTest, StartsWithoutAWidthInATranslucentGrey) {
    EXPECT_EQ(drawer.from, 0);
    EXPECT_EQ(drawer.to, 0);
    EXPECT_EQ(drawer.color.r, 190);
    EXPECT_EQ(drawer.color.g, 190);
    EXPECT_EQ(drawer.color.b, 190);
    EXPECT_EQ(drawer.color.a, 127);
    EXPECT_EQ(paint().countPainted(), 0);
    EXPECT_LT(static_cast<void*>(&drawer.color), static_cast<void*>(&drawer.from));
    EXPECT_LT(&drawer.from, &drawer.to);
}

TEST_F(IntervalDrawerTest, ShadesTheStretchOverTheWholeHeight) {
    drawer.setHorizontalInterval(20, 50);
    test::expectSame(paint(), band(30, 60));
    drawer.setHorizontalInterval(20.5f, 50.25f);
    test::expectSame(paint(), band(30.5, 60.25));
}

TEST_F(IntervalDrawerTest, ReachesIntoTheMargins) {
    drawer.setHorizontalInterval(-5, 200);
    test::expectSame(paint(), band(5, 210));
}

TEST_F(IntervalDrawerTest, TheEdgesMayBeGivenInEitherOrder) {
    drawer.setHorizontalInterval(50, 20);
    EXPECT_EQ(drawer.from, 50);
    EXPECT_EQ(drawer.to, 20);
    test::expectSame(paint(), band(30, 60));
}

TEST_F(IntervalDrawerTest, EqualEdgesShowNothing) {
    drawer.setHorizontalInterval(30, 30);
    EXPECT_EQ(paint().countPainted(), 0);
}

TEST_F(IntervalDrawerTest, FollowsTheConverter) {
    drawer.setHorizontalInterval(20, 50);
    converter.xMin = 10;
    converter.xMax = 100;
    converter.recalc();
    test::expectSame(paint(), band(20, 50));
}

TEST_F(IntervalDrawerTest, WithoutADrawAreaThrowsWithTheEdgesStored) {
    drawer.drawArea = nullptr;
    try {
        drawer.setHorizontalInterval(3, 4);
        FAIL();
    } catch (const char* text) {
        EXPECT_EQ(std::string(text), "getDrawArea");
    }
    EXPECT_EQ(drawer.from, 3);
    EXPECT_EQ(drawer.to, 4);
}

TEST_F(IntervalDrawerTest, IsSeenAtOnceAndKeptOutOfTheSavedPicture) {
    const test::TemporaryFolder folder;
    area.addPositionDrawer([this](const Context& context) { drawer.draw(context); }, DrawerPosition::End);
    test::OffscreenHost host(area, width, height);
    const test::Picture before = test::pictureOf(host.picture());
    EXPECT_EQ(before.countPainted(), 0);
    drawer.setHorizontalInterval(20, 50);
    const test::Picture seen = test::pictureOf(host.picture());
    EXPECT_EQ(seen.countPainted(), 30 * height);
    EXPECT_NEAR(seen.at(45, 1)[0], 223, 1);
    area.saveSummaryImage((folder.path / "saved.png").string(), "png");
    EXPECT_EQ(test::pictureOfFile((folder.path / "saved.png").string()).countPainted(), 0);
}
