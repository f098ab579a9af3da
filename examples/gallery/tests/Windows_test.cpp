// The pages that open windows and dialogs, as a person uses them.
#include "GalleryWindow.h"

#include "support/Answer.h"
#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/dialogs/AboutView.h>
#include <ZelCommonView/windows/PanelManagerView.h>
#include <ZelCommonView/windows/Window.h>

#include <gtest/gtest.h>

namespace {

class GalleryWindows : public testing::Test {
protected:
    ~GalleryWindows() override {
        test::movePointerAway();
        lng::language = 0;
    }

    void show(const std::string& page) {
        gallery = std::make_unique<gallery::GalleryWindow>(page);
        test::present(*gallery);
    }

    Gtk::Widget& page() { return *gallery->stack.get_visible_child(); }

    /// The first widget of the type with this text that is on the screen.
    template <typename T>
    static T* findShown(Gtk::Widget& root, const std::string& text) {
        for (T* const candidate : test::findAll<T>(root))
            if (candidate->get_mapped() && candidate->get_label() == text)
                return candidate;
        return nullptr;
    }

    static void press(Gtk::Widget& root, const std::string& text) {
        auto* const button = findShown<Gtk::Button>(root, text);
        ASSERT_NE(button, nullptr) << text;
        test::click(*button);
    }

    void press(const std::string& text) { press(page(), text); }

    bool says(const std::string& text) {
        return test::waitFor([&] { return findShown<Gtk::Label>(page(), text) != nullptr; }, 2000);
    }

    static Gtk::Window* findWindow(const std::string& title) {
        for (Gtk::Window* const window : Gtk::Window::list_toplevels())
            if (window->get_mapped() && window->get_title() == title)
                return window;
        return nullptr;
    }

    static Gtk::Window* waitForWindow(const std::string& title) {
        EXPECT_TRUE(test::waitFor([&] { return findWindow(title) != nullptr; })) << title;
        test::wait(300);
        return findWindow(title);
    }

    static bool isGone(const std::string& title) {
        return test::waitFor([&] { return findWindow(title) == nullptr; });
    }

    std::unique_ptr<gallery::GalleryWindow> gallery;
};

class GalleryPanels : public GalleryWindows {
protected:
    GalleryPanels() { show("panels"); }

    Zel::PanelManagerView& manager() { return *test::findAll<Zel::PanelManagerView>(page()).front(); }

    Zel::PanelView& panel(const std::string& title) {
        for (const auto& candidate : manager().panels)
            if (candidate->getTitle() == title)
                return *candidate;
        throw std::runtime_error("no panel named " + title);
    }

    std::string placed() {
        std::string titles;
        for (const auto& candidate : manager().panels)
            if (candidate->get_parent() && candidate->get_toplevel() == gallery.get())
                titles += candidate->getTitle().back();
        return titles;
    }
};

class GalleryAbout : public GalleryWindows {
protected:
    GalleryAbout() {
        const std::string program = folder.path / "xdg-open";
        test::writeFile(program, "#!/bin/sh\nprintf '%s' \"$1\" > '" + opened + "'\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }

    std::string openedName() {
        EXPECT_TRUE(test::waitFor([this] { return !test::readFile(opened).empty(); }));
        return std::filesystem::path(test::readFile(opened)).filename();
    }

    test::TemporaryFolder folder;
    std::string opened = folder.path / "opened";
    test::EnvironmentVariable path{"PATH", folder.path.string() + ":" + std::getenv("PATH")};
};

} // namespace

TEST_F(GalleryWindows, OneOfAPresenterOpensAgainAfterItWasClosed) {
    show("windows");
    EXPECT_TRUE(says("There is no window."));
    for (int i = 0; i < 2; ++i) {
        press("Open a window");
        Gtk::Window* const window = waitForWindow("A window");
        ASSERT_NE(window, nullptr);
        EXPECT_TRUE(says("The window is open."));
        EXPECT_EQ(window->get_transient_for(), gallery.get());
        EXPECT_NE(findShown<Gtk::Label>(*window, "This label outlives the window in which it is shown."),
                  nullptr);
        EXPECT_FALSE(window->get_modal());
        test::closeByManager(*window);
        EXPECT_TRUE(says("There is no window."));
    }
    press("modal");
    press("Open a window");
    ASSERT_NE(waitForWindow("A window"), nullptr);
    EXPECT_TRUE(findWindow("A window")->get_modal());
    // It goes with the page.
    gallery.reset();
    EXPECT_TRUE(isGone("A window"));
}

TEST_F(GalleryWindows, OneWithABarOfItsOwnHasTheApplicationsButton) {
    show("windows");
    press("Window with a bar of its own");
    auto* window = dynamic_cast<Zel::Window*>(waitForWindow("A title bar of its own"));
    ASSERT_NE(window, nullptr);
    press(*window, "Pin");
    EXPECT_TRUE(findShown<Gtk::ToggleButton>(*window, "Pin")->get_active());
    test::click(window->btnMax);
    EXPECT_TRUE(test::waitFor([&] { return window->is_maximized(); }));
    test::click(window->btnClose);
    EXPECT_TRUE(isGone("A title bar of its own"));
    press("Window with a bar of its own");
    window = dynamic_cast<Zel::Window*>(waitForWindow("A title bar of its own"));
    ASSERT_NE(window, nullptr);
    EXPECT_TRUE(findShown<Gtk::ToggleButton>(*window, "Pin")->get_active());
}

TEST_F(GalleryWindows, OkIsRefusedUntilTheNumberIsInItsRange) {
    show("confirm");
    press("Ask");
    Gtk::Window* window = waitForWindow("Setting");
    ASSERT_NE(window, nullptr);
    test::click(*test::findAll<Gtk::Entry>(*window).front());
    test::type("11");
    press(*window, "OK");
    EXPECT_TRUE(says("OK was refused."));
    ASSERT_EQ(findWindow("Setting"), window);
    test::click(*test::findAll<Gtk::Entry>(*window).front());
    test::pressKey(GDK_KEY_End);
    test::pressKey(GDK_KEY_BackSpace);
    press(*window, "OK");
    EXPECT_TRUE(isGone("Setting"));
    EXPECT_TRUE(says("Confirmed: 1"));

    press("Ask");
    press(*waitForWindow("Setting"), "Cancel");
    EXPECT_TRUE(says("Cancelled."));
    press("Ask");
    test::closeByManager(*waitForWindow("Setting"));
    EXPECT_TRUE(says("Cancelled."));
}

TEST_F(GalleryWindows, ForReadingOnlyThereAreNoButtons) {
    show("confirm");
    press("for reading only");
    press("Ask");
    Gtk::Window* const window = waitForWindow("Setting");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(findShown<Gtk::Button>(*window, "OK"), nullptr);
    EXPECT_EQ(findShown<Gtk::Button>(*window, "Cancel"), nullptr);
    EXPECT_TRUE(test::findAll<Gtk::Entry>(*window).front()->get_mapped());
    test::closeByManager(*window);
    EXPECT_TRUE(says("Cancelled."));
}

TEST_F(GalleryPanels, ANewOneStandsWhereItIsWanted) {
    EXPECT_EQ(placed(), "1234");
    press("New panel"); // to the right of the newest, which stands in tabs
    EXPECT_EQ(placed(), "12345");
    EXPECT_TRUE(panel("Panel 5").get_mapped());
    int x = 0;
    int y = 0;
    ASSERT_TRUE(panel("Panel 5").translate_coordinates(*panel("Panel 4").get_parent(), 0, 0, x, y));
    EXPECT_GE(x, panel("Panel 4").get_parent()->get_allocated_width());
    auto* const places = test::findAll<Gtk::ComboBoxText>(page()).front();
    places->set_active(4);
    press("New panel");
    EXPECT_EQ(panel("Panel 6").get_parent(), panel("Panel 5").get_parent());
    EXPECT_NE(dynamic_cast<Gtk::Notebook*>(panel("Panel 6").get_parent()), nullptr);
}

TEST_F(GalleryPanels, AllAreDeletedAndNewOnesFollow) {
    press("Delete all");
    EXPECT_EQ(placed(), "");
    press("New panel");
    EXPECT_EQ(placed(), "1");
    EXPECT_TRUE(panel("Panel 1").get_mapped());
    // Also while one floats.
    test::click(panel("Panel 1").btnToWindow);
    ASSERT_NE(waitForWindow("Panel 1"), nullptr);
    test::present(*gallery);
    press("Delete all");
    EXPECT_TRUE(manager().panels.empty());
    EXPECT_TRUE(isGone("Panel 1"));
    press("New panel");
    EXPECT_EQ(placed(), "1");
}

TEST_F(GalleryPanels, ClosingOneKeepsTheOthersAndItsButtonGoesAlongIntoAWindow) {
    test::click(panel("Panel 2").btnClose);
    EXPECT_EQ(placed(), "134");
    for (const char* const title : {"Panel 1", "Panel 3"})
        EXPECT_TRUE(panel(title).get_mapped()) << title;
    test::click(panel("Panel 1").btnToWindow);
    Gtk::Window* const window = waitForWindow("Panel 1");
    ASSERT_NE(window, nullptr);
    auto* const content = findShown<Gtk::Label>(*window, "Content of panel 1");
    ASSERT_NE(content, nullptr);
    press(*window, "B");
    EXPECT_EQ(content->get_label(), "<b>Content of panel 1</b>");
    press(*window, "B");
    EXPECT_EQ(content->get_label(), "Content of panel 1");
    EXPECT_EQ(placed(), "34");
}

TEST_F(GalleryWindows, AQuestionIsAnswered) {
    show("dialogs");
    for (const auto& [answer, text] :
         {std::make_pair("Yes", "Yes"), std::make_pair("No", "No"), std::make_pair("Cancel", "Neither")}) {
        test::Answer person([label = answer](Gtk::Dialog& dialog) { test::clickButton(dialog, label); });
        findShown<Gtk::Button>(page(), "Ask")->clicked();
        EXPECT_TRUE(says(text)) << text;
    }
}

TEST_F(GalleryWindows, AFileToSaveGetsAnExtension) {
    show("dialogs");
    const test::TemporaryFolder folder;
    const std::string path = folder.path / "name";
    {
        test::Answer person([&](Gtk::Dialog& dialog) {
            dynamic_cast<Gtk::FileChooser&>(dialog).set_current_folder(folder.path);
            dynamic_cast<Gtk::FileChooser&>(dialog).set_current_name("name");
            test::wait(500);
            test::acceptByKey(dialog);
        });
        findShown<Gtk::Button>(page(), "Save a file")->clicked();
    }
    EXPECT_TRUE(says(path + ".csv"));
    test::Answer person([](Gtk::Dialog&) { test::pressKey(GDK_KEY_Escape); });
    findShown<Gtk::Button>(page(), "Open a file")->clicked();
    EXPECT_TRUE(says("No file"));
}

TEST_F(GalleryWindows, AJobRunsToItsEndUnlessItIsCancelled) {
    show("dialogs");
    {
        test::Answer person([](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); });
        findShown<Gtk::Button>(page(), "A long job")->clicked();
    }
    EXPECT_FALSE(says("Steps done: 30"));
    {
        test::Answer person([](Gtk::Dialog&) { test::pressKey(GDK_KEY_Escape); });
        findShown<Gtk::Button>(page(), "A long job")->clicked();
    }
    EXPECT_TRUE(test::findDialogs().empty());
    EXPECT_FALSE(findShown<Gtk::Label>(page(), "Steps done: 30"));
    findShown<Gtk::Button>(page(), "A long job")->clicked();
    EXPECT_TRUE(says("Steps done: 30"));
}

TEST_F(GalleryAbout, TheWindowShowsTheContacts) {
    show("about");
    press("About");
    Gtk::Window* const window = waitForWindow("About");
    ASSERT_NE(window, nullptr);
    for (const char* const text : {"Gallery", "1.0", "https://example.org", "mail@example.org"})
        EXPECT_NE(findShown<Gtk::Label>(*window, text), nullptr) << text;
    EXPECT_EQ(findShown<Gtk::Button>(*window, "Software registry"), nullptr);
    press(*window, "License agreement");
    EXPECT_EQ(openedName(), "eula.txt");
    test::closeByManager(*window);
    EXPECT_TRUE(isGone("About"));
}

TEST_F(GalleryAbout, HelpOpensAFileThatIsThere) {
    for (const unsigned char language : {0, 1}) {
        lng::language = language;
        std::filesystem::remove(opened);
        show("about");
        press(language == 0 ? "Help" : "Справка");
        const std::string name = openedName();
        EXPECT_EQ(name, language == 0 ? "gallery-help-en.txt" : "gallery-help-ru.txt");
        const std::filesystem::path beside = std::filesystem::path(GALLERY).parent_path();
        EXPECT_NE(test::readFile(beside / name).find("--png"), std::string::npos);
        EXPECT_NE(test::readFile(beside / "eula.txt"), "");
        EXPECT_NE(test::readFile(beside / "thirdParty.txt"), "");
    }
}
