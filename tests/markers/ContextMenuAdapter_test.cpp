#include "support/Hands.h"

#include <ZelCommonView/markers/ContextMenuAdapter.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace ZelView;

class ContextMenuAdapterTest : public testing::Test {
protected:
    ContextMenuAdapterTest() {
        area.set_size_request(200, 100);
        window.add(area);
        adapter = std::make_unique<ContextMenuAdapter>(area);
        test::present(window);
    }

    bool isShown() { return adapter->menu.get_mapped(); }

    void popUp() {
        test::click(area, 50, 40, 3);
        ASSERT_TRUE(test::waitFor([this] { return isShown(); }));
    }

    Gtk::DrawingArea area;
    Gtk::Window window;
    std::unique_ptr<ContextMenuAdapter> adapter;
};

} // namespace

TEST_F(ContextMenuAdapterTest, WithoutItemsARightClickShowsNothing) {
    EXPECT_TRUE(area.get_events() & Gdk::BUTTON_PRESS_MASK);
    test::click(area, 50, 40, 3);
    test::wait(100);
    EXPECT_FALSE(isShown());
}

TEST_F(ContextMenuAdapterTest, ARightClickShowsTheItemsAndAClickOnOneRunsIt) {
    int first = 0;
    int second = 0;
    adapter->addAction("first", [&] { ++first; });
    adapter->addAction("second", [&] { ++second; });
    test::click(area, 50, 40, 1);
    test::wait(100);
    EXPECT_FALSE(isShown());

    popUp();
    ASSERT_EQ(adapter->items.size(), 2u);
    EXPECT_EQ(adapter->items.front().get_label(), "first");
    test::click(adapter->items.back());
    EXPECT_TRUE(test::waitFor([&] { return second == 1; }));
    EXPECT_EQ(first, 0);
    EXPECT_FALSE(isShown());
}

TEST_F(ContextMenuAdapterTest, ThePressGoesOnToOthers) {
    int others = 0;
    adapter->addAction("first", [] {});
    area.signal_button_press_event().connect(
        [&](GdkEventButton*) {
            ++others;
            return false;
        },
        true);
    popUp();
    EXPECT_EQ(others, 1);
    adapter->menu.popdown();
    test::settle();
}

TEST_F(ContextMenuAdapterTest, AnAdapterThatIsGoneShowsNothing) {
    adapter->addAction("first", [] {});
    adapter.reset();
    test::click(area, 50, 40, 3);
    test::wait(100);
    for (Gtk::Window* top : Gtk::Window::list_toplevels())
        EXPECT_TRUE(top == &window || !top->get_mapped());
}
