#include <ZelCommonView/oscillogram/RangeSlider.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using ZelView::RangeSlider;
using Range = std::pair<float, float>;
using Ranges = std::vector<Range>;

static_assert(!std::is_copy_constructible_v<RangeSlider>);
static_assert(!std::is_polymorphic_v<RangeSlider>);

std::string thrownBy(const std::function<void()>& action) {
    try {
        action();
    } catch (const char* text) {
        return text;
    }
    return "nothing";
}

struct RangeSliderTest : testing::Test {
    RangeSliderTest() {
        slider.signalRangeChanged.connect([this](float start, float end) { told.emplace_back(start, end); });
    }

    Range range() const {
        Range result;
        slider.getRange(result.first, result.second);
        return result;
    }

    Glib::RefPtr<Gtk::Adjustment> adjustment = Gtk::Adjustment::create(7, 5, 50, 1, 10, 3);
    Ranges told;
    RangeSlider slider{adjustment, 0.1f};
};

/// A record of 100, shown whole.
struct RangeSliderOfARecord : RangeSliderTest {
    RangeSliderOfARecord() {
        slider.setMaxValue(100);
        told.clear();
    }
};

} // namespace

TEST_F(RangeSliderTest, StartsDisabledOnASpanOfOne) {
    EXPECT_TRUE(slider.disabled);
    EXPECT_EQ(adjustment->get_lower(), 0);
    EXPECT_EQ(adjustment->get_upper(), 1);
    EXPECT_EQ(adjustment->get_page_size(), 1);
    EXPECT_EQ(adjustment->get_value(), 0); // it was 7
    EXPECT_EQ(range(), Range(0, 0));
    EXPECT_TRUE(told.empty());
    const void* const fields[] = {&slider.signalRangeChanged, &slider.adjustment, &slider.stepFactor,
                                  &slider.rangeStart,         &slider.rangeEnd,   &slider.disabled};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(RangeSliderTest, TheStepFactorLiesBetweenZeroAndOne) {
    for (float factor : {0.0f, -0.1f, 1.0f, 1.5f, std::numeric_limits<float>::quiet_NaN()}) {
        const auto untouched = Gtk::Adjustment::create(7, 5, 50, 1, 10, 3);
        EXPECT_EQ(thrownBy([&] { RangeSlider(untouched, factor); }), "RangeSlider") << factor;
        EXPECT_EQ(untouched->get_upper(), 50);
    }
    for (float factor : {0.001f, 0.999f})
        EXPECT_EQ(thrownBy([&] { RangeSlider(adjustment, factor); }), "nothing") << factor;
}

TEST_F(RangeSliderTest, WhileDisabledNothingIsReportedAndNoStepIsTaken) {
    adjustment->set_upper(10);
    adjustment->set_value(3);
    EXPECT_EQ(adjustment->get_value(), 3);
    slider.incSize();
    slider.decSize();
    slider.resetSize();
    EXPECT_EQ(adjustment->get_page_size(), 1);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(range(), Range(0, 0));
}

TEST_F(RangeSliderTest, ADurationShowsTheWholeRecord) {
    slider.setMaxValue(100);
    EXPECT_FALSE(slider.disabled);
    EXPECT_EQ(adjustment->get_upper(), 100);
    EXPECT_EQ(adjustment->get_page_size(), 100);
    EXPECT_EQ(told, (Ranges{{0, 100}}));
    EXPECT_EQ(range(), Range(0, 100));
    double start = 1, end = 1;
    slider.getRange(start, end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 100);
}

TEST_F(RangeSliderTest, AFirstDurationOfExactlyOneDoesNotEnableIt) {
    slider.setMaxValue(1);
    EXPECT_TRUE(slider.disabled);
    EXPECT_TRUE(told.empty());
}

TEST_F(RangeSliderOfARecord, TheSameDurationChangesNothing) {
    slider.decSize();
    told.clear();
    slider.setMaxValue(100);
    EXPECT_FLOAT_EQ(static_cast<float>(adjustment->get_page_size()), 90);
    EXPECT_TRUE(told.empty());
}

TEST_F(RangeSliderOfARecord, ANewDurationShowsTheWholeNewRecord) {
    slider.decSize();
    adjustment->set_value(10);
    told.clear();
    slider.setMaxValue(50);
    EXPECT_EQ(told, (Ranges{{0, 50}}));
    slider.setMaxValue(200);
    EXPECT_EQ(told, (Ranges{{0, 50}, {0, 200}}));
}

TEST_F(RangeSliderOfARecord, ADurationOfZeroDisablesItAndKeepsTheRange) {
    slider.setMaxValue(0);
    EXPECT_TRUE(slider.disabled);
    EXPECT_EQ(adjustment->get_upper(), 100);
    EXPECT_EQ(range(), Range(0, 100));
    slider.setMaxValue(100);
    EXPECT_TRUE(slider.disabled);
    slider.decSize();
    EXPECT_TRUE(told.empty());
    slider.setMaxValue(200);
    EXPECT_FALSE(slider.disabled);
    EXPECT_EQ(told, (Ranges{{0, 200}}));
}

TEST_F(RangeSliderOfARecord, ANegativeDurationThrowsAndChangesNothing) {
    EXPECT_EQ(thrownBy([this] { slider.setMaxValue(-1); }), "setMaxValue");
    EXPECT_FALSE(slider.disabled);
    EXPECT_EQ(adjustment->get_upper(), 100);
    EXPECT_EQ(range(), Range(0, 100));
    EXPECT_TRUE(told.empty());
}

TEST_F(RangeSliderOfARecord, TheWholeRecordCantGrow) {
    slider.incSize();
    EXPECT_EQ(adjustment->get_page_size(), 100);
    EXPECT_TRUE(told.empty());
}

TEST_F(RangeSliderOfARecord, EachStepShrinksThePageByATenth) {
    slider.decSize();
    slider.decSize();
    EXPECT_FLOAT_EQ(static_cast<float>(adjustment->get_page_size()), 81);
    ASSERT_EQ(told.size(), 2u);
    EXPECT_FLOAT_EQ(told[0].second, 90);
    EXPECT_FLOAT_EQ(told[1].second, 81);
    EXPECT_EQ(told[1].first, 0);
    EXPECT_EQ(range(), told[1]);
    slider.incSize();
    EXPECT_FLOAT_EQ(static_cast<float>(adjustment->get_page_size()), 89.1f);
}

TEST_F(RangeSliderOfARecord, ThereIsNoSmallestPage) {
    for (int i = 0; i < 500; ++i)
        slider.decSize();
    EXPECT_GT(adjustment->get_page_size(), 0);
    EXPECT_LT(adjustment->get_page_size(), 1e-20);
    for (int i = 0; i < 1000; ++i)
        slider.decSize();
    EXPECT_LT(adjustment->get_page_size(), 1e-40);
    slider.resetSize();
    EXPECT_EQ(range(), Range(0, 100));
}

TEST_F(RangeSliderOfARecord, ResettingAtTheFarRightShowsTheWholeRecord) {
    for (int i = 0; i < 10; ++i)
        slider.decSize();
    adjustment->set_value(100 - adjustment->get_page_size());
    told.clear();
    slider.resetSize();
    EXPECT_EQ(adjustment->get_value(), 0);
    EXPECT_EQ(told, (Ranges{{0, 100}}));
}

TEST_F(RangeSliderOfARecord, GrowingAtTheRightEdgeMovesTheStart) {
    slider._setPageSize(40);
    adjustment->set_value(60);
    told.clear();
    slider.incSize();
    ASSERT_EQ(told.size(), 1u);
    EXPECT_FLOAT_EQ(told[0].first, 56);
    EXPECT_EQ(told[0].second, 100);
}

TEST_F(RangeSliderOfARecord, APageLiesBetweenNothingAndTheWholeRecord) {
    slider._setPageSize(-5);
    EXPECT_EQ(adjustment->get_page_size(), 0);
    EXPECT_EQ(told, (Ranges{{0, 0}}));
    slider._setPageSize(500);
    EXPECT_EQ(adjustment->get_page_size(), 100);
    EXPECT_EQ(told, (Ranges{{0, 0}, {0, 100}}));
}

TEST_F(RangeSliderOfARecord, AMovedThumbIsReportedOnce) {
    slider._setPageSize(40);
    told.clear();
    adjustment->set_value(25);
    EXPECT_EQ(told, (Ranges{{25, 65}}));
    adjustment->set_value(25);
    slider._setPageSize(40);
    EXPECT_EQ(told.size(), 1u);
    EXPECT_EQ(range(), Range(25, 65));
}

TEST_F(RangeSliderOfARecord, AFloatRangeSetsTheStartBeforeThePage) {
    slider.setRange(10.0f, 20.0f);
    EXPECT_EQ(adjustment->get_value(), 0); // the page of before left no room to move
    EXPECT_EQ(adjustment->get_page_size(), 30);
    EXPECT_EQ(range(), Range(10, 20));
    EXPECT_TRUE(told.empty());
    slider.setRange(10.0f, 20.0f);
    EXPECT_EQ(adjustment->get_value(), 10);
    EXPECT_EQ(told, (Ranges{{10, 40}}));
    EXPECT_EQ(range(), Range(10, 40));
}

TEST_F(RangeSliderOfARecord, ADoubleRangeIsAFromAndATo) {
    int changed = 0;
    adjustment->signal_changed().connect([&changed] { ++changed; });
    slider.setRange(10.0, 20.0);
    EXPECT_EQ(adjustment->get_value(), 0);
    EXPECT_EQ(adjustment->get_page_size(), 10);
    EXPECT_EQ(range(), Range(10, 20));
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(changed, 2); // one of the page, one for itself
    slider.setRange(10.0, 20.0);
    EXPECT_EQ(adjustment->get_value(), 10);
    EXPECT_EQ(adjustment->get_page_size(), 10);
    EXPECT_EQ(told, (Ranges{})); // it is the range that was stored
    EXPECT_EQ(changed, 3);
    slider.setRange(30.0, 35.0);
    EXPECT_EQ(told, (Ranges{{30, 40}})); // still with the page of before
    EXPECT_EQ(adjustment->get_page_size(), 5);
}

TEST_F(RangeSliderOfARecord, TheAdjustmentMayOutliveTheSlider) {
    {
        RangeSlider shortLived(adjustment, 0.5f);
        shortLived.setMaxValue(50);
    }
    adjustment->set_page_size(1);
    adjustment->set_value(20);
    EXPECT_EQ(adjustment->get_value(), 20);
}

TEST_F(RangeSliderOfARecord, ShownExactlyARangeIsReportedOnce) {
    slider.showRange(10, 20);
    EXPECT_EQ(told, (Ranges{{10, 20}}));
    EXPECT_EQ(range(), Range(10, 20));
    EXPECT_EQ(adjustment->get_value(), 10);
    EXPECT_EQ(adjustment->get_page_size(), 10);
    EXPECT_EQ(adjustment->get_upper(), 100);
    slider.showRange(60, 90);
    slider.showRange(0, 100);
    EXPECT_EQ(told, (Ranges{{10, 20}, {60, 90}, {0, 100}}));
    EXPECT_EQ(adjustment->get_value(), 0);
    EXPECT_EQ(adjustment->get_page_size(), 100);
}

TEST_F(RangeSliderOfARecord, WhatIsShownAlreadyIsReportedToo) {
    // A range that was only stored does not stand in the way.
    slider.setRange(10.0, 20.0);
    told.clear();
    slider.showRange(10, 20);
    slider.showRange(10, 20);
    EXPECT_EQ(told, (Ranges{{10, 20}, {10, 20}}));
}

TEST_F(RangeSliderOfARecord, AfterAShownRangeTheButtonsGoOnFromIt) {
    slider.showRange(10, 20);
    told.clear();
    slider.incSize();
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].first, 10);
    EXPECT_FLOAT_EQ(told[0].second, 21);
    adjustment->set_value(50);
    EXPECT_EQ(told.back().first, 50);
}

TEST_F(RangeSliderOfARecord, WhatReachesBeyondTheRecordIsCut) {
    slider.showRange(-5, 20);
    slider.showRange(90, std::numeric_limits<float>::infinity());
    slider.showRange(200, 300);
    slider.showRange(30, 30);
    EXPECT_EQ(told, (Ranges{{0, 20}, {90, 100}, {100, 100}, {30, 30}}));
}

TEST_F(RangeSliderOfARecord, ARangeThatIsNoneThrowsAndChangesNothing) {
    slider.showRange(10, 20);
    told.clear();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const Range& bad : Ranges{{20, 10}, {nan, 10}, {10, nan}})
        EXPECT_EQ(thrownBy([&] { slider.showRange(bad.first, bad.second); }), "showRange");
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(range(), Range(10, 20));
    EXPECT_EQ(adjustment->get_page_size(), 10);
}

TEST_F(RangeSliderTest, WithoutADurationNoRangeIsShown) {
    slider.showRange(0, 0.5f);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(range(), Range(0, 0));
    EXPECT_EQ(adjustment->get_page_size(), 1);
}

TEST_F(RangeSliderOfARecord, AListenerThatThrowsLeavesTheSliderWorking) {
    sigc::connection thrower = slider.signalRangeChanged.connect([](float, float) { throw "listener"; });
    EXPECT_EQ(thrownBy([this] { slider.showRange(10, 20); }), "listener");
    thrower.disconnect();
    told.clear();
    adjustment->set_value(50);
    EXPECT_EQ(told, (Ranges{{50, 60}}));
}
