#include "support/Hands.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/diagrams/StyleZoomHelper.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <type_traits>

namespace {

using ZelView::StyleZoomHelper;

static_assert(std::is_same_v<decltype(StyleZoomHelper::_fontSize), std::int32_t>);

/// The size of a label's text, in pixels of the style sheet.
double shownSize() {
    Gtk::Label label;
    double size = 0;
    gtk_style_context_get(label.get_style_context()->gobj(), GTK_STATE_FLAG_NORMAL, "font-size", &size,
                          nullptr);
    return size;
}

/// The size of text while the helper shows none; the theme's.
double themeSize() {
    auto& provider = StyleZoomHelper::_getFontProvider();
    if (provider)
        Gtk::StyleContext::remove_provider_for_screen(Gdk::Screen::get_default(), provider);
    provider.reset();
    return shownSize();
}

struct StyleZoomHelperTest : testing::Test {
    ~StyleZoomHelperTest() override { StyleZoomHelper::zoomDefault(); }
};

} // namespace

TEST_F(StyleZoomHelperTest, ShowsAnySizeWithoutRememberingIt) {
    StyleZoomHelper::setFontSize(100);
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 14);
    EXPECT_EQ(shownSize(), 100);
    StyleZoomHelper::setFontSize(20);
    EXPECT_EQ(shownSize(), 20);
    StyleZoomHelper::zoomIn();
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 15);
    EXPECT_EQ(shownSize(), 15);
}

TEST_F(StyleZoomHelperTest, ChangesTheTextOnTheScreen) {
    Gtk::Label label("Text");
    Gtk::OffscreenWindow window;
    window.add(label);
    window.show_all();
    const auto getHeight = [&] {
        int minimum = 0, natural = 0;
        label.get_preferred_height(minimum, natural);
        return natural;
    };
    const int height = getHeight();
    StyleZoomHelper::setFontSize(100);
    EXPECT_TRUE(test::waitFor([&] { return getHeight() > 4 * height; })) << height << " " << getHeight();
}

TEST_F(StyleZoomHelperTest, ZoomsByOneBetweenTenAndTwentyFour) {
    for (int size = 15; size <= 24; ++size) {
        StyleZoomHelper::zoomIn();
        EXPECT_EQ(StyleZoomHelper::getFontSize(), size);
        EXPECT_EQ(shownSize(), size);
    }
    StyleZoomHelper::zoomIn();
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 24);
    for (int size = 23; size >= 10; --size) {
        StyleZoomHelper::zoomOut();
        EXPECT_EQ(StyleZoomHelper::getFontSize(), size);
        EXPECT_EQ(shownSize(), size);
    }
    StyleZoomHelper::zoomOut();
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 10);
    StyleZoomHelper::zoomDefault();
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 14);
    EXPECT_EQ(shownSize(), 14);
}

TEST_F(StyleZoomHelperTest, AStepThatChangesNothingStillInstallsTheSizeAgain) {
    for (int i = 0; i < 20; ++i)
        StyleZoomHelper::zoomOut();
    StyleZoomHelper::setFontSize(50);
    StyleZoomHelper::zoomOut();
    EXPECT_EQ(shownSize(), 10);
    for (int i = 0; i < 20; ++i)
        StyleZoomHelper::zoomIn();
    StyleZoomHelper::setFontSize(50);
    StyleZoomHelper::zoomIn();
    EXPECT_EQ(shownSize(), 24);
    StyleZoomHelper::zoomDefault();
    StyleZoomHelper::setFontSize(50);
    StyleZoomHelper::zoomDefault();
    EXPECT_EQ(shownSize(), 14);
}

TEST_F(StyleZoomHelperTest, InstallsOneProviderAtATime) {
    const double usual = themeSize();
    StyleZoomHelper::setFontSize(40);
    StyleZoomHelper::setFontSize(50);
    StyleZoomHelper::setFontSize(60);
    EXPECT_EQ(shownSize(), 60);
    EXPECT_EQ(themeSize(), usual) << "none of the former sizes is left";
}

TEST_F(StyleZoomHelperTest, StandsBetweenTheUserAndTheSheetsOfTheTheme) {
    StyleZoomHelper::setFontSize(40);
    const auto provider = Gtk::CssProvider::create();
    provider->load_from_data("* { font-size: 50px; }");
    const auto screen = Gdk::Screen::get_default();
    Gtk::StyleContext::add_provider_for_screen(screen, provider, 899);
    EXPECT_EQ(shownSize(), 40);
    Gtk::StyleContext::remove_provider_for_screen(screen, provider);
    Gtk::StyleContext::add_provider_for_screen(screen, provider, 901);
    EXPECT_EQ(shownSize(), 50);
    Gtk::StyleContext::remove_provider_for_screen(screen, provider);
    EXPECT_EQ(shownSize(), 40);
}

TEST_F(StyleZoomHelperTest, ANegativeSizeThrowsAndTheNextCallWorks) {
    const double usual = themeSize();
    StyleZoomHelper::setFontSize(40);
    EXPECT_THROW(StyleZoomHelper::setFontSize(-1), Gtk::CssProviderError);
    EXPECT_EQ(shownSize(), usual) << "the former size has gone";
    EXPECT_THROW(StyleZoomHelper::setFontSize(-2147483647 - 1), Gtk::CssProviderError);
    StyleZoomHelper::setFontSize(30);
    EXPECT_EQ(shownSize(), 30);
    EXPECT_EQ(StyleZoomHelper::getFontSize(), 14);
}

TEST(StyleZoomHelperProgram, StartsWithTheUsualSizeAndExitsSilentlyWithAnother) {
    EXPECT_EQ(test::outputOf(ZOOM_PROGRAM " 2>&1; echo $?"), "14\n15\n0\n");
}
