#include <ZelCommonView/common/ErrBuf.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace {

using cross::ErrBuf;
using cross::ErrBufLastErr;

static_assert(std::is_base_of_v<std::exception, ErrBuf>);
static_assert(std::is_base_of_v<ErrBuf, ErrBufLastErr>);
static_assert(sizeof(ErrBuf) == sizeof(std::exception) + 512);
static_assert(sizeof(ErrBufLastErr) == sizeof(ErrBuf));

// What is printed to standard output while the function runs.
template <typename F>
std::string printed(F function) {
    testing::internal::CaptureStdout();
    function();
    return testing::internal::GetCapturedStdout();
}

TEST(ErrBuf, FormatsItsText) {
    printed([] { EXPECT_STREQ(ErrBuf("channel %d of %s", 3, "стенд").what(), "channel 3 of стенд"); });
}

TEST(ErrBuf, PrintsItsTextAndALineBreakWhenBuilt) {
    EXPECT_EQ(printed([] { ErrBuf error("no device %c", 'A'); }), "no device A\n");
    EXPECT_EQ(printed([] { ErrBuf error("%s", ""); }), "\n");
}

TEST(ErrBuf, PrintsNothingWhenCopiedThrownOrCaught) {
    testing::internal::CaptureStdout();
    const ErrBuf original("once");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "once\n");

    EXPECT_EQ(printed([&] {
                  const ErrBuf copy = original;
                  EXPECT_STREQ(copy.what(), "once");
                  try {
                      throw copy;
                  } catch (const std::exception& error) {
                      EXPECT_STREQ(error.what(), "once");
                  }
              }),
              "");
}

TEST(ErrBuf, CutsATextLongerThan511Bytes) {
    struct Case {
        std::size_t given, kept;
    };

    for (const Case& c : {Case{510, 510}, {511, 511}, {512, 511}, {5000, 511}}) {
        const std::string text(c.given, 'x'), expected(c.kept, 'x');
        const std::string output =
            printed([&] { EXPECT_EQ(ErrBuf("%s", text.c_str()).what(), expected) << c.given; });
        EXPECT_EQ(output, expected + "\n") << c.given;
    }
}

TEST(ErrBufLastErr, CarriesAndPrintsItsText) {
    EXPECT_EQ(printed([] { EXPECT_STREQ(ErrBufLastErr("No child processes").what(), "No child processes"); }),
              "No child processes\n");
}

TEST(ErrBufLastErr, TakesItsTextAsAFormat) {
    printed([] { EXPECT_STREQ(ErrBufLastErr("50 %% done").what(), "50 % done"); });
}

TEST(ErrBufLastErr, IsCaughtAsAnyOfItsBases) {
    printed([] {
        EXPECT_THROW(throw ErrBufLastErr("x"), ErrBuf);
        EXPECT_THROW(throw ErrBufLastErr("x"), std::exception);
    });
}

} // namespace
