#include "support/Hands.h"

#include <ZelCommonView/oscillogram/ResizableWindow.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

using ZelView::ResizableWindow;

int requestedHeight(const Gtk::Widget& widget) {
    int width = 0;
    int height = 0;
    widget.get_size_request(width, height);
    EXPECT_EQ(width, -1);
    return height;
}

Gtk::ToolButton& button(ResizableWindow& window, int i) {
    return *window.getToolbar().buttons[static_cast<std::size_t>(i)];
}

enum Button { Shrink, Grow, Natural };

void click(Gtk::ToolButton& button) {
    g_signal_emit_by_name(button.gobj(), "clicked");
}

} // namespace

TEST(ResizableWindowTest, FramesTheWidgetInAWindowThatAlwaysScrollsVertically) {
    Gtk::DrawingArea area;
    ResizableWindow window(area);
    EXPECT_EQ(window.get_child(), &window.getWindow());
    EXPECT_EQ(&window.getWindow(), &window.window);
    Gtk::PolicyType horizontal, vertical;
    window.getWindow().get_policy(horizontal, vertical);
    EXPECT_EQ(horizontal, Gtk::POLICY_NEVER);
    EXPECT_EQ(vertical, Gtk::POLICY_ALWAYS);
    EXPECT_TRUE(area.is_ancestor(window.getWindow()));
    for (Gtk::Widget* widget : {static_cast<Gtk::Widget*>(&window), static_cast<Gtk::Widget*>(&area)})
        EXPECT_TRUE(widget->get_visible());
    EXPECT_TRUE(window.getWindow().get_visible());
    EXPECT_LT(static_cast<void*>(&window.window), static_cast<void*>(&window.toolbar));
}

TEST(ResizableWindowTest, HasAVerticalToolbarThatTheOwnerPlaces) {
    Gtk::DrawingArea area;
    ResizableWindow window(area);
    EXPECT_EQ(window.getToolbar().get_parent(), nullptr);
    EXPECT_EQ(window.getToolbar().toolbar.get_orientation(), Gtk::ORIENTATION_VERTICAL);
    ASSERT_EQ(window.getToolbar().buttons.size(), 3u);
    EXPECT_EQ(button(window, 0).get_label(), "-");
    EXPECT_EQ(button(window, 1).get_label(), "+");
    EXPECT_EQ(button(window, 2).get_label(), "=");
}

TEST(ResizableWindowTest, TheButtonsRequestTenthsOfTheAllocatedHeightCutToWholePixels) {
    Gtk::DrawingArea area;
    ResizableWindow window(area);

    struct {
        int height, shrunk, grown;
    } const cases[] = {// GTK makes a request of 0 one of 1.
                       {100, 90, 110},
                       {99, 89, 108},
                       {15, 13, 16},
                       {9, 8, 9},
                       {1, 1, 1}};

    for (const auto& c : cases) {
        test::allocate(area, 50, c.height);
        click(button(window, Shrink));
        EXPECT_EQ(requestedHeight(area), c.shrunk) << c.height;
        click(button(window, Grow));
        EXPECT_EQ(requestedHeight(area), c.grown) << c.height;
    }
}

TEST(ResizableWindowTest, TheEqualsSignTakesBackARequestOfTheApplicationToo) {
    Gtk::DrawingArea area;
    area.set_size_request(-1, 50);
    ResizableWindow window(area);
    click(button(window, Natural));
    EXPECT_EQ(requestedHeight(area), -1);
}

TEST(ResizableWindowTest, OnceTheWidgetHasGoneTheButtonsDoNothing) {
    auto area = std::make_unique<Gtk::DrawingArea>();
    ResizableWindow window(*area);
    area.reset();
    // A call into what is gone would be a complaint of GTK or a crash.
    for (int i = 0; i < 3; ++i)
        EXPECT_NO_THROW(click(button(window, i)));
}

TEST(ResizableWindowTest, LeavesTheFramedWidgetToItsOwner) {
    Gtk::DrawingArea area;
    std::make_unique<ResizableWindow>(area).reset();
    EXPECT_EQ(area.get_parent(), nullptr);
    ResizableWindow again(area);
    EXPECT_TRUE(area.is_ancestor(again));
}

TEST(ResizableWindowTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        Gtk::DrawingArea area;
        ResizableWindow window(area);
        g_object_weak_ref(G_OBJECT(area.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(area.get_parent()->gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(window.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(window.getWindow().gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(window.getToolbar().gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 5000);
}

TEST(ResizableWindowOnScreen, ClicksShrinkGrowAndFreeTheFramedWidget) {
    Gtk::DrawingArea area;
    area.set_size_request(-1, 1000);
    ResizableWindow framed(area);
    framed.set_hexpand(true);
    framed.set_vexpand(true);
    Gtk::Grid grid;
    grid.attach(framed, 0, 0, 1, 1);
    grid.attach(framed.getToolbar(), 1, 0, 1, 1);
    Gtk::Window window;
    window.set_default_size(300, 200);
    window.add(grid);
    test::present(window);
    ASSERT_EQ(area.get_allocated_height(), 1000);

    int heights[] = {900, 810, 729, 656};
    for (int height : heights) {
        test::click(button(framed, Shrink));
        EXPECT_TRUE(test::waitFor([&] { return area.get_allocated_height() == height; }))
            << area.get_allocated_height();
    }
    test::click(button(framed, Grow));
    EXPECT_TRUE(test::waitFor([&] { return area.get_allocated_height() == 721; }))
        << area.get_allocated_height();
    test::click(button(framed, Natural));
    const int visible = framed.get_allocated_height();
    EXPECT_TRUE(test::waitFor([&] { return area.get_allocated_height() == visible; }))
        << area.get_allocated_height();
    EXPECT_EQ(requestedHeight(area), -1);
}
