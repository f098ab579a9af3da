#include "Record.h"

namespace record {

namespace {

/// Many devices write one to one on the primary side when they were told of no transformer.
bool isRatioKnown(const AnalogChannel& channel) {
    const bool isUntold = channel.primary == 1 && channel.secondary == 1 && channel.side == 'P';
    return channel.primary > 0 && channel.secondary > 0 && channel.side != 0 && !isUntold;
}

std::size_t countOnes(std::uint64_t word) {
    return static_cast<std::size_t>(__builtin_popcountll(word));
}

} // namespace

const char* name(Format format) {
    switch (format) {
    case Format::Ascii:
        return "ASCII";
    case Format::Binary:
        return "BINARY";
    case Format::Binary32:
        return "BINARY32";
    case Format::Float32:
        return "FLOAT32";
    case Format::Csv:
        return "CSV";
    }
    return "";
}

void BitRow::append(bool isSet) {
    if (count % 64 == 0)
        words.push_back(0);
    words.back() |= static_cast<std::uint64_t>(isSet) << (count % 64);
    ++count;
}

void BitRow::appendBlock(std::uint64_t block, std::size_t samples) {
    const std::uint64_t used = samples < 64 ? (std::uint64_t(1) << samples) - 1 : ~std::uint64_t(0);
    words.push_back(block & used);
    count += samples;
}

/// A set bit for each sample of a word that differs from the one before; the very first sample never does.
std::uint64_t BitRow::changes(std::size_t wordIndex) const {
    const std::uint64_t word = words[wordIndex];
    const std::uint64_t before = wordIndex == 0 ? word & 1 : words[wordIndex - 1] >> 63;
    const std::size_t samples = count - wordIndex * 64;
    const std::uint64_t used = samples < 64 ? (std::uint64_t(1) << samples) - 1 : ~std::uint64_t(0);
    return (word ^ (word << 1 | before)) & used;
}

std::vector<std::size_t> BitRow::transitions() const {
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < words.size(); ++i)
        for (std::uint64_t left = changes(i); left != 0; left &= left - 1)
            positions.push_back(i * 64 + static_cast<std::size_t>(__builtin_ctzll(left)));
    return positions;
}

std::size_t BitRow::transitionCount() const {
    std::size_t sum = 0;
    for (std::size_t i = 0; i < words.size(); ++i)
        sum += countOnes(changes(i));
    return sum;
}

std::optional<double> AnalogChannel::toPrimary() const {
    if (!isRatioKnown(*this))
        return std::nullopt;
    return side == 'S' ? primary / secondary : 1;
}

std::optional<double> AnalogChannel::toSecondary() const {
    if (!isRatioKnown(*this))
        return std::nullopt;
    return side == 'P' ? secondary / primary : 1;
}

std::optional<double> Record::triggerOffset() const {
    if (!start || !trigger)
        return std::nullopt;
    return secondsBetween(*start, *trigger);
}

} // namespace record
