#include "support/Hands.h"
#include "support/LogWatch.h"

#include <ZelCommonView/fragments/FragmentableCollectionWidget.h>
#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>
#include <ZelCommonView/plot/Series.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using namespace ZelView;
using Collection = std::list<const Zel::IFragmentable*>;
using Widgets = std::vector<Gtk::Widget*>;

std::string thrownBy(const std::function<void()>& action) {
    try {
        action();
    } catch (const char* text) {
        return text;
    } catch (const std::out_of_range& error) {
        return std::string("out of range: ") + error.what();
    }
    return "nothing";
}

struct FragmentableCollectionWidgetTest : testing::Test {
    FragmentableCollectionWidgetTest() {
        for (std::size_t i = 0; i < series.size(); ++i)
            series[i].name = std::string(3 * i + 1, 'm');
    }

    Widgets members(const SizeGroupAdapter& adapter) const { return adapter.getGroup()->get_widgets(); }

    Gtk::Widget* row(int i) { return &legend.widgets.at(&series[static_cast<std::size_t>(i)]); }

    int top(int i) {
        int position = -1;
        gtk_container_child_get(GTK_CONTAINER(legend.grid.gobj()), row(i)->gobj(), "top-attach", &position,
                                nullptr);
        return position;
    }

    int preferredWidth(int i) {
        int minimum = 0, natural = 0;
        row(i)->get_preferred_width(minimum, natural);
        return natural;
    }

    std::array<Zel::Series, 4> series; // in the order of their addresses
    FragmentableCollectionWidget legend;
};

} // namespace

TEST_F(FragmentableCollectionWidgetTest, StartsAsAnEmptyColumnBelowAMargin) {
    EXPECT_EQ(legend.get_child(), &legend.grid);
    EXPECT_EQ(legend.grid.get_orientation(), Gtk::ORIENTATION_VERTICAL);
    EXPECT_EQ(legend.grid.get_margin_top(), 10);
    EXPECT_TRUE(legend.get_visible());
    EXPECT_TRUE(legend.grid.get_visible());
    EXPECT_TRUE(legend.getFragmentableCollection().empty());
    EXPECT_EQ(&legend.getFragmentableCollection(), &legend.collection);
    EXPECT_EQ(legend.sizeGroup->getGroup()->get_mode(), Gtk::SIZE_GROUP_HORIZONTAL);
    const void* const fields[] = {&legend.collection, &legend.widgets, &legend.grid, &legend.sizeGroup,
                                  &legend.addedWidgets};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(FragmentableCollectionWidgetTest, KeepsTheOrderOfAddingAndOwnsTheRowsByAddress) {
    for (int i : {2, 0, 1})
        legend.addFragmentable(series[static_cast<std::size_t>(i)]);
    EXPECT_EQ(legend.getFragmentableCollection(), (Collection{&series[2], &series[0], &series[1]}));
    EXPECT_EQ(top(2), 0);
    EXPECT_EQ(top(0), 1);
    EXPECT_EQ(top(1), 2);
    EXPECT_EQ(legend.addedWidgets, (Widgets{row(2), row(0), row(1)}));
    std::vector<const Zel::IFragmentable*> keys;
    for (const auto& [key, widget] : legend.widgets) {
        EXPECT_EQ(&widget.fragmentable, key);
        EXPECT_TRUE(widget.get_visible());
        keys.push_back(key);
    }
    EXPECT_EQ(keys, (std::vector<const Zel::IFragmentable*>{&series[0], &series[1], &series[2]}));
}

TEST_F(FragmentableCollectionWidgetTest, ItsRowsHaveOneWidth) {
    legend.addFragmentable(series[0]);
    const int alone = preferredWidth(0);
    legend.addFragmentable(series[3]);
    EXPECT_GT(preferredWidth(3), alone);
    EXPECT_EQ(preferredWidth(0), preferredWidth(3));
    // The adapter itself is told of none.
    EXPECT_TRUE(legend.sizeGroup->widgets.empty());
}

TEST_F(FragmentableCollectionWidgetTest, AddedTwiceThrowsWithTheEntryInTheListTwice) {
    legend.addFragmentable(series[0]);
    {
        const test::ExpectedLog already("but the widget is already inside a container");
        EXPECT_EQ(thrownBy([this] { legend.addFragmentable(series[0]); }), "addWidget");
    }
    EXPECT_EQ(legend.collection, (Collection{&series[0], &series[0]}));
    EXPECT_EQ(legend.widgets.size(), 1u);
    EXPECT_EQ(row(0)->get_parent(), &legend.grid);
    EXPECT_EQ(legend.addedWidgets, (Widgets{row(0)}));
    legend.deleteFragmentable(series[0]);
    EXPECT_TRUE(legend.collection.empty());
    EXPECT_TRUE(legend.widgets.empty());
}

TEST_F(FragmentableCollectionWidgetTest, DeletingRemovesTheRowEverywhere) {
    for (const Zel::Series& each : series)
        legend.addFragmentable(each);
    legend.deleteFragmentable(series[1]);
    EXPECT_EQ(legend.collection, (Collection{&series[0], &series[2], &series[3]}));
    EXPECT_EQ(legend.widgets.count(&series[1]), 0u);
    EXPECT_EQ(legend.grid.get_children().size(), 3u);
    EXPECT_EQ(legend.addedWidgets, (Widgets{row(0), row(2), row(3)}));
    EXPECT_EQ(members(*legend.sizeGroup).size(), 3u);
}

TEST_F(FragmentableCollectionWidgetTest, DeletingAnUnknownOneIsOutOfRange) {
    legend.addFragmentable(series[0]);
    EXPECT_EQ(thrownBy([this] { legend.deleteFragmentable(series[1]); }), "out of range: map::at");
    EXPECT_EQ(legend.collection, (Collection{&series[0]}));
}

TEST_F(FragmentableCollectionWidgetTest, DeletingARowThatIsInNoGroupThrows) {
    legend.addFragmentable(series[0]);
    legend.addedWidgets.clear();
    EXPECT_EQ(thrownBy([this] { legend.deleteFragmentable(series[0]); }), "removeWidget");
    EXPECT_TRUE(legend.collection.empty());
    EXPECT_EQ(legend.widgets.size(), 1u);
    EXPECT_EQ(row(0)->get_parent(), nullptr);
}

TEST_F(FragmentableCollectionWidgetTest, TheSameObjectMayComeAndGoAnyNumberOfTimes) {
    SizeGroupAdapter shared;
    legend.setFragmentableGroup(shared);
    for (int i = 0; i < 100; ++i) {
        legend.addFragmentable(series[0]);
        EXPECT_EQ(members(shared), (Widgets{row(0)}));
        legend.deleteFragmentable(series[0]);
        EXPECT_TRUE(members(shared).empty());
    }
}

TEST_F(FragmentableCollectionWidgetTest, AnotherGroupTakesTheRowsOverAndThoseOfLater) {
    legend.addFragmentable(series[0]);
    legend.addFragmentable(series[1]);
    const auto former = legend.sizeGroup->getGroup();
    SizeGroupAdapter shared;
    legend.setFragmentableGroup(shared);
    EXPECT_TRUE(former->get_widgets().empty());
    EXPECT_EQ(members(shared).size(), 2u);
    EXPECT_EQ(legend.sizeGroup->getGroup(), shared.getGroup());
    legend.addFragmentable(series[2]);
    EXPECT_EQ(members(shared).size(), 3u);
    EXPECT_TRUE(shared.widgets.empty());
    legend.deleteFragmentable(series[0]);
    EXPECT_EQ(members(shared).size(), 2u);
}

TEST_F(FragmentableCollectionWidgetTest, TheCurrentGroupKeepsItsRows) {
    SizeGroupAdapter shared;
    legend.addFragmentable(series[0]);
    legend.addFragmentable(series[1]);
    legend.setFragmentableGroup(shared);
    legend.setFragmentableGroup(shared);
    EXPECT_EQ(members(shared).size(), 2u);
    legend.setFragmentableGroup(*legend.sizeGroup);
    EXPECT_EQ(members(shared).size(), 2u);
}

TEST_F(FragmentableCollectionWidgetTest, TwoLegendsInOneGroupHaveOneWidth) {
    SizeGroupAdapter shared;
    FragmentableCollectionWidget other;
    legend.setFragmentableGroup(shared);
    other.setFragmentableGroup(shared);
    legend.addFragmentable(series[0]);
    other.addFragmentable(series[3]);
    int minimum = 0, natural = 0;
    other.widgets.at(&series[3]).get_preferred_width(minimum, natural);
    EXPECT_EQ(preferredWidth(0), natural);
}

TEST_F(FragmentableCollectionWidgetTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    SizeGroupAdapter shared;
    for (int i = 0; i < 1000; ++i) {
        auto shortLived = std::make_unique<FragmentableCollectionWidget>();
        shortLived->setFragmentableGroup(shared);
        shortLived->addFragmentable(series[0]);
        shortLived->addFragmentable(series[1]);
        g_object_weak_ref(G_OBJECT(shortLived->gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived->grid.gobj()), count, &finalised);
        for (auto& [key, widget] : shortLived->widgets)
            g_object_weak_ref(G_OBJECT(widget.gobj()), count, &finalised);
        if (i % 2 == 0)
            shortLived->deleteFragmentable(series[0]);
    }
    EXPECT_EQ(finalised, 4000);
    EXPECT_TRUE(members(shared).empty());
}
