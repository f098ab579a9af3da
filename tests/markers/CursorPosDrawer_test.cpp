#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/markers/CursorPosDrawer.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

static_assert(std::is_aggregate_v<CursorPosDrawerCfg>);

constexpr int width = 200;
constexpr int height = 60;

struct CursorPosDrawerTest : testing::Test {
    CursorPosDrawerTest() {
        converter.widgetWidth = width;
        converter.widgetHeight = height;
        converter.xMin = 0;
        converter.xMax = 100; // two pixels for each world unit
        converter.yMin = 0;
        converter.yMax = 30;
        converter.recalc();
        drawer.converter = &converter;
        drawer.drawArea = &area;
        test::allocate(area, width, height);
    }

    test::Picture paint() {
        return test::paint(width, height, [this](const Context& context) { drawer.draw(context); });
    }

    void moveTo(double x, double y) {
        GdkEventMotion event{};
        event.x = x;
        event.y = y;
        EXPECT_FALSE(drawer._onCursorMotion(&event));
    }

    /// The cross and a text at a place, painted by hand.
    static test::Picture cross(float x, float y, const std::string& text, double fontSize = 12,
                               double lineWidth = 1, double red = 0, double alpha = 1) {
        return test::paint(width, height, [=](const Context& context) {
            context->set_antialias(Cairo::ANTIALIAS_NONE);
            context->move_to(x + 2, y - 2);
            context->set_source_rgba(red, 0, 0, alpha);
            context->set_font_size(fontSize);
            context->show_text(text);
            context->begin_new_path();
            context->set_dash(std::vector<double>{5}, 0);
            context->set_line_width(lineWidth);
            context->set_source_rgb(0.19607843137254902, 0.19607843137254902, 0.19607843137254902);
            context->move_to(0, y);
            context->line_to(width, y);
            context->stroke();
            context->move_to(x, 0);
            context->line_to(x, height);
            context->stroke();
        });
    }

    StretchableCoordsConverter converter;
    Gtk::DrawingArea area;
    CursorPosDrawer drawer;
};

Gdk::CursorType shapeOver(Gtk::Widget& widget) {
    return widget.get_window()->get_cursor()->get_cursor_type();
}

} // namespace

TEST_F(CursorPosDrawerTest, StartsHiddenWithTheUsualConfiguration) {
    EXPECT_TRUE(drawer.hidden);
    EXPECT_EQ(drawer.position.x, 0);
    EXPECT_EQ(drawer.position.y, 0);
    const CursorPosDrawerCfg& cfg = drawer.getCfg();
    EXPECT_EQ(&cfg, &drawer.cfg);
    EXPECT_EQ(cfg.flags, 0xFFFFFFFFu);
    EXPECT_EQ(cfg.fontSize, 12);
    EXPECT_EQ(cfg.lineWidth, 1);
    EXPECT_EQ(cfg.reserved1, 2);
    EXPECT_EQ(cfg.reserved2, 4);
    EXPECT_EQ(cfg.reserved3, 2);
    const auto channels = [](Zel::Color c) { return std::vector<int>{c.r, c.g, c.b, c.a}; };
    EXPECT_EQ(channels(cfg.textColor), (std::vector<int>{0, 0, 0, 255}));
    EXPECT_EQ(channels(cfg.reserved4), (std::vector<int>{0, 0, 255, 255}));
    EXPECT_EQ(channels(cfg.reserved5), (std::vector<int>{81, 255, 0, 122}));
    const void* const fields[] = {&cfg.flags,     &cfg.fontSize,  &cfg.lineWidth,
                                  &cfg.reserved1, &cfg.reserved2, &cfg.textColor,
                                  &cfg.reserved3, &cfg.reserved4, &cfg.reserved5};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
    EXPECT_LT(static_cast<const void*>(&drawer.hidden), static_cast<const void*>(&drawer.cfg));
    EXPECT_LT(static_cast<const void*>(&drawer.cfg), static_cast<const void*>(&drawer.position));
}

TEST_F(CursorPosDrawerTest, ShowsNothingBeforeTheFirstMotion) {
    EXPECT_EQ(paint().countPainted(), 0);
}

TEST_F(CursorPosDrawerTest, ShowsACrossAndBothCoordinates) {
    moveTo(50, 40);
    EXPECT_FALSE(drawer.hidden);
    EXPECT_EQ(drawer._getText(), "25.0000, 10.0000");
    test::expectSame(paint(), cross(50, 40, "25.0000, 10.0000"));
}

TEST_F(CursorPosDrawerTest, OneFlagShowsOneNumber) {
    moveTo(50, 40);
    drawer.getCfg().flags = 1;
    test::expectSame(paint(), cross(50, 40, "25.0000"));
    drawer.getCfg().flags = 2;
    test::expectSame(paint(), cross(50, 40, "10.0000"));
    drawer.getCfg().flags = 3;
    test::expectSame(paint(), cross(50, 40, "25.0000, 10.0000"));
}

TEST_F(CursorPosDrawerTest, WithoutFlagsTheCrossStands) {
    moveTo(50, 40);
    drawer.getCfg().flags = 0;
    test::expectSame(paint(), cross(50, 40, ""));
    drawer.getCfg().flags = 4;
    test::expectSame(paint(), cross(50, 40, ""));
}

TEST_F(CursorPosDrawerTest, ANumberIsCutAtNineCharacters) {
    converter.xMin = -2000000;
    converter.xMax = -1000000;
    converter.yMin = 12345.678f;
    converter.yMax = 12345.678f;
    converter.recalc();
    moveTo(50, 40);
    EXPECT_EQ(drawer._getText(), "-1750000., 12345.677");
}

TEST_F(CursorPosDrawerTest, ThePositionIsThatOfTheEventNarrowed) {
    moveTo(50.1, 40.7);
    EXPECT_EQ(drawer.position.x, 50.1f);
    EXPECT_EQ(drawer.position.y, 40.7f);
}

TEST_F(CursorPosDrawerTest, TheConfigurationDecidesTheLook) {
    moveTo(50, 40);
    drawer.getCfg() = {3, 20, 9};
    drawer.getCfg().textColor = {255, 0, 0, 51};
    test::expectSame(paint(), cross(50, 40, "25.0000, 10.0000", 20, 9, 1, 0.2));
}

TEST_F(CursorPosDrawerTest, TheCrossSpansTheWidgetWhateverTheConverterThinks) {
    converter.widgetWidth = 20;
    converter.widgetHeight = 20;
    moveTo(50, 40);
    drawer.getCfg().flags = 0;
    test::expectSame(paint(), cross(50, 40, ""));
}

TEST_F(CursorPosDrawerTest, LeavingHidesIt) {
    moveTo(50, 40);
    EXPECT_FALSE(drawer._onCursorLeave(nullptr));
    EXPECT_TRUE(drawer.hidden);
    EXPECT_EQ(paint().countPainted(), 0);
}

TEST_F(CursorPosDrawerTest, WithoutADrawAreaThrows) {
    drawer.drawArea = nullptr;
    for (const auto& action : std::vector<std::function<void()>>{
             [this] { drawer.initDrawArea(); }, [this] { paint(); },
             [this] { drawer._onCursorLeave(nullptr); }, [this] { moveTo(1, 1); }}) {
        std::string thrown;
        try {
            action();
        } catch (const char* text) {
            thrown = text;
        }
        EXPECT_EQ(thrown, "getDrawArea");
    }
}

TEST_F(CursorPosDrawerTest, AsksForThePointersEvents) {
    EXPECT_FALSE(area.get_events() & (Gdk::POINTER_MOTION_MASK | Gdk::LEAVE_NOTIFY_MASK));
    drawer.initDrawArea();
    EXPECT_TRUE(area.get_events() & Gdk::POINTER_MOTION_MASK);
    EXPECT_TRUE(area.get_events() & Gdk::LEAVE_NOTIFY_MASK);
}

TEST(CursorPosDrawerOnScreen, ThePaintSetsThePointersShape) {
    FragmentsDrawArea area;
    StretchableCoordsConverter converter;
    converter.recalc();
    CursorPosDrawer drawer;
    drawer.converter = &converter;
    drawer.drawArea = &area;
    area.addPositionDrawer([&](const Context& context) { drawer.draw(context); }, DrawerPosition::End);
    test::OffscreenHost host(area, width, height);
    EXPECT_EQ(shapeOver(area), Gdk::ARROW);

    GdkEventMotion event{};
    event.x = 10;
    event.y = 20;
    drawer._onCursorMotion(&event);
    EXPECT_EQ(shapeOver(area), Gdk::ARROW); // not before the paint
    EXPECT_GT(test::pictureOf(host.picture()).countPainted(), 0);
    EXPECT_EQ(shapeOver(area), Gdk::CROSSHAIR);

    drawer._onCursorLeave(nullptr);
    EXPECT_EQ(shapeOver(area), Gdk::CROSSHAIR);
    EXPECT_EQ(test::pictureOf(host.picture()).countPainted(), 0);
    EXPECT_EQ(shapeOver(area), Gdk::ARROW);
}

TEST(CursorPosDrawerOnScreen, IsKeptOutOfTheSavedPicture) {
    const test::TemporaryFolder folder;
    FragmentsDrawArea area;
    StretchableCoordsConverter converter;
    converter.recalc();
    CursorPosDrawer drawer;
    drawer.converter = &converter;
    drawer.drawArea = &area;
    drawer.hidden = false;
    drawer.position = {30, 30};
    area.addPositionDrawer([&](const Context& context) { drawer.draw(context); }, DrawerPosition::End);
    test::OffscreenHost host(area, width, height);
    EXPECT_GT(test::pictureOf(host.picture()).countPainted(), 0);
    area.saveSummaryImage((folder.path / "saved.png").string(), "png");
    EXPECT_EQ(test::pictureOfFile((folder.path / "saved.png").string()).countPainted(), 0);
}
