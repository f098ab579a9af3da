#include <ZelCommonView/common/Language.h>

#include <gtest/gtest.h>

namespace {

static_assert(sizeof(lng::language) == 1);

TEST(Language, StartsAsEnglish) {
    EXPECT_EQ(lng::language, 0);
    EXPECT_EQ(lng::index(), 0);
}

TEST(Language, IsReadAnewAtEachUse) {
    lng::language = 1;
    EXPECT_EQ(lng::index(), 1);
    lng::language = 0;
    EXPECT_EQ(lng::index(), 0);
}

TEST(Language, AValueThatNamesNoneCountsAsEnglish) {
    for (const int value : {2, 3, 255}) {
        lng::language = static_cast<unsigned char>(value);
        EXPECT_EQ(lng::index(), 0) << value;
    }
    lng::language = 0;
}

} // namespace
