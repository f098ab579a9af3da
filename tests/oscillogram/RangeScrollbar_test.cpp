#include "support/Hands.h"

#include <ZelCommonView/oscillogram/RangeScrollbar.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using ZelView::RangeScrollbar;
using Range = std::pair<float, float>;
using Ranges = std::vector<Range>;

enum Button : std::size_t { Shorter, Longer, Whole };

struct RangeScrollbarTest : testing::Test {
    RangeScrollbarTest() {
        range.signalRangeChanged.connect([this](float start, float end) { told.emplace_back(start, end); });
    }

    Gtk::ToolButton& button(Button which) { return *range.getToolbarWidget().buttons[which]; }

    Range current() const {
        Range result;
        range.getRange(result.first, result.second);
        return result;
    }

    Ranges told;
    RangeScrollbar range;
};

struct RangeScrollbarOnScreen : RangeScrollbarTest {
    RangeScrollbarOnScreen() {
        grid.attach(range.getToolbarWidget(), 0, 0, 1, 1);
        grid.attach(range.getScrollWidget(), 0, 1, 1, 1);
        window.set_default_size(500, 100);
        window.add(grid);
        test::present(window);
    }

    /// The middle of the thumb, in the scrollbar's pixels.
    int thumb() {
        int start = 0;
        int end = 0;
        range.getScrollWidget().get_slider_range(start, end);
        return (start + end) / 2;
    }

    void dragThumb(int pixels) {
        Gtk::Scrollbar& scrollbar = range.getScrollWidget();
        const int middle = scrollbar.get_allocated_height() / 2;
        test::drag(scrollbar, thumb(), middle, thumb() + pixels, middle);
    }

    Gtk::Grid grid;
    Gtk::Window window;
};

} // namespace

TEST_F(RangeScrollbarTest, HandsOutAScrollbarAndAToolbar) {
    EXPECT_EQ(&range.getScrollWidget(), &range.scrollbar);
    EXPECT_EQ(&range.getToolbarWidget(), &range.toolbar);
    EXPECT_EQ(range.scrollbar.get_parent(), nullptr);
    EXPECT_EQ(range.toolbar.get_parent(), nullptr);
    EXPECT_EQ(range.scrollbar.get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    EXPECT_TRUE(range.scrollbar.get_hexpand());
    EXPECT_EQ(range.slider.adjustment, range.scrollbar.get_adjustment());
    EXPECT_EQ(range.slider.stepFactor, 0.1f);
    EXPECT_EQ(range.toolbar.toolbar.get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    ASSERT_EQ(range.toolbar.buttons.size(), 3u);
    EXPECT_EQ(button(Shorter).get_label(), "<>");
    EXPECT_EQ(button(Longer).get_label(), "><");
    EXPECT_EQ(button(Whole).get_label(), "=");
    EXPECT_EQ(current(), Range(0, 0));
    const void* const fields[] = {&range.signalRangeChanged, &range.scrollbar, &range.slider, &range.toolbar};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(RangeScrollbarTest, ADurationIsTheWholeRange) {
    range.setMax(100);
    EXPECT_EQ(told, (Ranges{{0, 100}}));
    double start = 1, end = 1;
    range.getRange(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 100);
}

TEST_F(RangeScrollbarTest, ANegativeDurationThrows) {
    try {
        range.setMax(-1);
        FAIL();
    } catch (const char* text) {
        EXPECT_EQ(std::string(text), "setMaxValue");
    }
}

TEST_F(RangeScrollbarTest, AFloatRangeOfAWholeRecordStartsAtItsBeginning) {
    range.setMax(100);
    told.clear();
    range.setRange(10.0f, 20.0f);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].first, 0);
    EXPECT_FLOAT_EQ(told[0].second, 33);
    EXPECT_EQ(current(), told[0]);
}

TEST_F(RangeScrollbarTest, ADoubleRangeOfAWholeRecordStartsAtItsBeginning) {
    range.setMax(100);
    told.clear();
    range.setRange(10.0, 20.0);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].first, 0);
    EXPECT_FLOAT_EQ(told[0].second, 11);
    EXPECT_EQ(current(), told[0]);
}

TEST_F(RangeScrollbarTest, ARangeThatCanMoveIsToldOfTwice) {
    range.setMax(100);
    range.setRange(10.0, 20.0);
    told.clear();
    range.setRange(40.0, 60.0);
    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(told[0].first, 40);
    EXPECT_FLOAT_EQ(told[0].second, 51);
    EXPECT_EQ(told[1].first, 40);
    EXPECT_FLOAT_EQ(told[1].second, 62);
    EXPECT_EQ(current(), told[1]);
}

TEST_F(RangeScrollbarTest, AShownRangeIsExactAndToldOfOnce) {
    range.setMax(100);
    told.clear();
    range.showRange(10, 20);
    EXPECT_EQ(told, (Ranges{{10, 20}}));
    EXPECT_EQ(current(), Range(10, 20));
}

TEST_F(RangeScrollbarTest, WithoutADurationARangeIsStoredAndNotReported) {
    range.setRange(10.0f, 20.0f);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(current(), Range(10, 20));
}

TEST_F(RangeScrollbarTest, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        RangeScrollbar shortLived;
        g_object_weak_ref(G_OBJECT(shortLived.scrollbar.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived.toolbar.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(shortLived.slider.adjustment->gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 3000);
}

TEST_F(RangeScrollbarOnScreen, TheButtonsShortenLengthenAndReset) {
    range.setMax(100);
    told.clear();
    test::click(button(Shorter));
    test::click(button(Shorter));
    test::click(button(Longer));
    test::click(button(Whole));
    EXPECT_TRUE(test::waitFor([this] { return told.size() == 4; })) << told.size();
    const float ends[] = {90, 81, 89.1f, 100};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(told[i].first, 0);
        EXPECT_FLOAT_EQ(told[i].second, ends[i]);
    }
}

TEST_F(RangeScrollbarOnScreen, TheButtonsDoNothingWithoutADuration) {
    test::click(button(Shorter));
    test::click(button(Longer));
    test::click(button(Whole));
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(range.slider.adjustment->get_page_size(), 1);
}

TEST_F(RangeScrollbarOnScreen, DraggingTheThumbMovesTheRange) {
    range.setMax(100);
    range.slider._setPageSize(40);
    test::settle();
    told.clear();
    dragThumb(100);
    EXPECT_TRUE(test::waitFor([this] { return !told.empty(); }));
    // A hundred of about five hundred pixels.
    EXPECT_NEAR(told.back().first, 20, 2);
    for (std::size_t i = 0; i < told.size(); ++i) {
        EXPECT_NEAR(told[i].second - told[i].first, 40, 0.001);
        EXPECT_GT(told[i].first, i > 0 ? told[i - 1].first : 0);
    }
    EXPECT_EQ(current(), told.back());

    dragThumb(1000);
    EXPECT_EQ(current(), Range(60, 100));
    test::click(button(Whole));
    EXPECT_TRUE(test::waitFor([this] { return current() == Range(0, 100); }));
}

TEST_F(RangeScrollbarOnScreen, AThumbThatIsDraggedWithoutADurationReportsNothing) {
    range.setMax(100);
    range.slider._setPageSize(40);
    range.setMax(0);
    test::settle();
    told.clear();
    dragThumb(100);
    EXPECT_TRUE(test::waitFor([this] { return range.slider.adjustment->get_value() > 10; }));
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(current(), Range(0, 40));
}
