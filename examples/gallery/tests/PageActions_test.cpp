// What the buttons and entries of the pages do.
#include "PageHost.h"

#include <ZelCommonView/fragments/FragmentableWidget.h>
#include <ZelCommonView/fragments/FragmentsDrawArea.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using test::PageHost;

TEST(CanvasPage, RepaintsOneDiscAndTakesTheOthersFromTheirPictures) {
    PageHost page("canvas");
    auto& canvas = *test::findAll<ZelView::FragmentsDrawArea>(*page.widget).front();
    std::map<const void*, int> painted;
    for (auto& [key, fragment] : canvas.fragments)
        fragment.drawer = [&painted, id = key, former = fragment.drawer](const auto& context) {
            ++painted[id];
            former(context);
        };
    ASSERT_EQ(canvas.fragments.size(), 3u);
    // The first press leaves the state in which all are painted together, so each gets its picture.
    page.press("Repaint the red disc");
    EXPECT_EQ(painted.size(), 3u);
    painted.clear();
    const test::Picture before = page.picture();
    painted.clear();
    page.press("Repaint the red disc");
    ASSERT_EQ(painted.size(), 1u);
    EXPECT_EQ(painted.begin()->second, 1);
    EXPECT_FALSE(page.picture() == before) << "the count on the disc is the same";
}

TEST(CanvasPage, AFrozenCanvasStaysAsItIs) {
    PageHost page("canvas");
    auto* const freeze = test::findLabelled<Gtk::CheckButton>(*page.widget, "Freeze");
    ASSERT_NE(freeze, nullptr);
    auto& canvas = *test::findAll<ZelView::FragmentsDrawArea>(*page.widget).front();
    freeze->set_active();
    page.picture();
    int painted = 0;
    canvas.fragments.begin()->second.drawer = [&painted](const auto&) { ++painted; };
    page.press("Repaint the red disc");
    EXPECT_EQ(painted, 0);
    freeze->set_active(false);
    test::settle();
    EXPECT_GT(painted, 0);
}

TEST(CanvasPage, ATransparentBackgroundShowsTheStartLayer) {
    PageHost page("canvas");
    const test::Picture opaque = page.picture();
    auto* const through = test::findLabelled<Gtk::CheckButton>(*page.widget, "Transparent background");
    ASSERT_NE(through, nullptr);
    through->set_active();
    const test::Picture transparent = page.picture();
    EXPECT_EQ(opaque.at(30, 480)[2], 255);
    EXPECT_EQ(transparent.at(30, 480)[2], 217);
}

TEST(CurvesPage, EachFlagSwitchesAPartOfTheGrid) {
    PageHost page("curves");
    const test::Picture all = page.picture();
    // Below the check buttons, whose marks fade.
    const auto countDiffering = [&all](const test::Picture& other) {
        int differing = 0;
        for (int y = 40; y < all.height; ++y)
            for (int x = 0; x < all.width; ++x)
                differing += other.at(x, y) != all.at(x, y);
        return differing;
    };
    for (const char* flag :
         {"x axis", "y axis", "lines of x", "lines of y", "numbers of x", "numbers of y"}) {
        auto* const button = test::findLabelled<Gtk::CheckButton>(*page.widget, flag);
        ASSERT_NE(button, nullptr) << flag;
        button->set_active(false);
        EXPECT_GT(countDiffering(page.picture()), 30) << flag;
        button->set_active(true);
        EXPECT_EQ(countDiffering(page.picture()), 0) << flag;
    }
}

TEST(PlotPage, AddsAndRemovesSeriesWithTheirRowsAndFragments) {
    PageHost page("plot");
    auto& canvas = *test::findAll<ZelView::FragmentsDrawArea>(*page.widget).front();
    const auto rows = [&] { return test::findAll<ZelView::FragmentableWidget>(*page.widget).size(); };
    const test::Picture three = page.picture();
    EXPECT_EQ(rows(), 3u);
    page.press("Add a series");
    EXPECT_EQ(rows(), 4u);
    EXPECT_EQ(canvas.fragments.size(), 4u);
    EXPECT_FALSE(page.picture() == three);
    page.press("Remove the last one");
    EXPECT_EQ(rows(), 3u);
    for (int i = 0; i < 3; ++i)
        page.press("Remove the last one");
    EXPECT_EQ(rows(), 0u);
    EXPECT_TRUE(canvas.fragments.empty());
    EXPECT_FALSE(test::findLabelled<Gtk::Button>(*page.widget, "Remove the last one")->get_sensitive());
    EXPECT_FALSE(test::findLabelled<Gtk::Button>(*page.widget, "Colour the last one anew")->get_sensitive());
    page.press("Add a series");
    EXPECT_TRUE(test::findLabelled<Gtk::Button>(*page.widget, "Remove the last one")->get_sensitive());
}

TEST(PlotPage, ANewColourIsSeenInTheCurveAndInTheLegend) {
    PageHost page("plot");
    const auto count = [&](std::vector<int> color) {
        const test::Picture picture = page.picture();
        int found = 0;
        for (int y = 0; y < picture.height; ++y)
            for (int x = 0; x < 60; ++x) {
                std::vector<int> pixel = picture.at(x, y);
                pixel.resize(3);
                found += pixel == color;
            }
        return found;
    };
    EXPECT_EQ(count({190, 120, 90}), 0);
    EXPECT_GT(count({90, 190, 120}), 100);
    page.press("Colour the last one anew");
    EXPECT_GT(count({190, 120, 90}), 100);
    EXPECT_EQ(count({90, 190, 120}), 0);
}

TEST(OverlaysPage, TheScalesMoveTheEdgesOfTheInterval) {
    PageHost page("overlays");
    const auto scales = test::findAll<Gtk::Scale>(*page.widget);
    ASSERT_EQ(scales.size(), 2u);
    const auto shaded = [&] {
        const test::Picture picture = page.picture();
        int columns = 0;
        for (int x = 0; x < picture.width; ++x)
            columns += picture.at(x, picture.height - 2)[0] == 222;
        return columns;
    };
    const int narrow = shaded();
    EXPECT_GT(narrow, 100);
    scales[1]->set_value(9);
    EXPECT_NEAR(shaded(), 2 * narrow, 10);
    scales[0]->set_value(9);
    EXPECT_EQ(shaded(), 0);
}

TEST(RangePage, TheButtonsChangeWhatIsShownAndReported) {
    PageHost page("range");
    EXPECT_TRUE(page.says("From 0.00 s to 20.00 s"));
    const test::Picture whole = page.picture();
    page.pressTool("<>");
    EXPECT_TRUE(page.says("From 0.00 s to 18.00 s"));
    EXPECT_FALSE(page.picture() == whole);
    page.pressTool("><");
    EXPECT_TRUE(page.says("From 0.00 s to 19.80 s"));
    page.pressTool("=");
    EXPECT_TRUE(page.says("From 0.00 s to 20.00 s"));
    test::expectSame(page.picture(), whole);
}

TEST(FramesPage, ALongerNameGivesBothRowsItsWidth) {
    PageHost page("frames");
    Gtk::Label* upper = nullptr;
    Gtk::Label* lower = nullptr;
    for (Gtk::Label* label : test::findAll<Gtk::Label>(*page.widget)) {
        if (label->get_text() == "Currents" && !upper)
            upper = label;
        if (label->get_text() == "Voltages" && !lower)
            lower = label;
    }
    ASSERT_TRUE(upper && lower);
    const int width = lower->get_allocated_width();
    EXPECT_EQ(upper->get_allocated_width(), width);
    for (int i = 0; i < 8; ++i)
        page.pressTool("Longer name");
    EXPECT_GT(lower->get_allocated_width(), width);
    EXPECT_EQ(upper->get_allocated_width(), lower->get_allocated_width());
    for (int i = 0; i < 20; ++i) // down to no name at all, and no further
        page.pressTool("Shorter name");
    EXPECT_EQ(upper->get_text(), "");
}

TEST(FramesPage, TheButtonsOfAFrameChangeItsHeight) {
    PageHost page("frames");
    Gtk::Label* framed = nullptr;
    for (Gtk::Label* label : test::findAll<Gtk::Label>(*page.widget))
        if (label->get_text() == "Currents")
            framed = label;
    ASSERT_NE(framed, nullptr);
    const int height = framed->get_allocated_height();
    for (int i = 0; i < 3; ++i)
        page.pressTool("+");
    EXPECT_GT(framed->get_allocated_height(), height);
}

TEST(WordsPage, TheSwitchChangesTheWordsAtOnce) {
    PageHost page("words");
    EXPECT_TRUE(page.says("Cancel"));
    auto* const languages = test::findAll<Gtk::ComboBoxText>(*page.widget).front();
    languages->set_active(1);
    EXPECT_EQ(lng::language, 1);
    EXPECT_TRUE(page.says("Отмена"));
    EXPECT_FALSE(page.says("Cancel"));
    EXPECT_TRUE(page.says("начало числа"));
    languages->set_active(0);
    EXPECT_EQ(lng::language, 0);
    EXPECT_TRUE(page.says("Cancel"));
}

TEST(WordsPage, KeepsANumberInItsRangeAndOnItsSteps) {
    PageHost page("words");
    auto* const value = test::findAll<Gtk::SpinButton>(*page.widget).front();
    EXPECT_TRUE(page.says("kept between -10 and 10: 3.4, and on steps of 0.5: 3.5"));
    value->set_value(15);
    EXPECT_TRUE(page.says("kept between -10 and 10: 10, and on steps of 0.5: 10"));
}

TEST(WordsPage, JudgesWhatIsTyped) {
    PageHost page("words");
    Gtk::Entry* typed = nullptr;
    for (Gtk::Entry* entry : test::findAll<Gtk::Entry>(*page.widget))
        if (!dynamic_cast<Gtk::SpinButton*>(entry))
            typed = entry;
    ASSERT_NE(typed, nullptr);
    EXPECT_TRUE(page.says("the beginning of a number"));
    typed->set_text("1e5");
    EXPECT_TRUE(page.says("a number"));
    typed->set_text("1f");
    EXPECT_TRUE(page.says("no number, whatever follows"));
}

TEST(ActionsPage, AddsRemovesAndGoesBackToThree) {
    PageHost page("actions");
    const auto channels = [&page] {
        const std::vector<std::string> all = page.texts();
        return std::count_if(all.begin(), all.end(),
                             [](const std::string& text) { return text.rfind("Channel ", 0) == 0; });
    };
    const auto press = [&page](const char* styleClass) {
        for (Gtk::Button* button : test::findAll<Gtk::Button>(*page.widget))
            if (button->get_style_context()->has_class(styleClass))
                button->clicked();
        test::settle();
    };
    EXPECT_EQ(channels(), 3);
    press("ToolAddButtonTransparent");
    press("ToolAddButtonTransparent");
    EXPECT_EQ(channels(), 5);
    EXPECT_TRUE(page.says("Channel 5"));
    for (int i = 0; i < 7; ++i)
        press("ToolRemoveButtonTransparent");
    EXPECT_EQ(channels(), 0);
    page.press("Back to three");
    EXPECT_EQ(channels(), 3);
}
