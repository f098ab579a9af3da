#include <ZelCommonView/common/Cross.h>
#include <ZelCommonView/common/ErrBuf.h>
#include <ZelCommonView/common/Language.h>

#include <gtest/gtest.h>

#include "support/TemporaryLocales.h"

#include <sys/wait.h>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>

namespace {

namespace fs = std::filesystem;

struct CrossLocale : testing::Test {
    static void SetUpTestSuite() {
        if (!test::TemporaryLocales::canMake())
            return;
        locales = std::make_unique<test::TemporaryLocales>();
        ASSERT_TRUE(locales->make("ru_RU", "ru_RU.UTF-8"));
        // A query of the locale's name asks for nothing but the name, so copies stand for the rest.
        for (const char* name : {"ru_RU", "ru_UA.UTF-8", "ru", "ru.UTF-8", "tt_RU.UTF-8"})
            locales->copy("ru_RU.UTF-8", name);
    }

    static void TearDownTestSuite() { locales.reset(); }

    void SetUp() override {
        if (!test::TemporaryLocales::canMake())
            GTEST_SKIP() << "the package \"locales\" is not installed";
        std::setlocale(LC_ALL, "C");
    }

    static inline std::unique_ptr<test::TemporaryLocales> locales;
};

TEST_F(CrossLocale, IsRussianWithATerritory) {
    for (const char* name : {"ru_RU.UTF-8", "ru_RU", "ru_UA.UTF-8"}) {
        ASSERT_TRUE(std::setlocale(LC_CTYPE, name)) << name;
        EXPECT_TRUE(cross::isRu()) << name;
    }
}

TEST_F(CrossLocale, IsNotRussianUnderTheNameRuAlone) {
    for (const char* name : {"ru", "ru.UTF-8"}) {
        ASSERT_TRUE(std::setlocale(LC_CTYPE, name)) << name;
        EXPECT_FALSE(cross::isRu()) << name;
    }
}

TEST_F(CrossLocale, IsNotRussianUnderAnyOtherName) {
    for (const char* name : {"C", "POSIX", "C.UTF-8", "tt_RU.UTF-8"}) {
        ASSERT_TRUE(std::setlocale(LC_CTYPE, name)) << name;
        EXPECT_FALSE(cross::isRu()) << name;
    }
}

TEST_F(CrossLocale, OnlyTheCharacterSetTellsRussian) {
    ASSERT_TRUE(std::setlocale(LC_ALL, "ru_RU.UTF-8"));
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "C"));
    EXPECT_FALSE(cross::isRu());
}

TEST_F(CrossLocale, AskingForRussianChangesNothing) {
    ASSERT_TRUE(std::setlocale(LC_CTYPE, "ru_RU.UTF-8"));
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ASSERT_TRUE(cross::isRu());
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
    EXPECT_EQ(lng::language, 0);
}

TEST_F(CrossLocale, NumbersGetADecimalPointAndNothingElseChanges) {
    ASSERT_TRUE(std::setlocale(LC_ALL, "ru_RU.UTF-8"));
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 0.5);
    ASSERT_STREQ(text, "0,5");

    cross::correctLocale_NUMERIC_C();
    std::snprintf(text, sizeof text, "%.1f", 0.5);
    EXPECT_STREQ(text, "0.5");
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), "ru_RU.UTF-8");
}

TEST(Cross, DescribesASignalAsTheSystemDoes) {
    EXPECT_STREQ(cross::strsignal(SIGTERM), "Terminated");
    for (const int number : {SIGHUP, SIGSEGV, 0, 12345}) {
        const std::string expected = ::strsignal(number);
        EXPECT_EQ(cross::strsignal(number), expected);
    }
}

// A program of the same name stands first on the path and notes the words that it is called with, one to a
// line.
struct XdgOpen : testing::Test {
    XdgOpen() {
        test::writeFile(
            folder.path / "xdg-open",
            "#!/bin/sh\nprintf '<%s>\\n' \"$@\" >\"$ZEL_TEST_LOG\"\nexit ${ZEL_TEST_STATUS:-0}\n");
        fs::permissions(folder.path / "xdg-open", fs::perms::owner_all);
    }

    std::string words() const { return test::readFile(log); }

    test::TemporaryFolder folder;
    fs::path log = folder.path / "log";
    test::EnvironmentVariable path{"PATH", folder.path.string() + ":" + std::getenv("PATH")};
    test::EnvironmentVariable logName{"ZEL_TEST_LOG", log.string()};
};

TEST_F(XdgOpen, TakesAPathWithABlankAsOneWord) {
    cross::xdg_open("/opt/my stand/help file.pdf");
    EXPECT_EQ(words(), "</opt/my stand/help file.pdf>\n");
}

TEST_F(XdgOpen, LeavesWhatTheShellWouldExpandAlone) {
    for (const std::string target :
         {"https://example.org/?a=1&b=2", "$HOME/*;true", "\"`true`\"", "справка.pdf", ""}) {
        cross::xdg_open(target.c_str());
        EXPECT_EQ(words(), "<" + target + ">\n");
    }
}

TEST_F(XdgOpen, DoesNotEscapeSingleQuotes) {
    cross::xdg_open("one' 'two");
    EXPECT_EQ(words(), "<one>\n<two>\n");
}

TEST_F(XdgOpen, ASingleQuoteBreaksTheCommandWithoutAnException) {
    testing::internal::CaptureStderr();
    EXPECT_NO_THROW(cross::xdg_open("it's.txt"));
    EXPECT_NE(testing::internal::GetCapturedStderr(), "") << "the shell complains";
    EXPECT_FALSE(fs::exists(log));
}

TEST_F(XdgOpen, IgnoresAFailureOfTheProgram) {
    const test::EnvironmentVariable status("ZEL_TEST_STATUS", "2");
    EXPECT_NO_THROW(cross::xdg_open("missing.txt"));
    EXPECT_EQ(words(), "<missing.txt>\n");
}

TEST_F(XdgOpen, ThrowsWhereTheStatusOfTheCommandCannotBeHad) {
    const auto former = std::signal(SIGCHLD, SIG_IGN);
    testing::internal::CaptureStdout();
    std::string text;
    try {
        cross::xdg_open("help.pdf");
    } catch (const cross::ErrBufLastErr& error) {
        text = error.what();
    }
    std::signal(SIGCHLD, former);
    EXPECT_EQ(text, "No child processes");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "No child processes\n");
}

TEST(XdgOpenCommand, ReturnsTheStatusAsItStands) {
    EXPECT_EQ(cross::xdg_open_("exit 0"), 0);
    const int failed = cross::xdg_open_("exit 3");
    EXPECT_TRUE(WIFEXITED(failed));
    EXPECT_EQ(WEXITSTATUS(failed), 3);
    const int killed = cross::xdg_open_("kill -TERM $$");
    EXPECT_TRUE(WIFSIGNALED(killed));
    EXPECT_EQ(WTERMSIG(killed), SIGTERM);
}

TEST(XdgOpenCommand, ReturnsTheStatusOfACommandThatIsNotThere) {
    testing::internal::CaptureStderr();
    const int status = cross::xdg_open_("/nonexistent/program");
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(WEXITSTATUS(status), 127);
}

} // namespace
