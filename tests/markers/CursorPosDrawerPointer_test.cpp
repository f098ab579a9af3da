#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/markers/CursorPosDrawer.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using namespace ZelView;

const std::vector<int> white{255, 255, 255};
const std::vector<int> dark{50, 50, 50};

class CursorPosDrawerPointerTest : public testing::Test {
protected:
    CursorPosDrawerPointerTest() {
        converter.widgetWidth = 200;
        converter.widgetHeight = 100;
        converter.recalc();
        drawer->converter = &converter;
        drawer->drawArea = &area;
        drawer->initDrawArea();
        const sigc::slot<void, const Cairo::RefPtr<Cairo::Context>&> paint =
            sigc::mem_fun(*drawer, &CursorPosDrawer::draw);
        area.addPositionDrawer(paint, DrawerPosition::End);
        area.set_size_request(200, 100);
        window.add(area);
        test::present(window);
    }

    /// What stands on the screen.
    test::Picture screen() {
        test::settle();
        return test::pictureOf(Gdk::Pixbuf::create(area.get_window(), 0, 0, 200, 100));
    }

    Gdk::CursorType shape() { return area.get_window()->get_cursor()->get_cursor_type(); }

    StretchableCoordsConverter converter;
    std::unique_ptr<CursorPosDrawer> drawer = std::make_unique<CursorPosDrawer>();
    FragmentsDrawArea area;
    Gtk::Window window;
};

} // namespace

TEST_F(CursorPosDrawerPointerTest, TheCrossFollowsThePointerUntilItLeaves) {
    EXPECT_TRUE(drawer->hidden);
    EXPECT_EQ(screen().countPainted(), 0);
    EXPECT_EQ(shape(), Gdk::ARROW);

    test::movePointer(area, 120, 60);
    EXPECT_TRUE(test::waitFor([this] { return !drawer->hidden; }));
    // A line of one pixel at a whole number is painted in the pixel before it.
    test::Picture seen = screen();
    EXPECT_EQ(drawer->position.x, 120);
    EXPECT_EQ(drawer->position.y, 60);
    EXPECT_EQ(seen.at(2, 59), dark);
    EXPECT_EQ(seen.at(7, 59), white); // dashes of five pixels
    EXPECT_EQ(seen.at(119, 2), dark);
    EXPECT_EQ(seen.at(119, 7), white);
    EXPECT_EQ(shape(), Gdk::CROSSHAIR);

    test::movePointer(area, 30, 20);
    EXPECT_TRUE(test::waitFor([this] { return drawer->position.x == 30; }));
    seen = screen();
    EXPECT_EQ(seen.at(2, 59), white);
    EXPECT_EQ(seen.at(2, 19), dark);

    test::movePointerAway();
    EXPECT_TRUE(test::waitFor([this] { return drawer->hidden; }));
    EXPECT_EQ(screen().countPainted(), 0);
    EXPECT_EQ(shape(), Gdk::ARROW);
}

TEST_F(CursorPosDrawerPointerTest, TheReadoutStandsBesideThePointer) {
    test::movePointer(area, 20, 60);
    EXPECT_TRUE(test::waitFor([this] { return !drawer->hidden; }));
    const test::Picture seen = screen();
    int blacks = 0;
    for (int y = 40; y < 59; ++y)
        for (int x = 22; x < 140; ++x)
            blacks += seen.at(x, y) == std::vector<int>{0, 0, 0};
    EXPECT_GT(blacks, 10);
    drawer->getCfg().flags = 0;
    area.queue_draw();
    const test::Picture without = screen();
    for (int y = 40; y < 59; ++y)
        for (int x = 22; x < 140; ++x)
            EXPECT_EQ(without.at(x, y), white) << x << ' ' << y;
}

TEST_F(CursorPosDrawerPointerTest, OtherListenersHearOfThePointerToo) {
    int heard = 0;
    area.signal_motion_notify_event().connect(
        [&heard](GdkEventMotion*) {
            ++heard;
            return false;
        },
        true);
    test::movePointer(area, 120, 60);
    EXPECT_TRUE(test::waitFor([&heard] { return heard > 0; }));
}

TEST_F(CursorPosDrawerPointerTest, ADrawerThatIsGoneHearsNoMoreOfThePointer) {
    drawer.reset();
    test::movePointer(area, 120, 60);
    EXPECT_EQ(screen().countPainted(), 0);
    test::movePointerAway();
    test::settle();
}
