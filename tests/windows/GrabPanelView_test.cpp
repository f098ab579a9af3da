#include <ZelCommonView/windows/GrabPanelView.h>

#include <ZelCommonView/presentation/ViewPresenter.h>

#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

namespace {

using namespace Zel;

class EntryAsView : public Gtk::Entry, public IView {};

class PlainView : public IView {};

class GrabPanelViewTest : public testing::Test {
protected:
    GrabPanelViewTest() {
        entry.set_valign(Gtk::ALIGN_START);
        panel.addControl(&entry);
        window.set_default_size(200, 200);
        window.add(panel);
        panel.show();
        test::present(window);
        entry.grab_focus();
        EXPECT_TRUE(test::waitFor([this] { return entry.has_focus(); }));
    }

    Gtk::Window window;
    EntryAsView entry;
    GrabPanelView panel;
};

} // namespace

TEST_F(GrabPanelViewTest, AClickBesideTheEntryTakesTheFocusAway) {
    test::click(panel, 100, 150);
    EXPECT_TRUE(test::waitFor([this] { return !entry.has_focus(); }));
    EXPECT_EQ(window.get_focus(), nullptr);
    test::click(entry, 20, 10);
    EXPECT_TRUE(test::waitFor([this] { return entry.has_focus(); }));
}

TEST_F(GrabPanelViewTest, AnotherButtonLeavesIt) {
    test::click(panel, 100, 150, 3);
    test::wait(100);
    EXPECT_EQ(window.get_focus(), &entry);
}

TEST_F(GrabPanelViewTest, OnlyASinglePressCountsAndAllAreTaken) {
    GdkEventButton event{};
    event.button = 1;
    event.type = GDK_2BUTTON_PRESS;
    EXPECT_TRUE(panel._onButtonPress(&event));
    EXPECT_EQ(window.get_focus(), &entry);
    event.type = GDK_BUTTON_PRESS;
    EXPECT_TRUE(panel._onButtonPress(&event));
    EXPECT_EQ(window.get_focus(), nullptr);
}

TEST(GrabPanelView, IgnoresNullAndWhatIsNoWidgetButShowsItself) {
    GrabPanelView panel;
    PlainView plain;
    EXPECT_TRUE(panel.get_can_focus());
    panel.addControl(nullptr);
    EXPECT_TRUE(panel.get_visible());
    panel.addControl(&plain);
    EXPECT_EQ(panel.get_child(), nullptr);
    GdkEventButton event{};
    event.button = 1;
    event.type = GDK_BUTTON_PRESS;
    // In no window.
    EXPECT_TRUE(panel._onButtonPress(&event));
}
