#include "Data.h"

#include "AsciiData.h"
#include "Text.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace record {

namespace {

constexpr float missingSample = std::numeric_limits<float>::quiet_NaN();
constexpr std::uint32_t missingStamp = 0xFFFFFFFF;
/// A piece is small enough for the fastest cache, as each channel walks through it once.
constexpr std::size_t pieceSize = std::size_t(32) * 1024;

/// Numbers in the file have their lowest byte first, like those of every processor this program is built for.
template <class Number>
Number load(const char* from) {
    Number number;
    std::memcpy(&number, from, sizeof number);
    return number;
}

std::uint64_t recordSize(const Config& config, std::size_t analogSize) {
    return 8 + config.analogCount * analogSize + (config.binaryCount + 15) / 16 * 2;
}

template <class Raw>
bool isMissing(Raw raw) {
    if constexpr (std::is_floating_point_v<Raw>)
        return raw == -FLT_MAX;
    else
        return raw == std::numeric_limits<Raw>::min();
}

/// Appends one channel's samples of a piece.
template <class Raw>
void appendAnalog(const char* from, std::size_t stride, std::size_t samples, AnalogChannel& channel) {
    const double factor = channel.factor;
    const double offset = channel.offset;
    const std::size_t before = channel.samples.size();
    channel.samples.resize(before + samples);
    float* to = channel.samples.data() + before;
    for (std::size_t i = 0; i < samples; ++i, from += stride) {
        const Raw raw = load<Raw>(from);
        const double value = factor * raw + offset;
        // What a float can't hold is as good as missing: an endless value would wreck every scale.
        to[i] = !isMissing(raw) && std::abs(value) <= FLT_MAX ? static_cast<float>(value) : missingSample;
    }
}

/// Appends up to 64 samples of the up to 16 channels that share a word.
void appendWord(const char* from, std::size_t stride, std::size_t samples, BinaryChannel* channels,
                std::size_t count) {
    std::uint16_t words[64];
    std::uint16_t all = 0xFFFF;
    std::uint16_t any = 0;
    for (std::size_t i = 0; i < samples; ++i) {
        words[i] = load<std::uint16_t>(from + i * stride);
        all &= words[i];
        any |= words[i];
    }
    for (std::size_t bit = 0; bit < count; ++bit) {
        std::uint64_t block = all >> bit & 1 ? ~std::uint64_t(0) : 0;
        // Most channels rest most of the time; only those that moved are picked bit by bit.
        if ((all ^ any) >> bit & 1)
            for (std::size_t i = 0; i < samples; ++i)
                block |= static_cast<std::uint64_t>(words[i] >> bit & 1) << i;
        channels[bit].samples.appendBlock(block, samples);
    }
}

void appendBinaries(const char* from, std::size_t stride, std::size_t samples,
                    std::vector<BinaryChannel>& channels) {
    for (std::size_t first = 0; first < channels.size(); first += 16, from += 2)
        for (std::size_t done = 0; done < samples; done += 64)
            appendWord(from + done * stride, stride, std::min<std::size_t>(64, samples - done),
                       &channels[first], std::min<std::size_t>(16, channels.size() - first));
}

void warnAboutRest(Source& source, std::uint64_t offset, std::vector<std::string>& warnings) {
    const std::uint64_t rest = source.size() - offset;
    if (rest == 0)
        return;
    std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(rest, pieceSize)), '\0');
    bytes.resize(source.read(offset, bytes.data(), bytes.size()));
    const bool isPadding = trim(bytes).empty();
    warnings.push_back(source.name() + ": " + counted(rest, "byte") + " after the last whole sample " +
                       (rest == 1 ? "is" : "are") + " left out; " + (rest == 1 ? "it is " : "they are ") +
                       (isPadding ? "padding." : "part of a sample that was cut off."));
}

template <class Raw>
DataOutcome readFixed(Config& config, Source& source, const Options& options) {
    Record& record = config.record;
    const std::uint64_t stride = recordSize(config, sizeof(Raw));
    const std::uint64_t total = source.size() / stride;
    DataOutcome outcome;
    outcome.ticks.reserve(total);
    for (AnalogChannel& channel : record.analogs)
        channel.samples.reserve(total);
    for (BinaryChannel& channel : record.binaries)
        channel.samples.reserve(total);

    // A multiple of 64 keeps the blocks of binary channels whole.
    const std::uint64_t samplesInPiece = std::max<std::uint64_t>(64, pieceSize / stride / 64 * 64);
    std::vector<char> piece(static_cast<std::size_t>(std::min(samplesInPiece, total) * stride));
    while (outcome.samples < total) {
        report(options, outcome.samples, total);
        const std::size_t samples =
            static_cast<std::size_t>(std::min(samplesInPiece, total - outcome.samples));
        const std::uint64_t offset = outcome.samples * stride;
        if (source.read(offset, piece.data(), samples * stride) != samples * stride)
            throw Error(source.name() + ", byte " + std::to_string(offset) + ": expected " +
                        counted(samples * stride, "byte") + ", but the file has become shorter.");

        for (std::size_t i = 0; i < samples; ++i) {
            const auto stamp = load<std::uint32_t>(piece.data() + i * stride + 4);
            outcome.ticks.push_back(stamp == missingStamp ? std::numeric_limits<double>::quiet_NaN() : stamp);
        }
        const char* from = piece.data() + 8;
        for (AnalogChannel& channel : record.analogs) {
            appendAnalog<Raw>(from, stride, samples, channel);
            from += sizeof(Raw);
        }
        appendBinaries(piece.data() + 8 + config.analogCount * sizeof(Raw), stride, samples, record.binaries);
        outcome.samples += samples;
    }
    warnAboutRest(source, total * stride, record.warnings);
    return outcome;
}

bool fitsFixed(const Config& config, Source& source, std::size_t analogSize) {
    const std::uint64_t stride = recordSize(config, analogSize);
    const std::uint64_t total = source.size() / stride;
    if (total < 2)
        return false;
    char head[4];
    std::uint32_t first = 0;
    // Samples are numbered one by one, so numbers at the right distance betray the layout.
    for (std::uint64_t i = 0; i < std::min<std::uint64_t>(total, 16); ++i) {
        if (source.read(i * stride, head, sizeof head) != sizeof head)
            return false;
        const auto number = load<std::uint32_t>(head);
        if (i == 0)
            first = number;
        else if (number != first + i)
            return false;
    }
    return true;
}

bool fitsAscii(const Config& config, Source& source) {
    Lines lines(source);
    const auto line = lines.nextFilled();
    if (!line)
        return false;
    const std::vector<std::string_view> fields = split(*line);
    return fields.size() >= 2 + config.analogCount + config.binaryCount && toCount(fields[0]);
}

} // namespace

void report(const Options& options, std::uint64_t done, std::uint64_t total) {
    const double fraction = total == 0 ? 1 : static_cast<double>(done) / static_cast<double>(total);
    if (options.progress && !options.progress(std::min(fraction, 1.0)))
        throw Cancelled("The reading was stopped.");
}

std::optional<Format> guessFormat(const Config& config, Source& source) {
    if (config.analogCount + config.binaryCount == 0)
        return std::nullopt;
    if (fitsAscii(config, source))
        return Format::Ascii;
    if (fitsFixed(config, source, 2))
        return Format::Binary;
    // Whole and broken numbers of four bytes can't be told apart by their layout.
    return std::nullopt;
}

DataOutcome readData(Config& config, Source& source, const Options& options) {
    DataOutcome outcome;
    switch (config.format.value()) {
    case Format::Binary:
        outcome = readFixed<std::int16_t>(config, source, options);
        break;
    case Format::Binary32:
        outcome = readFixed<std::int32_t>(config, source, options);
        break;
    case Format::Float32:
        outcome = readFixed<float>(config, source, options);
        break;
    default:
        outcome = readAscii(config, source, options);
    }
    report(options, 1, 1);
    return outcome;
}

} // namespace record
