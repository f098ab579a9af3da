// The stretch of a record that is seen around a time.
#include "view/Interval.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char* name;
    viewer::Interval seen;
    double time;
    double duration;
    viewer::Interval expected;
};

class CentredTest : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(CentredTest, KeepsTheLengthWithinTheRecord) {
    const viewer::Interval found = viewer::centred(GetParam().seen, GetParam().time, GetParam().duration);
    EXPECT_DOUBLE_EQ(found.from, GetParam().expected.from);
    EXPECT_DOUBLE_EQ(found.to, GetParam().expected.to);
}

INSTANTIATE_TEST_SUITE_P(All, CentredTest,
                         testing::Values(Case{"InTheMiddle", {2, 4}, 6, 10, {5, 7}},
                                         Case{"WhereItStands", {5, 7}, 6, 10, {5, 7}},
                                         Case{"AtTheBeginning", {5, 7}, 0.5, 10, {0, 2}},
                                         Case{"BeforeTheBeginning", {5, 7}, -3, 10, {0, 2}},
                                         Case{"AtTheEnd", {5, 7}, 10, 10, {8, 10}},
                                         Case{"BehindTheEnd", {5, 7}, 30, 10, {8, 10}},
                                         Case{"TheWholeRecord", {0, 10}, 3, 10, {0, 10}},
                                         Case{"MoreThanTheRecord", {0, 11}, 3, 10, {0, 10}},
                                         Case{"NothingOfIt", {4, 4}, 3, 10, {3, 3}},
                                         Case{"ARecordWithoutLength", {0, 1}, 3, 0, {0, 0}}),
                         [](const auto& test) { return test.param.name; });
