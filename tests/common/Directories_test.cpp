#include <ZelCommonView/common/Directories.h>

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

// A copy of the small program stands in a folder of its own, with blanks and Cyrillic letters in its path.
struct Directories : testing::Test {
    Directories() {
        fs::create_directories(home);
        fs::copy_file(DIRECTORIES_PROGRAM, home / "program");
    }

    ~Directories() override { Zel::setThemesDir(""); }

    static std::string run(const fs::path& program) {
        return test::outputOf("cd / && '" + program.string() + "'");
    }

    test::TemporaryFolder folder;
    fs::path home = folder.path / "моя программа";
};

TEST_F(Directories, TheProgramsFolderIsThatOfTheRunningFileWhateverTheWorkingDirectory) {
    EXPECT_EQ(run(home / "program"), home.string() + "\n" + INSTALLED_THEMES_DIR + "\n");
}

TEST_F(Directories, TheProgramsFolderIsThatOfTheFileItselfBehindALink) {
    fs::create_symlink(home / "program", folder.path / "link");
    fs::create_directory(folder.path / "Themes");
    EXPECT_EQ(run(folder.path / "link"), home.string() + "\n" + INSTALLED_THEMES_DIR + "\n");
}

TEST_F(Directories, ThemesBesideTheProgramComeBeforeTheInstalledOnes) {
    fs::create_directory(home / "Themes");
    EXPECT_EQ(run(home / "program"), home.string() + "\n" + home.string() + "/Themes/\n");
}

TEST_F(Directories, AFileNamedThemesIsNoFolderOfThemes) {
    test::writeFile(home / "Themes", "");
    EXPECT_EQ(run(home / "program"), home.string() + "\n" + INSTALLED_THEMES_DIR + "\n");
}

TEST_F(Directories, TheInstalledThemesEndInASeparator) {
    const std::string installed = INSTALLED_THEMES_DIR;
    ASSERT_FALSE(installed.empty());
    EXPECT_EQ(installed.back(), '/');
}

TEST_F(Directories, ThemesGivenByTheApplicationComeFirst) {
    Zel::setThemesDir("/opt/themes");
    EXPECT_EQ(Zel::getThemesDir(), "/opt/themes/");
    Zel::setThemesDir("other");
    EXPECT_EQ(Zel::getThemesDir(), "other/");
}

TEST_F(Directories, ASeparatorIsAddedOnlyWhereItIsMissing) {
    Zel::setThemesDir("/opt/themes/");
    EXPECT_EQ(Zel::getThemesDir(), "/opt/themes/");
    Zel::setThemesDir("/");
    EXPECT_EQ(Zel::getThemesDir(), "/");
}

TEST_F(Directories, TheEmptyPathGoesBackToTheDefault) {
    const std::string byDefault = Zel::getThemesDir();
    Zel::setThemesDir("/opt/themes");
    ASSERT_NE(Zel::getThemesDir(), byDefault);
    Zel::setThemesDir("");
    EXPECT_EQ(Zel::getThemesDir(), byDefault);
}

} // namespace
