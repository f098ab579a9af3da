#include "AsciiData.h"

#include "Text.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

namespace record {

namespace {

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

/// Walks through the fields of a line without making a list of them.
class FieldWalk {
public:
    explicit FieldWalk(std::string_view text) : rest(text) {}

    bool isAtEnd() const { return isDone; }

    /// The next field, trimmed. Must not be called at the end.
    std::string_view next() {
        const std::size_t comma = rest.find(',');
        const std::string_view field = trim(rest.substr(0, comma));
        isDone = comma == std::string_view::npos;
        if (!isDone)
            rest.remove_prefix(comma + 1);
        return field;
    }

private:
    std::string_view rest;
    bool isDone = false;
};

/// Raw values that mean "missing" unless the declared range reaches up to them. Where it says nothing, only
/// the code of the record's own revision counts.
bool isMissingCode(double raw, const AnalogChannel& channel, int revision) {
    if (raw != 99999 && raw != 999999)
        return false;
    const bool isRangeKnown = channel.rawMaximum > channel.rawMinimum;
    return isRangeKnown ? raw > channel.rawMaximum : raw == (revision == 1991 ? 999999 : 99999);
}

class Decoder {
public:
    Decoder(Config& target, Source& dataSource, const Options& readingOptions)
        : config(target), record(target.record), source(dataSource), options(readingOptions),
          lines(dataSource) {}

    DataOutcome decode() {
        reserve();
        std::uint64_t lineCount = 0;
        while (const auto line = lines.nextFilled()) {
            if (++lineCount % 1024 == 0)
                report(options, lines.offset(), source.size());
            settleDamage();
            readLine(*line);
        }
        finish();
        return std::move(outcome);
    }

private:
    std::uint64_t fieldCount() const { return 2 + config.analogCount + config.binaryCount; }

    void reserve() {
        // A sample takes a comma for each field but one at least, so a wrong count of channels can't ask for
        // much.
        const std::uint64_t most = std::min(countLines(source), source.size() / (fieldCount() - 1));
        outcome.ticks.reserve(most);
        for (AnalogChannel& channel : record.analogs)
            channel.samples.reserve(most);
        for (BinaryChannel& channel : record.binaries)
            channel.samples.reserve(most);
    }

    std::string place() const { return source.name() + ", line " + std::to_string(lines.number()); }

    std::string problem(const std::string& expected, std::string_view found) const {
        return place() + ": expected " + expected + ", found " + inQuotes(found) + ".";
    }

    /// A value that can't be understood is an error, or, with salvage, a missing value.
    void refuseValue(const std::string& expected, std::string_view found) {
        if (!options.salvage)
            throw Error(problem(expected, found));
        if (refusedValues++ == 0)
            firstRefused = problem(expected, found);
    }

    /// A line that was short turned out not to be the last one, so it was not simply cut off.
    void settleDamage() {
        if (shortLine.empty())
            return;
        if (!options.salvage)
            throw Error(shortLine);
        if (damagedLines++ == 0)
            firstDamaged = shortLine;
        shortLine.clear();
        // The place of the sample is kept, as the time of all later ones is counted by place. Very short
        // lines don't earn one, or a file of nothing but line ends could ask for any amount of memory.
        if (shortLineSize < fieldCount())
            return;
        outcome.ticks.push_back(missing);
        for (AnalogChannel& channel : record.analogs)
            channel.samples.push_back(static_cast<float>(missing));
        for (BinaryChannel& channel : record.binaries)
            channel.samples.append(channel.samples.size() > 0 && channel.samples[channel.samples.size() - 1]);
        ++outcome.samples;
    }

    void readLine(std::string_view line) {
        const auto commas = static_cast<std::uint64_t>(std::count(line.begin(), line.end(), ','));
        if (commas + 1 < fieldCount()) {
            shortLine =
                problem(counted(fieldCount(), "value") + " instead of " + std::to_string(commas + 1), line);
            shortLineSize = line.size();
            return;
        }
        FieldWalk walk(line);
        walk.next();
        readStamp(walk.next());
        for (AnalogChannel& channel : record.analogs)
            readAnalog(walk.next(), channel);
        for (std::uint64_t i = record.analogs.size(); i < config.analogCount; ++i)
            walk.next();
        for (BinaryChannel& channel : record.binaries)
            readBinary(walk.next(), channel);
        for (std::uint64_t i = record.binaries.size(); i < config.binaryCount; ++i)
            walk.next();
        readRest(walk);
        ++outcome.samples;
    }

    void readStamp(std::string_view field) {
        const auto stamp = toNumber(field);
        if (!stamp && !field.empty())
            refuseValue("a time stamp", field);
        outcome.ticks.push_back(stamp && *stamp != 4294967295.0 ? *stamp : missing);
    }

    void readAnalog(std::string_view field, AnalogChannel& channel) {
        double value = missing;
        if (const auto raw = toNumber(field)) {
            if (!isMissingCode(*raw, channel, record.revision))
                value = channel.factor * *raw + channel.offset;
        } else if (!field.empty()) {
            refuseValue("a number", field);
        }
        channel.samples.push_back(static_cast<float>(std::abs(value) <= FLT_MAX ? value : missing));
    }

    void readBinary(std::string_view field, BinaryChannel& channel) {
        if (field != "0" && field != "1") {
            if (field.empty())
                ++emptyStates;
            else
                refuseValue("0 or 1", field);
        }
        channel.samples.append(field == "1");
    }

    void readRest(FieldWalk& walk) {
        if (walk.isAtEnd())
            return;
        const std::string_view field = walk.next();
        if (!walk.isAtEnd() || !field.empty())
            refuseValue("the end of the line after " + counted(fieldCount(), "value"), field);
        else
            ++surplusCommas;
    }

    void warn(const std::string& text) { record.warnings.push_back(source.name() + ": " + text); }

    void finish() {
        if (!shortLine.empty())
            warn("the last line (" + std::to_string(lines.number()) + ") is cut off and left out.");
        if (surplusCommas > 0)
            warn(counted(surplusCommas, "line") + " with a comma too many at the end.");
        if (emptyStates > 0)
            warn(counted(emptyStates, "binary value") + " empty; 0 is used.");
        if (damagedLines > 0)
            warn(counted(damagedLines, "damaged line") + " left out. The first one: " + firstDamaged);
        if (refusedValues > 0)
            warn(counted(refusedValues, "value") +
                 " that can't be understood left out. The first one: " + firstRefused);
    }

    Config& config;
    Record& record;
    Source& source;
    const Options& options;
    Lines lines;
    DataOutcome outcome;
    /// What is wrong with the line above; empty when nothing is.
    std::string shortLine;
    std::uint64_t shortLineSize = 0;
    std::uint64_t damagedLines = 0;
    std::string firstDamaged;
    std::uint64_t refusedValues = 0;
    std::string firstRefused;
    std::uint64_t surplusCommas = 0;
    std::uint64_t emptyStates = 0;
};

} // namespace

DataOutcome readAscii(Config& config, Source& source, const Options& options) {
    return Decoder(config, source, options).decode();
}

} // namespace record
