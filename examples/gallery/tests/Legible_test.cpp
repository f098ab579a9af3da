// The texts of every page can be read in light, dark and high-contrast themes and at every size of the text.
#include "Pages.h"
#include "common/Look.h"

#include "support/Hands.h"
#include "themes/Legibility.h"

#include <ZelCommonView/diagrams/StyleZoomHelper.h>

#include <gtest/gtest.h>

namespace {

using gallery::Page;

struct LegibleTest : testing::TestWithParam<const char*> {
    LegibleTest() {
        examples::installLook();
        test::setTheme(GetParam());
    }

    ~LegibleTest() override { test::setTheme("Adwaita"); }
};

} // namespace

TEST_P(LegibleTest, TextsStandOutFromWhatTheyStandOn) {
    int count = 0;
    for (const Page& page : gallery::allPages()) {
        const auto widget = page.create();
        test::OffscreenHost host(*widget, 960, 560);
        test::settle();
        const auto labels = test::readableLabels(host.window);
        count += static_cast<int>(labels.size());
        EXPECT_EQ(test::findFaint(host.window, labels), "") << page.name;
    }
    EXPECT_GE(count, 100);
}

// How much room there is doesn't hang on the colours.
TEST(LegibleSizes, TextsOfEverySizeHaveTheRoomTheyNeed) {
    examples::installLook();
    test::setTheme("Adwaita");
    for (const Page& page : gallery::allPages()) {
        const auto widget = page.create();
        test::OffscreenHost host(*widget, 960, 560);
        for (int size : {10, 16, 24}) {
            ZelView::StyleZoomHelper::setFontSize(size);
            test::settle();
            EXPECT_EQ(test::findClipped(test::readableLabels(host.window)), "")
                << page.name << " at " << size;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Themes, LegibleTest,
                         testing::Values("Adwaita", "Adwaita:dark", "HighContrast", "HighContrastInverse"),
                         [](const auto& test) {
                             std::string name = test.param;
                             name.erase(std::remove(name.begin(), name.end(), ':'), name.end());
                             return name;
                         });
