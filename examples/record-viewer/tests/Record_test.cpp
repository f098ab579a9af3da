#include "reader/Record.h"
#include "reader/Statistics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace record;

namespace {

BitRow row(const std::string& states) {
    BitRow bits;
    for (const char state : states)
        bits.append(state == '1');
    return bits;
}

} // namespace

TEST(BitRows, KeepEveryState) {
    std::string states;
    for (int i = 0; i < 200; ++i)
        states += i % 7 == 3 || i == 64 || i == 127 ? '1' : '0';
    const BitRow bits = row(states);
    ASSERT_EQ(bits.size(), 200u);
    for (std::size_t i = 0; i < 200; ++i)
        EXPECT_EQ(bits[i], states[i] == '1') << i;
}

TEST(BitRows, BlocksAndSingleStatesAreTheSame) {
    BitRow blocks;
    blocks.appendBlock(0x8000000000000001, 64);
    blocks.appendBlock(~std::uint64_t(0), 3);
    EXPECT_EQ(blocks.size(), 67u);
    EXPECT_THAT(blocks.transitions(), testing::ElementsAre(1u, 63u));
    blocks.append(false);
    EXPECT_THAT(blocks.transitions(), testing::ElementsAre(1u, 63u, 67u));
}

TEST(BitRows, TransitionsAreFoundAcrossWordsAndAtTheEnd) {
    std::string states(130, '0');
    states[64] = '1';
    states[129] = '1';
    const BitRow bits = row(states);
    EXPECT_THAT(bits.transitions(), testing::ElementsAre(64u, 65u, 129u));
    EXPECT_EQ(bits.transitionCount(), 3u);
}

TEST(BitRows, TheFirstStateIsNoTransition) {
    EXPECT_EQ(row("1111").transitionCount(), 0u);
    EXPECT_EQ(row("").transitionCount(), 0u);
    EXPECT_THAT(row("10").transitions(), testing::ElementsAre(1u));
}

TEST(Statistics, MissingSamplesAreCountedAndLeftOut) {
    const float nothing = std::numeric_limits<float>::quiet_NaN();
    const Statistics found = statistics({nothing, 3, -1, nothing, 4});
    EXPECT_EQ(found.valid, 3u);
    EXPECT_EQ(found.missing, 2u);
    EXPECT_EQ(found.minimum, -1);
    EXPECT_EQ(found.maximum, 4);
    EXPECT_EQ(found.mean, 2);
    EXPECT_DOUBLE_EQ(found.rms, std::sqrt(26 / 3.0));
}

TEST(Statistics, WithoutASampleNothingIsKnown) {
    const Statistics found = statistics({std::numeric_limits<float>::quiet_NaN()});
    EXPECT_EQ(found.valid, 0u);
    EXPECT_TRUE(std::isnan(found.minimum) && std::isnan(found.maximum) && std::isnan(found.mean));
}

TEST(Ratios, SecondarySamplesAreMultipliedAndPrimaryOnesDivided) {
    AnalogChannel channel;
    channel.primary = 1000;
    channel.secondary = 5;
    channel.side = 'S';
    EXPECT_EQ(channel.toPrimary(), 200);
    EXPECT_EQ(channel.toSecondary(), 1);
    channel.side = 'P';
    EXPECT_EQ(channel.toPrimary(), 1);
    EXPECT_EQ(channel.toSecondary(), 0.005);
}

TEST(Ratios, AreNotOfferedWhereSomethingIsMissing) {
    AnalogChannel channel;
    channel.side = 'S';
    EXPECT_FALSE(channel.toPrimary());
    channel.primary = 1000;
    EXPECT_FALSE(channel.toPrimary());
    channel.secondary = 5;
    channel.side = 0;
    EXPECT_FALSE(channel.toPrimary() || channel.toSecondary());
}

TEST(Ratios, OneToOneOnThePrimarySideIsNoKnownRatio) {
    AnalogChannel channel;
    channel.primary = 1;
    channel.secondary = 1;
    channel.side = 'P';
    EXPECT_FALSE(channel.toPrimary() || channel.toSecondary());
    channel.side = 'S';
    EXPECT_EQ(channel.toPrimary(), 1);
}
