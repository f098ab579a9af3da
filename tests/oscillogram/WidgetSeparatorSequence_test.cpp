#include "support/Hands.h"

#include <ZelCommonView/oscillogram/WidgetSeparatorSequence.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using ZelView::WidgetSeparatorSequence;
using Widgets = std::vector<Gtk::Widget*>;

bool canResize(Gtk::Paned& paned, Gtk::Widget& child) {
    gboolean resize = FALSE;
    gtk_container_child_get(GTK_CONTAINER(paned.gobj()), child.gobj(), "resize", &resize, nullptr);
    return resize;
}

bool canShrink(Gtk::Paned& paned, Gtk::Widget& child) {
    gboolean shrink = FALSE;
    gtk_container_child_get(GTK_CONTAINER(paned.gobj()), child.gobj(), "shrink", &shrink, nullptr);
    return shrink;
}

struct WidgetSeparatorSequenceTest : testing::Test {
    WidgetSeparatorSequenceTest() {
        sequence.signalSeparatorMoved.connect([this](Gtk::Widget& widget) { moved.push_back(&widget); });
    }

    Gtk::Label first{"first"}, second{"second"}, third{"third"};
    Widgets moved;
    WidgetSeparatorSequence sequence{false};
};

} // namespace

TEST_F(WidgetSeparatorSequenceTest, StartsEmpty) {
    EXPECT_EQ(sequence.get_child(), nullptr);
    EXPECT_FALSE(sequence.horizontal);
    EXPECT_TRUE(WidgetSeparatorSequence(true).horizontal);
    EXPECT_TRUE(sequence.paneds.empty());
    EXPECT_TRUE(sequence.widgets.empty());
    const void* const fields[] = {&sequence.signalSeparatorMoved, &sequence.horizontal, &sequence.paneds,
                                  &sequence.widgets};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(WidgetSeparatorSequenceTest, TheFirstTwoWidgetsShareOnePane) {
    sequence.addWidget(first);
    ASSERT_EQ(sequence.paneds.size(), 1u);
    Gtk::Paned& paned = sequence.paneds.front();
    EXPECT_EQ(sequence.get_child(), &paned);
    EXPECT_EQ(paned.get_child1(), &first);
    EXPECT_EQ(paned.get_child2(), nullptr);
    EXPECT_TRUE(paned.get_wide_handle());
    EXPECT_TRUE(paned.get_visible());

    sequence.addWidget(second);
    EXPECT_EQ(sequence.paneds.size(), 1u);
    EXPECT_EQ(paned.get_child1(), &first);
    EXPECT_EQ(paned.get_child2(), &second);
    EXPECT_EQ(sequence.widgets, (Widgets{&first, &second}));
    for (Gtk::Label* label : {&first, &second}) {
        EXPECT_TRUE(canResize(paned, *label));
        EXPECT_FALSE(canShrink(paned, *label));
    }
}

TEST_F(WidgetSeparatorSequenceTest, StacksAsItsArgumentSays) {
    sequence.addWidget(first);
    EXPECT_EQ(sequence.paneds.front().get_orientation(), Gtk::ORIENTATION_VERTICAL);
    WidgetSeparatorSequence row(true);
    row.addWidget(second);
    EXPECT_EQ(row.paneds.front().get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
}

TEST_F(WidgetSeparatorSequenceTest, MovingTheSeparatorIsToldForEachWidgetInTheOrderOfAdding) {
    sequence.addWidget(first);
    sequence.addWidget(second);
    EXPECT_TRUE(moved.empty());
    sequence.paneds.front().set_position(17);
    EXPECT_EQ(moved, (Widgets{&first, &second}));
    sequence.paneds.front().set_position(18);
    EXPECT_EQ(moved, (Widgets{&first, &second, &first, &second}));
}

TEST_F(WidgetSeparatorSequenceTest, AThirdWidgetIsToldOfMovesAndIsNotShown) {
    sequence.addWidget(first);
    sequence.addWidget(second);
    sequence.addWidget(third);
    EXPECT_EQ(sequence.paneds.size(), 1u);
    EXPECT_EQ(sequence.get_child(), &sequence.paneds.front());
    EXPECT_EQ(sequence.paneds.front().get_child1(), &first);
    EXPECT_EQ(sequence.paneds.front().get_child2(), &second);
    EXPECT_EQ(third.get_parent(), nullptr);
    sequence.paneds.front().set_position(17);
    EXPECT_EQ(moved, (Widgets{&first, &second, &third}));
}

TEST_F(WidgetSeparatorSequenceTest, WithMorePanesAWidgetWouldGetANewOneAroundTheLast) {
    sequence._createPaned();
    sequence._createPaned();
    Gtk::Paned& last = sequence.paneds.back();
    sequence.add(last);
    sequence.addWidget(first);
    ASSERT_EQ(sequence.paneds.size(), 3u);
    Gtk::Paned& newest = sequence.paneds.back();
    EXPECT_EQ(sequence.get_child(), &newest);
    EXPECT_EQ(newest.get_child1(), &last);
    EXPECT_EQ(newest.get_child2(), &first);
    EXPECT_TRUE(canResize(newest, last));
    EXPECT_TRUE(canResize(newest, first));
    EXPECT_EQ(sequence.widgets, (Widgets{&first}));
}

TEST_F(WidgetSeparatorSequenceTest, AListenerMayAddAWidget) {
    sequence.addWidget(first);
    sequence.addWidget(second);
    std::vector<std::unique_ptr<Gtk::Label>> late;
    sequence.signalSeparatorMoved.connect([&](Gtk::Widget&) {
        late.push_back(std::make_unique<Gtk::Label>());
        sequence.addWidget(*late.back());
    });
    sequence.paneds.front().set_position(17);
    EXPECT_EQ(moved, (Widgets{&first, &second}));
    EXPECT_EQ(sequence.widgets.size(), 4u);
}

TEST_F(WidgetSeparatorSequenceTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        // Once the widgets go first, once the sequence.
        auto one = std::make_unique<Gtk::Label>();
        auto two = std::make_unique<Gtk::Label>();
        auto shortLived = std::make_unique<WidgetSeparatorSequence>(i % 2 == 0);
        shortLived->addWidget(*one);
        shortLived->addWidget(*two);
        g_object_weak_ref(G_OBJECT(one->gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(two->gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived->gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived->paneds.front().gobj()), count, &finalised);
        if (i % 3 == 0)
            shortLived.reset();
    }
    EXPECT_EQ(finalised, 4000);
}

TEST_F(WidgetSeparatorSequenceTest, OnTheScreenADraggedSeparatorGivesOneWidgetWhatItTakesFromTheOther) {
    sequence.addWidget(first);
    sequence.addWidget(second);
    Gtk::Window window;
    window.set_default_size(200, 300);
    window.add(sequence);
    test::present(window);
    Gtk::Paned& paned = sequence.paneds.front();
    const int position = paned.get_position();
    const int height = second.get_allocated_height();
    ASSERT_GT(height, 100);
    moved.clear();
    test::drag(paned, 100, position + 2, 100, position + 42);
    EXPECT_TRUE(test::waitFor([&] { return second.get_allocated_height() < height; }));
    const int gained = paned.get_position() - position;
    EXPECT_NEAR(gained, 40, 4);
    EXPECT_EQ(second.get_allocated_height(), height - gained);
    ASSERT_GE(moved.size(), 2u);
    for (std::size_t i = 0; i < moved.size(); ++i)
        EXPECT_EQ(moved[i], i % 2 == 0 ? &first : &second) << i;
    test::movePointerAway();
}

TEST_F(WidgetSeparatorSequenceTest, OnTheScreenAWidgetIsSeenAsSoonAsItIsAdded) {
    Gtk::Window window;
    window.set_default_size(200, 300);
    window.add(sequence);
    test::present(window);
    first.show();
    sequence.addWidget(first);
    EXPECT_TRUE(test::waitFor([this] { return first.get_mapped(); }));
    second.show();
    sequence.addWidget(second);
    EXPECT_TRUE(test::waitFor([this] { return second.get_mapped() && second.get_allocated_height() > 1; }));
}

TEST_F(WidgetSeparatorSequenceTest, OnTheScreenTheWidgetsMayGoBeforeTheSequence) {
    Gtk::Window window;
    window.set_default_size(200, 300);
    window.add(sequence);
    auto one = std::make_unique<Gtk::Label>("one");
    auto two = std::make_unique<Gtk::Label>("two");
    sequence.addWidget(*one);
    sequence.addWidget(*two);
    test::present(window);
    moved.clear();
    two.reset();
    test::settle();
    one.reset();
    test::settle();
    EXPECT_TRUE(moved.empty());
}
