// A canvas that retains its pictures looks like one that paints them at each repaint, and paints less.
#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>
#include <random>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

/// A canvas that counts how often its fragments and its layers are painted.
class Canvas {
public:
    explicit Canvas(bool isRetaining) {
        area.setIsRetaining(isRetaining);
        for (const DrawerPosition position : {DrawerPosition::Start, DrawerPosition::BeforeFragments,
                                              DrawerPosition::AfterFragments, DrawerPosition::End})
            area.addPositionDrawer(
                [this, position](const Context& context) {
                    ++layersPainted;
                    context->set_source_rgb(0, 0.2 * static_cast<double>(position), 0.5);
                    const double y = 5 + 8 * static_cast<double>(position);
                    context->rectangle(layerX, y, 20, 10);
                    context->fill();
                },
                position);
    }

    void add(int key) {
        area.addFragment(keys + key, [this, key](const Context& context) {
            ++fragmentsPainted;
            context->set_source_rgb(1, 0.1 * key, 0);
            context->set_line_width(3);
            context->move_to(0, shifts[key]);
            context->line_to(area.get_allocated_width(), area.get_allocated_height() - 9 * key);
            context->stroke();
        });
    }

    /// Paints on an image, as often as the canvas asks for by itself.
    test::Picture paint() {
        return test::paint(area.get_allocated_width(), area.get_allocated_height(),
                           [this](const Context& context) { area.on_draw(context); });
    }

    test::Picture saved() { return test::pictureOf(area.helper.getBackground()); }

    FragmentsDrawArea area;
    int keys[4] = {};
    double shifts[4] = {3, 30, 11, 24};
    double layerX = 4;
    int fragmentsPainted = 0;
    int layersPainted = 0;
};

} // namespace

TEST(Retaining, IsOffInABareCanvasWhichPaintsAllFragmentsAtEachRepaint) {
    FragmentsDrawArea area;
    EXPECT_FALSE(area.isRetaining);
    Canvas canvas(false);
    test::allocate(canvas.area, 60, 40);
    canvas.add(0);
    canvas.add(1);
    canvas.area.redraw();
    canvas.paint();
    canvas.paint();
    EXPECT_EQ(canvas.fragmentsPainted, 4);
}

TEST(Retaining, PaintsTheFragmentsOnceAndTheLayersAlways) {
    Canvas canvas(true);
    test::allocate(canvas.area, 60, 40);
    canvas.add(0);
    canvas.add(1);
    canvas.area.redraw();
    canvas.paint();
    EXPECT_EQ(canvas.fragmentsPainted, 2);
    EXPECT_EQ(canvas.layersPainted, 4);
    canvas.layerX = 30;
    canvas.paint();
    EXPECT_EQ(canvas.fragmentsPainted, 2);
    EXPECT_EQ(canvas.layersPainted, 8);
}

TEST(Retaining, EachReasonPaintsTheFragmentsAnew) {
    Canvas canvas(true);
    test::allocate(canvas.area, 60, 40);
    for (int key = 0; key < 3; ++key)
        canvas.add(key);
    canvas.area.redraw();
    canvas.paint();
    const auto painted = [&canvas](const std::function<void()>& reason) {
        canvas.paint();
        canvas.fragmentsPainted = 0;
        reason();
        canvas.paint();
        return canvas.fragmentsPainted;
    };
    EXPECT_EQ(painted([&] { canvas.area.queue_draw(); }), 0);
    EXPECT_EQ(painted([&] { canvas.area.addPositionDrawer([](const Context&) {}, DrawerPosition::End); }), 0);
    EXPECT_EQ(painted([&] { canvas.area.redraw(); }), 3);
    EXPECT_EQ(painted([&] { canvas.area.setBackgroundColor({9, 9, 9, 255}); }), 3);
    EXPECT_EQ(painted([&] { canvas.area.removeFragment(canvas.keys + 2); }), 2);
    EXPECT_EQ(painted([&] { canvas.add(2); }), 3) << "each gets an image of its own";
    EXPECT_EQ(painted([&] { canvas.area.redraw(canvas.keys + 1); }), 1);
    EXPECT_EQ(painted([&] { canvas.area.redraw(); }), 3);
    EXPECT_EQ(painted([&] { test::allocate(canvas.area, 70, 40); }), 3) << "of another size";
    EXPECT_EQ(painted([&] { canvas.area.removeFragments(); }), 0);
    EXPECT_EQ(canvas.saved().countPainted() > 0, true) << "the layers are still there";
}

TEST(Retaining, LooksAtEachMomentLikeACanvasThatPaintsEverything) {
    Canvas retaining(true);
    Canvas painting(false);
    std::mt19937 random(11);
    int width = 60;
    for (Canvas* canvas : {&retaining, &painting})
        test::allocate(canvas->area, width, 40);
    for (int step = 0; step < 3000; ++step) {
        const unsigned what = random() % 12;
        const int key = static_cast<int>(random() % 4);
        const double value = static_cast<double>(random() % 40);
        if (what == 8)
            width = 50 + static_cast<int>(random() % 30);
        for (Canvas* canvas : {&retaining, &painting}) {
            switch (what) {
            case 0:
                canvas->add(key);
                break;
            case 1:
                canvas->area.removeFragment(canvas->keys + key);
                break;
            case 2:
                if (step % 10 == 0)
                    canvas->area.removeFragments();
                break;
            case 3:
            case 4:
                canvas->area.redraw();
                break;
            case 5:
                if (canvas->area.fragments.count(canvas->keys + key)) {
                    canvas->shifts[key] = value;
                    canvas->area.redraw(canvas->keys + key);
                }
                break;
            case 6:
                canvas->shifts[key] = value;
                canvas->area.redraw();
                break;
            case 7:
                canvas->area.setBackgroundColor({static_cast<std::uint8_t>(value * 6), 200, 255, 255});
                // Images of their own keep the colour that they were made with.
                canvas->area.redraw();
                break;
            case 8:
                test::allocate(canvas->area, width, 40);
                canvas->area.redraw(); // as the configure event does
                break;
            default:
                canvas->layerX = value;
            }
        }
        ASSERT_EQ(retaining.paint(), painting.paint()) << "step " << step << ", operation " << what;
        ASSERT_EQ(retaining.saved(), painting.saved()) << "step " << step << ", operation " << what;
    }
    // Most of the operations are reasons to paint.
    EXPECT_LT(retaining.fragmentsPainted, painting.fragmentsPainted * 4 / 5);
}

TEST(Retaining, KeepsThePictureOfAllOnlyWhileItIsUsed) {
    Canvas canvas(true);
    test::allocate(canvas.area, 60, 40);
    canvas.add(0);
    canvas.area.redraw();
    canvas.paint();
    EXPECT_TRUE(canvas.area.allFragments.image);
    EXPECT_FALSE(canvas.area.fragments.begin()->second.image);
    canvas.area.redraw(canvas.keys);
    EXPECT_FALSE(canvas.area.allFragments.image);
    canvas.paint();
    EXPECT_FALSE(canvas.area.allFragments.image);
    EXPECT_TRUE(canvas.area.fragments.begin()->second.image);
    canvas.area.redraw();
    canvas.paint();
    canvas.area.setIsRetaining(false);
    EXPECT_FALSE(canvas.area.allFragments.image);
}

TEST(Retaining, AFragmentThatMarksItselfWhileItIsPaintedIsPaintedAgain) {
    Canvas canvas(true);
    test::allocate(canvas.area, 60, 40);
    int painted = 0;
    canvas.area.addFragment(&canvas, [&](const Context&) {
        if (++painted == 1)
            canvas.area.redraw();
    });
    canvas.area.redraw();
    canvas.paint();
    EXPECT_EQ(painted, 1);
    canvas.paint();
    EXPECT_EQ(painted, 2);
    canvas.paint();
    EXPECT_EQ(painted, 2);
}

TEST(Retaining, AFailingFragmentFailsAtEachRepaint) {
    Canvas canvas(true);
    test::allocate(canvas.area, 60, 40);
    canvas.area.redraw(canvas.keys); // makes an empty entry
    canvas.area.redraw();
    EXPECT_THROW(canvas.paint(), std::bad_function_call);
    EXPECT_THROW(canvas.paint(), std::bad_function_call);
}

TEST(Retaining, AWindowOnTheScreenShowsAndSavesWhatAnImageDoes) {
    for (const bool isRetaining : {false, true})
        for (const bool inOneImage : {false, true}) {
            SCOPED_TRACE(testing::Message() << isRetaining << inOneImage);
            Canvas canvas(isRetaining);
            for (int key = 0; key < 4; ++key)
                canvas.add(key);
            Gtk::Window window;
            window.set_default_size(120, 80);
            window.set_decorated(false);
            window.add(canvas.area);
            canvas.area.show();
            test::present(window);
            inOneImage ? canvas.area.redraw() : canvas.area.redraw(canvas.keys);
            test::settle();
            for (int repaint = 0; repaint < 2; ++repaint) {
                canvas.area.queue_draw();
                test::settle();
            }
            const auto onScreen = test::pictureOf(Gdk::Pixbuf::create(canvas.area.get_window(), 0, 0,
                                                                      canvas.area.get_allocated_width(),
                                                                      canvas.area.get_allocated_height()));
            // Outside of the last layer, which is painted over the picture.
            const auto saved = canvas.saved();
            EXPECT_GT(saved.countPainted(), 500);
            ASSERT_EQ(onScreen.width, saved.width);
            ASSERT_EQ(onScreen.height, saved.height);
            const auto isUnderEnd = [](int x, int y) { return x >= 4 && x < 24 && y >= 29 && y < 39; };
            for (int y = 0; y < saved.height; ++y)
                for (int x = 0; x < saved.width; ++x)
                    for (std::size_t channel = 0; channel < 3; ++channel)
                        ASSERT_EQ(onScreen.at(x, y)[channel], isUnderEnd(x, y) ? (channel == 0   ? 0
                                                                                  : channel == 1 ? 153
                                                                                                 : 128)
                                                                               : saved.at(x, y)[channel])
                            << x << " " << y;
            // Elsewhere than on the display the edges of curves are shaded a little differently.
            inOneImage ? canvas.area.redraw() : canvas.area.redraw(canvas.keys);
            canvas.paint();
            const auto elsewhere = canvas.saved();
            for (std::size_t i = 0; i < saved.bytes.size(); ++i)
                ASSERT_NEAR(saved.bytes[i], elsewhere.bytes[i], 32);
            window.remove();
        }
}
