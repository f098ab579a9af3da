// What is seen, kept and saved is whole, whatever part of the canvas the screen asks for.
#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

/// A canvas with something in every layer and in every corner.
struct Canvas {
    Canvas(int width, int height) {
        area.addPositionDrawer([](const Context& c) { c->paint_with_alpha(0.1); }, DrawerPosition::Start);
        area.addPositionDrawer(
            [=](const Context& c) {
                c->set_source_rgb(0.8, 0.8, 0.8);
                for (int x = 5; x < width; x += 10) {
                    c->move_to(x, 0);
                    c->line_to(x, height);
                }
                c->stroke();
                c->move_to(3, height - 3);
                c->show_text("grid");
            },
            DrawerPosition::BeforeFragments);
        area.addFragment(this, [=](const Context& c) {
            c->set_source_rgba(1, 0, 0, 0.7);
            c->move_to(0, 0);
            c->line_to(width, height);
            c->stroke();
        });
        area.addFragment(this + 1, [=](const Context& c) {
            c->set_source_rgb(0, 0, 1);
            c->move_to(0, height);
            c->line_to(width, 0);
            c->stroke();
        });
        area.addPositionDrawer(
            [=](const Context& c) {
                c->set_source_rgb(0, 0.5, 0);
                c->rectangle(width - 8, height - 8, 6, 6);
                c->fill();
            },
            DrawerPosition::AfterFragments);
        area.addPositionDrawer(
            [](const Context& c) {
                c->set_source_rgb(1, 0.5, 0);
                c->rectangle(1, 1, 5, 5);
                c->fill();
            },
            DrawerPosition::End);
    }

    test::Picture saved() {
        const test::TemporaryFolder folder;
        area.saveSummaryImage(folder.path / "saved.png", "png");
        return test::pictureOfFile(folder.path / "saved.png");
    }

    FragmentsDrawArea area;
};

/// The saved picture of a canvas that was exposed whole, with the fragments as images of their own or in one.
test::Picture wholeSaved(int width, int height, bool inOneImage = true) {
    Canvas canvas(width, height);
    test::OffscreenHost host(canvas.area, width, height);
    if (!inOneImage) {
        canvas.area.redraw(&canvas);
        test::settle();
    }
    return canvas.saved();
}

} // namespace

TEST(FragmentsDrawAreaExposure, APartialExposureKeepsSavedPictureAndImagesWhole) {
    for (bool inOneImage : {false, true}) {
        SCOPED_TRACE(inOneImage);
        const auto expected = wholeSaved(90, 60, inOneImage);
        Canvas canvas(90, 60);
        test::OffscreenHost host(canvas.area, 90, 60);
        if (!inOneImage)
            canvas.area.redraw(&canvas);
        const auto seen = test::pictureOf(host.picture());
        EXPECT_GT(seen.countPainted(), 500);

        // Everything is out of date, but only a small part is exposed.
        for (auto& [key, fragment] : canvas.area.fragments)
            fragment.needRedraw = true;
        canvas.area.queue_draw_area(30, 20, 10, 10);
        test::settle();
        test::expectSame(canvas.saved(), expected);
        test::expectSame(test::pictureOf(host.picture()), seen);
        if (!inOneImage) {
            for (auto& [key, fragment] : canvas.area.fragments)
                EXPECT_GT(test::pictureOf(fragment.image).countPainted(), 60);
        }
    }
}

TEST(FragmentsDrawAreaExposure, ACanvasLargerThanItsScrolledWindowIsSavedWhole) {
    const auto expected = wholeSaved(300, 180);
    Canvas canvas(300, 180);
    canvas.area.set_size_request(300, 180);
    Gtk::ScrolledWindow scrolled;
    scrolled.set_overlay_scrolling(true);
    scrolled.set_policy(Gtk::POLICY_EXTERNAL, Gtk::POLICY_EXTERNAL);
    scrolled.add(canvas.area);
    test::OffscreenHost host(scrolled, 100, 60);
    test::settle();
    ASSERT_EQ(canvas.area.get_allocated_width(), 300);
    ASSERT_EQ(canvas.area.get_allocated_height(), 180);
    test::expectSame(canvas.saved(), expected);
    // What is scrolled into view later comes from the same whole pictures.
    scrolled.get_hadjustment()->set_value(200);
    scrolled.get_vadjustment()->set_value(120);
    const auto corner = test::pictureOf(host.picture());
    EXPECT_EQ(corner.at(300 - 5 - 200, 180 - 5 - 120), expected.at(300 - 5, 180 - 5));
    test::expectSame(canvas.saved(), expected);
    scrolled.remove();
}

TEST(FragmentsDrawAreaExposure, ACanvasBesideOtherWidgetsFindsItsOwnPixels) {
    const auto expected = wholeSaved(90, 60);
    Canvas canvas(90, 60);
    canvas.area.set_size_request(90, 60);
    canvas.area.property_expand() = false;
    Gtk::Label legend("legend");
    legend.set_size_request(47, -1);
    Gtk::Label title("title");
    title.set_size_request(-1, 31);
    Gtk::Grid grid;
    grid.attach(title, 0, 0, 2, 1);
    grid.attach(legend, 0, 1, 1, 1);
    grid.attach(canvas.area, 1, 1, 1, 1);
    canvas.area.set_halign(Gtk::ALIGN_START);
    canvas.area.set_valign(Gtk::ALIGN_START);
    test::OffscreenHost host(grid, 200, 150);
    test::settle();
    ASSERT_EQ(canvas.area.get_allocated_width(), 90);
    ASSERT_GE(canvas.area.get_allocation().get_x(), 47);
    test::expectSame(canvas.saved(), expected);
}

TEST(FragmentsDrawAreaExposure, AClipWithAHoleIsNoWholeExposure) {
    Canvas canvas(40, 30);
    test::allocate(canvas.area, 40, 30);
    const auto paint = [&](const std::function<void(const Context&)>& clip) {
        return test::paint(40, 30, [&](const Context& context) {
            clip(context);
            canvas.area.on_draw(context);
        });
    };
    const auto whole = paint([](const Context&) {});
    const auto expected = canvas.area.helper.getBackground();
    const auto frame = paint([](const Context& context) {
        context->set_fill_rule(Cairo::FILL_RULE_EVEN_ODD);
        context->rectangle(0, 0, 40, 30);
        context->rectangle(10, 10, 10, 10);
        context->clip();
    });
    test::expectSame(test::pictureOf(canvas.area.helper.getBackground()), test::pictureOf(expected));
    EXPECT_EQ(frame.at(5, 5), whole.at(5, 5));
    EXPECT_EQ(frame.at(15, 15), (std::vector<int>{255, 255, 255, 255})); // nothing is painted in the hole
    paint([](const Context& context) {
        context->arc(20, 15, 12, 0, 6);
        context->clip();
    });
    test::expectSame(test::pictureOf(canvas.area.helper.getBackground()), test::pictureOf(expected));
}

TEST(FragmentsDrawAreaExposure, ATranslucentBackgroundLetsThroughWhatIsThere) {
    Canvas canvas(40, 30);
    test::allocate(canvas.area, 40, 30);
    canvas.area.setBackgroundColor({0, 0, 255, 128});
    const auto paint = [&](bool isClipped) {
        return test::paint(40, 30, [&](const Context& context) {
            if (isClipped) {
                context->rectangle(5, 5, 20, 20);
                context->clip();
            }
            canvas.area.on_draw(context);
        });
    };
    const auto whole = paint(false);
    canvas.area.redraw(&canvas); // the same state as before the first paint
    canvas.area.redraw(&canvas + 1);
    const auto part = paint(true);
    for (int y = 5; y < 25; ++y)
        for (int x = 5; x < 25; ++x)
            ASSERT_EQ(part.at(x, y), whole.at(x, y)) << x << " " << y;
    EXPECT_EQ(part.at(2, 2), (std::vector<int>{255, 255, 255, 255}));
}

TEST(FragmentsDrawAreaExposure, AnAreaTooLargeForASurfaceStillAnswers) {
    Canvas canvas(40, 30);
    test::allocate(canvas.area, 40000, 40000);
    EXPECT_TRUE(canvas.area.on_draw(Cairo::Context::create(test::makeSurface(40, 30))));
    EXPECT_FALSE(canvas.area.helper.getBackground());
}
