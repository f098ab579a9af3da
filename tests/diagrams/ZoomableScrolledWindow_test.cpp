#include "diagrams/Scrolling.h"

#include <ZelCommonView/diagrams/ZoomableScrolledWindow.h>

#include <memory>
#include <vector>

namespace {

using test::Reports;
using test::requestOf;
using test::Size;
using test::sizeOf;
using ZelView::ZoomableScrolledWindow;

GdkEventScroll makeScroll(double deltaY, double x = 0, double y = 0) {
    GdkEventScroll event{};
    event.direction = GDK_SCROLL_SMOOTH;
    event.x = x;
    event.y = y;
    event.delta_y = deltaY;
    return event;
}

/// A window of 200 x 100 with its content, without a screen.
struct ZoomableScrolledWindowTest : testing::Test {
    ZoomableScrolledWindowTest() {
        scrolled.add(area);
        test::allocate(scrolled, 200, 100);
    }

    bool turn(double deltaY) {
        GdkEventScroll event = makeScroll(deltaY);
        return scrolled._onScrollEvent(&event);
    }

    Gtk::DrawingArea area;
    ZoomableScrolledWindow scrolled{100, 500, 10};
    Reports reports{scrolled};
};

} // namespace

TEST(ZoomableScrolledWindow, StartsAtItsSmallestScale) {
    ZoomableScrolledWindow scrolled(50, 400, 25);
    EXPECT_EQ(scrolled.minScale, 50u);
    EXPECT_EQ(scrolled.maxScale, 400u);
    EXPECT_EQ(scrolled.scaleStep, 25u);
    EXPECT_EQ(scrolled.scale, 50u);
    EXPECT_EQ(scrolled.lastScale, 50u);
    EXPECT_TRUE(scrolled.scrollConnections.empty());
    EXPECT_NE(scrolled.get_events() & Gdk::SCROLL_MASK, Gdk::EventMask{});
}

TEST(ZoomableScrolledWindow, WithoutContentNothingIsZoomed) {
    ZoomableScrolledWindow scrolled(100, 500, 10);
    Reports reports(scrolled);
    scrolled.setSize(300);
    GdkEventScroll event = makeScroll(-1);
    EXPECT_TRUE(scrolled._onScrollEvent(&event));
    EXPECT_TRUE(scrolled._zoomEmpty(&event));
    test::OffscreenHost host(scrolled, 200, 100); // allocates it
    EXPECT_EQ(scrolled.scale, 100u);
    EXPECT_EQ(scrolled.lastScale, 100u);
    EXPECT_TRUE(reports.scales.empty());
    Gtk::DrawingArea area;
    area.show();
    scrolled.add(area);
    test::settle();
    EXPECT_EQ(sizeOf(area), Size(200, 100)) << "content that comes late fills the window as well";
    scrolled.setSize(200);
    test::settle();
    EXPECT_EQ(sizeOf(area), Size(400, 200));
}

TEST_F(ZoomableScrolledWindowTest, SetSizeLimitsTheScaleAndReportsNothing) {
    struct {
        unsigned int asked, scale;
    } const cases[] = {{230, 230}, {500, 500}, {501, 500}, {4294967295u, 500},
                       {100, 100}, {99, 100},  {0, 100}};

    for (const auto& c : cases) {
        scrolled.setSize(c.asked);
        EXPECT_EQ(scrolled.scale, c.scale) << c.asked;
        EXPECT_EQ(scrolled.lastScale, c.scale) << c.asked;
    }
    EXPECT_TRUE(reports.scales.empty());
}

TEST_F(ZoomableScrolledWindowTest, TheContentsSizeIsCutToWholePixels) {
    scrolled.setSize(150);
    EXPECT_EQ(requestOf(area), Size(300, 150));
    scrolled.setSize(230); // 2.3 times 200 is a little less than 460
    EXPECT_EQ(requestOf(area), Size(459, 229));
    scrolled.setSize(333);
    EXPECT_EQ(requestOf(area), Size(666, 333));
}

TEST_F(ZoomableScrolledWindowTest, SetSizeBeforeTheFirstAllocationAnchorsTheMiddle) {
    Gtk::DrawingArea other;
    ZoomableScrolledWindow fresh(100, 500, 10);
    fresh.add(other);
    fresh.setSize(300);
    EXPECT_EQ(fresh.adjustments.anchorX, 0.5f);
    EXPECT_EQ(fresh.adjustments.anchorY, 0.5f);
    EXPECT_EQ(fresh.scale, 300u);
    test::OffscreenHost host(fresh, 200, 100);
    EXPECT_EQ(sizeOf(other), Size(600, 300));
    EXPECT_EQ(fresh.get_hadjustment()->get_value(), 200);
    EXPECT_EQ(fresh.get_vadjustment()->get_value(), 100);
}

TEST_F(ZoomableScrolledWindowTest, StepsOfTheWheelAreReportedUntilTheEnd) {
    for (unsigned int step = 1; step <= 40; ++step) {
        EXPECT_TRUE(turn(-1));
        EXPECT_EQ(scrolled.scale, 100 + 10 * step);
        EXPECT_EQ(reports.scales.back(), 100 + 10 * step);
        EXPECT_EQ(requestOf(area).first, static_cast<int>((100 + 10 * step) / 100.0 * 200));
    }
    EXPECT_TRUE(turn(-1));
    EXPECT_EQ(scrolled.scale, 500u);
    EXPECT_EQ(reports.scales.size(), 40u) << "one more step is none";
    EXPECT_TRUE(turn(0.01));
    EXPECT_EQ(reports.scales.back(), 490u) << "the sign counts and not the distance";
}

TEST_F(ZoomableScrolledWindowTest, AStepDownAtTheSmallestScaleIsNone) {
    EXPECT_TRUE(turn(1));
    EXPECT_EQ(scrolled.scale, 100u);
    EXPECT_TRUE(reports.scales.empty());
}

TEST_F(ZoomableScrolledWindowTest, OnlySmoothEventsTellADistance) {
    scrolled.setSize(200);
    EXPECT_TRUE(turn(0));
    EXPECT_EQ(scrolled.scale, 200u);
    EXPECT_TRUE(reports.scales.empty());
}

TEST(ZoomableScrolledWindow, AStepThatWouldLeadBelowZeroLeadsToTheLargestScale) {
    Gtk::DrawingArea area;
    ZoomableScrolledWindow scrolled(5, 500, 10);
    scrolled.add(area);
    GdkEventScroll event = makeScroll(1);
    scrolled._onScrollEvent(&event);
    EXPECT_EQ(scrolled.scale, 500u);
}

TEST_F(ZoomableScrolledWindowTest, AStepIsReportedWhenTheSizeIsRequested) {
    Size request;
    scrolled.signalScaleChanged.connect([&](unsigned int) { request = requestOf(area); });
    turn(-1);
    EXPECT_EQ(request, Size(220, 110));
}

TEST(ZoomableScrolledWindow, AHandlerMayDestroyIt) {
    Gtk::DrawingArea area, over;
    for (bool isOver : {false, true}) {
        auto scrolled = std::make_unique<ZoomableScrolledWindow>(100, 500, 10);
        scrolled->add(area);
        scrolled->connectScroll(over);
        scrolled->signalScaleChanged.connect([&scrolled](unsigned int) { scrolled.reset(); });
        GdkEventScroll event = makeScroll(-1);
        if (isOver)
            scrolled->_zoomEmpty(&event);
        else
            scrolled->_onScrollEvent(&event);
        EXPECT_FALSE(scrolled);
    }
}

TEST_F(ZoomableScrolledWindowTest, AConnectedWidgetZoomsAboutTheMiddle) {
    Gtk::DrawingArea over;
    scrolled.connectScroll(over);
    EXPECT_EQ(over.get_events() & Gdk::SMOOTH_SCROLL_MASK, Gdk::SMOOTH_SCROLL_MASK);
    ASSERT_EQ(scrolled.scrollConnections.size(), 1u);
    scrolled.get_hadjustment()->configure(100, 0, 1000, 1, 10, 200);
    scrolled.get_vadjustment()->configure(100, 0, 1000, 1, 10, 200);
    const auto emit = [&](double deltaY) {
        GdkEventScroll event = makeScroll(deltaY, 7, 7);
        gboolean isHandled = false;
        g_signal_emit_by_name(over.gobj(), "scroll-event", &event, &isHandled);
        return isHandled;
    };
    EXPECT_TRUE(emit(-1));
    EXPECT_EQ(reports.scales, std::vector<unsigned int>{110});
    EXPECT_EQ(scrolled.adjustments.progressX, 0.5f);
    EXPECT_EQ(scrolled.adjustments.progressY, 0.5f);
    EXPECT_FLOAT_EQ(scrolled.adjustments.anchorX, 0.2f);
    EXPECT_TRUE(emit(-1));
    EXPECT_TRUE(emit(1));
    EXPECT_TRUE(emit(0)) << "without a distance it is a step down";
    EXPECT_EQ(reports.scales, (std::vector<unsigned int>{110, 120, 110, 100}));
    scrolled.disconnectWidgetScrolls();
    EXPECT_EQ(scrolled.scrollConnections.size(), 1u) << "kept, though undone";
    EXPECT_FALSE(scrolled.scrollConnections.front().connected());
    emit(-1);
    EXPECT_EQ(reports.scales.size(), 4u);
}

TEST(ZoomableScrolledWindow, ConnectedWidgetsMayDieFirstOrLast) {
    Gtk::DrawingArea area;
    auto first = std::make_unique<Gtk::DrawingArea>();
    Gtk::DrawingArea last;
    auto scrolled = std::make_unique<ZoomableScrolledWindow>(100, 500, 10);
    scrolled->add(area);
    scrolled->connectScroll(*first);
    scrolled->connectScroll(last);
    first.reset();
    scrolled->disconnectWidgetScrolls();
    scrolled->connectScroll(last);
    scrolled.reset();
    GdkEventScroll event = makeScroll(-1);
    gboolean isHandled = true;
    g_signal_emit_by_name(last.gobj(), "scroll-event", &event, &isHandled);
    EXPECT_FALSE(isHandled);
}

TEST(ZoomableScrolledWindow, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        auto area = std::make_unique<Gtk::DrawingArea>();
        auto over = std::make_unique<Gtk::DrawingArea>();
        auto scrolled = std::make_unique<ZoomableScrolledWindow>(100, 500, 10);
        scrolled->add(*area);
        scrolled->connectScroll(*over);
        scrolled->setSize(200);
        for (Gtk::Widget* widget :
             {static_cast<Gtk::Widget*>(area.get()), static_cast<Gtk::Widget*>(over.get()),
              scrolled->get_child(), static_cast<Gtk::Widget*>(scrolled.get())})
            g_object_weak_ref(G_OBJECT(widget->gobj()), count, &finalised);
        if (i % 2)
            area.reset();
        if (i % 3)
            over.reset();
        scrolled.reset();
    }
    EXPECT_EQ(finalised, 4000);
}

TEST(ZoomableScrolledWindow, MayDieWithAResizeInTheQueue) {
    Gtk::DrawingArea area;
    auto scrolled = std::make_unique<ZoomableScrolledWindow>(100, 500, 10);
    scrolled->add(area);
    Gtk::OffscreenWindow window;
    window.set_default_size(200, 100);
    window.add(*scrolled);
    window.show_all();
    ASSERT_TRUE(scrolled->resizeConnection.connected());
    const sigc::connection queued = scrolled->resizeConnection;
    scrolled.reset();
    EXPECT_FALSE(queued.connected());
    test::settle();
}
