#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/ZoomableScrolledWindow.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

namespace {

using namespace ZelView;

Cairo::TextExtents headerExtents(const char* text) {
    const auto context = Cairo::Context::create(test::makeSurface(10, 10));
    context->set_font_size(14);
    context->set_font_face(Cairo::ToyFontFace::create("", Cairo::FONT_SLANT_NORMAL, Cairo::FONT_WEIGHT_BOLD));
    Cairo::TextExtents extents;
    context->get_text_extents(text, extents);
    return extents;
}

} // namespace

TEST(FiguresCoordsDrawerScrolled, NumbersAndHeadersStayInViewWhileThePlaneIsScrolledAndZoomed) {
    Gtk::DrawingArea area;
    ZoomableScrolledWindow scrolled(100, 500, 10);
    scrolled.add(area);
    StretchableCoordsConverter converter;
    converter.setBorder({-10, 30, -10, 20});
    FiguresCoordsDrawer drawer;
    drawer.cfg.flags = 0;
    drawer.cfg.color = {255, 0, 0, 255};
    drawer.converter = &converter;
    drawer.setScrollInfo(scrolled.getScrollInfo());
    drawer.setHorizontalHeader("R");
    drawer.setVerticalHeader("X");
    area.signal_draw().connect(
        [&](const Cairo::RefPtr<Cairo::Context>& context) {
            converter.widgetWidth = static_cast<float>(area.get_allocated_width());
            converter.widgetHeight = static_cast<float>(area.get_allocated_height());
            converter.recalc();
            context->set_source_rgb(1, 1, 1);
            context->paint();
            drawer.draw(context);
            return false;
        },
        false);
    test::OffscreenHost host(scrolled, 400, 300);
    const auto horizontal = headerExtents("R");
    const auto vertical = headerExtents("X");
    const auto countRed = [&](int left, int top, int width, int height) {
        const auto picture = test::pictureOf(host.picture());
        int count = 0;
        for (int y = top; y < top + height; ++y)
            for (int x = left; x < left + width; ++x)
                count += picture.at(x, y)[0] == 255 && picture.at(x, y)[1] == 0;
        return count;
    };
    // Where the headers are, in pixels of the viewport.
    const auto expectHeaders = [&](int baseline, int left) {
        const int all = countRed(0, 0, 400, 300);
        const int width = static_cast<int>(horizontal.width) + 3;
        const int height = static_cast<int>(horizontal.height) + 3;
        const int first = countRed(388 - width + 1, baseline - height + 2, width + 2, height);
        const int second = countRed(left - 1, 9, static_cast<int>(vertical.width) + 4,
                                    static_cast<int>(vertical.height) + 4);
        EXPECT_GT(first, 10);
        EXPECT_GT(second, 10);
        EXPECT_EQ(first + second, all) << "nothing is anywhere else";
    };
    expectHeaders(220, 110);
    scrolled.setSize(500);
    test::settle();
    // The axes are at 500 of 2000 and 1000 of 1500 pixels; the view starts at 800 and 600.
    ASSERT_EQ(scrolled.get_hadjustment()->get_value(), 800);
    ASSERT_EQ(scrolled.get_vadjustment()->get_value(), 600);
    expectHeaders(290, 10);
    scrolled.get_hadjustment()->set_value(300);
    scrolled.get_vadjustment()->set_value(900);
    expectHeaders(120, 210);
    scrolled.get_hadjustment()->set_value(0);
    scrolled.get_vadjustment()->set_value(1200);
    expectHeaders(290, 10);
}
