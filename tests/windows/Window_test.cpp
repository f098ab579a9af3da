#include <ZelCommonView/windows/Window.h>

#include "support/Answer.h"
#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace Zel;

int leftOf(Gtk::Widget& widget, Gtk::Widget& top) {
    int x = 0;
    int y = 0;
    widget.translate_coordinates(top, 0, 0, x, y);
    return x;
}

bool hasClass(const Gtk::Widget& widget, const char* name) {
    return widget.get_style_context()->has_class(name);
}

} // namespace

TEST(Window, HasABarOfItsOwn) {
    Zel::Window window;
    EXPECT_EQ(window.get_titlebar(), &window.titleBar);
    EXPECT_EQ(window.titleBar.get_valign(), Gtk::ALIGN_CENTER);
    EXPECT_FALSE(window.titleBar.get_vexpand());
    EXPECT_EQ(window.titleBar.property_margin().get_value(), 0);
    EXPECT_EQ(window.titleBar.get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    EXPECT_TRUE(hasClass(window.titleBar, "windowTitlebar"));
    EXPECT_EQ(window.get_window_type(), Gtk::WINDOW_TOPLEVEL);
}

TEST(Window, TheBarHoldsLogoTitleUserButtonsAndWindowButtonsInThisOrder) {
    Zel::Window window;
    const std::vector<Gtk::Widget*> expected{&window.logo, &window.title, &window.userButtons,
                                             &window.windowButtons};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(window.titleBar.get_child_at(static_cast<int>(i), 0), expected[i]) << i;
    EXPECT_EQ(window.titleBar.get_children().size(), expected.size());

    EXPECT_TRUE(hasClass(window.logo, "logo"));
    EXPECT_EQ(window.logo.property_width_request().get_value(), 95);
    EXPECT_EQ(window.logo.get_margin_start(), 10);

    EXPECT_TRUE(hasClass(window.title, "title"));
    EXPECT_TRUE(window.title.get_hexpand());
    EXPECT_TRUE(window.title.get_vexpand());
    EXPECT_EQ(window.title.get_halign(), Gtk::ALIGN_CENTER);
    int width = 0;
    int height = 0;
    window.title.get_size_request(width, height);
    EXPECT_EQ(width, -1);
    EXPECT_EQ(height, 20);

    for (Gtk::Grid* const grid : {&window.userButtons, &window.windowButtons}) {
        EXPECT_TRUE(grid->get_vexpand());
        EXPECT_FALSE(grid->get_hexpand());
        EXPECT_EQ(grid->get_valign(), Gtk::ALIGN_CENTER);
        EXPECT_EQ(grid->get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    }
}

TEST(Window, ReadsMinimizeMaximizeCloseFromTheLeft) {
    Zel::Window window;
    window.set_default_size(500, 200);
    window.show_all();
    test::present(window);
    EXPECT_LT(leftOf(window.btnMin, window), leftOf(window.btnMax, window));
    EXPECT_LT(leftOf(window.btnMax, window), leftOf(window.btnClose, window));
    EXPECT_TRUE(hasClass(window.btnMin, "btnMin"));
    EXPECT_TRUE(hasClass(window.btnMax, "btnMax"));
    EXPECT_FALSE(hasClass(window.btnMax, "btnUnMax"));
    EXPECT_TRUE(hasClass(window.btnClose, "btnClose"));
}

TEST(Window, TheTitleStandsInTheBarAndReachesTheWindowManager) {
    Zel::Window window;
    window.set_title("Осциллограмма");
    EXPECT_EQ(window.title.get_label(), "Осциллограмма");
    EXPECT_EQ(window.Gtk::Window::get_title(), "Осциллограмма");
}

TEST(Window, UserButtonsAddUpAndAreTakenOutWithoutBeingDeleted) {
    Zel::Window window;
    Gtk::Label first("first");
    auto* const second = Gtk::manage(new Gtk::Label("second"));
    window.setUserButtons(nullptr);
    EXPECT_FALSE(window.get_visible());
    window.setUserButtons(&first);
    window.setUserButtons(second);
    EXPECT_TRUE(window.get_visible());
    EXPECT_TRUE(first.get_visible());
    EXPECT_EQ(window.userButtons.get_child_at(0, 0), &first);
    EXPECT_EQ(window.userButtons.get_child_at(1, 0), second);

    test::Finalised finalised;
    finalised.watch(*second);
    window.removeUserButtons();
    EXPECT_TRUE(window.userButtons.get_children().empty());
    EXPECT_EQ(finalised.count, 0);
    EXPECT_EQ(first.get_parent(), nullptr);
    // Still usable, and its owner's again.
    window.setUserButtons(second);
    EXPECT_EQ(second->get_label(), "second");
}

TEST(Window, HasNoFrameOfTheWindowManagerHoweverOftenItIsShown) {
    Zel::Window window;
    window.set_default_size(300, 200);
    for (int i = 0; i < 2; ++i) {
        test::present(window);
        Gdk::WMDecoration decorations = Gdk::DECOR_ALL;
        EXPECT_TRUE(window.get_window()->get_decorations(decorations));
        EXPECT_EQ(static_cast<int>(decorations), 0);
        window.get_window()->set_decorations(Gdk::DECOR_ALL);
        window.hide();
        test::settle();
    }
}

TEST(Window, TheCloseButtonClosesAsAPersonDoes) {
    Zel::Window window;
    window.set_default_size(300, 200);
    window.show_all();
    bool isRefused = true;
    int asked = 0;
    window.signal_delete_event().connect(
        [&](GdkEventAny*) {
            ++asked;
            return isRefused;
        },
        false);
    test::present(window);
    test::click(window.btnClose);
    EXPECT_TRUE(test::waitFor([&asked] { return asked == 1; }));
    EXPECT_TRUE(window.get_visible());
    isRefused = false;
    test::click(window.btnClose);
    EXPECT_TRUE(test::waitFor([&window] { return !window.get_visible(); }));
    EXPECT_EQ(asked, 2);
}

TEST(Window, TheMaximizeButtonTogglesStateAndStyleClass) {
    Zel::Window window;
    window.set_default_size(300, 200);
    window.show_all();
    test::present(window);
    test::click(window.btnMax);
    EXPECT_TRUE(test::waitFor([&window] { return window.is_maximized(); }));
    EXPECT_TRUE(hasClass(window.btnMax, "btnUnMax"));
    EXPECT_FALSE(hasClass(window.btnMax, "btnMax"));
    test::settle();
    test::click(window.btnMax);
    EXPECT_TRUE(test::waitFor([&window] { return !window.is_maximized(); }));
    EXPECT_TRUE(hasClass(window.btnMax, "btnMax"));
    EXPECT_FALSE(hasClass(window.btnMax, "btnUnMax"));
}

TEST(Window, AChangeByTheWindowManagerDoesNotReachTheButton) {
    Zel::Window window;
    window.set_default_size(300, 200);
    window.show_all();
    test::present(window);
    window.maximize();
    EXPECT_TRUE(test::waitFor([&window] { return window.is_maximized(); }));
    EXPECT_FALSE(window.btnMax.get_active());
    EXPECT_TRUE(hasClass(window.btnMax, "btnMax"));
}

TEST(Window, TheMinimizeButtonIconifies) {
    Zel::Window window;
    window.set_default_size(300, 200);
    window.show_all();
    bool isIconified = false;
    window.signal_window_state_event().connect(
        [&](GdkEventWindowState* event) {
            isIconified = (event->new_window_state & GDK_WINDOW_STATE_ICONIFIED) != 0;
            return false;
        },
        false);
    test::present(window);
    test::click(window.btnMin);
    EXPECT_TRUE(test::waitFor([&isIconified] { return isIconified; }));
}

TEST(Window, EndsCompletely) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        auto window = std::make_unique<Zel::Window>();
        finalised.watch(*window);
        finalised.watch(window->titleBar);
        finalised.watch(window->btnClose);
    }
    EXPECT_TRUE(finalised.all());
}
