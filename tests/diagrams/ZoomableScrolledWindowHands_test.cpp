#include "diagrams/Scrolling.h"

#include <cmath>
#include <memory>

namespace {

using test::Reports;
using test::requestOf;
using test::Size;
using test::sizeOf;
using ZelView::ZoomableScrolledWindow;

struct ZoomableScrolledWindowOnScreen : testing::Test {
    test::OnScreen<ZoomableScrolledWindow> host{100u, 500u, 10u};
    ZoomableScrolledWindow& scrolled = host.scrolled;
    Gtk::DrawingArea& area = host.area;

    void SetUp() override {
        test::present(host.window);
        ASSERT_EQ(sizeOf(scrolled), Size(300, 200));
    }

    void zoomTo(unsigned int scale) {
        scrolled.setSize(scale);
        test::settle();
    }

    /// The point of the content, as parts of its size, that is seen at a place of the viewport.
    std::pair<double, double> seenAt(double x, double y) {
        return {(host.valueX() + x) / scrolled.get_hadjustment()->get_upper(),
                (host.valueY() + y) / scrolled.get_vadjustment()->get_upper()};
    }

    /// Turns the wheel by a step at a place of the viewport. A window of the content reports it in pixels of
    /// the content.
    void expectStaysInPlace(const Glib::RefPtr<Gdk::Window>& reporting, bool isOfContent, double x, double y,
                            double deltaY) {
        const auto before = seenAt(x, y);
        const double shiftX = isOfContent ? host.valueX() : 0;
        const double shiftY = isOfContent ? host.valueY() : 0;
        const auto scale = scrolled.scale;
        EXPECT_TRUE(
            test::turnWheel(scrolled, reporting, std::floor(x + shiftX), std::floor(y + shiftY), deltaY));
        test::settle();
        EXPECT_EQ(scrolled.scale, deltaY < 0 ? scale + 10 : scale - 10);
        const auto after = seenAt(x, y);
        // Less than a pixel.
        EXPECT_NEAR(after.first, before.first, 1.0 / area.get_allocated_width()) << scale << " at " << x;
        EXPECT_NEAR(after.second, before.second, 1.0 / area.get_allocated_height()) << scale << " at " << y;
    }
};

} // namespace

TEST_F(ZoomableScrolledWindowOnScreen, TheContentHasItsPartOfTheWindowAfterEveryResize) {
    for (unsigned int scale : {100u, 230u, 500u}) {
        zoomTo(scale);
        for (const Size& size : {Size(400, 260), Size(250, 150), Size(251, 333), Size(300, 200)}) {
            host.resize(size.first, size.second);
            const Size expected(static_cast<int>(scale / 100.0 * size.first),
                                static_cast<int>(scale / 100.0 * size.second));
            EXPECT_EQ(requestOf(area), expected);
            EXPECT_EQ(sizeOf(area), expected) << scale;
        }
        // And the wheel works on afterwards.
        const auto step = scale == 500 ? 1 : -1;
        test::turnWheel(scrolled, 150, 100, step);
        test::settle();
        EXPECT_EQ(area.get_allocated_width(), static_cast<int>((scale - step * 10.0) / 100.0 * 300));
    }
}

TEST_F(ZoomableScrolledWindowOnScreen, AResizeKeepsWhatIsInTheMiddle) {
    zoomTo(400);
    host.scrollTo(500, 300);
    const auto middle = seenAt(150, 100);
    host.resize(420, 320);
    EXPECT_NEAR(seenAt(210, 160).first, middle.first, 1e-3);
    EXPECT_NEAR(seenAt(210, 160).second, middle.second, 1e-3);
    host.resize(300, 200);
    EXPECT_NEAR(host.valueX(), 500, 1);
    EXPECT_NEAR(host.valueY(), 300, 1);
}

TEST_F(ZoomableScrolledWindowOnScreen, AScrollbarMovedByHandStaysWhereItIs) {
    scrolled.set_overlay_scrolling(false);
    zoomTo(400);
    test::turnWheel(scrolled, 0, 0, -1); // anchors the corner
    test::settle();
    host.scrollTo(100, 100);
    Gtk::Widget& bar = *scrolled.get_vscrollbar();
    // The slider stands an eighth of the content below the top.
    const int middleOfBar = bar.get_allocated_width() / 2;
    const int slider = bar.get_allocated_height() / 4;
    test::drag(bar, middleOfBar, slider, middleOfBar, slider + 60);
    EXPECT_FALSE(scrolled.dragging);
    EXPECT_GT(host.valueY(), 250) << "the slider moves the content by more than itself";
    EXPECT_EQ(host.valueX(), 100);
    const auto viewMiddle = [&] {
        return seenAt(scrolled.get_hadjustment()->get_page_size() / 2,
                      scrolled.get_vadjustment()->get_page_size() / 2);
    };
    const auto middle = viewMiddle();
    host.resize(360, 240);
    EXPECT_NEAR(viewMiddle().first, middle.first, 2e-3);
    EXPECT_NEAR(viewMiddle().second, middle.second, 2e-3);
    EXPECT_EQ(sizeOf(area), Size(static_cast<int>(410 / 100.0 * 360), static_cast<int>(410 / 100.0 * 240)));
}

TEST_F(ZoomableScrolledWindowOnScreen, TheWheelKeepsThePointBesideScrollbarsThatTakeRoom) {
    scrolled.set_overlay_scrolling(false);
    for (unsigned int scale : {200u, 390u}) {
        zoomTo(scale);
        host.scrollTo(120, 60);
        for (const Size& place : {Size(10, 20), Size(150, 100), Size(280, 180)})
            expectStaysInPlace(scrolled.get_window(), false, place.first, place.second, -1);
    }
}

TEST_F(ZoomableScrolledWindowOnScreen, TheWheelKeepsThePointUnderThePointerWhateverWindowReports) {
    zoomTo(300);
    auto& viewport = dynamic_cast<Gtk::Viewport&>(*scrolled.get_child());
    const Size scrolls[] = {{0, 0}, {123, 77}, {300, 200}, {600, 400}};
    for (const auto& [left, top] : scrolls) {
        const struct {
            Glib::RefPtr<Gdk::Window> window;
            bool isOfContent;
        } reporters[] = {{scrolled.get_window(), false},
                         {viewport.get_view_window(), false},
                         {viewport.get_bin_window(), true},
                         {area.get_window(), true}};

        for (const auto& reporter : reporters) {
            zoomTo(300);
            host.scrollTo(left, top);
            // Growing never meets the end of the content.
            for (const Size& place : {Size(10, 20), Size(150, 100), Size(290, 190)}) {
                zoomTo(300);
                host.scrollTo(left, top);
                expectStaysInPlace(reporter.window, reporter.isOfContent, place.first, place.second, -1);
                expectStaysInPlace(reporter.window, reporter.isOfContent, place.first, place.second, -1);
            }
        }
        zoomTo(300);
        host.scrollTo(200, 120);
        expectStaysInPlace(area.get_window(), true, 160, 90, 1);
    }
}

TEST_F(ZoomableScrolledWindowOnScreen, ShrinkingBelowTheViewStillKeepsThePointWhereItCan) {
    zoomTo(500);
    // Near the end, so that Gtk limits the view before the content has its size.
    host.scrollTo(1180, 780);
    const auto before = seenAt(20, 20);
    for (int i = 0; i < 10; ++i)
        test::turnWheel(scrolled, 20, 20, 1);
    test::settle();
    EXPECT_EQ(sizeOf(area), Size(1200, 800));
    const double expected = before.first * 1200 - 20;
    EXPECT_NEAR(host.valueX(), std::min(expected, 900.0), 1);
    test::turnWheel(scrolled, 280, 190, 1);
    test::settle();
    host.scrollTo(700, 400);
    const auto middle = seenAt(290, 190);
    for (int i = 0; i < 12; ++i)
        test::turnWheel(scrolled, 290, 190, 1);
    test::settle();
    EXPECT_NEAR(host.valueX(), middle.first * 810 - 290, 1);
    EXPECT_NEAR(host.valueY(), middle.second * 540 - 190, 1);
    EXPECT_LT(host.valueX(), 510) << "the end of the content is not reached";
}

TEST_F(ZoomableScrolledWindowOnScreen, TheWheelZoomsFromEndToEndInFortySteps) {
    Reports reports(scrolled);
    for (int i = 0; i < 41; ++i) {
        test::turnWheel(scrolled, 150, 100, -1);
        test::settle();
    }
    EXPECT_EQ(reports.scales.size(), 40u);
    EXPECT_EQ(scrolled.scale, 500u);
    EXPECT_EQ(sizeOf(area), Size(1500, 1000));
    EXPECT_NEAR(host.valueX(), 600, 1);
    EXPECT_NEAR(host.valueY(), 400, 1);
    for (int i = 0; i < 41; ++i)
        test::turnWheel(scrolled, 150, 100, 1);
    test::settle();
    EXPECT_EQ(reports.scales.size(), 80u);
    EXPECT_EQ(sizeOf(area), Size(300, 200));
    EXPECT_EQ(host.valueX(), 0);
}

TEST_F(ZoomableScrolledWindowOnScreen, TheWheelNeverScrolls) {
    zoomTo(300);
    host.scrollTo(200, 100);
    // A real wheel sends events without a distance.
    test::movePointer(scrolled, 150, 100);
    test::settle();
    for (unsigned int button : {4u, 5u, 5u, 5u}) {
        test::pressButton(button);
        test::releaseButton(button);
        test::settle();
    }
    EXPECT_EQ(scrolled.scale, 300u);
    EXPECT_EQ(host.valueX(), 200);
    EXPECT_EQ(host.valueY(), 100);
    EXPECT_FALSE(scrolled.dragging);
}

TEST_F(ZoomableScrolledWindowOnScreen, ADragMovesTheViewByItsPixelsAtEveryScale) {
    test::drag(scrolled, 200, 150, 140, 90);
    EXPECT_EQ(host.valueX(), 0) << "at 100 percent there is nothing to move";
    EXPECT_EQ(host.valueY(), 0);
    for (unsigned int scale : {200u, 500u}) {
        zoomTo(scale);
        const double x = host.valueX();
        const double y = host.valueY();
        test::drag(scrolled, 200, 150, 140, 90);
        EXPECT_NEAR(host.valueX() - x, 60, 0.01) << scale;
        EXPECT_NEAR(host.valueY() - y, 60, 0.01) << scale;
        test::drag(scrolled, 140, 90, 200, 150);
        EXPECT_NEAR(host.valueX(), x, 0.01) << scale;
        EXPECT_NEAR(host.valueY(), y, 0.01) << scale;
    }
}

TEST_F(ZoomableScrolledWindowOnScreen, AContentThatDiesLeavesTheWindowWorking) {
    Gtk::Window window;
    ZoomableScrolledWindow other(100, 500, 10);
    auto content = std::make_unique<Gtk::DrawingArea>();
    other.add(*content);
    window.set_default_size(300, 200);
    window.add(other);
    test::present(window);
    other.setSize(200);
    content.reset();
    test::turnWheel(other, 150, 100, -1);
    window.resize(360, 240);
    test::settle();
    EXPECT_EQ(other.scale, 200u);
    Gtk::DrawingArea next;
    next.show();
    other.add(next);
    test::settle();
    EXPECT_EQ(sizeOf(next), Size(720, 480));
}

TEST(ZoomableScrolledWindowNested, HasItsSizeInsideOtherContainersToo) {
    Gtk::DrawingArea area;
    ZoomableScrolledWindow scrolled(100, 500, 10);
    scrolled.set_hexpand(true);
    scrolled.set_vexpand(true);
    scrolled.add(area);
    Gtk::Grid grid;
    grid.attach(scrolled, 0, 0, 1, 1);
    Gtk::Notebook notebook;
    notebook.append_page(grid, "page");
    Gtk::Paned paned;
    Gtk::DrawingArea neighbour;
    paned.pack1(notebook, true, false);
    paned.pack2(neighbour, true, true);
    Gtk::Window window;
    window.set_default_size(600, 300);
    window.add(paned);
    test::present(window);
    for (int position : {200, 400, 150, 333})
        for (unsigned int scale : {100u, 270u}) {
            paned.set_position(position);
            test::settle();
            scrolled.setSize(scale);
            test::settle();
            EXPECT_EQ(area.get_allocated_width(),
                      static_cast<int>(scale / 100.0 * scrolled.get_allocated_width()));
            paned.set_position(position + 37);
            test::settle();
            EXPECT_EQ(area.get_allocated_width(),
                      static_cast<int>(scale / 100.0 * scrolled.get_allocated_width()));
            EXPECT_EQ(area.get_allocated_height(),
                      static_cast<int>(scale / 100.0 * scrolled.get_allocated_height()));
        }
}
