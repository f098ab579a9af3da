// The program as a person starts it: what it prints, what it writes, how it ends.
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>

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
    for (const char* name : {"geometry", "canvas", "curves", "words", "markers", "overlays", "plot", "range",
                             "frames", "actions", "windows", "confirm", "panels", "dialogs", "about"})
        EXPECT_NE(("\n" + result.output).find("\n" + std::string(name) + "\t"), std::string::npos) << name;
    EXPECT_NE(result.output.find("plot\tPlot with a legend\n"), std::string::npos);
}

TEST_F(GalleryTest, ListsItsPagesInRussian) {
    const Result result = run("--list --lang ru", "DISPLAY=");
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.output.find("plot\tГрафик с легендой\n"), std::string::npos);
}

TEST_F(GalleryTest, PaintsAPageInBothLanguagesAndPrintsThePaths) {
    const Result result = run("--page plot --png " + pictures());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, pathOf("plot-en.png") + "\n" + pathOf("plot-ru.png") + "\n");
    const test::Picture english = test::pictureOfFile(pathOf("plot-en.png"));
    const test::Picture russian = test::pictureOfFile(pathOf("plot-ru.png"));
    EXPECT_GT(english.countPainted(), 5000);
    EXPECT_EQ(english.width, russian.width);
    EXPECT_FALSE(english == russian);
}

TEST_F(GalleryTest, PaintsEveryPageWithoutAComplaint) {
    const Result list = run("--list");
    const auto count = std::count(list.output.begin(), list.output.end(), '\n');
    const Result result = run("--png " + pictures());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 2 * count);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path / "pictures"), {}), 2 * count);
}

TEST_F(GalleryTest, PaintsInOneLanguageIfItIsNamed) {
    const Result result = run("--page words --lang ru --png " + pictures());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, pathOf("words-ru.png") + "\n");
    EXPECT_FALSE(std::filesystem::exists(pathOf("words-en.png")));
}

TEST_F(GalleryTest, ShowsItsWindowUntilItIsEnded) {
    const Result result = run("--page range --lang ru", "", "timeout 3");
    EXPECT_EQ(result.code, 124) << "it ended by itself";
    EXPECT_EQ(result.errors, "");
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
    for (const char* option : {"--page", "--list", "--png", "--lang"})
        EXPECT_NE(result.output.find(option), std::string::npos) << option;
}
