// Every page of the gallery goes with all its widgets.
#include "Pages.h"
#include "Search.h"

#include "support/Hands.h"

#include <gtest/gtest.h>

namespace {

/// Fewer where the sanitizer, which sees what a single life leaves behind, makes each of them slow.
constexpr int lives = test::patience > 1 ? 10 : 50;

class PageLives : public testing::TestWithParam<gallery::Page> {};

void countFinalised(gpointer count, GObject*) {
    ++*static_cast<int*>(count);
}

} // namespace

TEST_P(PageLives, ManyLivesLeaveNoWidgetBehind) {
    int made = 0;
    int finalised = 0;
    for (int i = 0; i < lives; ++i) {
        const auto widget = GetParam().create();
        for (Gtk::Widget* part : test::findAll<Gtk::Widget>(*widget)) {
            g_object_weak_ref(G_OBJECT(part->gobj()), countFinalised, &finalised);
            ++made;
        }
    }
    test::settle();
    EXPECT_GE(made, 2 * lives);
    EXPECT_EQ(finalised, made);
}

TEST_P(PageLives, LeavesNoWidgetBehindWhenItWasPainted) {
    int finalised = 0;
    int made = 0;
    for (int i = 0; i < 3; ++i) {
        const auto widget = GetParam().create();
        test::OffscreenHost host(*widget, 800, 500);
        for (Gtk::Widget* part : test::findAll<Gtk::Widget>(*widget)) {
            g_object_weak_ref(G_OBJECT(part->gobj()), countFinalised, &finalised);
            ++made;
        }
    }
    test::settle();
    EXPECT_EQ(finalised, made);
}

INSTANTIATE_TEST_SUITE_P(All, PageLives, testing::ValuesIn(gallery::allPages()),
                         [](const auto& test) { return test.param.name; });
