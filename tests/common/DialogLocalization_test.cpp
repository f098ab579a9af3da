#include <ZelCommonView/common/DialogLocalization.h>

#include <gtest/gtest.h>

namespace {

namespace words = Zel::DialogLocalization;

struct Word {
    const char* (*get)();
    const char* english;
    const char* russian;
};

const Word table[] = {{words::ok, "OK", "OK"},
                      {words::cancel, "Cancel", "Отмена"},
                      {words::apply, "Apply", "Применить"},
                      {words::yes, "Yes", "Да"},
                      {words::no, "No", "Нет"},
                      {words::save, "Save", "Сохранить"},
                      {words::open, "Open", "Открыть"},
                      {words::cancelled, "Cancelled...", "Отменяется..."}};

struct DialogLocalization : testing::Test {
    ~DialogLocalization() override { lng::language = 0; }
};

TEST_F(DialogLocalization, StandsInEnglish) {
    lng::language = 0;
    for (const Word& word : table)
        EXPECT_STREQ(word.get(), word.english);
}

TEST_F(DialogLocalization, StandsInRussian) {
    lng::language = 1;
    for (const Word& word : table)
        EXPECT_STREQ(word.get(), word.russian);
}

TEST_F(DialogLocalization, FollowsAChangeOfLanguageAtEachUse) {
    for (const Word& word : table) {
        lng::language = 1;
        EXPECT_STREQ(word.get(), word.russian);
        lng::language = 0;
        EXPECT_STREQ(word.get(), word.english);
    }
}

TEST_F(DialogLocalization, StandsInEnglishForAValueThatNamesNoLanguage) {
    lng::language = 7;
    for (const Word& word : table)
        EXPECT_STREQ(word.get(), word.english);
}

} // namespace
