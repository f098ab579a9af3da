#include <ZelCommonView/common/StringHelper.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace {

using testing::ElementsAre;
using Zel::StringHelper::isInclude;
using Zel::StringHelper::split;

constexpr unsigned long far = std::numeric_limits<unsigned long>::max();

TEST(IsInclude, FindsAPartAnywhereBetweenThePositions) {
    EXPECT_TRUE(isInclude("-infinity", "inf", 0, 9, false));
    EXPECT_TRUE(isInclude("-infinity", "-inf", 0, 9, false));
    EXPECT_TRUE(isInclude("-infinity", "ity", 0, 9, false));
    EXPECT_FALSE(isInclude("-infinity", "nan", 0, 9, false));
}

TEST(IsInclude, FindsOnlyWhatStandsWhollyBetweenThePositions) {
    EXPECT_TRUE(isInclude("abcdef", "cd", 2, 4, false));
    EXPECT_FALSE(isInclude("abcdef", "cd", 3, 6, false));
    EXPECT_FALSE(isInclude("abcdef", "cd", 0, 3, false));
    EXPECT_FALSE(isInclude("abcdef", "cd", 2, 3, false));
}

TEST(IsInclude, FindsAPartBehindItsOwnBeginning) {
    EXPECT_TRUE(isInclude("ininf", "inf", 0, 5, false));
    EXPECT_TRUE(isInclude("aaab", "aab", 0, 4, false));
}

TEST(IsInclude, IgnoresTheCaseOfLatinLettersOnlyIfAsked) {
    EXPECT_TRUE(isInclude("NaN", "nan", 0, 3, true));
    EXPECT_TRUE(isInclude("nan", "NAN", 0, 3, true));
    EXPECT_FALSE(isInclude("NaN", "nan", 0, 3, false));
    EXPECT_FALSE(isInclude("Ток", "ток", 0, far, true));
    EXPECT_TRUE(isInclude("Ток", "ок", 0, far, true));
    EXPECT_FALSE(isInclude("[", "{", 0, 1, true));
}

TEST(IsInclude, APositionBehindTheEndCountsAsTheEnd) {
    EXPECT_TRUE(isInclude("abc", "bc", 0, far, false));
    EXPECT_TRUE(isInclude("abc", "c", 2, 100, false));
    EXPECT_FALSE(isInclude("abc", "cd", 0, 100, false));
}

TEST(IsInclude, AStartBehindTheEndFindsNothing) {
    EXPECT_FALSE(isInclude("abc", "a", 4, 10, false));
    EXPECT_FALSE(isInclude("abc", "", 4, 10, false));
    EXPECT_FALSE(isInclude("abc", "a", far, far, false));
    EXPECT_FALSE(isInclude("abc", "b", 2, 1, false));
    EXPECT_FALSE(isInclude("abc", "", 2, 1, false));
}

TEST(IsInclude, AnEmptyPartStandsEverywhereElse) {
    EXPECT_TRUE(isInclude("abc", "", 0, 3, false));
    EXPECT_TRUE(isInclude("abc", "", 3, 3, true));
    EXPECT_TRUE(isInclude("", "", 0, 0, false));
    EXPECT_FALSE(isInclude("", "a", 0, 0, false));
}

TEST(Split, GivesThePiecesBetweenTheSeparators) {
    EXPECT_THAT(split("*.png|*.jpg|*.bmp", '|'), ElementsAre("*.png", "*.jpg", "*.bmp"));
    EXPECT_THAT(split("*.png", '|'), ElementsAre("*.png"));
    EXPECT_THAT(split("ток;Ω", ';'), ElementsAre("ток", "Ω"));
}

TEST(Split, KeepsEmptyPieces) {
    EXPECT_THAT(split("a||b", '|'), ElementsAre("a", "", "b"));
    EXPECT_THAT(split("|a|", '|'), ElementsAre("", "a", ""));
    EXPECT_THAT(split("|", '|'), ElementsAre("", ""));
}

TEST(Split, AnEmptyTextIsOneEmptyPiece) {
    EXPECT_THAT(split("", '|'), ElementsAre(""));
}

} // namespace
