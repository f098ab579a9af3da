#include <ZelCommonView/dialogs/FileDialogHelper.h>

#include <gtest/gtest.h>

#include <regex>

namespace {

using namespace Zel;
using FileDialogHelper::completeFileName;
using FileDialogHelper::isMatchPattern;

const FileDialogFilters tables{{"*.csv|*.txt", "Tables"}};
const FileDialogFilters pictures{{"*.png", "Pictures"}, {"*.csv|*.txt", "Tables"}};

TEST(CompleteFileName, AppendsTheFirstExtensionOfTheFirstFilter) {
    EXPECT_EQ(completeFileName("a", tables), "a.csv");
    EXPECT_EQ(completeFileName("/home/user/a", pictures), "/home/user/a.png");
    EXPECT_EQ(completeFileName("a.txt", pictures), "a.txt.png");
    EXPECT_EQ(completeFileName("", tables), ".csv");
}

TEST(CompleteFileName, TakesWhatFollowsTheLastDotOfThePattern) {
    EXPECT_EQ(completeFileName("a", {{"*.tar.gz", ""}}), "a.gz");
    EXPECT_EQ(completeFileName("a", {{"*.", ""}}), "a.");
    EXPECT_EQ(completeFileName("a", {{"*.*", ""}}), "a.*");
}

TEST(CompleteFileName, APatternWithoutADotAddsNothing) {
    EXPECT_EQ(completeFileName("a", {{"*", ""}}), "a");
    EXPECT_EQ(completeFileName("a", {{"*|*.csv", ""}}), "a");
    EXPECT_EQ(completeFileName("a", {{"", ""}, {"*.csv", ""}}), "a");
    EXPECT_EQ(completeFileName("a", {{"|*.csv", ""}}), "a");
}

TEST(CompleteFileName, WithoutFiltersReturnsTheName) {
    EXPECT_EQ(completeFileName("a", {}), "a");
}

TEST(IsMatchPattern, AsksEveryPatternOfEveryFilter) {
    EXPECT_TRUE(isMatchPattern("a.png", pictures));
    EXPECT_TRUE(isMatchPattern("a.csv", pictures));
    EXPECT_TRUE(isMatchPattern("a.txt", pictures));
    EXPECT_FALSE(isMatchPattern("a.gif", pictures));
    EXPECT_FALSE(isMatchPattern("a", pictures));
    EXPECT_FALSE(isMatchPattern("a.png", {}));
}

TEST(IsMatchPattern, MatchesTheWholePath) {
    EXPECT_TRUE(isMatchPattern("/home/user/a.csv", tables));
    EXPECT_FALSE(isMatchPattern("/home/user/a.csv", {{"a.csv", ""}}));
    EXPECT_FALSE(isMatchPattern("a.csv.gif", tables));
    EXPECT_TRUE(isMatchPattern("/home/отчёт.csv", tables));
}

TEST(IsMatchPattern, AStarStandsForAnyCharactersAndAQuestionMarkForOne) {
    EXPECT_TRUE(isMatchPattern("ab", {{"a*b", ""}}));
    EXPECT_TRUE(isMatchPattern("a1234b", {{"a*b", ""}}));
    EXPECT_TRUE(isMatchPattern("a1b", {{"a?b", ""}}));
    EXPECT_FALSE(isMatchPattern("ab", {{"a?b", ""}}));
    EXPECT_FALSE(isMatchPattern("a12b", {{"a?b", ""}}));
    EXPECT_TRUE(isMatchPattern("12.34", {{"??*.*?", ""}}));
    EXPECT_TRUE(isMatchPattern("", {{"*", ""}}));
}

TEST(IsMatchPattern, TheDotOfAPatternMatchesAnyCharacter) {
    EXPECT_TRUE(isMatchPattern("xtxt", tables));
    EXPECT_FALSE(isMatchPattern("txt", tables));
}

TEST(IsMatchPattern, DistinguishesCase) {
    EXPECT_FALSE(isMatchPattern("a.CSV", tables));
    EXPECT_TRUE(isMatchPattern("a.CSV", {{"*.CSV", ""}}));
}

TEST(IsMatchPattern, AnEmptyPatternMatchesTheEmptyNameOnly) {
    EXPECT_TRUE(isMatchPattern("", {{"", ""}}));
    EXPECT_FALSE(isMatchPattern("a", {{"", ""}}));
    EXPECT_TRUE(isMatchPattern("", {{"*.csv|", ""}}));
}

TEST(IsMatchPattern, RefusesAPatternThatIsNoRegularExpression) {
    EXPECT_THROW(isMatchPattern("a", {{"(*", ""}}), std::regex_error);
    EXPECT_THROW(isMatchPattern("a", {{"[", ""}}), std::regex_error);
    // Those behind the first match are never looked at.
    EXPECT_TRUE(isMatchPattern("a.csv", {{"*.csv|[", ""}}));
}

} // namespace
