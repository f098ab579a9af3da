#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using ZelView::SizeGroupAdapter;

static_assert(!std::is_copy_constructible_v<SizeGroupAdapter>);
static_assert(!std::is_polymorphic_v<SizeGroupAdapter>);

std::vector<Gtk::Widget*> membersOf(const SizeGroupAdapter& adapter) {
    std::vector<Gtk::Widget*> members = adapter.getGroup()->get_widgets();
    std::reverse(members.begin(), members.end()); // GTK puts the newest first
    return members;
}

using Widgets = std::vector<Gtk::Widget*>;

struct SizeGroupAdapterTest : testing::Test {
    Gtk::Label first{"first"}, second{"second"}, third{"third"};
    SizeGroupAdapter adapter;
};

} // namespace

TEST_F(SizeGroupAdapterTest, StartsWithAnEmptyHorizontalGroupOfItsOwn) {
    EXPECT_EQ(adapter.group->get_mode(), Gtk::SIZE_GROUP_HORIZONTAL);
    EXPECT_TRUE(membersOf(adapter).empty());
    EXPECT_TRUE(adapter.widgets.empty());
    EXPECT_EQ(adapter.getGroup(), adapter.group);
    const SizeGroupAdapter other;
    EXPECT_NE(other.group, adapter.group);
    const void* const fields[] = {&adapter.group, &adapter.widgets};
    EXPECT_LT(fields[0], fields[1]);
}

TEST_F(SizeGroupAdapterTest, RemembersWhatIsAddedInOrder) {
    adapter.addWidget(second);
    adapter.addWidget(first);
    EXPECT_EQ(adapter.widgets, (Widgets{&second, &first}));
    EXPECT_EQ(membersOf(adapter), (Widgets{&second, &first}));
}

TEST_F(SizeGroupAdapterTest, GivesItsWidgetsOneWidth) {
    Gtk::Label longer("a text that is a good deal longer");
    int alone = 0, wanted = 0, ignored = 0;
    first.show();
    longer.show();
    first.get_preferred_width(ignored, alone);
    longer.get_preferred_width(ignored, wanted);
    ASSERT_LT(alone, wanted);
    adapter.addWidget(first);
    adapter.addWidget(longer);
    int together = 0;
    first.get_preferred_width(ignored, together);
    EXPECT_EQ(together, wanted);
}

TEST_F(SizeGroupAdapterTest, AWidgetAddedTwiceThrowsAndChangesNothing) {
    adapter.addWidget(first);
    try {
        adapter.addWidget(first);
        FAIL();
    } catch (const char* text) {
        EXPECT_EQ(std::string(text), "addWidget");
    }
    EXPECT_EQ(adapter.widgets, (Widgets{&first}));
    EXPECT_EQ(membersOf(adapter), (Widgets{&first}));
}

TEST_F(SizeGroupAdapterTest, AnAssignmentMovesItsWidgetsToTheOtherGroupAndSharesIt) {
    SizeGroupAdapter other;
    other.addWidget(third);
    adapter.addWidget(first);
    adapter.addWidget(second);
    const auto former = adapter.group;
    SizeGroupAdapter& result = (adapter = other);
    EXPECT_EQ(&result, &adapter);
    EXPECT_EQ(adapter.group, other.group);
    EXPECT_TRUE(former->get_widgets().empty());
    EXPECT_EQ(membersOf(other), (Widgets{&third, &first, &second}));
    EXPECT_EQ(adapter.widgets, (Widgets{&first, &second}));
    EXPECT_EQ(other.widgets, (Widgets{&third}));
}

TEST_F(SizeGroupAdapterTest, WhatIsAddedAfterAnAssignmentJoinsTheSharedGroup) {
    const SizeGroupAdapter other;
    adapter = other;
    adapter.addWidget(first);
    EXPECT_EQ(membersOf(other), (Widgets{&first}));
    EXPECT_TRUE(other.widgets.empty());
}

TEST_F(SizeGroupAdapterTest, ALaterAssignmentMovesOnlyWhatWasAddedToTheAdapterItself) {
    SizeGroupAdapter other;
    const SizeGroupAdapter last;
    other.addWidget(third);
    adapter.addWidget(first);
    adapter = other;
    const auto shared = other.group;
    other = last;
    EXPECT_EQ(membersOf(last), (Widgets{&third}));
    EXPECT_EQ(shared->get_widgets(), (Widgets{&first}));
    EXPECT_EQ(adapter.group, shared);
}

TEST_F(SizeGroupAdapterTest, TwoAssignmentsLeaveAWidgetOnlyInTheLatterGroup) {
    const SizeGroupAdapter one, two;
    adapter.addWidget(first);
    adapter = one;
    adapter = two;
    EXPECT_TRUE(membersOf(one).empty());
    EXPECT_EQ(membersOf(two), (Widgets{&first}));
}

TEST_F(SizeGroupAdapterTest, AssignedToItselfRemovesEachWidgetAndAddsItBack) {
    adapter.addWidget(first);
    adapter.addWidget(second);
    adapter.addWidget(third);
    const auto former = adapter.group;
    SizeGroupAdapter& same = adapter;
    adapter = same;
    EXPECT_EQ(adapter.group, former);
    EXPECT_EQ(adapter.widgets, (Widgets{&first, &second, &third}));
    EXPECT_EQ(membersOf(adapter), (Widgets{&first, &second, &third}));
}

TEST_F(SizeGroupAdapterTest, AWidgetThatDiesLeavesTheGroup) {
    auto shortLived = std::make_unique<Gtk::Label>("short");
    adapter.addWidget(*shortLived);
    adapter.addWidget(first);
    shortLived.reset();
    EXPECT_EQ(membersOf(adapter), (Widgets{&first}));
}

TEST_F(SizeGroupAdapterTest, AThousandAdaptersLeaveNoGroupBehind) {
    int finalised = 0;
    for (int i = 0; i < 1000; ++i) {
        Gtk::Label label;
        SizeGroupAdapter shortLived;
        g_object_weak_ref(
            G_OBJECT(shortLived.group->gobj()), [](gpointer count, GObject*) { ++*static_cast<int*>(count); },
            &finalised);
        shortLived.addWidget(label);
        shortLived = adapter;
    }
    EXPECT_EQ(finalised, 1000);
    EXPECT_TRUE(membersOf(adapter).empty());
}
