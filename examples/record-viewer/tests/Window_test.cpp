// The viewer's window: its bar, its panels, help, the about window, and the place it comes back to.
#include "Panels.h"
#include "reader/Reader.h"
#include "support/Answer.h"
#include "support/Keyboard.h"
#include "support/TemporaryFolder.h"
#include "view/SettingsWords.h"
#include "view/Words.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/plot/SeriesTimeCounter.h>

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>

namespace {

using viewer::MainWindow;

class ViewerWindow : public testing::Test {
protected:
    ~ViewerWindow() override { lng::language = 0; }

    static void show(MainWindow& window) {
        window.hodograph.hodograph.getCounter().setIsPaused(true);
        test::present(window);
    }

    static void showDemo(MainWindow& window) {
        record::Record record = record::open(DEMO_RECORD);
        viewer::Impedances impedances = viewer::computeImpedances(record);
        window.setRecord(std::move(record), std::move(impedances));
        window.hodograph.hodograph.getCounter().setIsPaused(true);
        test::settle();
    }

    static std::string seen(MainWindow& window) {
        std::string all;
        for (const auto& [widget, letter] : {std::pair<Gtk::Widget*, const char*>{&window.page, "O"},
                                             {&window.hodograph, "H"},
                                             {&window.plane, "Z"},
                                             {&window.channels, "C"},
                                             {&window.events, "E"}})
            if (widget->get_mapped())
                all += letter;
        return all;
    }

    static void expectSeen(MainWindow& window, const std::string& letters) {
        test::waitFor([&] { return seen(window) == letters; });
        EXPECT_EQ(seen(window), letters);
    }

    /// Clicks a button in the title of a panel.
    static void press(Gtk::Button& button) {
        if (!test::waitFor([&button] { return button.get_mapped(); }))
            throw std::runtime_error("the button is not on the screen");
        test::click(button);
    }

    static Gtk::Window* findWindow(const std::string& title) {
        for (Gtk::Window* const window : Gtk::Window::list_toplevels())
            if (window->get_title() == title && window->get_mapped())
                return window;
        return nullptr;
    }

    test::TemporaryFolder folder;
};

class ViewerHelp : public ViewerWindow {
protected:
    ViewerHelp() {
        const std::string program = folder.path / "xdg-open";
        test::writeFile(program, "#!/bin/sh\nprintf '%s\\n' \"$1\" >> '" + opened() + "'\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    }

    std::string opened() const { return folder.path / "opened"; }

    /// The names of the files that were opened, without their folder.
    std::string takeOpened() {
        std::istringstream lines(test::readFile(opened()));
        std::filesystem::remove(opened());
        std::string names;
        for (std::string line; std::getline(lines, line);)
            names += std::filesystem::path(line).filename().string() + "\n";
        return names;
    }

    test::EnvironmentVariable path{"PATH", folder.path.string() + ":" + std::getenv("PATH")};
};

class ViewerPlace : public ViewerWindow {
protected:
    static std::array<int, 4> placeOf(Gtk::Window& window) {
        std::array<int, 4> place{};
        window.get_position(place[0], place[1]);
        window.get_size(place[2], place[3]);
        return place;
    }

    /// Where a window stands that was started with this text in the file.
    std::array<int, 4> placeWith(const std::string& text) {
        test::writeFile(file, text);
        MainWindow window("test", file);
        show(window);
        return placeOf(window);
    }

    std::string file = folder.path / "deep" / "below" / "window.ini";
};

} // namespace

TEST_F(ViewerWindow, StaysHiddenUntilItIsShownAndThenHasItsButtons) {
    MainWindow window("test");
    test::settle();
    EXPECT_FALSE(window.get_visible());
    showDemo(window);
    EXPECT_FALSE(window.get_visible());
    window.show();
    test::wait(200);
    for (Gtk::Button* const button :
         {&window.settingsButton, &window.arrangeButton, &window.helpButton, &window.aboutButton})
        EXPECT_TRUE(button->get_mapped());
    expectSeen(window, "OHCE");
    window.hide();
    test::settle();
    window.show();
    test::wait(200);
    EXPECT_EQ(window.buttons.get_children().size(), 4u);
    EXPECT_TRUE(window.helpButton.get_mapped());
}

TEST_F(ViewerWindow, ShowsTheRecordInPanelsWithRoomForAll) {
    MainWindow window("test");
    showDemo(window);
    show(window);
    for (const char* const title : {"Oscillogram", "Hodograph", "Z plane", "Channels", "Events"}) {
        test::clickTab(window, title);
        const Zel::PanelView& panel = test::panelOf(window, title);
        EXPECT_GE(panel.get_allocated_width(), 400) << title;
        EXPECT_GE(panel.get_allocated_height(), 140) << title;
    }
    expectSeen(window, "OZCE");
    EXPECT_EQ(window.channels.list.get_model()->children().size(), 18u);
}

TEST_F(ViewerWindow, AClosedPanelLeavesTheOthersAndKeepsWhatItShows) {
    MainWindow window("test");
    showDemo(window);
    show(window);
    press(test::panelOf(window, "Channels").btnClose);
    expectSeen(window, "OHE");
    test::clickTab(window, "Z plane");
    press(test::panelOf(window, "Hodograph").btnClose);
    expectSeen(window, "OZE");

    // The same again and then a record without impedances, while they are closed.
    showDemo(window);
    expectSeen(window, "OZE");
    test::click(window.arrangeButton);
    expectSeen(window, "OHCE");
    EXPECT_EQ(window.channels.list.get_model()->children().size(), 18u);
    EXPECT_EQ(window.hodograph.hodograph.series.size(), 1u);

    press(test::panelOf(window, "Channels").btnClose);
    test::writeFile(folder.path / "small.csv", "time,A\ns,A\n0,20\n1,30\n2,40\n");
    record::Record small = record::open(folder.path / "small.csv");
    viewer::Impedances none = viewer::computeImpedances(small);
    window.setRecord(std::move(small), std::move(none));
    test::settle();
    expectSeen(window, "OHE");
    EXPECT_TRUE(window.hodograph.problem.get_mapped());
    test::click(window.arrangeButton);
    expectSeen(window, "OHCE");
    EXPECT_EQ(window.channels.list.get_model()->children().size(), 1u);
    EXPECT_TRUE(window.hodograph.problem.get_mapped());
    showDemo(window);
    EXPECT_FALSE(window.hodograph.problem.get_mapped());
    EXPECT_EQ(window.channels.list.get_model()->children().size(), 18u);
}

TEST_F(ViewerWindow, AllPanelsMayBeClosedAndComeBack) {
    MainWindow window("test");
    showDemo(window);
    show(window);
    for (const char* const title : {"Oscillogram", "Hodograph", "Channels", "Z plane", "Events"})
        press(test::panelOf(window, title).btnClose);
    expectSeen(window, "");
    test::click(window.arrangeButton);
    expectSeen(window, "OHCE");
    test::clickTab(window, "Z plane");
    expectSeen(window, "OZCE");
}

TEST_F(ViewerWindow, APanelInAWindowOfItsOwnComesBackEvenWhenThatIsClosed) {
    MainWindow window("test");
    showDemo(window);
    show(window);
    press(test::panelOf(window, "Channels").btnToWindow);
    EXPECT_TRUE(test::waitFor([] { return findWindow("Channels") != nullptr; }));
    EXPECT_EQ(window.channels.get_toplevel(), findWindow("Channels"));
    expectSeen(window, "OHCE");

    test::present(window);
    test::click(window.arrangeButton);
    EXPECT_EQ(findWindow("Channels"), nullptr);
    EXPECT_EQ(window.channels.get_toplevel(), &window);
    expectSeen(window, "OHCE");

    press(test::panelOf(window, "Channels").btnToWindow);
    ASSERT_TRUE(test::waitFor([] { return findWindow("Channels") != nullptr; }));
    test::wait(200);
    test::closeByManager(*findWindow("Channels"));
    expectSeen(window, "OHE");
    test::present(window);
    test::click(window.arrangeButton);
    expectSeen(window, "OHCE");
}

TEST_F(ViewerWindow, APanelIsDraggedByItsTitle) {
    MainWindow window("test");
    showDemo(window);
    show(window);
    Zel::PanelView& panel = test::panelOf(window, "Channels");
    Zel::PanelView& target = test::panelOf(window, "Oscillogram");
    test::movePointer(panel.titleLabel, 10, 10);
    test::pressButton();
    for (int i = 1; i <= 5; ++i) {
        test::movePointer(panel.titleLabel, 10 + 8 * i, 10);
        test::wait(30);
    }
    ASSERT_TRUE(test::waitFor([&] { return panel.isDragSource; }));
    const int x = target.get_allocated_width() / 2;
    const int y = target.get_allocated_height() - 15;
    test::movePointer(target, x - 6, y - 3);
    test::wait(100);
    test::movePointer(target, x, y);
    test::wait(200);
    EXPECT_TRUE(target.overlayBox.get_mapped());
    test::releaseButton();
    EXPECT_TRUE(test::waitFor([&] { return panel.get_parent() == target.get_parent(); }));
    test::wait(300);
    expectSeen(window, "OHCE");
    int below = 0;
    int ignored = 0;
    target.translate_coordinates(panel, 0, 0, ignored, below);
    EXPECT_LT(below, 0);
}

TEST_F(ViewerWindow, WhatIsDraggedInAPanelLeavesThePanelWhereItIs) {
    MainWindow window("test");
    showDemo(window);
    show(window);
    const auto expectNoDrag = [&](Gtk::Widget& content, const std::string& title, int y) {
        const Zel::PanelView& panel = test::panelOf(window, title);
        test::movePointer(content, 150, y);
        test::settle();
        test::pressButton();
        for (int i = 1; i <= 8; ++i) {
            test::movePointer(content, 150 + 8 * i, y + 2 * i);
            test::wait(20);
            EXPECT_FALSE(panel.isDragSource) << title << " at " << y;
        }
        test::releaseButton();
        test::settle();
    };
    expectNoDrag(window.page.oscillograph, "Oscillogram", 100);
    expectNoDrag(window.page.oscillograph, "Oscillogram", 400);
    expectNoDrag(window.hodograph.hodograph, "Hodograph", 100);
    expectNoDrag(window.channels, "Channels", 60);
    expectNoDrag(window.events, "Events", 60);
    test::clickTab(window, "Z plane");
    expectNoDrag(window.plane.diagram, "Z plane", 100);
    expectSeen(window, "OZCE");
}

TEST_F(ViewerWindow, EndsTheProgramAlsoWhileAPanelFloats) {
    const auto application = Gtk::Application::create("", Gio::APPLICATION_NON_UNIQUE);
    auto window = std::make_unique<MainWindow>("test");
    bool isGivenUp = false;
    Glib::signal_timeout().connect_once([&] { test::panelOf(*window, "Channels").btnToWindow.clicked(); },
                                        300);
    Glib::signal_timeout().connect_once(
        [&] {
            EXPECT_NE(findWindow("Channels"), nullptr);
            window->close();
        },
        800);
    sigc::connection patience = Glib::signal_timeout().connect(
        [&] {
            isGivenUp = true;
            application->quit();
            return false;
        },
        5000);
    application->run(*window);
    patience.disconnect();
    EXPECT_FALSE(isGivenUp);
    window.reset();
    EXPECT_EQ(findWindow("Channels"), nullptr);
}

TEST_F(ViewerHelp, OpensByF1AndByTheButton) {
    MainWindow window("test");
    show(window);
    test::pressKey(GDK_KEY_F1);
    EXPECT_TRUE(test::waitFor([&] { return std::filesystem::exists(opened()); }));
    EXPECT_EQ(takeOpened(), "record-viewer-help-en.html\n");
    lng::language = 1;
    test::click(window.helpButton);
    EXPECT_TRUE(test::waitFor([&] { return std::filesystem::exists(opened()); }));
    EXPECT_EQ(takeOpened(), "record-viewer-help-ru.html\n");
    // Other keys open nothing.
    test::pressKey(GDK_KEY_F2);
    test::wait(200);
    EXPECT_FALSE(std::filesystem::exists(opened()));
}

TEST_F(ViewerHelp, AFileThatNothingOpensIsNoTrouble) {
    std::filesystem::remove(folder.path / "xdg-open");
    const test::EnvironmentVariable nothing("PATH", folder.path);
    MainWindow window("test");
    show(window);
    test::pressKey(GDK_KEY_F1);
    test::wait(300);
    EXPECT_TRUE(window.get_visible());
}

TEST_F(ViewerHelp, AllTextsLieBesideTheProgram) {
    const std::filesystem::path beside = std::filesystem::path(VIEWER).parent_path();
    for (const unsigned char language : {0, 1}) {
        lng::language = language;
        const std::string text = test::readFile(beside / viewer::words::helpFile());
        EXPECT_NE(text.find(viewer::words::programName()), std::string::npos);
        EXPECT_NE(text.find(viewer::words::resetPanels()), std::string::npos);
        EXPECT_NE(text.find(viewer::words::settings()), std::string::npos);
        EXPECT_NE(text.find("F1"), std::string::npos);
    }
    for (const char* const name : {"eula.txt", "thirdParty.txt"})
        EXPECT_NE(test::readFile(beside / name), "") << name;
}

TEST_F(ViewerHelp, TheAboutWindowOpensOnceAndAgainAndShowsTheLicence) {
    MainWindow window("test");
    show(window);
    const auto open = [&] {
        test::click(window.aboutButton);
        EXPECT_TRUE(test::waitFor([] { return findWindow("About") != nullptr; }));
        test::wait(200);
        return findWindow("About");
    };
    for (int i = 0; i < 2; ++i) {
        Gtk::Window* const about = open();
        ASSERT_NE(about, nullptr);
        EXPECT_EQ(about->get_transient_for(), &window);
        EXPECT_TRUE(about->get_modal());
        std::vector<std::string> texts;
        for (Gtk::Label* const label : test::findAll<Gtk::Label>(*about))
            if (label->get_mapped())
                texts.push_back(label->get_text());
        for (const char* const text :
             {"Record viewer", ZEL_VERSION, "License agreement", "Third party components"})
            EXPECT_EQ(std::count(texts.begin(), texts.end(), text), 1) << text;
        for (Gtk::LinkButton* const link : test::findAll<Gtk::LinkButton>(*about))
            if (link->get_mapped())
                test::click(*link);
        EXPECT_EQ(takeOpened(), "eula.txt\nthirdParty.txt\n");
        test::closeByManager(*about);
        EXPECT_TRUE(test::waitFor([] { return findWindow("About") == nullptr; }));
    }
}

TEST_F(ViewerHelp, TheAboutWindowSpeaksTheLanguage) {
    lng::language = 1;
    MainWindow window("test");
    show(window);
    test::click(window.aboutButton);
    ASSERT_TRUE(test::waitFor([] { return findWindow("О программе") != nullptr; }));
    std::string texts;
    for (Gtk::Label* const label : test::findAll<Gtk::Label>(*findWindow("О программе")))
        texts += label->get_text() + "\n";
    EXPECT_NE(texts.find("Просмотр записей\n"), std::string::npos);
}

TEST_F(ViewerPlace, IsWrittenWhenTheWindowClosesAndTakenAtTheNextStart) {
    std::array<int, 4> kept{};
    {
        MainWindow window("test", file);
        show(window);
        window.move(140, 90);
        window.resize(1300, 900);
        EXPECT_TRUE(test::waitFor([&] { return placeOf(window)[0] == 140 && placeOf(window)[2] == 1300; }));
        kept = placeOf(window);
        EXPECT_FALSE(std::filesystem::exists(file));
        window.close();
        EXPECT_TRUE(test::waitFor([&] { return std::filesystem::exists(file); }));
    }
    // Over and over again: it doesn't wander.
    for (int i = 0; i < 2; ++i) {
        MainWindow window("test", file);
        show(window);
        EXPECT_TRUE(test::waitFor([&] { return placeOf(window) == kept; }))
            << testing::PrintToString(placeOf(window)) << test::readFile(file);
        window.close();
        test::settle();
    }
}

TEST_F(ViewerPlace, OfAMaximizedWindowIsNotKept) {
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    const std::string text = "[window]\nx=150\ny=120\nwidth=1290\nheight=880\n";
    test::writeFile(file, text);
    MainWindow window("test", file);
    show(window);
    window.maximize();
    EXPECT_TRUE(test::waitFor([&] { return window.is_maximized(); }));
    window.close();
    test::settle();
    EXPECT_EQ(test::readFile(file), text);
}

TEST_F(ViewerPlace, ABrokenFileOrNoneIsNoTrouble) {
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    const std::array<int, 4> usual = placeWith("");
    EXPECT_EQ(usual[2], 1280);
    EXPECT_EQ(usual[3], 860);
    for (const char* const text :
         {"nonsense", "[window]\nx=1\n", "[window]\nx=100\ny=100\nwidth=many\nheight=900\n", "\xff\xfe\x00[",
          "[other]\nx=100\n", "[window]\nx=100\ny=100\nwidth=nan\nheight=inf\n",
          "[window]\nx=100\ny=100\nwidth=1e30\nheight=1e30\n", "[window]\nx=0\ny=0\nwidth=0\nheight=-5\n"})
        EXPECT_EQ(placeWith(text), usual) << text;
    // A place beyond every screen; the size is taken.
    const std::array<int, 4> beyond = placeWith("[window]\nx=9000\ny=9000\nwidth=1300\nheight=870\n");
    EXPECT_EQ(beyond[2], 1300);
    EXPECT_LT(beyond[0], 2000);
}

TEST_F(ViewerPlace, AFolderThatCantBeWrittenIsNoTrouble) {
    test::writeFile(folder.path / "deep", "a file, where a folder should be");
    {
        MainWindow window("test", file);
        show(window);
        window.close();
        test::settle();
        EXPECT_FALSE(window.get_visible());
    }
    EXPECT_EQ(test::readFile(folder.path / "deep"), "a file, where a folder should be");
}

TEST_F(ViewerPlace, TheProgramKeepsItInTheFolderOfTheUser) {
    test::writeFile(folder.path / "small.csv", "time,A\ns,A\n0,20\n1,30\n2,40\n");
    const auto run = [&](const std::string& config) {
        const std::string errors = folder.path / "errors";
        const int status = std::system(("XDG_CONFIG_HOME='" + config + "' timeout 3 '" + VIEWER + "' '" +
                                        (folder.path / "small.csv").string() + "' 2>'" + errors + "'")
                                           .c_str());
        return std::to_string(WEXITSTATUS(status)) + test::readFile(errors);
    };
    const std::filesystem::path config = folder.path / "config";
    EXPECT_EQ(run(config), "124") << "it ended by itself or complained";
    std::filesystem::create_directories(config / "record-viewer");
    test::writeFile(config / "record-viewer" / "window.ini", "nonsense");
    EXPECT_EQ(run(config), "124");
    const test::EnvironmentVariable home("XDG_CONFIG_HOME", config);
    EXPECT_EQ(std::filesystem::path(viewer::WindowPlace::usualFile()).filename(), "window.ini");
}
