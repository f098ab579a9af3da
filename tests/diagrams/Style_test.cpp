#include "support/TemporaryFolder.h"

#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/diagrams/Style.h>
#include <ZelCommonView/diagrams/StyleZoomHelper.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

namespace {

using ZelView::Style;

std::string colorOf(Gtk::Widget& widget) {
    return widget.get_style_context()->get_color(Gtk::STATE_FLAG_NORMAL).to_string();
}

double fontSizeOf(Gtk::Widget& widget) {
    double size = 0;
    gtk_style_context_get(widget.get_style_context()->gobj(), GTK_STATE_FLAG_NORMAL, "font-size", &size,
                          nullptr);
    return size;
}

const std::string red = "rgb(255,0,0)";
const std::string green = "rgb(0,255,0)";
const std::string blue = "rgb(0,0,255)";

/// A folder of theme files of its own.
struct StyleTest : testing::Test {
    StyleTest() { Zel::setThemesDir(folder.path.string()); }

    ~StyleTest() override { Zel::setThemesDir(""); }

    void writeSheet(const std::string& name, const std::string& sheet) {
        test::writeFile(folder.path / name, sheet);
    }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(StyleTest, AppliesAThemeFileToTheWholeScreen) {
    Gtk::Label label;
    label.get_style_context()->add_class("whole-screen");
    Gtk::Label other;
    writeSheet("dark.css", ".whole-screen { color: #ff0000; }");
    Style::setStyle("dark.css");
    EXPECT_EQ(colorOf(label), red);
    EXPECT_NE(colorOf(other), red);
    Gtk::Label later;
    later.get_style_context()->add_class("whole-screen");
    EXPECT_EQ(colorOf(later), red);
}

TEST_F(StyleTest, EachSheetOfTheScreenStaysAndTheLastOneWins) {
    Gtk::Label label;
    label.get_style_context()->add_class("stays");
    writeSheet("first.css", ".stays { color: #ff0000; font-size: 31px; }");
    Style::setStyle("first.css");
    writeSheet("second.css", ".stays { color: #00ff00; }");
    Style::setStyle("second.css");
    EXPECT_EQ(colorOf(label), green);
    EXPECT_EQ(fontSizeOf(label), 31);
}

TEST_F(StyleTest, WinsOverTheUserAndTheFontZoomAndNotOverAHigherPriority) {
    Gtk::Label label;
    label.get_style_context()->add_class("priority");
    const auto addForScreen = [](const std::string& sheet, guint priority) {
        const auto provider = Gtk::CssProvider::create();
        provider->load_from_data(sheet);
        Gtk::StyleContext::add_provider_for_screen(Gdk::Screen::get_default(), provider, priority);
        return provider;
    };
    writeSheet("theme.css", ".priority { color: #ff0000; font-size: 31px; }");
    Style::setStyle("theme.css");
    ZelView::StyleZoomHelper::setFontSize(20);
    const auto below = addForScreen(".priority { color: #00ff00; }", 999);
    EXPECT_EQ(colorOf(label), red);
    EXPECT_EQ(fontSizeOf(label), 31) << "a size that the theme names stays";
    const auto above = addForScreen(".priority { color: #0000ff; }", 1001);
    EXPECT_EQ(colorOf(label), blue);
    Gtk::StyleContext::remove_provider_for_screen(Gdk::Screen::get_default(), above);
    Gtk::StyleContext::remove_provider_for_screen(Gdk::Screen::get_default(), below);
    EXPECT_EQ(colorOf(label), red);
}

TEST_F(StyleTest, GivesOneWidgetAClassAndTheThemesSheet) {
    writeSheet("style.css", ".own { color: #ff0000; }");
    Gtk::Label label;
    Gtk::Label other;
    other.get_style_context()->add_class("own");
    Style::setStyleClass(&label, "own");
    EXPECT_TRUE(label.get_style_context()->has_class("own"));
    EXPECT_EQ(colorOf(label), red);
    EXPECT_NE(colorOf(other), red) << "the sheet is the widget's alone";
}

TEST_F(StyleTest, TheSheetOfAWidgetHasTheSamePriority) {
    writeSheet("style.css", ".own-priority { color: #ff0000; }");
    Gtk::Label label;
    Style::setStyleClass(&label, "own-priority");
    const auto provider = Gtk::CssProvider::create();
    provider->load_from_data(".own-priority { color: #00ff00; }");
    label.get_style_context()->add_provider(provider, 999);
    EXPECT_EQ(colorOf(label), red);
    label.get_style_context()->remove_provider(provider);
    label.get_style_context()->add_provider(provider, 1001);
    EXPECT_EQ(colorOf(label), green);
}

TEST_F(StyleTest, AMissingFileThrowsAndChangesNothing) {
    Gtk::Label label;
    EXPECT_THROW(Style::setStyle("missing.css"), Glib::Error);
    EXPECT_THROW(Style::setStyleClass(&label, "missing"), Glib::Error);
    EXPECT_FALSE(label.get_style_context()->has_class("missing"));
}

TEST_F(StyleTest, ABrokenSheetThrowsAndChangesNothing) {
    Gtk::Label label;
    label.get_style_context()->add_class("broken");
    writeSheet("broken.css", ".broken { color: #ff0000; } .broken { colour: ");
    EXPECT_THROW(Style::setStyle("broken.css"), Gtk::CssProviderError);
    EXPECT_NE(colorOf(label), red);
    writeSheet("style.css", "nonsense");
    EXPECT_THROW(Style::setStyleClass(&label, "also-broken"), Gtk::CssProviderError);
    EXPECT_FALSE(label.get_style_context()->has_class("also-broken"));
}
