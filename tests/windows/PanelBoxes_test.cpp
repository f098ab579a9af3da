#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/windows/DemoBoxView.h>
#include <ZelCommonView/windows/OverlayBoxView.h>

#include "support/Finalised.h"
#include "support/Hands.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

namespace {

using namespace Zel;

bool isShaded(const Gtk::Widget& widget) {
    return widget.get_style_context()->has_class("demoboxPanel");
}

} // namespace

TEST(DemoBoxView, IsHiddenAndStaysSoInAShowAll) {
    Gtk::Box parent;
    DemoBoxView box;
    parent.add(box);
    parent.show_all();
    EXPECT_FALSE(box.get_visible());
    EXPECT_TRUE(box.first.get_visible());
    EXPECT_TRUE(box.second.get_visible());
    EXPECT_TRUE(isShaded(box.first));
    EXPECT_TRUE(isShaded(box.second));
    EXPECT_EQ(box.get_orientation(), Gtk::ORIENTATION_HORIZONTAL);
    for (Gtk::Widget* const half : {&box.first, &box.second}) {
        EXPECT_TRUE(box.child_property_expand(*half).get_value());
        EXPECT_TRUE(box.child_property_fill(*half).get_value());
        EXPECT_EQ(box.child_property_padding(*half).get_value(), 0);
    }
}

TEST(DemoBoxView, ShadesTheHalfAtTheSide) {
    struct Case {
        Positions position;
        double first;
        double second;
        Gtk::Orientation orientation;
    };

    const Case cases[] = {{Positions::Left, 0.2, 0.0, Gtk::ORIENTATION_HORIZONTAL},
                          {Positions::Right, 0.0, 0.2, Gtk::ORIENTATION_HORIZONTAL},
                          {Positions::Top, 0.2, 0.0, Gtk::ORIENTATION_VERTICAL},
                          {Positions::Bottom, 0.0, 0.2, Gtk::ORIENTATION_VERTICAL},
                          {Positions::Default, 0.0, 0.0, Gtk::ORIENTATION_HORIZONTAL}};
    DemoBoxView box;
    for (const Case& test : cases) {
        box.set(Positions::Center, true);
        box.set(test.position, true);
        EXPECT_NEAR(box.first.get_opacity(), test.first, 0.005);
        EXPECT_NEAR(box.second.get_opacity(), test.second, 0.005);
        EXPECT_EQ(box.get_orientation(), test.orientation);
        EXPECT_EQ(box.get_opacity(), 1.0);
        EXPECT_FALSE(isShaded(box));
        EXPECT_TRUE(box.get_visible());
    }
}

TEST(DemoBoxView, TheCentreShadesTheWhole) {
    DemoBoxView box;
    box.set(Positions::Center, true);
    EXPECT_NEAR(box.get_opacity(), 0.2, 0.005);
    EXPECT_TRUE(isShaded(box));
    EXPECT_TRUE(box.get_visible());
}

TEST(DemoBoxView, NoPlaceIsHiddenAndShadesNothing) {
    DemoBoxView box;
    box.set(Positions::Left, true);
    box.set(Positions::Default, false);
    EXPECT_FALSE(box.get_visible());
    EXPECT_EQ(box.first.get_opacity(), 0.0);
    EXPECT_EQ(box.second.get_opacity(), 0.0);
}

TEST(OverlayBoxView, ShowsOneIconInACross) {
    Gtk::Box parent;
    OverlayBoxView box;
    parent.add(box);
    parent.show_all();
    EXPECT_FALSE(box.get_visible());
    EXPECT_TRUE(box.grid.get_visible());
    EXPECT_FALSE(box.grid.get_hexpand());
    EXPECT_FALSE(box.grid.get_vexpand());
    EXPECT_EQ(box.grid.get_halign(), Gtk::ALIGN_CENTER);
    EXPECT_EQ(box.grid.get_valign(), Gtk::ALIGN_CENTER);
    const std::tuple<Gtk::Image*, int, int> places[] = {
        {&box.top, 1, 0}, {&box.left, 0, 1}, {&box.center, 1, 1}, {&box.right, 2, 1}, {&box.bottom, 1, 2}};
    for (const auto& [image, column, row] : places) {
        EXPECT_EQ(box.grid.get_child_at(column, row), image);
        EXPECT_TRUE(image->get_style_context()->has_class("windowIcon"));
        EXPECT_TRUE(image->get_visible());
        ASSERT_TRUE(image->get_pixbuf());
        EXPECT_EQ(image->get_pixbuf()->get_width(), 40);
        EXPECT_EQ(image->get_pixbuf()->get_height(), 40);
        EXPECT_EQ(image->get_pixbuf()->gobj(), box.center.get_pixbuf()->gobj());
    }
}

TEST(OverlayBoxView, TheMiddleIconCoversTheCentralZone) {
    OverlayBoxView box;
    box.show();
    const test::OffscreenHost host(box, 301, 135);
    const Gtk::Allocation icon = box.center.get_allocation();
    EXPECT_NEAR(icon.get_x() + icon.get_width() / 2.0, 150.5, 0.6);
    EXPECT_NEAR(icon.get_y() + icon.get_height() / 2.0, 67.5, 0.6);
    EXPECT_EQ(icon.get_width(), 40);
    EXPECT_EQ(icon.get_height(), 40);
}

TEST(OverlayBoxView, AMissingIconThrows) {
    const std::string before = getThemesDir();
    const test::TemporaryFolder folder;
    setThemesDir(folder.path.string());
    EXPECT_THROW(OverlayBoxView(), Glib::Error);
    setThemesDir("");
    EXPECT_EQ(getThemesDir(), before);
}
