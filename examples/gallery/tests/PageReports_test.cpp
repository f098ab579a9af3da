// What the pages report of a record, a replay, a scrolled content, a thread, a picture, a place and texts.
#include "PageHost.h"

#include <ZelCommonView/oscillogram/Oscillograph.h>
#include <ZelCommonView/plot/ImageDrawer.h>
#include <ZelCommonView/windows/DemoBoxView.h>
#include <ZelCommonView/windows/OverlayBoxView.h>
#include <ZelCommonView/windows/Window.h>

using test::PageHost;

namespace {

/// The entry in which this text stands.
Gtk::Entry* findEntry(PageHost& page, const std::string& text) {
    for (Gtk::Entry* entry : test::findAll<Gtk::Entry>(*page.widget))
        if (entry->get_text() == text)
            return entry;
    return nullptr;
}

} // namespace

TEST(OscillogramPage, TellsWhichPartOfTheRecordIsInView) {
    PageHost page("oscillogram");
    EXPECT_TRUE(page.says("0 to 400 ms of 400 ms"));
    const test::Picture all = page.picture();
    page.press("The fault");
    EXPECT_TRUE(page.says("80 to 260 ms of 400 ms"));
    EXPECT_FALSE(page.picture() == all);
    page.press("The whole record");
    EXPECT_TRUE(page.says("0 to 400 ms of 400 ms"));
    EXPECT_TRUE(page.picture() == all);
}

TEST(OscillogramPage, ShowsCurvesAndRows) {
    PageHost page("oscillogram");
    for (const char* const name : {"UA", "UB", "UC", "IA", "IB", "IC", "Start", "Trip"})
        EXPECT_TRUE(page.says(name)) << name;
}

TEST(ReplayPage, RunsWhenItsButtonIsPressedAndFollowsTheSlider) {
    PageHost page("replay");
    EXPECT_TRUE(page.says("Time, ms: 6400"));
    auto* const slider = test::findAll<Gtk::Scale>(*page.widget).at(0);
    auto* const other = test::findAll<Gtk::Scale>(*page.widget).at(1);
    Gtk::Scale& time = *(slider->get_adjustment()->get_upper() > 100 ? slider : other);
    const test::Picture before = page.picture();
    time.set_value(2000);
    EXPECT_TRUE(page.says("Time, ms: 2000"));
    EXPECT_FALSE(page.picture() == before);
    auto* const run = test::findLabelled<Gtk::Button>(*page.widget, "Старт");
    ASSERT_NE(run, nullptr);
    run->clicked();
    EXPECT_TRUE(test::waitFor([&] { return !page.says("Time, ms: 2000"); }));
    run->clicked();
}

TEST(ScrollingPage, TellsWhatIsInView) {
    PageHost page("scrolling");
    auto* const scale = test::findAll<Gtk::SpinButton>(*page.widget).front();
    auto* const board = test::findAll<Gtk::DrawingArea>(*page.widget).front();
    const int width = board->get_allocated_width();
    const int height = board->get_allocated_height();
    const auto text = [&](int part, int before) {
        const std::string size = std::to_string(width) + " x " + std::to_string(height);
        const std::string total = std::to_string(part * width) + " x " + std::to_string(part * height);
        return "In view: " + size + " of " + total + " pixels, from " + std::to_string(before * width / 2) +
               ", " + std::to_string(before * height / 2) + " on";
    };
    EXPECT_TRUE(page.says(text(1, 0)));
    scale->set_value(200);
    test::settle();
    // What was in the middle stays there.
    EXPECT_TRUE(page.says(text(2, 1))) << text(2, 1);
}

TEST(DroppingPage, ShadesWhatIsChosen) {
    PageHost page("dropping");
    auto* const shade = test::findAll<Zel::DemoBoxView>(*page.widget).front();
    auto* const icons = test::findAll<Zel::OverlayBoxView>(*page.widget).front();
    auto* const places = test::findAll<Gtk::ComboBoxText>(*page.widget).front();
    EXPECT_TRUE(shade->get_mapped());
    EXPECT_TRUE(icons->get_mapped());
    EXPECT_EQ(shade->first.get_opacity(), 0);
    EXPECT_GT(shade->second.get_opacity(), 0);
    places->set_active(0);
    EXPECT_GT(shade->first.get_opacity(), 0);
    EXPECT_EQ(shade->second.get_opacity(), 0);
    test::findLabelled<Gtk::CheckButton>(*page.widget, "with the cross")->set_active(false);
    EXPECT_FALSE(icons->get_visible());
}

TEST(ExportPage, ShowsThePictureThatItPaints) {
    PageHost page("export");
    test::settle();
    EXPECT_TRUE(page.says("500 x 400 pixels")) << "it paints one by itself";
    const test::Picture before = page.picture();
    test::findAll<Gtk::SpinButton>(*page.widget).front()->set_value(2);
    page.press("Paint the picture");
    EXPECT_FALSE(page.picture() == before);
}

TEST(ThemesPage, LoadsTheSheetAndColoursEachSample) {
    PageHost page("themes");
    for (const char* const name : {"stateOkContainer", "stateErrorContainer", "windowTitlebar"})
        EXPECT_TRUE(page.says(name)) << name;
    page.press("Load the sheet once more");
    EXPECT_TRUE(page.says("The sheet is loaded for all windows."));
}

TEST(JobsPage, CountsOnAnotherThreadAndIsReadyForTheNextTask) {
    PageHost page("jobs");
    auto* const bar = test::findAll<Gtk::ProgressBar>(*page.widget).front();
    auto* const limit = test::findAll<Gtk::SpinButton>(*page.widget).front();
    auto* const button = test::findLabelled<Gtk::Button>(*page.widget, "Count");
    for (const auto& [last, result] :
         {std::pair(10000, "1229 primes up to 10000"), std::pair(1000, "168 primes up to 1000")}) {
        limit->set_value(last);
        button->clicked();
        EXPECT_FALSE(button->get_sensitive());
        EXPECT_TRUE(test::waitFor([&] { return button->get_sensitive(); }));
        EXPECT_EQ(bar->get_text(), result);
        EXPECT_EQ(bar->get_fraction(), 1);
    }
}

TEST(JobsPage, MayGoInTheMiddleOfATask) {
    int gone = 0;
    for (int i = 0; i < 20; ++i) {
        PageHost page("jobs");
        g_object_weak_ref(
            G_OBJECT(page.widget->gobj()), [](gpointer count, GObject*) { ++*static_cast<int*>(count); },
            &gone);
        test::findAll<Gtk::SpinButton>(*page.widget).front()->set_value(1000000);
        auto* const button = test::findLabelled<Gtk::Button>(*page.widget, "Count");
        button->clicked();
        test::wait(5);
        EXPECT_FALSE(button->get_sensitive()) << "the task is over already";
    }
    test::settle();
    EXPECT_EQ(gone, 20);
}

TEST(ServicesPage, AnswersWhatIsTyped) {
    PageHost page("services");
    EXPECT_TRUE(page.says("4 pieces, the last one: \"40\""));
    EXPECT_TRUE(page.says("stands in the list"));
    EXPECT_TRUE(page.says("read as -12500"));
    EXPECT_TRUE(page.says("is saved as table.csv"));
    findEntry(page, "10;20;;40")->set_text("a;b");
    EXPECT_TRUE(page.says("2 pieces, the last one: \"b\""));
    EXPECT_TRUE(page.says("doesn't stand in the list"));
    findEntry(page, "-12.5e3")->set_text("1,5");
    EXPECT_TRUE(page.says("no number"));
    findEntry(page, "table")->set_text("table.txt");
    EXPECT_TRUE(page.says("fits a table"));
    EXPECT_TRUE(page.says("The locale is no Russian one"));
}

TEST(PlacesPage, TheNextWindowComesAsLargeAsTheLastOneWas) {
    PageHost page("places");
    EXPECT_TRUE(page.says("The next one: 480 x 240 pixels at 200, 150"));
    const auto window = []() -> Gtk::Window* {
        for (Gtk::Window* each : Gtk::Window::list_toplevels())
            if (each->get_title() == "Move me and close me")
                return each;
        return nullptr;
    };
    page.press("Open a window");
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->get_allocated_width(), 480);
    window()->resize(500, 300);
    EXPECT_TRUE(test::waitFor([&] { return window()->get_allocated_width() == 500; }));
    page.press("Close it");
    EXPECT_EQ(window(), nullptr);
    bool isTold = false;
    for (const std::string& text : page.texts())
        isTold = isTold || text.find("The next one: 500 x 300 pixels") == 0;
    EXPECT_TRUE(isTold);
    page.press("Open a window");
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(window()->get_allocated_width(), 500);
    page.press("Close it");
}
