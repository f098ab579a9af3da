// The size of the text by real keys and by the wheel.
#include "Wheel.h"
#include "common/TextZoom.h"
#include "support/Hands.h"
#include "support/Keyboard.h"

#include <ZelCommonView/diagrams/StyleZoomHelper.h>
#include <ZelCommonView/diagrams/ZoomableScrolledWindow.h>

#include <gtest/gtest.h>

namespace {

using ZelView::StyleZoomHelper;

bool becomes(int size) {
    return test::waitFor([size] { return StyleZoomHelper::getFontSize() == size; }, 2000);
}

/// A window with a text field, which has the focus, above a plane that the wheel zooms.
class TextZoomTest : public testing::Test {
protected:
    TextZoomTest() {
        StyleZoomHelper::zoomDefault();
        scrolled.add(area);
        box.pack_start(entry, Gtk::PACK_SHRINK);
        box.pack_start(scrolled, Gtk::PACK_EXPAND_WIDGET);
        window.set_default_size(400, 300);
        window.add(box);
        examples::installTextZoom(window);
        window.show_all();
        test::present(window);
        entry.grab_focus();
        test::settle();
    }

    ~TextZoomTest() override { StyleZoomHelper::zoomDefault(); }

    static void pressWithControl(unsigned int key) {
        const test::HeldKey control(GDK_KEY_Control_L);
        test::pressKey(key);
    }

    Gtk::Window window;
    Gtk::Box box{Gtk::ORIENTATION_VERTICAL};
    Gtk::Entry entry;
    ZelView::ZoomableScrolledWindow scrolled{100, 500, 10};
    Gtk::DrawingArea area;
};

} // namespace

TEST_F(TextZoomTest, PlusMakesTheTextLargerMinusSmallerAndZeroNormal) {
    int size = 14;
    for (const unsigned int key : {GDK_KEY_plus, GDK_KEY_equal, GDK_KEY_KP_Add}) {
        pressWithControl(key);
        EXPECT_TRUE(becomes(++size)) << key;
    }
    for (const unsigned int key : {GDK_KEY_minus, GDK_KEY_KP_Subtract}) {
        pressWithControl(key);
        EXPECT_TRUE(becomes(--size)) << key;
    }
    pressWithControl(GDK_KEY_0);
    EXPECT_TRUE(becomes(14));
    EXPECT_EQ(entry.get_text(), "");
}

TEST_F(TextZoomTest, TheZeroOfTheNumberPadIsNormalToo) {
    StyleZoomHelper::zoomIn();
    test::pressKey(GDK_KEY_Num_Lock);
    pressWithControl(GDK_KEY_KP_Insert); // the same key
    EXPECT_TRUE(becomes(14));
    test::pressKey(GDK_KEY_Num_Lock);
    test::settle();
}

TEST_F(TextZoomTest, KeysWithoutControlAreTextAsEver) {
    test::type("+-0=");
    EXPECT_TRUE(test::waitFor([&] { return entry.get_text() == "+-0="; })) << entry.get_text();
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 14);
}

TEST_F(TextZoomTest, ControlWithAltIsNotMeant) {
    const test::HeldKey alt(GDK_KEY_Alt_L);
    pressWithControl(GDK_KEY_equal);
    test::wait(200);
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 14);
}

TEST_F(TextZoomTest, ARealWheelWithControlOverThePlaneZoomsTheText) {
    unsigned int reports = 0;
    scrolled.signalScaleChanged.connect([&](unsigned int) { ++reports; });
    test::movePointer(scrolled, 100, 100);
    test::settle();
    {
        const test::HeldKey control(GDK_KEY_Control_L);
        for (int i = 0; i < 3; ++i) {
            test::pressButton(4);
            test::releaseButton(4);
        }
        EXPECT_TRUE(becomes(17));
        test::pressButton(5);
        test::releaseButton(5);
        EXPECT_TRUE(becomes(16));
    }
    test::settle();
    EXPECT_EQ(reports, 0u);
    // The field takes no part, and nothing else has changed.
    test::movePointer(entry, 50, 10);
    const test::HeldKey control(GDK_KEY_Control_L);
    test::pressButton(4);
    test::releaseButton(4);
    EXPECT_TRUE(becomes(17));
}

TEST_F(TextZoomTest, TheWheelWithoutControlStillZoomsThePlane) {
    unsigned int scale = 100;
    scrolled.signalScaleChanged.connect([&](unsigned int value) { scale = value; });
    test::turnWheelSmoothly(scrolled, -1);
    EXPECT_TRUE(test::waitFor([&] { return scale == 110; }));
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 14);
    test::turnWheelSmoothly(scrolled, -1, GDK_CONTROL_MASK);
    EXPECT_TRUE(becomes(15));
    test::settle();
    EXPECT_EQ(scale, 110u);
}

TEST_F(TextZoomTest, SmallTurnsAreGatheredToSteps) {
    for (int i = 0; i < 3; ++i)
        test::turnWheelSmoothly(scrolled, -0.25, GDK_CONTROL_MASK);
    test::settle();
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 14);
    test::turnWheelSmoothly(scrolled, -0.25, GDK_CONTROL_MASK);
    EXPECT_TRUE(becomes(15));
    test::turnWheelSmoothly(scrolled, 2, GDK_CONTROL_MASK);
    EXPECT_TRUE(becomes(13));
}

TEST_F(TextZoomTest, OtherWindowsKeepTheWheelForThemselves) {
    Gtk::Window other;
    ZelView::ZoomableScrolledWindow plane(100, 500, 10);
    Gtk::DrawingArea content;
    plane.add(content);
    other.add(plane);
    other.set_default_size(200, 200);
    other.show_all();
    test::present(other);
    unsigned int scale = 100;
    plane.signalScaleChanged.connect([&](unsigned int value) { scale = value; });
    test::turnWheelSmoothly(plane, -1, GDK_CONTROL_MASK);
    EXPECT_TRUE(test::waitFor([&] { return scale == 110; }));
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 14);
}

TEST_F(TextZoomTest, InstallingTwiceCountsOnce) {
    examples::installTextZoom(window);
    pressWithControl(GDK_KEY_equal);
    test::wait(200);
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 15);
}

TEST_F(TextZoomTest, AWindowMayDieBeforeTheOthers) {
    {
        Gtk::Window other;
        examples::installTextZoom(other);
        other.show();
        test::settle();
    }
    test::present(window);
    entry.grab_focus();
    pressWithControl(GDK_KEY_equal);
    EXPECT_TRUE(becomes(15));
}
