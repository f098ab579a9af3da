#include "support/Pictures.h"

#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/ImageDrawer.h>
#include <ZelCommonView/plot/Series.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <memory>
#include <string>

namespace {

using namespace ZelView;

struct Layer : InfoDrawer {
    void draw(const Cairo::RefPtr<Cairo::Context>&) override {}
};

struct SeriesCounter : FragmentableDrawer<Zel::Series> {
    void _draw(const Cairo::RefPtr<Cairo::Context>&, const Zel::Series& series) override { seen = &series; }

    const Zel::Series* seen = nullptr;
};

struct OtherFragment : Zel::IFragmentable {
    const std::string& getName() const override { return name; }

    Zel::Color getColor() const override { return {}; }

    std::string name;
};

} // namespace

TEST(Drawer, BelongsToNobodyUntilAHostSetsItUp) {
    Layer drawer;
    EXPECT_EQ(drawer.converter, nullptr);
    EXPECT_EQ(drawer.drawArea, nullptr);
    try {
        drawer.getDrawArea();
        FAIL() << "a drawer without a widget must say so";
    } catch (const char* text) {
        EXPECT_STREQ(text, "getDrawArea");
    }
    drawer.initDrawArea(); // does nothing
    Gtk::DrawingArea widget;
    drawer.drawArea = &widget;
    EXPECT_EQ(&drawer.getDrawArea(), &widget);
}

TEST(Drawer, SlotsBoundToADrawerDieWithIt) {
    sigc::signal<void> signal;
    auto drawer = std::make_unique<Layer>();
    signal.connect(sigc::mem_fun(*drawer, &Drawer::initDrawArea));
    EXPECT_EQ(signal.size(), 1u);
    drawer.reset();
    EXPECT_EQ(signal.size(), 0u);
}

TEST(Drawer, HasFourPositionsInOrder) {
    static_assert(sizeof(DrawerPosition) == 4);
    EXPECT_EQ(static_cast<int>(DrawerPosition::Start), 0);
    EXPECT_EQ(static_cast<int>(DrawerPosition::BeforeFragments), 1);
    EXPECT_EQ(static_cast<int>(DrawerPosition::AfterFragments), 2);
    EXPECT_EQ(static_cast<int>(DrawerPosition::End), 3);
}

TEST(FragmentableDrawer, PaintsItsOwnTypeAndLeavesOthersWithoutAWord) {
    SeriesCounter drawer;
    const auto context = Cairo::Context::create(test::makeSurface(1, 1));
    const OtherFragment other;
    drawer.drawFragmentable(context, other);
    EXPECT_EQ(drawer.seen, nullptr);
    const Zel::Series series;
    drawer.drawFragmentable(context, series);
    EXPECT_EQ(drawer.seen, &series);
    EXPECT_EQ(drawer.fragmentables, nullptr);
}

TEST(ImageDrawer, WithoutAPicturePaintsNothing) {
    const auto blank = test::paint(8, 8, [](const auto&) {});
    test::expectSame(test::paint(8, 8, [](const auto& context) { ImageDrawer().draw(context); }), blank);
    ImageDrawer drawer;
    drawer.save({});
    test::expectSame(test::paint(8, 8, [&](const auto& context) { drawer.draw(context); }), blank);
}

TEST(ImageDrawer, PaintsItsPictureAtTheOrigin) {
    const auto pixbuf = Gdk::Pixbuf::create(Gdk::COLORSPACE_RGB, true, 8, 3, 2);
    pixbuf->fill(0x112233FF);
    ImageDrawer drawer;
    drawer.save(pixbuf);
    const auto picture = test::paint(8, 8, [&](const auto& context) { drawer.draw(context); });
    EXPECT_EQ(picture.at(0, 0), (std::vector<int>{0x11, 0x22, 0x33, 255}));
    EXPECT_EQ(picture.at(2, 1), (std::vector<int>{0x11, 0x22, 0x33, 255}));
    EXPECT_EQ(picture.at(3, 1), (std::vector<int>{255, 255, 255, 255}));
    EXPECT_EQ(picture.at(2, 2), (std::vector<int>{255, 255, 255, 255}));
}
