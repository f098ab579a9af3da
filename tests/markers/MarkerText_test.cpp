#include "support/Pictures.h"

#include <ZelCommonView/markers/MarkerDrawerCfg.h>
#include <ZelCommonView/markers/MarkerDrawerHelper.h>
#include <ZelCommonView/markers/MarkerTextDrawer.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

constexpr int width = 200;
constexpr int height = 100;

StretchableCoordsConverter makeConverter() {
    StretchableCoordsConverter converter;
    converter.widgetWidth = width;
    converter.widgetHeight = height;
    converter.setBorder({-1000, 1000, -1000, 1000});
    converter.recalc();
    return converter;
}

const StretchableCoordsConverter converter = makeConverter();

test::Picture paint(const std::function<void(const Context&)>& function) {
    return test::paint(width, height, function);
}

void setSource(cairo_t* cr, Zel::Color color) {
    cairo_set_source_rgba(cr, color.r / 255.0, color.g / 255.0, color.b / 255.0, color.a / 255.0);
}

/// The described label made by bare calls.
void bareLabel(cairo_t* cr, const MarkerDrawerTextCfg& cfg, const char* text, float x, float y,
               bool selected) {
    cairo_text_extents_t extents;
    cairo_set_font_size(cr, cfg.fontSize);
    cairo_text_extents(cr, text, &extents);
    const auto w = static_cast<float>(extents.width);
    const auto h = static_cast<float>(extents.height);
    const float left = x - 0.5f * w;
    const float top = y - 0.5f * h;
    cairo_rectangle(cr, left, top, w, h);
    setSource(cr, selected ? cfg.selectedBorderColor : cfg.normalBorderColor);
    cairo_set_line_width(cr, selected ? cfg.selectedBorderWidth : cfg.normalBorderWidth);
    cairo_stroke_preserve(cr);
    setSource(cr, cfg.backgroundColor);
    cairo_fill(cr);
    setSource(cr, cfg.textColor);
    cairo_move_to(cr, left, top + h);
    cairo_show_text(cr, text);
}

const Context& plainContext() {
    static const Context context = Cairo::Context::create(test::makeSurface(width, height));
    return context;
}

} // namespace

TEST(MarkerDrawerCfg, HasTheUsualValuesInOrder) {
    const MarkerDrawerCfg cfg;
    EXPECT_EQ(cfg.menuFlags, 0xFFFFFFFFu);
    EXPECT_EQ(cfg.lineWidth, 2);
    EXPECT_EQ(cfg.lineColor.b, 255);
    EXPECT_EQ(cfg.fillColor.r, 81);
    EXPECT_EQ(cfg.fillColor.g, 255);
    EXPECT_EQ(cfg.fillColor.b, 0);
    EXPECT_EQ(cfg.fillColor.a, 122);
    EXPECT_EQ(cfg.text.fontSize, 12);
    EXPECT_EQ(cfg.text.normalBorderWidth, 2);
    EXPECT_EQ(cfg.text.selectedBorderWidth, 4);
    EXPECT_EQ(cfg.text.textColor.a, 255);
    EXPECT_EQ(cfg.text.backgroundColor.r, 190);
    EXPECT_EQ(cfg.text.normalBorderColor.b, 255);
    EXPECT_EQ(cfg.text.selectedBorderColor.r, 255);
    EXPECT_EQ(cfg.text.selectedBorderColor.g, 0);
    EXPECT_EQ(cfg.text.selectedBorderColor.b, 191);
    const MarkerDrawerCfg ordered{1,
                                  {2, 3, 4, {5, 0, 0, 0}, {6, 0, 0, 0}, {7, 0, 0, 0}, {8, 0, 0, 0}},
                                  9,
                                  {10, 0, 0, 0},
                                  {11, 0, 0, 0}};
    EXPECT_EQ(ordered.text.selectedBorderColor.r, 8);
    EXPECT_EQ(ordered.fillColor.r, 11);
}

TEST(MarkerTextDrawer, PaintsFrameBoxAndTextCentred) {
    const MarkerDrawerTextCfg cfg;
    const MarkerTextDrawer drawer(cfg);
    for (bool selected : {false, true})
        test::expectSame(paint([&](const Context& context) {
                             drawer.draw(context, "12.3400", {100, 50}, selected);
                         }),
                         paint([&](const Context& context) {
                             bareLabel(context->cobj(), cfg, "12.3400", 100, 50, selected);
                         }));
}

TEST(MarkerTextDrawer, ACursorOnTheEdgeOrCornerIsAHit) {
    const MarkerDrawerTextCfg cfg;
    const MarkerTextDrawer drawer(cfg);
    const Zel::PointF topLeft{10, 20};
    const Zel::PointF size{30, 8};
    Zel::PointF offset{77, 77};
    for (Zel::PointF corner : {Zel::PointF{10, 20}, {40, 20}, {10, 28}, {40, 28}})
        EXPECT_TRUE(drawer._checkPos(topLeft, size, corner, offset));
    EXPECT_EQ(offset.x, 15 - 30);
    EXPECT_EQ(offset.y, 4 - 8);

    offset = {77, 77};
    for (Zel::PointF outside : {Zel::PointF{9.9f, 24}, {40.1f, 24}, {20, 19.9f}, {20, 28.1f}})
        EXPECT_FALSE(drawer._checkPos(topLeft, size, outside, offset));
    EXPECT_EQ(offset.x, 77);
    EXPECT_EQ(offset.y, 77);
}

TEST(MarkerTextDrawer, AClickAtTheCentreGivesNoOffset) {
    const MarkerDrawerTextCfg cfg;
    const MarkerTextDrawer drawer(cfg);
    Zel::PointF offset{77, 77};
    EXPECT_TRUE(drawer.isCollide(plainContext(), "text", {50, 60}, {50, 60}, offset));
    EXPECT_NEAR(offset.x, 0, 1e-4);
    EXPECT_NEAR(offset.y, 0, 1e-4);
}

TEST(MarkerDrawerHelper, ValueLabelsHaveFourDecimalsAndAreCutAtNineCharacters) {
    const MarkerDrawerCfg cfg;
    MarkerDrawerHelper helper(cfg, Orientation::Vertical);
    helper.setConverter(converter);
    const auto expectText = [&](float value, const char* text) {
        SCOPED_TRACE(text);
        test::expectSame(paint([&](const Context& context) {
                             helper.drawText(context, {value, 0}, false);
                         }),
                         paint([&](const Context& context) {
                             bareLabel(context->cobj(), cfg.text, text, converter.getVisualX(value), 50,
                                       false);
                         }));
    };
    expectText(12.5f, "12.5000");
    expectText(-0.00004f, "-0.0000");
    expectText(-234.5f, "-234.5000");
    expectText(-1234.5678f, "-1234.567");
    expectText(12345678, "12345678.");
}

TEST(MarkerDrawerHelper, TheOrientationPicksTheCoordinate) {
    const MarkerDrawerCfg cfg;
    MarkerDrawerHelper helper(cfg, Orientation::Horizontal);
    helper.setConverter(converter);
    test::expectSame(paint([&](const Context& context) {
                         helper.drawText(context, {100, 300}, true);
                     }),
                     paint([&](const Context& context) {
                         bareLabel(context->cobj(), cfg.text, "300.0000", converter.getVisualX(100),
                                   converter.getVisualY(300), true);
                     }));
}

TEST(MarkerDrawerHelper, LinesCrossTheWidgetAndGlobalOnesGoOn) {
    const MarkerDrawerCfg cfg;
    const auto expectLine = [&](Orientation orientation, bool isGlobal, float x1, float y1, float x2,
                                float y2) {
        MarkerDrawerHelper helper(cfg, orientation);
        helper.setConverter(converter);
        const auto large = [&](const std::function<void(const Context&)>& function) {
            return test::paint(orientation == Orientation::Horizontal ? 10050 : 300,
                               orientation == Orientation::Horizontal ? 300 : 10050, function);
        };
        test::expectSame(large([&](const Context& context) {
                             helper.drawLine(context, {100, 300}, isGlobal);
                         }),
                         large([&](const Context& context) {
                             cairo_t* cr = context->cobj();
                             cairo_set_line_width(cr, 2);
                             setSource(cr, cfg.lineColor);
                             cairo_move_to(cr, x1, y1);
                             cairo_line_to(cr, x2, y2);
                             cairo_stroke(cr);
                         }));
    };
    const float x = converter.getVisualX(100);
    const float y = converter.getVisualY(300);
    expectLine(Orientation::Horizontal, false, 0, y, width, y);
    expectLine(Orientation::Horizontal, true, 0, y, 9999, y);
    expectLine(Orientation::Vertical, false, x, 0, x, height);
    expectLine(Orientation::Vertical, true, x, 0, x, 9999);
}

TEST(MarkerDrawerHelper, TheBoxThatCanBeGrabbedIsThatOfSixDecimals) {
    const MarkerDrawerCfg cfg;
    MarkerDrawerHelper helper(cfg, Orientation::Vertical);
    helper.setConverter(converter);
    cairo_text_extents_t shown;
    cairo_text_extents_t grabbed;
    cairo_set_font_size(plainContext()->cobj(), 12);
    cairo_text_extents(plainContext()->cobj(), "0.0000", &shown);
    cairo_text_extents(plainContext()->cobj(), "0.000000", &grabbed);
    ASSERT_GT(grabbed.width, shown.width + 4);
    Zel::PointF offset;
    const float between = 100 + static_cast<float>(shown.width + grabbed.width) / 4;
    EXPECT_TRUE(helper.isCollide(plainContext(), {0, 0}, {between, 50}, offset));
    EXPECT_FLOAT_EQ(offset.x, 100 - between);
    EXPECT_FALSE(helper.isCollide(plainContext(), {0, 0},
                                  {100 + static_cast<float>(grabbed.width) / 2 + 1, 50}, offset));
    // The value that is measured, not the other coordinate, makes the text.
    EXPECT_FALSE(helper.isCollide(plainContext(), {0, 1e30f}, {between + 40, 50}, offset));
}
