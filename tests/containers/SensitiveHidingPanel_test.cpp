#include <ZelCommonView/containers/SensitiveHidingPanel.h>

#include "support/Finalised.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

namespace {

using namespace Zel;

class SensitiveHidingPanelTest : public testing::Test {
protected:
    SensitiveHidingPanelTest() {
        panel.add(child);
        box.add(panel);
        box.show_all();
    }

    Gtk::Box box;
    Gtk::Label child{"child"};
    SensitiveHidingPanel panel;
};

} // namespace

TEST_F(SensitiveHidingPanelTest, IsThereWhileItIsSensitive) {
    EXPECT_EQ(panel.get_border_width(), 0u);
    EXPECT_TRUE(panel.get_visible());
    EXPECT_TRUE(panel.lastSensitivity);
}

TEST_F(SensitiveHidingPanelTest, GoesByItselfAndComesBackWithItsChild) {
    panel.set_sensitive(false);
    EXPECT_FALSE(panel.get_visible());
    child.hide();
    panel.set_sensitive(true);
    EXPECT_TRUE(panel.get_visible());
    EXPECT_TRUE(child.get_visible());
}

TEST_F(SensitiveHidingPanelTest, GoesWithWhatItLiesInAndAShowAllDoesNotBringItBack) {
    box.set_sensitive(false);
    EXPECT_FALSE(panel.get_visible());
    box.show_all();
    EXPECT_FALSE(panel.get_visible());
    box.set_sensitive(true);
    EXPECT_TRUE(panel.get_visible());
}

TEST_F(SensitiveHidingPanelTest, OtherStatesLeaveItAlone) {
    panel.hide();
    panel.set_state_flags(Gtk::STATE_FLAG_PRELIGHT, false);
    EXPECT_FALSE(panel.get_visible());
    EXPECT_FALSE(panel.get_no_show_all());
}

TEST(SensitiveHidingPanel, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        SensitiveHidingPanel panel;
        finalised.watch(panel);
    }
    EXPECT_TRUE(finalised.all());
}
