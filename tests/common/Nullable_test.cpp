#include <ZelCommonView/common/Nullable.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>

namespace {

using Zel::Nullable;

static_assert(sizeof(Nullable<bool>) == 2);
static_assert(offsetof(Nullable<bool>, value) == 0);
static_assert(offsetof(Nullable<bool>, hasValue) == 1);
static_assert(offsetof(Nullable<double>, value) == 0);
static_assert(offsetof(Nullable<double>, hasValue) == sizeof(double));
static_assert(std::is_trivially_copyable_v<Nullable<bool>>);
static_assert(std::is_convertible_v<bool, Nullable<bool>>);

TEST(Nullable, IsEmptyByDefault) {
    EXPECT_FALSE(Nullable<bool>().hasValue);
    EXPECT_FALSE(Nullable<std::string>().hasValue);
    EXPECT_EQ(Nullable<int>().value, 0);
}

TEST(Nullable, HoldsWhatItIsMadeFrom) {
    const Nullable<std::string> text(std::string("Ω"));
    EXPECT_TRUE(text.hasValue);
    EXPECT_EQ(text.value, "Ω");
    const Nullable<bool> no = false;
    EXPECT_TRUE(no.hasValue);
    EXPECT_FALSE(no.value);
}

TEST(Nullable, WithTheFlagFalseAndTheValueTrueCountsAsEmpty) {
    Nullable<bool> left = true;
    left.hasValue = false;
    EXPECT_EQ(left, Nullable<bool>());
    EXPECT_NE(left, Nullable<bool>(true));
}

TEST(Nullable, ComparesValuesOnlyWhereBothHaveOne) {
    EXPECT_EQ(Nullable<int>(3), Nullable<int>(3));
    EXPECT_NE(Nullable<int>(3), Nullable<int>(4));
    EXPECT_NE(Nullable<int>(0), Nullable<int>());
    EXPECT_NE(Nullable<int>(), Nullable<int>(0));
    EXPECT_EQ(Nullable<int>(), Nullable<int>());
}

} // namespace
