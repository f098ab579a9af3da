#include <ZelCommonView/diagrams/ScrolledWindowAdjustments.h>

#include <gtest/gtest.h>
#include <gtkmm/adjustment.h>

#include <cmath>
#include <type_traits>

namespace {

using ZelView::IScrollInfo;
using ZelView::ScrolledWindowAdjustments;

static_assert(std::is_abstract_v<IScrollInfo> && std::has_virtual_destructor_v<IScrollInfo>);
static_assert(std::is_base_of_v<IScrollInfo, ScrolledWindowAdjustments>);

/// A view of 200 x 100 pixels on a content of 1000 x 400.
struct ScrolledWindowAdjustmentsTest : testing::Test {
    Glib::RefPtr<Gtk::Adjustment> h = Gtk::Adjustment::create(300, 0, 1000, 1, 10, 200);
    Glib::RefPtr<Gtk::Adjustment> v = Gtk::Adjustment::create(60, 0, 400, 1, 10, 100);
    ScrolledWindowAdjustments adjustments{h, v};
};

void expectNumbers(const ScrolledWindowAdjustments& adjustments) {
    EXPECT_TRUE(std::isfinite(adjustments.anchorX));
    EXPECT_TRUE(std::isfinite(adjustments.anchorY));
    EXPECT_TRUE(std::isfinite(adjustments.progressX));
    EXPECT_TRUE(std::isfinite(adjustments.progressY));
}

} // namespace

TEST_F(ScrolledWindowAdjustmentsTest, AnchorsTheTopLeftCornerAtFirst) {
    EXPECT_EQ(adjustments.speed, 1);
    EXPECT_EQ(adjustments.progressX, 0);
    EXPECT_EQ(adjustments.progressY, 0);
    EXPECT_EQ(adjustments.anchorX, 0);
    EXPECT_EQ(adjustments.anchorY, 0);
    EXPECT_EQ(adjustments.hAdjustment, h);
    EXPECT_EQ(adjustments.vAdjustment, v);
    adjustments.refresh();
    EXPECT_EQ(h->get_value(), 0);
    EXPECT_EQ(v->get_value(), 0);
}

TEST_F(ScrolledWindowAdjustmentsTest, TellsWhatIsInView) {
    const IScrollInfo& info = adjustments;
    EXPECT_EQ(info.getWidthBefore(), 300);
    EXPECT_EQ(info.getWidthCurrent(), 200);
    EXPECT_EQ(info.getWidthAfter(), 500);
    EXPECT_EQ(info.getWidthTotal(), 1000);
    EXPECT_EQ(info.getHeightBefore(), 60);
    EXPECT_EQ(info.getHeightCurrent(), 100);
    EXPECT_EQ(info.getHeightAfter(), 240);
    EXPECT_EQ(info.getHeightTotal(), 400);
}

TEST_F(ScrolledWindowAdjustmentsTest, CutsEachSizeToWholePixels) {
    h->configure(300.9, 0, 1000.9, 1, 10, 200.9);
    v->configure(60.9, 0, 400.9, 1, 10, 100.9);
    EXPECT_EQ(adjustments.getWidthBefore(), 300);
    EXPECT_EQ(adjustments.getWidthCurrent(), 200);
    EXPECT_EQ(adjustments.getWidthTotal(), 1000);
    // Of the cut numbers, not the cut of 499.1.
    EXPECT_EQ(adjustments.getWidthAfter(), 500);
    EXPECT_EQ(adjustments.getHeightBefore(), 60);
    EXPECT_EQ(adjustments.getHeightCurrent(), 100);
    EXPECT_EQ(adjustments.getHeightTotal(), 400);
    EXPECT_EQ(adjustments.getHeightAfter(), 240);
}

TEST_F(ScrolledWindowAdjustmentsTest, NothingIsAfterAViewScrolledToTheEnd) {
    h->set_value(h->get_upper());
    v->set_value(v->get_upper());
    EXPECT_EQ(adjustments.getWidthAfter(), 0);
    EXPECT_EQ(adjustments.getHeightAfter(), 0);
}

TEST_F(ScrolledWindowAdjustmentsTest, AnchorsTheContentAtAPlaceOfTheViewport) {
    adjustments.setProgress(50, 75);
    EXPECT_FLOAT_EQ(adjustments.progressX, 0.25f);
    EXPECT_FLOAT_EQ(adjustments.progressY, 0.75f);
    EXPECT_FLOAT_EQ(adjustments.anchorX, 0.35f);
    EXPECT_FLOAT_EQ(adjustments.anchorY, 135 / 400.0f);
}

TEST_F(ScrolledWindowAdjustmentsTest, AnchorsTheMiddle) {
    adjustments.setProgressCenter();
    EXPECT_EQ(adjustments.progressX, 0.5f);
    EXPECT_EQ(adjustments.progressY, 0.5f);
    EXPECT_FLOAT_EQ(adjustments.anchorX, 0.4f);
    EXPECT_FLOAT_EQ(adjustments.anchorY, 110 / 400.0f);
    EXPECT_EQ(h->get_value(), 300);
    EXPECT_EQ(v->get_value(), 60);
}

TEST_F(ScrolledWindowAdjustmentsTest, RefreshShowsTheAnchoredPointWhereItWasOnAnotherSize) {
    adjustments.setProgress(50, 75);
    h->configure(300, 0, 2000, 1, 10, 400);
    v->configure(60, 0, 800, 1, 10, 100);
    adjustments.refresh();
    EXPECT_NEAR(h->get_value(), 700 - 100, 1e-3);
    EXPECT_NEAR(v->get_value(), 270 - 75, 1e-3);
}

TEST_F(ScrolledWindowAdjustmentsTest, RefreshGoesAsFarAsTheContentReaches) {
    h->set_value(0);
    v->set_value(300);
    adjustments.setProgress(100, 50);
    h->set_upper(500);
    v->set_upper(200);
    adjustments.refresh();
    EXPECT_EQ(h->get_value(), 0);
    EXPECT_EQ(v->get_value(), 100);
}

TEST_F(ScrolledWindowAdjustmentsTest, MovesByPixelsTimesSpeed) {
    adjustments.move(40, -10);
    EXPECT_NEAR(h->get_value(), 340, 1e-3);
    EXPECT_NEAR(v->get_value(), 50, 1e-3);
    EXPECT_EQ(adjustments.progressX, 0.5f);
    EXPECT_EQ(adjustments.progressY, 0.5f);
    EXPECT_FLOAT_EQ(adjustments.anchorX, 0.44f);
    EXPECT_FLOAT_EQ(adjustments.anchorY, 0.25f);
    adjustments.speed = 2.5f;
    adjustments.move(-40, 10);
    EXPECT_NEAR(h->get_value(), 240, 1e-3);
    EXPECT_NEAR(v->get_value(), 75, 1e-3);
}

TEST_F(ScrolledWindowAdjustmentsTest, MovesNoFartherThanTheContent) {
    adjustments.move(5000, 5000);
    EXPECT_EQ(h->get_value(), 800);
    EXPECT_EQ(v->get_value(), 300);
    adjustments.move(-5000, -5000);
    EXPECT_EQ(h->get_value(), 0);
    EXPECT_EQ(v->get_value(), 0);
}

TEST_F(ScrolledWindowAdjustmentsTest, WithoutSizesEveryAnchorIsANumber) {
    h->configure(0, 0, 0, 0, 0, 0);
    v->configure(0, 0, 0, 0, 0, 0);
    adjustments.setProgress(3, 4);
    expectNumbers(adjustments);
    adjustments.move(3, 4);
    expectNumbers(adjustments);
    EXPECT_EQ(h->get_value(), 0);
    adjustments.setProgressCenter();
    expectNumbers(adjustments);
    adjustments.refresh();
    EXPECT_EQ(h->get_value(), 0);
    EXPECT_EQ(v->get_value(), 0);
    // The middle of nothing is the middle of what comes.
    h->configure(0, 0, 1000, 1, 10, 200);
    v->configure(0, 0, 400, 1, 10, 100);
    adjustments.refresh();
    EXPECT_EQ(h->get_value(), 400);
    EXPECT_EQ(v->get_value(), 150);
}

TEST_F(ScrolledWindowAdjustmentsTest, FollowsWhoeverElseScrolls) {
    adjustments.setProgress(0, 0);
    h->set_value(500);
    adjustments.followX();
    EXPECT_EQ(adjustments.progressX, 0.5f);
    EXPECT_FLOAT_EQ(adjustments.anchorX, 0.6f);
    EXPECT_EQ(adjustments.progressY, 0) << "each direction follows alone";
    v->set_value(100);
    adjustments.followY();
    EXPECT_EQ(adjustments.progressY, 0.5f);
    EXPECT_FLOAT_EQ(adjustments.anchorY, 150 / 400.0f);
    adjustments.refresh();
    EXPECT_NEAR(h->get_value(), 500, 1e-3);
    EXPECT_NEAR(v->get_value(), 100, 1e-3);
}

TEST_F(ScrolledWindowAdjustmentsTest, KeepsAnAnchorThatIsSeenWhereItBelongs) {
    adjustments.setProgress(50, 75);
    adjustments.followX();
    adjustments.followY();
    EXPECT_FLOAT_EQ(adjustments.progressX, 0.25f);
    EXPECT_FLOAT_EQ(adjustments.progressY, 0.75f);
    // Nor does the end of the content change the anchor.
    h->set_value(0);
    v->set_value(300);
    adjustments.setProgressCenter();
    adjustments.move(-100, 100);
    const float anchorX = adjustments.anchorX;
    const float anchorY = adjustments.anchorY;
    adjustments.followX();
    adjustments.followY();
    EXPECT_EQ(adjustments.anchorX, anchorX);
    EXPECT_EQ(adjustments.anchorY, anchorY);
}

TEST_F(ScrolledWindowAdjustmentsTest, DoesNotFollowAnAllocation) {
    adjustments.setProgress(50, 75);
    h->configure(0, 0, 2000, 1, 10, 200);
    v->configure(0, 0, 400, 1, 10, 50);
    adjustments.followX();
    adjustments.followY();
    EXPECT_FLOAT_EQ(adjustments.progressX, 0.25f);
    EXPECT_FLOAT_EQ(adjustments.progressY, 0.75f);
    adjustments.settle();
    adjustments.followX();
    adjustments.followY();
    EXPECT_EQ(adjustments.progressX, 0.5f);
    EXPECT_EQ(adjustments.progressY, 0.5f);
    EXPECT_FLOAT_EQ(adjustments.anchorX, 0.05f);
    EXPECT_FLOAT_EQ(adjustments.anchorY, 25 / 400.0f);
}
