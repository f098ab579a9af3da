#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/containers/RefreshSpinner.h>

#include "support/Finalised.h"
#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <cmath>
#include <limits>
#include <memory>

namespace {

using namespace Zel;

/// A picture whose four quarters have colours of their own.
Glib::RefPtr<Gdk::Pixbuf> makePicture(int width, int height) {
    const auto picture = Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, false, 8, width, height);
    picture->fill(0xff0000ff);
    Gdk::Pixbuf::create_subpixbuf(picture, width / 2, 0, width / 2, height / 2)->fill(0x00ff00ff);
    Gdk::Pixbuf::create_subpixbuf(picture, 0, height / 2, width / 2, height / 2)->fill(0x0000ffff);
    return picture;
}

/// What the spinner paints in an area of this size.
test::Picture paint(RefreshSpinner& spinner, int width, int height, bool expected = true) {
    test::allocate(spinner, width, height);
    return test::paint(width, height, [&](const Cairo::RefPtr<Cairo::Context>& context) {
        EXPECT_EQ(spinner.on_draw(context), expected);
    });
}

std::vector<int> rgb(const test::Picture& picture, int x, int y) {
    std::vector<int> pixel = picture.at(x, y);
    pixel.resize(3);
    return pixel;
}

const std::vector<int> red{255, 0, 0};
const std::vector<int> green{0, 255, 0};
const std::vector<int> blue{0, 0, 255};
const std::vector<int> white{255, 255, 255};

} // namespace

TEST(RefreshSpinner, StartsAtRestAndVisible) {
    RefreshSpinner spinner(makePicture(8, 8), 60.0);
    EXPECT_TRUE(spinner.get_visible());
    EXPECT_TRUE(spinner.get_hexpand());
    EXPECT_TRUE(spinner.get_vexpand());
    EXPECT_EQ(spinner.angle, 0.0);
    EXPECT_EQ(spinner.step, 5.0);
    EXPECT_FALSE(spinner.running);
    EXPECT_FALSE(spinner.timerConnection.connected());
}

TEST(RefreshSpinner, TakesThePictureOfTheThemeOnceASecond) {
    const RefreshSpinner spinner;
    EXPECT_TRUE(spinner.picture);
    EXPECT_EQ(spinner.interval, 13);
}

TEST(RefreshSpinner, AMissingPictureIsAnError) {
    test::TemporaryFolder folder;
    setThemesDir(folder.path.string());
    EXPECT_THROW(RefreshSpinner(), Glib::Error);
    setThemesDir("");
}

TEST(RefreshSpinner, CutsTheIntervalToWholeMilliseconds) {
    constexpr int longest = std::numeric_limits<int>::max();

    const struct {
        double speed;
        int interval;
    } cases[] = {{60.0, 13},
                 {30.0, 27},
                 {1.0, 833},
                 {833.0, 1},
                 {1000.0, 1},
                 {1e300, 1},
                 {1e-300, longest},
                 {0.0, longest},
                 {-1.0, longest},
                 {std::numeric_limits<double>::infinity(), 1},
                 {std::nan(""), longest}};

    for (const auto& test : cases)
        EXPECT_EQ(RefreshSpinner({}, test.speed).interval, test.interval) << test.speed;
}

TEST(RefreshSpinner, TurnsByTheTimer) {
    RefreshSpinner spinner(makePicture(8, 8), 60.0);
    spinner.start_animation();
    EXPECT_TRUE(spinner.running);
    EXPECT_TRUE(test::waitFor([&spinner] { return spinner.angle >= 15.0; }));
    spinner.stop_animation();
    EXPECT_FALSE(spinner.running);
    const double resting = spinner.angle;
    test::wait(100);
    EXPECT_EQ(spinner.angle, resting);
}

TEST(RefreshSpinner, TheFullTurnIsZero) {
    RefreshSpinner spinner(makePicture(8, 8), 60.0);
    spinner.angle = 350.0;
    EXPECT_TRUE(spinner._onTimer());
    EXPECT_EQ(spinner.angle, 355.0);
    EXPECT_TRUE(spinner._onTimer());
    EXPECT_EQ(spinner.angle, 0.0);
}

TEST(RefreshSpinner, StartedTwiceItHasOneTimer) {
    RefreshSpinner spinner(makePicture(8, 8), 1.0);
    spinner.start_animation();
    const sigc::connection first = spinner.timerConnection;
    spinner.start_animation();
    EXPECT_FALSE(first.connected());
    EXPECT_TRUE(spinner.timerConnection.connected());
    spinner.update_animation();
    EXPECT_TRUE(spinner.running);
    spinner.stop_animation();
    EXPECT_FALSE(spinner.timerConnection.connected());
}

TEST(RefreshSpinner, TheFastestLeavesTheLoopTimeToPaint) {
    RefreshSpinner spinner(makePicture(8, 8), 1e9);
    int paints = 0;
    spinner.signal_draw().connect(
        [&paints](const Cairo::RefPtr<Cairo::Context>&) {
            ++paints;
            return false;
        },
        false);
    test::OffscreenHost host(spinner, 20, 20);
    spinner.start_animation();
    EXPECT_TRUE(test::waitFor([&paints] { return paints > 5; }));
}

TEST(RefreshSpinner, FillsTheRoomAndKeepsItsProportions) {
    RefreshSpinner spinner(makePicture(10, 20), 60.0);
    const test::Picture wide = paint(spinner, 100, 40);
    EXPECT_EQ(rgb(wide, 44, 6), red);
    EXPECT_EQ(rgb(wide, 56, 6), green);
    EXPECT_EQ(rgb(wide, 44, 33), blue);
    EXPECT_EQ(rgb(wide, 36, 20), white);
    EXPECT_EQ(rgb(wide, 64, 20), white);
    const test::Picture high = paint(spinner, 20, 100);
    EXPECT_EQ(rgb(high, 4, 34), red);
    EXPECT_EQ(rgb(high, 4, 26), white);
    EXPECT_EQ(rgb(high, 4, 74), white);
}

TEST(RefreshSpinner, TurnsClockwiseAroundItsMiddle) {
    RefreshSpinner spinner(makePicture(20, 20), 60.0);
    spinner.angle = 90.0;
    const test::Picture turned = paint(spinner, 40, 40);
    EXPECT_EQ(rgb(turned, 30, 10), red);
    EXPECT_EQ(rgb(turned, 30, 30), green);
    EXPECT_EQ(rgb(turned, 10, 10), blue);
}

TEST(RefreshSpinner, WithoutPictureOrRoomItPaintsNothing) {
    RefreshSpinner empty({}, 60.0);
    EXPECT_EQ(paint(empty, 20, 20, false).countPainted(), 0);
    RefreshSpinner spinner(makePicture(8, 8), 60.0);
    // Never given any room: GTK starts with one pixel at the place -1.
    const Gtk::Allocation none(0, 0, 0, 0);
    gtk_widget_set_allocation(GTK_WIDGET(spinner.gobj()), none.gobj());
    ASSERT_EQ(spinner.get_allocated_width(), 0);
    const test::Picture nothing = test::paint(5, 5, [&spinner](const Cairo::RefPtr<Cairo::Context>& context) {
        EXPECT_FALSE(spinner.on_draw(context));
    });
    EXPECT_EQ(nothing.countPainted(), 0);
}

TEST(RefreshSpinner, ItsTimerNeverOutlivesIt) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        RefreshSpinner spinner(makePicture(2, 2), 1e9);
        finalised.watch(spinner);
        spinner.start_animation();
        if (i % 100 == 0)
            test::wait(3);
    }
    EXPECT_TRUE(finalised.all());
    test::wait(20);
}
