#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentDrawerHelper.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <type_traits>

namespace {

using namespace ZelView::Fragments;
using Context = Cairo::RefPtr<Cairo::Context>;

constexpr int width = 20;
constexpr int height = 12;
const std::vector<int> white{255, 255, 255, 255};
const std::vector<int> clear{255, 255, 255, 0};
const std::vector<int> red{255, 0, 0, 255};

class FragmentDrawerHelperTest : public testing::Test {
protected:
    FragmentDrawerHelperTest() { test::allocate(widget, width, height); }

    static void fill(const Context& context, double x, double y, double w, double h, double r, double g,
                     double b) {
        context->set_source_rgb(r, g, b);
        context->rectangle(x, y, w, h);
        context->fill();
    }

    static void redBox(const Context& context) { fill(context, 2, 3, 4, 5, 1, 0, 0); }

    Gtk::DrawingArea widget;
    FragmentDrawerHelper helper{widget};
    Cairo::RefPtr<Cairo::ImageSurface> surface = test::makeSurface(width, height);
    Context context = Cairo::Context::create(surface);
};

} // namespace

TEST_F(FragmentDrawerHelperTest, StartsOnOpaqueWhiteWithoutAPicture) {
    EXPECT_EQ(helper.backgroundColor.r, 255);
    EXPECT_EQ(helper.backgroundColor.g, 255);
    EXPECT_EQ(helper.backgroundColor.b, 255);
    EXPECT_EQ(helper.backgroundColor.a, 255);
    EXPECT_FALSE(helper.getBackground());
}

TEST_F(FragmentDrawerHelperTest, AFragmentHoldsAFlagThenADrawerThenAnImage) {
    const Fragment fragment;
    EXPECT_FALSE(fragment.needRedraw);
    EXPECT_FALSE(fragment.drawer);
    EXPECT_FALSE(fragment.image);
    EXPECT_LT(static_cast<const void*>(&fragment.needRedraw), static_cast<const void*>(&fragment.drawer));
    EXPECT_LT(static_cast<const void*>(&fragment.drawer), static_cast<const void*>(&fragment.image));
}

TEST_F(FragmentDrawerHelperTest, DrawKeepsTheStateOfTheContext) {
    helper.draw(context, [](const Context& c) { c->set_line_width(33); });
    EXPECT_EQ(context->get_line_width(), 2);
}

TEST_F(FragmentDrawerHelperTest, ANewPictureIsTheClearedContext) {
    helper.setBackgroundColor({10, 20, 30, 255});
    helper.startFragmentsDraw(context);
    const auto picture = test::pictureOf(helper.getBackground());
    EXPECT_EQ(picture.width, width);
    EXPECT_EQ(picture.height, height);
    EXPECT_EQ(picture.channels, 4);
    EXPECT_EQ(picture.at(0, 0), (std::vector<int>{10, 20, 30, 255}));
    EXPECT_EQ(picture.countPainted(), 0);
}

TEST_F(FragmentDrawerHelperTest, ALayerIsComposedAndItsMarksReplacedAtTheEnd) {
    helper.startFragmentsDraw(context);
    helper.drawAsFragment(context, redBox);
    helper.drawAsFragment(context, [](const Context& c) { fill(c, 10, 3, 4, 5, 0, 0, 1); });
    // The context holds the marks of the last layer only, the picture both.
    EXPECT_EQ(test::pictureOf(surface).at(3, 4), white);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(3, 4), red);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(11, 4), (std::vector<int>{0, 0, 255, 255}));
    helper.endFragmentsDraw(context);
    test::expectSame(test::pictureOf(surface), test::pictureOf(helper.getBackground()));
}

TEST_F(FragmentDrawerHelperTest, SeveralFunctionsMakeOneLayerBetweenOneClearingAndOneSnapshot) {
    helper.startFragmentsDraw(context);
    const std::vector<DrawFunction> functions{redBox, [](const Context& c) { fill(c, 2, 3, 2, 5, 1, 1, 1); }};
    helper.drawAsFragment(context, functions);
    // The white of the second function has covered the red before the colour key was applied.
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(2, 4), white);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(5, 4), red);

    helper.startFragmentsDraw(context);
    helper.drawAsFragment(context, functions[0]);
    helper.drawAsFragment(context, functions[1]);
    // As layers of their own the white one is transparent and covers nothing.
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(2, 4), red);
}

TEST_F(FragmentDrawerHelperTest, WhatHasExactlyTheBackgroundColourIsTransparent) {
    Fragment fragment{true,
                      [](const Context& c) {
                          fill(c, 0, 0, 10, 10, 1, 1, 1);
                          fill(c, 0, 0, 2, 2, 254 / 255.0, 1, 1);
                      },
                      {}};
    helper.startFragmentsDraw(context);
    helper.drawFragment(context, fragment);
    const auto image = test::pictureOf(fragment.image);
    EXPECT_EQ(image.at(5, 5), clear);
    EXPECT_EQ(image.at(15, 11), clear);
    EXPECT_EQ(image.at(1, 1), (std::vector<int>{254, 255, 255, 255}));
}

TEST_F(FragmentDrawerHelperTest, AFragmentIsPaintedOnlyWhenItIsOutOfDate) {
    int painted = 0;
    Fragment fragment{true,
                      [&](const Context& c) {
                          ++painted;
                          redBox(c);
                      },
                      {}};
    helper.startFragmentsDraw(context);
    helper.drawFragment(context, fragment);
    EXPECT_FALSE(fragment.needRedraw);
    const auto image = fragment.image;
    helper.startFragmentsDraw(context);
    helper.drawFragment(context, fragment);
    EXPECT_EQ(painted, 1);
    EXPECT_EQ(fragment.image, image);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(3, 4), red);
    fragment.needRedraw = true;
    helper.drawFragment(context, fragment);
    EXPECT_EQ(painted, 2);
}

TEST_F(FragmentDrawerHelperTest, TheFlagIsClearedBeforeTheFunctionRuns) {
    Fragment fragment;
    fragment.needRedraw = true;
    fragment.drawer = [&](const Context&) { EXPECT_FALSE(fragment.needRedraw); };
    helper.startFragmentsDraw(context);
    helper.drawFragment(context, fragment);

    Fragment marksItself;
    marksItself.needRedraw = true;
    marksItself.drawer = [&](const Context&) { marksItself.needRedraw = true; };
    helper.drawFragment(context, marksItself);
    EXPECT_TRUE(marksItself.needRedraw);
}

TEST_F(FragmentDrawerHelperTest, AnImageKeepsTheBackgroundColourItWasMadeWith) {
    Fragment fragment{true, [](const Context& c) { fill(c, 0, 0, 2, 2, 0, 0, 0); }, {}};
    helper.startFragmentsDraw(context);
    helper.drawFragment(context, fragment);
    const auto before = test::pictureOf(fragment.image);
    helper.setBackgroundColor({0, 0, 0, 255});
    helper.startFragmentsDraw(context);
    helper.drawFragment(context, fragment);
    test::expectSame(test::pictureOf(fragment.image), before);
}

TEST_F(FragmentDrawerHelperTest, FindsItsPlaceOnALargerTarget) {
    const auto large = test::makeSurface(60, 50);
    const auto moved = Cairo::Context::create(large);
    moved->translate(17, 23);
    helper.startFragmentsDraw(moved);
    helper.drawAsFragment(moved, redBox);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(2, 3), red);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(1, 3), white);
    helper.endFragmentsDraw(moved);
    EXPECT_EQ(test::pictureOf(large).at(17 + 2, 23 + 3), red);
    EXPECT_EQ(test::pictureOf(large).at(2, 3), white);
}

TEST_F(FragmentDrawerHelperTest, AStickerOfAnotherSizeCoversWhatItCan) {
    Fragment fragment{true, [](const Context& c) { fill(c, 0, 0, 99, 99, 1, 0, 0); }, {}};
    helper.startFragmentsDraw(context);
    helper.drawFragment(context, fragment);
    test::allocate(widget, width + 5, height + 5);
    const auto larger = Cairo::Context::create(test::makeSurface(width + 5, height + 5));
    helper.startFragmentsDraw(larger);
    helper.drawFragment(larger, fragment);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(width - 1, height - 1), red);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).at(width, height - 1), white);
    test::allocate(widget, width - 5, height - 5);
    helper.startFragmentsDraw(context);
    helper.drawFragment(context, fragment);
    EXPECT_EQ(test::pictureOf(helper.getBackground()).width, width - 5);
}

TEST(FragmentDrawerHelper, AWidgetWithoutASizeGetsNoPictureAndNothingIsComposed) {
    struct : Gtk::DrawingArea {
    } widget;

    test::allocate(widget, 0, 0);
    FragmentDrawerHelper helper(widget);
    const auto context = Cairo::Context::create(test::makeSurface(5, 5));
    helper.startFragmentsDraw(context);
    EXPECT_FALSE(helper.getBackground());
    Fragment fragment{true, [](const Context& c) { c->paint(); }, {}};
    helper.drawFragment(context, fragment);
    EXPECT_FALSE(fragment.image);
    helper.drawAsFragment(context, [](const Context& c) { c->paint(); });
    helper.endFragmentsDraw(context);
    EXPECT_FALSE(helper.getBackground());
}

TEST(FragmentDrawerHelper, AWidgetTooLargeForASurfaceGetsNoPicture) {
    Gtk::DrawingArea widget;
    test::allocate(widget, 40000, 40000);
    FragmentDrawerHelper helper(widget);
    const auto context = Cairo::Context::create(test::makeSurface(5, 5));
    helper.startFragmentsDraw(context);
    EXPECT_FALSE(helper.getBackground());
    helper.endFragmentsDraw(context);
}
