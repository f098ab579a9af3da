#pragma once

#include "TimeAxis.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace record {

/// How the samples stood in the file. Csv is a table of text columns; the others are those of IEEE C37.111.
enum class Format { Ascii, Binary, Binary32, Float32, Csv };

/// The name of a format as a configuration file writes it, such as "BINARY32".
const char* name(Format format);

/// One bit for each sample.
class BitRow {
public:
    std::size_t size() const { return count; }

    /// The state of a sample. The position must lie below size().
    bool operator[](std::size_t position) const { return words[position / 64] >> (position % 64) & 1; }

    void reserve(std::size_t samples) { words.reserve((samples + 63) / 64); }

    void append(bool isSet);
    /// Appends the lowest `samples` bits (at most 64) of a block at once. Until now only whole blocks may
    /// have been appended.
    void appendBlock(std::uint64_t block, std::size_t samples);

    /// The positions whose state differs from that of the sample before.
    std::vector<std::size_t> transitions() const;
    std::size_t transitionCount() const;

private:
    std::uint64_t changes(std::size_t wordIndex) const;

    std::vector<std::uint64_t> words;
    std::size_t count = 0;
};

struct AnalogChannel {
    std::string name;
    std::string phase;
    /// The circuit component that is monitored.
    std::string component;
    std::string unit;
    /// A sample is factor * raw + offset, in the unit.
    double factor = 1;
    double offset = 0;
    /// How much later than its sample period begins this channel was sampled, in microseconds. The axis
    /// leaves it out.
    double skew = 0;
    /// The range of raw values as declared. Often wrong in the wild, so nothing is clipped by it. NaN where
    /// absent.
    double rawMinimum = 0;
    double rawMaximum = 0;
    /// The ratio of the transformer; 0 where it is not known.
    double primary = 0;
    double secondary = 0;
    /// The side of the transformer that the samples are on: 'P', 'S', or 0 where it is not known.
    char side = 0;
    /// In the unit; a missing sample is NaN, every other one is finite.
    std::vector<float> samples;

    /// Turns samples into primary values when multiplied; empty where the ratio is not known.
    std::optional<double> toPrimary() const;
    /// Turns samples into secondary values when multiplied; empty where the ratio is not known.
    std::optional<double> toSecondary() const;
};

struct BinaryChannel {
    std::string name;
    std::string phase;
    std::string component;
    /// The state of the channel when all is well.
    bool normal = false;
    BitRow samples;
};

/// A recorded set of signals. All texts are UTF-8.
struct Record {
    /// The file that was opened.
    std::string path;
    std::string station;
    std::string device;
    /// The revision whose rules were applied: 1991, 1999 or 2013; 0 for a table.
    int revision = 0;
    /// What the file itself said of its revision; may be empty or name a year without a revision.
    std::string revisionText;
    Format format = Format::Ascii;
    /// How the texts of the configuration were encoded: "ASCII", "UTF-8", "UTF-8 with BOM", or the code page
    /// that was applied.
    std::string encoding;
    /// Hertz; 0 where not known.
    double lineFrequency = 0;
    std::vector<Rate> rates;
    /// How many samples the configuration promises; the channels hold what was really there.
    std::uint64_t declaredSamples = 0;
    /// The moment of the first sample and of the trigger; empty where absent or impossible.
    std::optional<Moment> start;
    std::optional<Moment> trigger;
    double timeMultiplier = 1;
    /// One tick of the time stamps in seconds, before the multiplier.
    double stampUnit = 1e-6;
    /// Difference to UTC and clock quality as written, such as "-5h30" and "B,3"; empty where absent.
    std::string timeCode;
    std::string localCode;
    std::string clockQuality;
    std::vector<AnalogChannel> analogs;
    std::vector<BinaryChannel> binaries;
    TimeAxis time;
    /// The free text that came with the record, and its machine-readable information; often empty.
    std::string header;
    std::string information;
    /// What was odd, in whole sentences, in the order in which it was found.
    std::vector<std::string> warnings;

    std::size_t size() const { return time.size(); }

    /// Seconds from the start to the trigger; empty where either is not known.
    std::optional<double> triggerOffset() const;
};

} // namespace record
