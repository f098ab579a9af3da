// The program as a person starts it: what it prints, what it writes, how it ends.
#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <sstream>

namespace {

struct Result {
    int code;
    std::string output;
    std::string errors;
};

struct GalleryTest : testing::Test {
    Result run(const std::string& arguments, const std::string& environment = "",
               const std::string& prefix = "") const {
        const std::string errors = folder.path / "errors";
        const std::string output = folder.path / "output";
        const int status = std::system((environment + " " + prefix + " '" + GALLERY + "' " + arguments +
                                        " >'" + output + "' 2>'" + errors + "'")
                                           .c_str());
        return {WEXITSTATUS(status), test::readFile(output), test::readFile(errors)};
    }

    std::string pictures() const { return "'" + (folder.path / "pictures").string() + "'"; }

    std::string pathOf(const std::string& name) const { return (folder.path / "pictures" / name).string(); }

    test::TemporaryFolder folder;
};

} // namespace

TEST_F(GalleryTest, ListsItsPagesWithoutADisplay) {
    const Result result = run("--list", "DISPLAY=");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, "");
    for (const char* name : {"oscillogram", "replay", "themes", "jobs", "geometry", "canvas", "curves",
                             "words", "markers", "overlays", "plot", "range", "frames", "actions", "windows",
                             "confirm", "panels", "dialogs", "about"})
        EXPECT_NE(("\n" + result.output).find("\n" + std::string(name) + "\t"), std::string::npos) << name;
    EXPECT_NE(result.output.find("plot\tPlot with a legend\n"), std::string::npos);
}

TEST_F(GalleryTest, ListsItsPagesInRussian) {
    const Result result = run("--list --lang ru", "DISPLAY=");
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.output.find("plot\tГрафик с легендой\n"), std::string::npos);
}

TEST_F(GalleryTest, PaintsAPageInBothLanguagesLightAndDarkAndPrintsThePaths) {
    const Result result = run("--page plot --png " + pictures());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, pathOf("plot-en-light.png") + "\n" + pathOf("plot-ru-light.png") + "\n" +
                                 pathOf("plot-en-dark.png") + "\n" + pathOf("plot-ru-dark.png") + "\n");
    const test::Picture english = test::pictureOfFile(pathOf("plot-en-light.png"));
    const test::Picture russian = test::pictureOfFile(pathOf("plot-ru-light.png"));
    EXPECT_GT(english.countPainted(), 5000);
    EXPECT_EQ(english.width, russian.width);
    EXPECT_FALSE(english == russian);
}

TEST_F(GalleryTest, PaintsEveryPageWithoutAComplaint) {
    const Result list = run("--list");
    const Result result = run("--png " + pictures());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, "");
    int count = 0;
    std::istringstream lines(list.output);
    for (std::string line; std::getline(lines, line);) {
        const std::string page = line.substr(0, line.find('\t'));
        for (const std::string language : {"en", "ru"}) {
            const test::Picture light = test::pictureOfFile(pathOf(page + "-" + language + "-light.png"));
            const test::Picture dark = test::pictureOfFile(pathOf(page + "-" + language + "-dark.png"));
            EXPECT_GT(light.countPainted(), 2000) << page << " " << language;
            EXPECT_GT(dark.countPainted(), 2000) << page << " " << language;
            // The background in the corner is what makes them light or dark.
            EXPECT_GT(light.at(0, 0)[1], 200) << page << " " << language;
            EXPECT_LT(dark.at(0, 0)[1], 80) << page << " " << language;
            count += 2;
        }
    }
    EXPECT_GE(count, 100);
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), count);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path / "pictures"), {}), count);
}

TEST_F(GalleryTest, PaintsInOneLanguageIfItIsNamed) {
    const Result result = run("--page words --lang ru --png " + pictures());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, pathOf("words-ru-light.png") + "\n" + pathOf("words-ru-dark.png") + "\n");
    EXPECT_FALSE(std::filesystem::exists(pathOf("words-en-light.png")));
}

TEST_F(GalleryTest, PaintsInOneLookIfItIsNamed) {
    for (const std::string look : {"light", "dark"}) {
        const Result result = run("--page words --lang en --look " + look + " --png " + pictures());
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.output, pathOf("words-en-" + look + ".png") + "\n");
    }
}

TEST_F(GalleryTest, PaintsTheSameWhateverThemeTheUserHas) {
    EXPECT_EQ(run("--page words --lang en --png " + pictures()).code, 0);
    for (const std::string look : {"light", "dark"}) {
        const std::string path = pathOf("words-en-" + look + ".png");
        const test::Picture before = test::pictureOfFile(path);
        const std::string arguments = "--page words --lang en --look " + look + " --png " + pictures();
        EXPECT_EQ(run(arguments, "GTK_THEME=HighContrastInverse").code, 0);
        EXPECT_TRUE(test::pictureOfFile(path) == before) << look;
    }
}

TEST_F(GalleryTest, ShowsItsWindowUntilItIsEnded) {
    const Result result = run("--page range --lang ru --look dark", "", "timeout 3");
    EXPECT_EQ(result.code, 124) << "it ended by itself";
    EXPECT_EQ(result.errors, "");
}

TEST_F(GalleryTest, ItsWindowIsAsLightOrDarkAsAsked) {
    for (const bool isDark : {true, false}) {
        const std::vector<std::string> arguments{GALLERY, "--page", "about", "--look",
                                                 isDark ? "dark" : "light"};
        Glib::Pid pid = 0;
        Glib::spawn_async("", arguments, Glib::SPAWN_DO_NOT_REAP_CHILD, Glib::SlotSpawnChildSetup(), &pid);
        // The middle of the screen lies in the window, where that page is empty; the screen itself is black.
        const auto brightness = [] {
            const auto root = Gdk::Screen::get_default()->get_root_window();
            const auto pixel = Gdk::Pixbuf::create(root, root->get_width() / 2, root->get_height() / 2, 1, 1);
            return int{pixel->get_pixels()[1]};
        };
        EXPECT_TRUE(test::waitFor([&] {
            const int value = brightness();
            return isDark ? value > 30 && value < 80 : value > 200;
        })) << brightness();
        kill(pid, SIGTERM);
        waitpid(pid, nullptr, 0);
        Glib::spawn_close_pid(pid);
        EXPECT_TRUE(test::waitFor([&] { return brightness() < 30; })) << "the window is still there";
    }
}

TEST_F(GalleryTest, WithoutADisplaySaysSo) {
    for (const std::string& arguments : {std::string(), "--png " + pictures()}) {
        const Result result = run(arguments, "DISPLAY=");
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "gallery: there is no display to paint on; --list needs none\n");
    }
}

TEST_F(GalleryTest, AFolderThatCantBeMadeIsNamed) {
    test::writeFile(folder.path / "file", "");
    const std::string below = (folder.path / "file" / "below").string();
    const Result result = run("--png '" + below + "'");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.errors,
              "gallery: the pictures can't be written to " + below + ": the folder can't be made\n");
}

TEST_F(GalleryTest, ArgumentsThatMakeNoSenseGetASentence) {
    const auto complaint = [this](const std::string& arguments) {
        const Result result = run(arguments);
        EXPECT_EQ(result.code, 2) << arguments;
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
        return result.errors;
    };
    EXPECT_EQ(complaint("--page nowhere"),
              "gallery: there is no page \"nowhere\"; --list names all of them\n");
    EXPECT_EQ(complaint("--page ''"), "gallery: there is no page \"\"; --list names all of them\n");
    EXPECT_EQ(complaint("--lang de"), "gallery: --lang takes \"en\" or \"ru\", and not \"de\"\n");
    EXPECT_EQ(complaint("--lang ''"), "gallery: --lang takes \"en\" or \"ru\", and not \"\"\n");
    EXPECT_EQ(complaint("--look bright"),
              "gallery: --look takes \"light\" or \"dark\", and not \"bright\"\n");
    EXPECT_EQ(complaint("--look ''"), "gallery: --look takes \"light\" or \"dark\", and not \"\"\n");
    EXPECT_EQ(complaint("--png ''"), "gallery: --png takes the folder for the pictures\n");
    EXPECT_EQ(complaint("plot"), "gallery: \"plot\" is no option; --page NAME shows a page\n");
    EXPECT_EQ(complaint("--list --page plot"),
              "gallery: --list names all pages; it can't be combined with --page or --png\n");
    EXPECT_NE(complaint("--nonsense").find("--nonsense"), std::string::npos);
    EXPECT_NE(complaint("--page").find("--page"), std::string::npos);
}

TEST_F(GalleryTest, ExplainsItself) {
    const Result result = run("--help", "DISPLAY=");
    EXPECT_EQ(result.code, 0);
    for (const char* option : {"--page", "--list", "--png", "--lang", "--look"})
        EXPECT_NE(result.output.find(option), std::string::npos) << option;
}
