// What holds for every page of the gallery.
#include "Pages.h"
#include "Pictures.h"
#include "common/Look.h"

#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace {

using gallery::Page;

class PagesTest : public testing::TestWithParam<Page> {
protected:
    PagesTest() {
        // Nothing fades in, so that there is nothing to wait for.
        Gtk::Settings::get_default()->property_gtk_enable_animations() = false;
    }

    ~PagesTest() override { lng::language = 0; }
};

/// The picture of the page's own widget, without the title above it.
test::Picture pictureOf(const Page& page) {
    const auto widget = page.create();
    test::OffscreenHost host(*widget, 800, 500);
    return test::pictureOf(host.picture());
}

} // namespace

TEST_P(PagesTest, PaintsSomethingBeyondItsBackgroundInBothLanguages) {
    std::vector<test::Picture> pictures;
    for (unsigned char language : {0, 1}) {
        lng::language = language;
        pictures.push_back(pictureOf(GetParam()));
        EXPECT_GT(pictures.back().countPainted(), 2000) << int{language};
    }
    EXPECT_FALSE(pictures[0] == pictures[1]) << "both languages look alike";
}

TEST_P(PagesTest, LooksLightAndDarkAsAsked) {
    examples::setDark(true);
    EXPECT_TRUE(examples::isDark());
    const test::Picture dark = test::pictureOf(gallery::paintPage(GetParam()));
    examples::setDark(false);
    EXPECT_FALSE(examples::isDark());
    const test::Picture light = test::pictureOf(gallery::paintPage(GetParam()));
    EXPECT_GT(dark.countPainted(), 2000);
    EXPECT_GT(light.countPainted(), 2000);
    EXPECT_FALSE(light == dark);
}

TEST_P(PagesTest, LooksTheSameEachTimeItIsPainted) {
    const test::Picture first = test::pictureOf(gallery::paintPage(GetParam()));
    EXPECT_TRUE(test::pictureOf(gallery::paintPage(GetParam())) == first);
}

TEST_P(PagesTest, CarriesTheTextOfItsOwnFile) {
    std::string stem = GetParam().name;
    stem[0] = static_cast<char>(std::toupper(stem[0]));
    const std::string text = test::readFile(std::filesystem::path(GALLERY_PAGES) / (stem + ".cpp"));
    ASSERT_FALSE(text.empty());
    EXPECT_TRUE(GetParam().source == text) << "the built-in text differs from the file";
}

TEST_P(PagesTest, IsShortEnoughToBeReadAsAnExample) {
    const auto lines = std::count(GetParam().source.begin(), GetParam().source.end(), '\n');
    EXPECT_GE(lines, 40);
    EXPECT_LE(lines, 120);
}

INSTANTIATE_TEST_SUITE_P(All, PagesTest, testing::ValuesIn(gallery::allPages()),
                         [](const auto& test) { return test.param.name; });

TEST(Pages, HaveNamesAndTitlesOfTheirOwn) {
    std::set<std::string> names;
    std::set<std::string> titles;
    for (const Page& page : gallery::allPages()) {
        EXPECT_TRUE(names.insert(page.name).second) << page.name;
        EXPECT_TRUE(titles.insert(page.titles[0]).second) << page.titles[0];
        EXPECT_TRUE(titles.insert(page.titles[1]).second) << page.titles[1];
    }
}

TEST(Pages, AreFoundByName) {
    ASSERT_NE(gallery::findPage("plot"), nullptr);
    EXPECT_STREQ(gallery::findPage("plot")->name, "plot");
    EXPECT_EQ(gallery::findPage("Plot"), nullptr);
    EXPECT_EQ(gallery::findPage(""), nullptr);
}

TEST(Pages, EveryFileIsListed) {
    std::set<std::string> listed;
    for (const Page& page : gallery::allPages())
        listed.insert(page.name);
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(GALLERY_PAGES))
        files.insert(Glib::ustring(entry.path().stem().string()).lowercase());
    EXPECT_EQ(files, listed);
}

TEST(Pages, AFileThatIsNotThereHasNoText) {
    EXPECT_TRUE(gallery::sourceOf("Nothing").empty());
}
