#include "support/Hands.h"

#include <ZelCommonView/oscillogram/ButtonsToolbar.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using ZelView::ButtonsToolbar;

std::vector<std::string> labelsOf(ButtonsToolbar& toolbar) {
    std::vector<std::string> labels;
    for (Gtk::Widget* child : toolbar.toolbar.get_children())
        labels.push_back(dynamic_cast<Gtk::ToolButton&>(*child).get_label());
    return labels;
}

void click(Gtk::ToolButton& button) {
    g_signal_emit_by_name(button.gobj(), "clicked");
}

} // namespace

TEST(ButtonsToolbarTest, HoldsAnEmptyToolbarAndIsShown) {
    ButtonsToolbar toolbar(true);
    EXPECT_EQ(toolbar.get_child(), &toolbar.toolbar);
    EXPECT_TRUE(toolbar.get_visible());
    EXPECT_TRUE(toolbar.toolbar.get_visible());
    EXPECT_TRUE(toolbar.toolbar.get_children().empty());
    EXPECT_EQ(toolbar.buttonCount, 0u);
    const void* const fields[] = {&toolbar.toolbar, &toolbar.buttons, &toolbar.buttonCount};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST(ButtonsToolbarTest, StandsAsItsArgumentSays) {
    EXPECT_EQ(ButtonsToolbar(true).toolbar.get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    EXPECT_EQ(ButtonsToolbar(false).toolbar.get_orientation(), Gtk::ORIENTATION_VERTICAL);
}

TEST(ButtonsToolbarTest, KeepsTheOrderOfAdding) {
    ButtonsToolbar toolbar(true);
    for (const char* label : {"c", "a", "b"})
        toolbar.addButton(label, [] {});
    EXPECT_EQ(labelsOf(toolbar), (std::vector<std::string>{"c", "a", "b"}));
    EXPECT_EQ(toolbar.buttonCount, 3u);
    ASSERT_EQ(toolbar.buttons.size(), 3u);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(toolbar.toolbar.get_nth_item(i), toolbar.buttons[i].get());
}

TEST(ButtonsToolbarTest, AButtonHasTheStyleClassOfTheThemeAndIsShown) {
    ButtonsToolbar toolbar(true);
    toolbar.addButton("<>", [] {});
    EXPECT_TRUE(toolbar.buttons[0]->get_style_context()->has_class("oscButton"));
    EXPECT_TRUE(toolbar.buttons[0]->get_visible());
}

TEST(ButtonsToolbarTest, AButtonHoldsACopyOfItsAction) {
    ButtonsToolbar toolbar(true);
    int calls = 0;
    std::function<void()> action = [&calls] { ++calls; };
    toolbar.addButton("a", action);
    action = [] { FAIL(); };
    click(*toolbar.buttons[0]);
    EXPECT_EQ(calls, 1);
}

TEST(ButtonsToolbarTest, TheActionRunsAfterTheListenersOfBefore) {
    // The action is connected after the default handlers; so is this listener, but later.
    ButtonsToolbar toolbar(true);
    std::vector<std::string> calls;
    toolbar.addButton("a", [&calls] { calls.push_back("action"); });
    toolbar.buttons[0]->signal_clicked().connect([&calls] { calls.push_back("before"); }, false);
    toolbar.buttons[0]->signal_clicked().connect([&calls] { calls.push_back("after"); }, true);
    click(*toolbar.buttons[0]);
    EXPECT_EQ(calls, (std::vector<std::string>{"before", "action", "after"}));
}

TEST(ButtonsToolbarTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        auto toolbar = std::make_unique<ButtonsToolbar>(i % 2 == 0);
        toolbar->addButton("a", [] {});
        toolbar->addButton("b", [] {});
        g_object_weak_ref(G_OBJECT(toolbar->gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(toolbar->toolbar.gobj()), count, &finalised);
        for (const auto& button : toolbar->buttons)
            g_object_weak_ref(G_OBJECT(button->gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 4000);
}

TEST(ButtonsToolbarOnScreen, EachClickCallsTheActionOfTheButtonUnderThePointer) {
    for (const bool horizontal : {true, false}) {
        std::string clicked;
        ButtonsToolbar toolbar(horizontal);
        toolbar.addButton("a", [&clicked] { clicked += 'a'; });
        toolbar.addButton("b", [&clicked] { clicked += 'b'; });
        Gtk::Window window;
        window.set_default_size(200, 150);
        window.add(toolbar);
        test::present(window);
        test::click(*toolbar.buttons[0]);
        EXPECT_TRUE(test::waitFor([&clicked] { return clicked == "a"; })) << clicked;
        test::click(*toolbar.buttons[1]);
        test::click(*toolbar.buttons[1]);
        test::click(*toolbar.buttons[0]);
        EXPECT_TRUE(test::waitFor([&clicked] { return clicked == "abba"; })) << clicked;
        const Gtk::Allocation first = toolbar.buttons[0]->get_allocation();
        const Gtk::Allocation second = toolbar.buttons[1]->get_allocation();
        EXPECT_EQ(first.get_x() < second.get_x(), horizontal);
        EXPECT_EQ(first.get_y() < second.get_y(), !horizontal);
    }
}

TEST(ButtonsToolbarOnScreen, AButtonAddedToAShownToolbarIsSeenAtOnce) {
    int calls = 0;
    ButtonsToolbar toolbar(true);
    Gtk::Window window;
    window.set_default_size(200, 100);
    window.add(toolbar);
    test::present(window);
    toolbar.addButton("late", [&calls] { ++calls; });
    test::settle();
    test::click(*toolbar.buttons[0]);
    EXPECT_TRUE(test::waitFor([&calls] { return calls == 1; }));
}
