// Markers as a person makes, drags and deletes them.
#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/markers/ContextMenuAdapter.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/markers/MarkerWords.h>
#include <ZelCommonView/markers/MarkersManager.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using namespace ZelView;

constexpr int width = 300;
constexpr int height = 200;

class MarkerDrawerPointerTest : public testing::Test {
protected:
    MarkerDrawerPointerTest() {
        converter.widgetWidth = width;
        converter.widgetHeight = height;
        converter.setBorder({0, 30, 0, 20});
        converter.recalc();
        drawer->converter = &converter;
        drawer->drawArea = &area;
        drawer->initDrawArea();
        const sigc::slot<void, const Cairo::RefPtr<Cairo::Context>&> paint =
            sigc::mem_fun(*drawer, &MarkerDrawer::draw);
        area.addPositionDrawer(paint, DrawerPosition::AfterFragments);
        area.set_size_request(width, height);
        window.add(area);
        test::present(window);
    }

    MarkersManager& manager() { return *drawer->manager; }

    /// Right click at the place and left click on the item.
    void choose(int x, int y, const std::string& text) {
        test::click(area, x, y, 3);
        ASSERT_TRUE(test::waitFor([this] { return drawer->contextMenu->menu.get_mapped(); }));
        for (Gtk::MenuItem& item : drawer->contextMenu->items)
            if (item.get_label() == text) {
                test::click(item);
                ASSERT_TRUE(test::waitFor([this] { return !drawer->contextMenu->menu.get_mapped(); }));
                return;
            }
        FAIL() << "there is no item " << text;
    }

    Zel::PointF point(unsigned long number) { return manager().markers.back()->_getPoint(number); }

    StretchableCoordsConverter converter;
    FragmentsDrawArea area;
    std::unique_ptr<MarkerDrawer> drawer = std::make_unique<MarkerDrawer>();
    Gtk::Window window;
};

void expectPoint(Zel::PointF point, float x, float y) {
    EXPECT_NEAR(point.x, x, 1e-3);
    EXPECT_NEAR(point.y, y, 1e-3);
}

} // namespace

TEST_F(MarkerDrawerPointerTest, TheMenuMakesASingleMarkerWhereTheRightButtonWasPressed) {
    choose(60, 50, lngCreateSingleHorizontalMarker());
    ASSERT_EQ(manager().markers.size(), 1u);
    EXPECT_TRUE(manager().markers.back()->created);
    EXPECT_EQ(manager().markers.back()->getOrientation(), Orientation::Horizontal);
    expectPoint(point(1), 6, 15);
    choose(160, 150, lngCreateSingleVerticalMarker());
    ASSERT_EQ(manager().markers.size(), 2u);
    EXPECT_EQ(manager().markers.back()->getOrientation(), Orientation::Vertical);
    expectPoint(point(1), 16, 5);
}

TEST_F(MarkerDrawerPointerTest, TheSecondPointOfADoubleMarkerFollowsThePointerToTheNextClick) {
    for (const std::string text : {lngCreateDoubleHorizontalMarker(), lngCreateDoubleVerticalMarker()}) {
        choose(60, 50, text);
        EXPECT_NE(manager().creating, nullptr);
        test::movePointer(area, 200, 120);
        EXPECT_TRUE(test::waitFor([this] { return point(2).x == converter.getRealX(200); }));
        test::click(area, 210, 150);
        EXPECT_EQ(manager().creating, nullptr);
        expectPoint(point(1), 6, 15);
        expectPoint(point(2), 21, 5);
        test::movePointer(area, 100, 100);
        test::settle();
        expectPoint(point(2), 21, 5);
    }
}

TEST_F(MarkerDrawerPointerTest, ALabelIsDraggedAndStaysWhereItIsReleased) {
    choose(60, 50, lngCreateSingleVerticalMarker());
    test::drag(area, 62, 51, 162, 101);
    EXPECT_EQ(manager().selected, nullptr);
    expectPoint(point(1), 16, 10);
    test::movePointer(area, 250, 150);
    test::settle();
    expectPoint(point(1), 16, 10);
    // And beyond the edge it stops at the edge.
    test::drag(area, 160, 100, 160 + 400, 100);
    expectPoint(point(1), 30, 10);
}

TEST_F(MarkerDrawerPointerTest, AClickBesideALabelSelectsNothing) {
    choose(60, 50, lngCreateSingleVerticalMarker());
    test::drag(area, 60, 150, 160, 150); // the line, not the label
    expectPoint(point(1), 6, 15);
}

TEST_F(MarkerDrawerPointerTest, TheOtherLabelOfADoubleMarkerIsDraggedByItself) {
    choose(60, 50, lngCreateDoubleVerticalMarker());
    test::click(area, 200, 150);
    test::drag(area, 200, 150, 230, 170);
    expectPoint(point(1), 6, 15);
    expectPoint(point(2), 23, 3);
}

TEST_F(MarkerDrawerPointerTest, TheMenuDeletesWhatIsBeingCreatedOrEverything) {
    choose(60, 50, lngCreateSingleVerticalMarker());
    choose(100, 50, lngDeleteCurrentMarker());
    EXPECT_EQ(manager().markers.size(), 1u); // nothing is being created or dragged
    choose(60, 50, lngCreateDoubleVerticalMarker());
    choose(100, 50, lngDeleteCurrentMarker());
    EXPECT_EQ(manager().markers.size(), 1u);
    choose(100, 50, lngCreateSingleVerticalMarker());
    choose(100, 50, lngDeleteAllMarkers());
    EXPECT_TRUE(manager().markers.empty());
}

TEST_F(MarkerDrawerPointerTest, AMarkerIsSeenAtOnce) {
    const auto screen = [this] {
        test::settle();
        return test::pictureOf(Gdk::Pixbuf::create(area.get_window(), 0, 0, width, height));
    };
    EXPECT_EQ(screen().countPainted(), 0);
    choose(60, 50, lngCreateSingleVerticalMarker());
    EXPECT_EQ(screen().at(60, 150), (std::vector<int>{0, 0, 255}));
}

TEST_F(MarkerDrawerPointerTest, ADrawerThatIsGoneHearsNoMoreOfThePointer) {
    drawer.reset();
    test::click(area, 60, 50, 1);
    test::click(area, 60, 50, 3);
    test::drag(area, 60, 50, 100, 100);
    EXPECT_EQ(test::pictureOf(Gdk::Pixbuf::create(area.get_window(), 0, 0, width, height)).countPainted(), 0);
}
