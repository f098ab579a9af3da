#include <ZelCommonView/windows/WindowRectangleManager.h>

#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <limits>
#include <memory>
#include <optional>

namespace {

using namespace Zel;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float largest = std::numeric_limits<float>::max();
constexpr float smallest = std::numeric_limits<float>::min();
constexpr float denormal = smallest / 2;

class WindowRectangleManagerTest : public testing::Test {
protected:
    std::pair<int, int> defaultSize() const {
        int width = 0;
        int height = 0;
        window.get_default_size(width, height);
        return {width, height};
    }

    std::pair<int, int> position() {
        int x = 0;
        int y = 0;
        window.get_position(x, y);
        return {x, y};
    }

    /// Where the window stands after it was mapped with the rectangle.
    std::pair<int, int> mapWith(const RectangleF& rectangle) {
        manager->setRectangle(rectangle);
        test::present(window);
        test::wait(100);
        return position();
    }

    Gtk::Window window;
    std::unique_ptr<WindowRectangleManager> manager = std::make_unique<WindowRectangleManager>(window);
};

} // namespace

TEST_F(WindowRectangleManagerTest, SetsTheSizeAtOnceAndThePlaceWhenTheWindowIsMapped) {
    manager->setRectangle({123.9f, 87.9f, 400.9f, 300.9f});
    EXPECT_EQ(defaultSize(), std::make_pair(400, 300));
    test::present(window);
    EXPECT_TRUE(test::waitFor([this] { return position() == std::make_pair(123, 87); }));
    const RectangleF now = manager->getRectangle();
    EXPECT_EQ(now.x, 123.0f);
    EXPECT_EQ(now.y, 87.0f);
    EXPECT_EQ(now.width, 400.0f);
    EXPECT_EQ(now.height, 300.0f);
}

TEST_F(WindowRectangleManagerTest, TellsThePresentPlaceAndNotTheWantedOne) {
    EXPECT_EQ(mapWith({200, 150, 400, 300}), std::make_pair(200, 150));
    window.move(260, 190);
    EXPECT_TRUE(test::waitFor([this] { return position() == std::make_pair(260, 190); }));
    EXPECT_EQ(manager->getRectangle().x, 260.0f);
    EXPECT_EQ(manager->getRectangle().y, 190.0f);
    window.resize(450, 320);
    EXPECT_TRUE(test::waitFor([this] { return manager->getRectangle().width == 450.0f; }));
    EXPECT_EQ(manager->getRectangle().height, 320.0f);
    ASSERT_NE(manager->rectangle, nullptr);
    EXPECT_EQ(manager->rectangle->x, 200.0f);
}

TEST_F(WindowRectangleManagerTest, ALaterRectangleReplacesTheEarlierOne) {
    manager->setRectangle({100, 100, 400, 300});
    manager->setRectangle({150, 120, 350, 250});
    EXPECT_EQ(defaultSize(), std::make_pair(350, 250));
    test::present(window);
    EXPECT_TRUE(test::waitFor([this] { return position() == std::make_pair(150, 120); }));
}

TEST_F(WindowRectangleManagerTest, ASizeThatIsNoValidNumberIsIgnoredWhole) {
    const auto before = defaultSize();
    for (const float bad : {0.0f, -1.0f, denormal, infinity, -infinity, notANumber}) {
        manager->setRectangle({100, 100, bad, 300});
        EXPECT_EQ(defaultSize(), before) << bad;
        manager->setRectangle({100, 100, 400, bad});
        EXPECT_EQ(defaultSize(), before) << bad;
    }
}

TEST_F(WindowRectangleManagerTest, AnInvalidPlaceStillSetsTheSize) {
    for (const float bad : {0.0f, -5.0f, denormal, infinity, notANumber}) {
        manager->setRectangle({bad, 100, 400, 300});
        EXPECT_EQ(defaultSize(), std::make_pair(400, 300)) << bad;
    }
}

TEST_F(WindowRectangleManagerTest, TheSmallestAndTheLargestNumberAreValid) {
    manager->setRectangle({100, 100, smallest, smallest});
    // Gtk makes a size of 0 one of 1.
    EXPECT_EQ(defaultSize(), std::make_pair(1, 1));
    manager->setRectangle({100, 100, largest, largest});
    const int maximum = std::numeric_limits<int>::max();
    EXPECT_EQ(defaultSize(), std::make_pair(maximum, maximum));
}

TEST_F(WindowRectangleManagerTest, APlaceAtOrBelowZeroCountsAsNone) {
    const auto placed = mapWith({321, 123, 400, 300});
    EXPECT_EQ(placed, std::make_pair(321, 123));
    for (const auto& [x, y] :
         {std::make_pair(0.0f, 50.0f), std::make_pair(50.0f, 0.0f), std::make_pair(-40.0f, 50.0f),
          std::make_pair(notANumber, 50.0f), std::make_pair(50.0f, infinity)}) {
        window.hide();
        test::settle();
        const auto found = mapWith({x, y, 400, 300});
        EXPECT_NE(found.first, 50);
        EXPECT_NE(found.second, 50);
    }
}

TEST_F(WindowRectangleManagerTest, APlaceBeyondTheSummedMonitorsIsLeftToGtk) {
    int width = 0;
    int height = 0;
    const auto screen = Gdk::Screen::get_default();
    for (int i = 0; i < screen->get_n_monitors(); ++i) {
        width += screen->get_monitor_workarea(i).get_width();
        height += screen->get_monitor_workarea(i).get_height();
    }
    const auto at = [&](float right, float bottom) {
        window.hide();
        test::settle();
        return mapWith({right - 400, bottom - 300, 400, 300});
    };
    const auto right = static_cast<float>(width);
    const auto bottom = static_cast<float>(height);
    // Exactly at the edges it fits.
    EXPECT_EQ(at(right, bottom), std::make_pair(width - 400, height - 300));
    EXPECT_NE(at(right + 1, bottom - 200).first, width + 1 - 400);
    EXPECT_NE(at(right - 200, bottom + 1).second, height + 1 - 300);
    EXPECT_EQ(defaultSize(), std::make_pair(400, 300));
}

TEST_F(WindowRectangleManagerTest, WithoutARectangleNothingIsSet) {
    const auto before = defaultSize();
    test::present(window);
    EXPECT_EQ(defaultSize(), before);
}

TEST_F(WindowRectangleManagerTest, MayDieBeforeOrAfterItsWindow) {
    manager->setRectangle({100, 100, 400, 300});
    manager.reset();
    test::present(window);
    EXPECT_NE(position(), std::make_pair(100, 100));

    auto other = std::make_unique<Gtk::Window>();
    WindowRectangleManager survivor(*other);
    other.reset();
    survivor.setRectangle({100, 100, 400, 300});
    EXPECT_EQ(survivor.getRectangle().width, 0.0f);
}
