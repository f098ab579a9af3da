#include "diagrams/Scrolling.h"
#include "support/Pictures.h"

#include <ZelCommonView/diagrams/MovableScrolledWindow.h>

#include <memory>

namespace {

using ZelView::MovableScrolledWindow;

GdkEventButton makeButton(unsigned int button) {
    GdkEventButton event{};
    event.button = button;
    return event;
}

GdkEventMotion makeMotion(double x, double y, GdkWindow* window = nullptr) {
    GdkEventMotion event{};
    event.window = window;
    event.x = x;
    event.y = y;
    return event;
}

bool press(MovableScrolledWindow& scrolled, unsigned int button) {
    GdkEventButton event = makeButton(button);
    return scrolled._onPress(&event);
}

bool release(MovableScrolledWindow& scrolled, unsigned int button) {
    GdkEventButton event = makeButton(button);
    return scrolled._onRelease(&event);
}

bool motion(MovableScrolledWindow& scrolled, double x, double y, GdkWindow* window = nullptr) {
    GdkEventMotion event = makeMotion(x, y, window);
    return scrolled._onMove(&event);
}

/// Drags with any button by real events, and tells how far the view has moved.
std::pair<double, double> dragView(test::OnScreen<MovableScrolledWindow>& host, int dx, int dy,
                                   unsigned int button = 1) {
    const double x = host.valueX();
    const double y = host.valueY();
    test::movePointer(host.scrolled, 150, 100);
    test::settle();
    test::pressButton(button);
    test::settle();
    for (int i = 1; i <= 6; ++i) {
        test::movePointer(host.scrolled, 150 + dx * i / 6, 100 + dy * i / 6);
        test::settle();
    }
    test::releaseButton(button);
    test::settle();
    return {host.valueX() - x, host.valueY() - y};
}

/// The window on a content of 1000 x 800, scrolled into the middle of it.
struct MovableScrolledWindowOnScreen : testing::Test {
    test::OnScreen<MovableScrolledWindow> host;

    void present(Gdk::EventMask events = {}) {
        host.area.add_events(events);
        host.area.set_size_request(1000, 800);
        test::present(host.window);
        host.scrollTo(350, 300);
    }

    void expectDrags() {
        const auto [left, up] = dragView(host, -60, -60);
        EXPECT_NEAR(left, 60, 0.01);
        EXPECT_NEAR(up, 60, 0.01);
        const auto [right, down] = dragView(host, 60, 30);
        EXPECT_NEAR(right, -60, 0.01);
        EXPECT_NEAR(down, -30, 0.01);
        EXPECT_EQ(dragView(host, 60, 60, 3), (std::pair<double, double>(0, 0)));
        EXPECT_FALSE(host.scrolled.dragging);
    }
};

} // namespace

TEST(MovableScrolledWindowTest, StartsEmptyAndIdle) {
    MovableScrolledWindow scrolled;
    EXPECT_EQ(scrolled.currentWidget, nullptr);
    EXPECT_FALSE(scrolled.dragging);
    EXPECT_EQ(scrolled.lastX, 0);
    EXPECT_EQ(scrolled.lastY, 0);
    EXPECT_FALSE(scrolled.sizeConnection.connected());
    EXPECT_EQ(scrolled.adjustments.hAdjustment, scrolled.get_hadjustment());
    EXPECT_EQ(scrolled.adjustments.vAdjustment, scrolled.get_vadjustment());
    EXPECT_EQ(&scrolled.getScrollInfo(), &scrolled.adjustments);
    EXPECT_EQ(scrolled.get_child(), nullptr);
    scrolled.removeCurrentWidget();
    EXPECT_EQ(scrolled.currentWidget, nullptr);
}

TEST(MovableScrolledWindowTest, AsksForButtonsBeyondWhatGtkAsksFor) {
    const Gdk::EventMask plain = Gtk::ScrolledWindow().get_events();
    MovableScrolledWindow scrolled;
    EXPECT_EQ(scrolled.get_events(), plain | Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK);
}

TEST(MovableScrolledWindowTest, HandlesEveryButtonAndDragsWithTheLeft) {
    MovableScrolledWindow scrolled;
    for (unsigned int button : {2u, 3u, 8u}) {
        EXPECT_TRUE(press(scrolled, button));
        EXPECT_FALSE(scrolled.dragging) << button;
    }
    EXPECT_TRUE(press(scrolled, 1));
    EXPECT_TRUE(scrolled.dragging);
    for (unsigned int button : {2u, 3u, 8u}) {
        EXPECT_TRUE(release(scrolled, button));
        EXPECT_TRUE(scrolled.dragging) << button;
    }
    EXPECT_TRUE(release(scrolled, 1));
    EXPECT_FALSE(scrolled.dragging);
}

TEST(MovableScrolledWindowTest, FollowsThePointerInBothStatesAndMovesInOne) {
    MovableScrolledWindow scrolled;
    const auto h = scrolled.get_hadjustment();
    const auto v = scrolled.get_vadjustment();
    h->configure(300, 0, 1000, 1, 10, 200);
    v->configure(200, 0, 800, 1, 10, 100);
    EXPECT_TRUE(motion(scrolled, 70, 40));
    EXPECT_EQ(scrolled.lastX, 70);
    EXPECT_EQ(scrolled.lastY, 40);
    EXPECT_EQ(h->get_value(), 300);
    press(scrolled, 1);
    // No threshold, and the whole way from the last place.
    EXPECT_TRUE(motion(scrolled, 71, 60));
    EXPECT_NEAR(h->get_value(), 299, 1e-3);
    EXPECT_NEAR(v->get_value(), 180, 1e-3);
    EXPECT_EQ(scrolled.lastX, 71);
    EXPECT_EQ(scrolled.lastY, 60);
    release(scrolled, 1);
    motion(scrolled, 0, 0);
    EXPECT_NEAR(h->get_value(), 299, 1e-3);
}

TEST(MovableScrolledWindowTest, KeepsItsContentUntilItIsForgotten) {
    Gtk::DrawingArea area;
    MovableScrolledWindow scrolled;
    Gtk::ScrolledWindow& base = scrolled;
    base.add(area); // by the container's own operation
    EXPECT_EQ(scrolled.currentWidget, &area);
    EXPECT_TRUE(scrolled.sizeConnection.connected());
    EXPECT_TRUE(area.is_ancestor(scrolled));
    scrolled.removeCurrentWidget();
    EXPECT_EQ(scrolled.currentWidget, nullptr);
    EXPECT_FALSE(scrolled.sizeConnection.connected());
    EXPECT_TRUE(area.is_ancestor(scrolled)) << "it is not taken out";
    scrolled.add(area);
    EXPECT_EQ(scrolled.currentWidget, &area);
    EXPECT_TRUE(area.is_ancestor(scrolled));
}

TEST(MovableScrolledWindowTest, OtherContentTakesThePlaceOfTheFormer) {
    Gtk::DrawingArea first, second;
    MovableScrolledWindow scrolled;
    scrolled.add(first);
    scrolled.add(second);
    EXPECT_EQ(scrolled.currentWidget, &second);
    EXPECT_EQ(first.get_parent(), nullptr);
    EXPECT_TRUE(second.is_ancestor(scrolled));
    scrolled.removeCurrentWidget();
    scrolled.add(first);
    EXPECT_EQ(scrolled.currentWidget, &first);
    EXPECT_EQ(second.get_parent(), nullptr);
    EXPECT_TRUE(first.is_ancestor(scrolled));
}

TEST(MovableScrolledWindowTest, TheSameContentAgainStays) {
    MovableScrolledWindow scrolled;
    auto* const area = Gtk::manage(new Gtk::DrawingArea);
    scrolled.add(*area);
    scrolled.add(*area);
    EXPECT_EQ(scrolled.currentWidget, area);
    EXPECT_TRUE(area->is_ancestor(scrolled));
    EXPECT_TRUE(scrolled.sizeConnection.connected());
}

TEST(MovableScrolledWindowTest, AContentThatDiesIsForgotten) {
    MovableScrolledWindow scrolled;
    auto area = std::make_unique<Gtk::DrawingArea>();
    scrolled.add(*area);
    press(scrolled, 1);
    area.reset();
    EXPECT_EQ(scrolled.currentWidget, nullptr);
    EXPECT_FALSE(scrolled.sizeConnection.connected());
    EXPECT_FALSE(scrolled.dragging) << "a drag ends with what is dragged";
    scrolled.get_hadjustment()->configure(300, 0, 1000, 1, 10, 200);
    scrolled.get_hadjustment()->set_value(10);
    Gtk::DrawingArea other;
    scrolled.add(other);
    EXPECT_EQ(scrolled.currentWidget, &other);
    EXPECT_TRUE(other.is_ancestor(scrolled));

    auto* const managed = Gtk::manage(new Gtk::DrawingArea);
    scrolled.add(*managed);
    gtk_widget_destroy(managed->Gtk::Widget::gobj());
    EXPECT_EQ(scrolled.currentWidget, nullptr);
}

TEST(MovableScrolledWindowTest, AContentThatWasTakenOutMayDieLater) {
    MovableScrolledWindow scrolled;
    auto area = std::make_unique<Gtk::DrawingArea>();
    scrolled.add(*area);
    scrolled.remove();
    scrolled.get_hadjustment()->configure(300, 0, 1000, 1, 10, 200);
    area.reset();
    scrolled.get_hadjustment()->set_value(10);
    EXPECT_EQ(scrolled.currentWidget, nullptr);

    auto former = std::make_unique<Gtk::DrawingArea>();
    scrolled.add(*former);
    Gtk::DrawingArea next;
    scrolled.add(next);
    former.reset();
    EXPECT_EQ(scrolled.currentWidget, &next) << "the former content doesn't count any more";
}

TEST(MovableScrolledWindowTest, LeavesNothingBehindOnWhatOutlivesIt) {
    Gtk::DrawingArea area;
    auto scrolled = std::make_unique<MovableScrolledWindow>();
    scrolled->add(area);
    const auto h = scrolled->get_hadjustment();
    const auto v = scrolled->get_vadjustment();
    h->configure(0, 0, 1000, 1, 10, 200);
    v->configure(0, 0, 1000, 1, 10, 200);
    scrolled.reset();
    EXPECT_EQ(area.get_parent(), nullptr);
    h->set_value(100);
    v->set_value(100);
    h->set_upper(2000);
    test::OffscreenHost host(area, 50, 50);
    EXPECT_EQ(area.get_allocated_width(), 50);
}

TEST(MovableScrolledWindowTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        // Either dies first in turn.
        auto area = std::make_unique<Gtk::DrawingArea>();
        auto scrolled = std::make_unique<MovableScrolledWindow>();
        scrolled->add(*area);
        for (Gtk::Widget* widget : {static_cast<Gtk::Widget*>(area.get()), scrolled->get_child(),
                                    static_cast<Gtk::Widget*>(scrolled.get())})
            g_object_weak_ref(G_OBJECT(widget->gobj()), count, &finalised);
        if (i % 2)
            area.reset();
        scrolled.reset();
    }
    EXPECT_EQ(finalised, 3000);
}

TEST_F(MovableScrolledWindowOnScreen, TheContentFollowsThePointerOnWindowsThatAskForNothing) {
    present();
    expectDrags();
}

TEST_F(MovableScrolledWindowOnScreen, TheContentFollowsThePointerOnACanvasThatReportsMotion) {
    present(Gdk::POINTER_MOTION_MASK);
    expectDrags();
}

TEST_F(MovableScrolledWindowOnScreen, TheContentFollowsThePointerOnACanvasThatLetsEverythingThrough) {
    present(Gdk::POINTER_MOTION_MASK | Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK);
    expectDrags();
}

TEST_F(MovableScrolledWindowOnScreen, ADragGoesOnOutsideAndEndsWithTheReleaseThere) {
    present(Gdk::POINTER_MOTION_MASK | Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK);
    const auto [x, y] = dragView(host, 320, 240);
    EXPECT_NEAR(x, -320, 0.01);
    EXPECT_NEAR(y, -240, 0.01);
    EXPECT_FALSE(host.scrolled.dragging);
    test::movePointer(host.scrolled, 150, 100);
    test::settle();
    EXPECT_NEAR(host.valueX(), 30, 0.01);
    EXPECT_NEAR(host.valueY(), 60, 0.01);
}

TEST_F(MovableScrolledWindowOnScreen, PressesAreHandledAndReachNobodyBehind) {
    present();
    int presses = 0;
    host.window.add_events(Gdk::BUTTON_PRESS_MASK);
    host.window.signal_button_press_event().connect(
        [&presses](GdkEventButton*) {
            ++presses;
            return false;
        },
        true);
    for (unsigned int button : {1u, 2u, 3u})
        test::click(host.scrolled, 150, 100, button);
    EXPECT_EQ(presses, 0);
}

TEST_F(MovableScrolledWindowOnScreen, ThePlaceCountsAndNotTheWindowThatReportsIt) {
    present();
    auto& viewport = dynamic_cast<Gtk::Viewport&>(*host.scrolled.get_child());
    const auto expectPlace = [&](const Glib::RefPtr<Gdk::Window>& window, double x, double y) {
        const Zel::PointF place = host.scrolled._getPlaceInViewport(window->gobj(), x, y);
        EXPECT_EQ(place.x, 12);
        EXPECT_EQ(place.y, 34);
    };
    int viewX = 0;
    int viewY = 0;
    viewport.get_view_window()->get_origin(viewX, viewY);
    int x = 0;
    int y = 0;
    host.scrolled.get_window()->get_origin(x, y);
    expectPlace(host.scrolled.get_window(), viewX - x + 12, viewY - y + 34);
    expectPlace(viewport.get_view_window(), 12, 34);
    expectPlace(viewport.get_bin_window(), 362, 334);
    expectPlace(host.area.get_window(), 362, 334);
    // Neither a window elsewhere nor none at all can be related.
    Gtk::Window other;
    test::present(other);
    expectPlace(other.get_window(), 12, 34);
    EXPECT_EQ(host.scrolled._getPlaceInViewport(nullptr, 12, 34).x, 12);

    motion(host.scrolled, 362, 334, host.area.get_window()->gobj());
    press(host.scrolled, 1);
    motion(host.scrolled, 22, 44, viewport.get_view_window()->gobj());
    EXPECT_NEAR(host.valueX(), 340, 0.01);
    EXPECT_NEAR(host.valueY(), 290, 0.01);
}

TEST_F(MovableScrolledWindowOnScreen, ScrollingPaintsTheContentAgain) {
    present();
    int paints = 0;
    host.area.signal_draw().connect(
        [&paints](const Cairo::RefPtr<Cairo::Context>& context) {
            double left = 0, top = 0, right = 0, bottom = 0;
            context->get_clip_extents(left, top, right, bottom);
            // All that is in view, and not only the strip that comes into view.
            paints += right - left >= 290 && bottom - top >= 190;
            return false;
        },
        false);
    host.scrollTo(351, 300);
    EXPECT_EQ(paints, 1);
    host.scrollTo(351, 299);
    EXPECT_EQ(paints, 2);
    host.scrolled.removeCurrentWidget();
    host.scrollTo(352, 300);
    EXPECT_EQ(paints, 2) << "forgotten";
}

TEST_F(MovableScrolledWindowOnScreen, AnotherSizeOfTheContentKeepsTheAnchoredPoint) {
    present();
    host.scrolled.adjustments.setProgress(100, 50);
    host.area.set_size_request(2000, 1200);
    test::settle();
    // 450 of 1000 and 350 of 800 are seen at 100 and 50.
    EXPECT_NEAR(host.valueX(), 800, 0.01);
    EXPECT_NEAR(host.valueY(), 475, 0.01);
    // On the way back the view is first limited by the smaller content, which must not move the anchor.
    host.area.set_size_request(900, 600);
    test::settle();
    EXPECT_NEAR(host.valueX(), 305, 0.01);
    EXPECT_NEAR(host.valueY(), 212.5, 0.01);
    host.scrolled.removeCurrentWidget();
    host.area.set_size_request(1800, 1200);
    test::settle();
    EXPECT_NEAR(host.valueX(), 305, 0.01) << "forgotten";
}

TEST_F(MovableScrolledWindowOnScreen, WhatWasScrolledByHandStaysInTheMiddle) {
    present();
    host.scrolled.adjustments.setProgress(0, 0);
    // With the scrollbar's own key bindings.
    auto* const bar = host.scrolled.get_hscrollbar();
    gboolean isHandled = false;
    g_signal_emit_by_name(bar->gobj(), "move-slider", GTK_SCROLL_STEP_RIGHT, &isHandled);
    ASSERT_TRUE(test::waitFor([&] { return host.valueX() > 350; }));
    test::settle();
    const double middle = host.valueX() + 150;
    host.area.set_size_request(2000, 800);
    test::settle();
    EXPECT_NEAR(host.valueX() + 150, 2 * middle, 0.1);
    EXPECT_NEAR(host.valueY(), 300, 0.01) << "nothing was changed there";
}

TEST_F(MovableScrolledWindowOnScreen, WhatWasScrolledByHandStaysAlsoAfterTheViewAloneWasResized) {
    present();
    host.scrolled.adjustments.setProgress(0, 0);
    host.resize(400, 300);
    ASSERT_EQ(host.area.get_allocated_width(), 1000);
    host.scrollTo(100, 120);
    host.area.set_size_request(2000, 1600);
    test::settle();
    EXPECT_NEAR(host.valueX(), 2 * (100 + 200) - 200, 0.1);
    EXPECT_NEAR(host.valueY(), 2 * (120 + 150) - 150, 0.1);
}

TEST_F(MovableScrolledWindowOnScreen, AContentThatDiesOnTheScreenLeavesTheWindowWorking) {
    Gtk::Window window;
    MovableScrolledWindow scrolled;
    auto area = std::make_unique<Gtk::DrawingArea>();
    area->set_size_request(1000, 800);
    area->add_events(Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK | Gdk::POINTER_MOTION_MASK);
    scrolled.add(*area);
    window.set_default_size(300, 200);
    window.add(scrolled);
    test::present(window);
    test::movePointer(scrolled, 150, 100);
    test::settle();
    test::pressButton();
    test::settle();
    area.reset();
    test::movePointer(scrolled, 100, 50);
    test::settle();
    test::releaseButton();
    test::settle();
    window.resize(400, 300);
    test::settle();
    Gtk::DrawingArea next;
    next.set_size_request(1000, 800);
    next.show();
    scrolled.add(next);
    test::settle();
    test::drag(scrolled, 150, 100, 90, 40);
    EXPECT_NEAR(scrolled.get_hadjustment()->get_value(), 60, 0.01);
    EXPECT_NEAR(scrolled.get_vadjustment()->get_value(), 60, 0.01);
}
