#include <ZelCommonView/containers/SharedSizeGroup.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>

namespace {

using namespace Zel;

/// Two owners side by side, below a window, since Gtk tells of changes only there.
class SharedSizeGroupTest : public testing::Test {
protected:
    SharedSizeGroupTest() {
        first.add(firstBox);
        second.add(secondBox);
        root.add(first);
        root.add(second);
        window.add(root);
        window.show_all();
    }

    /// A cell around a label of the given width.
    SharedSizeGroup& cell(const std::string& name, int width) {
        auto* const group = Gtk::make_managed<SharedSizeGroup>(name);
        auto* const label = Gtk::make_managed<Gtk::Label>();
        label->set_size_request(width, 10);
        group->add(*label);
        group->show_all();
        return *group;
    }

    static int widthOf(Gtk::Widget& widget) {
        int minimum = 0;
        int natural = 0;
        widget.get_preferred_width(minimum, natural);
        return minimum;
    }

    Gtk::OffscreenWindow window;
    Gtk::Box root;
    SharedSizeGroupOwner first;
    SharedSizeGroupOwner second;
    Gtk::Box firstBox;
    Gtk::Box secondBox;
};

} // namespace

TEST_F(SharedSizeGroupTest, CellsOfOneNameAreAsWideAsTheWidest) {
    SharedSizeGroup& narrow = cell("name", 30);
    SharedSizeGroup& wide = cell("name", 90);
    SharedSizeGroup& other = cell("other", 50);
    auto* const nested = Gtk::make_managed<Gtk::Box>();
    firstBox.add(narrow);
    nested->add(wide);
    firstBox.add(*nested);
    firstBox.add(other);
    EXPECT_EQ(narrow.getGroupName(), "name");
    EXPECT_EQ(widthOf(narrow), 90);
    EXPECT_EQ(widthOf(other), 50);
    EXPECT_EQ(first.getGroupMap().size(), 2u);
    EXPECT_EQ(first.getGroupMap()["name"]->get_mode(), Gtk::SIZE_GROUP_HORIZONTAL);
    EXPECT_EQ(narrow.targetGroup, first.getGroupMap()["name"]);
    EXPECT_EQ(wide.targetGroup, narrow.targetGroup);
}

TEST_F(SharedSizeGroupTest, TwoOwnersKeepSeparateGroups) {
    SharedSizeGroup& narrow = cell("name", 30);
    SharedSizeGroup& wide = cell("name", 90);
    firstBox.add(narrow);
    secondBox.add(wide);
    EXPECT_EQ(widthOf(narrow), 30);
    EXPECT_NE(first.getGroupMap()["name"], second.getGroupMap()["name"]);
}

TEST_F(SharedSizeGroupTest, OfNestedOwnersTheNearestCounts) {
    SharedSizeGroupOwner inner;
    SharedSizeGroup& group = cell("name", 30);
    inner.add(group);
    firstBox.add(inner);
    EXPECT_EQ(group.targetGroup, inner.getGroupMap()["name"]);
    EXPECT_TRUE(first.getGroupMap().empty());
    firstBox.remove(inner);
}

TEST_F(SharedSizeGroupTest, WithoutAnOwnerACellIsInNoGroup) {
    SharedSizeGroup& group = cell("name", 30);
    EXPECT_FALSE(group.targetGroup);
    root.add(group);
    EXPECT_FALSE(group.targetGroup);
    EXPECT_EQ(widthOf(group), 30);
}

TEST_F(SharedSizeGroupTest, ACellThatGoesLeavesTheGroup) {
    SharedSizeGroup group("name");
    SharedSizeGroup& wide = cell("name", 90);
    firstBox.add(group);
    firstBox.add(wide);
    const auto left = group.targetGroup;
    ASSERT_TRUE(left);
    EXPECT_EQ(left->get_widgets().size(), 2u);
    firstBox.remove(group);
    EXPECT_FALSE(group.targetGroup);
    EXPECT_EQ(left->get_widgets().size(), 1u);
    // The group stays, also without members.
    firstBox.remove(wide);
    EXPECT_EQ(first.getGroupMap()["name"], left);
}

TEST_F(SharedSizeGroupTest, ACellThatMovesChangesItsGroup) {
    SharedSizeGroup group("name");
    firstBox.add(group);
    const auto before = group.targetGroup;
    firstBox.remove(group);
    secondBox.add(group);
    EXPECT_EQ(group.targetGroup, second.getGroupMap()["name"]);
    EXPECT_NE(group.targetGroup, before);
    EXPECT_TRUE(before->get_widgets().empty());
}

TEST_F(SharedSizeGroupTest, AnEmptyEntryIsFilled) {
    first.getGroupMap()["name"] = Glib::RefPtr<Gtk::SizeGroup>();
    SharedSizeGroup& group = cell("name", 30);
    firstBox.add(group);
    EXPECT_TRUE(first.getGroupMap()["name"]);
    EXPECT_EQ(group.targetGroup, first.getGroupMap()["name"]);
}

TEST_F(SharedSizeGroupTest, CellsAndOwnersMayDieInAnyOrder) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        auto owner = std::make_unique<SharedSizeGroupOwner>();
        auto group = std::make_unique<SharedSizeGroup>("name");
        finalised.watch(*owner);
        finalised.watch(*group);
        owner->add(*group);
        root.add(*owner);
        ASSERT_TRUE(group->targetGroup);
        if (i % 2)
            owner.reset();
        group.reset();
    }
    EXPECT_TRUE(finalised.all());
}
