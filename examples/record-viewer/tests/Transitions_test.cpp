// All changes of the binary channels, in order of time.
#include "reader/Transitions.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

using namespace record;

namespace {

/// A record whose channels are written as rows of states, with a sample each second or at the given seconds.
Record makeRecord(const std::vector<std::string>& channels, const std::vector<double>& seconds = {}) {
    Record record;
    std::size_t samples = seconds.size();
    for (const std::string& states : channels) {
        BinaryChannel& channel = record.binaries.emplace_back();
        for (const char state : states)
            channel.samples.append(state == '1');
        samples = std::max(samples, states.size());
    }
    if (seconds.empty())
        record.time = TimeAxis(samples, {{1, samples}}, {}, 1);
    else
        record.time = TimeAxis(samples, {}, seconds, 1);
    return record;
}

/// Such as "2:0=1", time, channel and state, with a space between two.
std::string textOf(const std::vector<Transition>& transitions) {
    std::string text;
    for (const Transition& transition : transitions) {
        char buffer[64];
        std::snprintf(buffer, sizeof buffer, "%s%g:%zu=%d", text.empty() ? "" : " ", transition.time,
                      transition.channel, transition.state);
        text += buffer;
    }
    return text;
}

struct Case {
    const char* name;
    std::vector<std::string> channels;
    std::vector<double> seconds;
    std::string expected;
};

class TransitionsTest : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(TransitionsTest, AreFound) {
    EXPECT_EQ(textOf(transitions(makeRecord(GetParam().channels, GetParam().seconds))), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    All, TransitionsTest,
    testing::Values(
        Case{"NoChannel", {}, {}, ""}, Case{"NoChannelButSamples", {}, {0, 1, 2}, ""},
        Case{"NoSample", {"", ""}, {}, ""}, Case{"OneSample", {"1"}, {}, ""},
        Case{"NoTransition", {"0000", "0000"}, {}, ""}, Case{"SetFromTheFirstSampleOn", {"1111"}, {}, ""},
        Case{"SetAtFirstAndThenReset", {"1100"}, {}, "2:0=0"},
        Case{"BackAndForth", {"01011"}, {}, "1:0=1 2:0=0 3:0=1"},
        Case{"AtTheLastSample", {"0001"}, {}, "3:0=1"},
        Case{"InOrderOfTimeAndThenOfChannels", {"0011", "0100", "0010"}, {}, "1:1=1 2:0=1 2:1=0 2:2=1 3:2=0"},
        Case{"AShorterChannel", {"01", "0001"}, {}, "1:0=1 3:1=1"},
        Case{"OverAGap", {"0110"}, {0, 1, 1000, 1001}, "1:0=1 1001:0=0"},
        Case{"AtTheEndOfAGap", {"0010"}, {0, 1, 1000, 1001}, "1000:0=1 1001:0=0"},
        Case{"ACountThatBeginsLate", {"010"}, {50, 51, 52}, "1:0=1 2:0=0"},
        Case{"AMissingStamp", {"0010"}, {0, 1, NAN, 3}, "2:0=1 3:0=0"}),
    [](const auto& test) { return test.param.name; });

TEST(Transitions, CountFromTheEarliestSampleWhereTimeGoesBack) {
    Record record = makeRecord({"010101"}, {10, 11, 12, 3, 4, 5});
    EXPECT_EQ(textOf(transitions(record)), "0:0=1 1:0=0 2:0=1 8:0=1 9:0=0");
}

TEST(Transitions, CountSamplesWhereNothingTellsTheTime) {
    Record record = makeRecord({"0010"});
    record.time = TimeAxis(4, {}, {}, 1);
    EXPECT_EQ(textOf(transitions(record)), "2:0=1 3:0=0");
}

TEST(Transitions, FollowTheRuleOfTheAxis) {
    Record record = makeRecord({"0010"});
    record.time = TimeAxis(4, {{10, 4}}, {0, 1, 2, 3}, 1);
    EXPECT_EQ(textOf(transitions(record)), "0.2:0=1 0.3:0=0");
    record.time.setRule(TimeAxis::Rule::Stamps);
    EXPECT_EQ(textOf(transitions(record)), "2:0=1 3:0=0");
}

// Sixty-four channels of a million samples.
TEST(Transitions, OfAHugeRecordAreFoundInAMoment) {
    constexpr std::size_t samples = 1'000'000;
    constexpr std::size_t channels = 64;
    Record record;
    for (std::size_t i = 0; i < channels; ++i) {
        BitRow& row = record.binaries.emplace_back().samples;
        // Each channel changes at the border of every word, half of them against the others.
        for (std::size_t word = 0; word < samples / 64; ++word)
            row.appendBlock((word + i) % 2 == 0 ? ~std::uint64_t(0) : 0, 64);
    }
    record.time = TimeAxis(samples, {{1000, samples}}, {}, 1e-6);
    const auto start = std::chrono::steady_clock::now();
    const std::vector<Transition> found = transitions(record);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    ASSERT_EQ(found.size(), channels * (samples / 64 - 1));
    EXPECT_LT(took.count(), 20) << "seconds";
    for (std::size_t i = 0; i < found.size(); ++i) {
        const std::size_t word = i / channels + 1;
        ASSERT_EQ(found[i].channel, i % channels);
        ASSERT_DOUBLE_EQ(found[i].time, static_cast<double>(word) * 0.064) << i;
        ASSERT_EQ(found[i].state, (word + i % channels) % 2 == 0) << i;
    }
}
