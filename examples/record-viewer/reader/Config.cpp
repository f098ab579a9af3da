#include "Config.h"

#include "Reader.h"
#include "Source.h"
#include "Text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace record {

namespace {

constexpr std::size_t keptWarnings = 100;

using Fields = std::vector<std::string_view>;

class Parser {
public:
    Parser(std::string_view content, const std::string& textName, bool isSalvage)
        : source(textName, content), lines(source), salvage(isSalvage) {}

    Config parse() {
        try {
            parseAll();
        } catch (const Error& error) {
            if (!salvage)
                throw;
            warn(error.what());
        }
        if (out().revision == 0)
            settleRevision();
        if (surplusCommas > 0)
            warn(source.name() + ": " + counted(surplusCommas, "line") +
                 " with a comma too many at the end.");
        if (warningCount > keptWarnings)
            out().warnings.push_back(source.name() + ": " +
                                     counted(warningCount - keptWarnings, "more warning") + ".");
        return std::move(config);
    }

private:
    void parseAll() {
        readStation();
        readCounts();
        for (std::uint64_t i = 0; i < config.analogCount; ++i)
            readAnalog(i);
        for (std::uint64_t i = 0; i < config.binaryCount; ++i)
            readBinary(i);
        settleRevision();
        readLineFrequency();
        readRates();
        out().start = readMoment("the first sample");
        out().trigger = readMoment("the trigger");
        readFormat();
        readTimeMultiplier();
        readClock();
    }

    Record& out() { return config.record; }

    /// A damaged list of many channels must not bury everything else.
    void warn(const std::string& text) {
        if (++warningCount <= keptWarnings)
            out().warnings.push_back(text);
    }

    void warnHere(const std::string& text) { warn(place() + ": " + text); }

    std::string place() const { return source.name() + ", line " + std::to_string(lines.number()); }

    [[noreturn]] void fail(const std::string& expected, std::string_view found) const {
        throw Error(place() + ": expected " + expected + ", found " + inQuotes(found) + ".");
    }

    /// The next line that holds something, without taking it; false at the end of the text.
    bool peek() {
        if (!current)
            current = lines.nextFilled();
        return current.has_value();
    }

    /// The fields of the next line, which has as many as one of `counts` by the standard; one empty field
    /// more is a comma too many. The whole line stays in `line` for messages.
    Fields take(const std::string& expected, std::initializer_list<std::size_t> counts) {
        if (!peek())
            throw Error(source.name() + ", line " + std::to_string(lines.number() + 1) + ": expected " +
                        expected + ", found the end of the file.");
        line = trim(*current);
        current.reset();
        Fields fields = split(line);
        if (fields.back().empty() &&
            std::find(counts.begin(), counts.end(), fields.size() - 1) != counts.end()) {
            fields.pop_back();
            ++surplusCommas;
        }
        return fields;
    }

    static std::string_view field(const Fields& fields, std::size_t index) {
        return index < fields.size() ? fields[index] : std::string_view();
    }

    void readStation() {
        const Fields fields = take("station, device and revision", {3});
        out().station = field(fields, 0);
        out().device = field(fields, 1);
        out().revisionText = field(fields, 2);
    }

    void readCounts() {
        const std::string expected = "the channel counts, such as 3,2A,1D";
        const Fields fields = take(expected, {3});
        const auto count = [&](std::size_t index, char letter) {
            std::string_view text = field(fields, index);
            if (!text.empty() && uppered(text.substr(text.size() - 1))[0] == letter)
                text.remove_suffix(1);
            const auto value = toCount(text);
            if (!value)
                fail(expected, line);
            return *value;
        };
        const std::uint64_t analogs = count(1, 'A');
        const std::uint64_t binaries = count(2, 'D');
        // A channel takes four characters at least, so the text itself limits what a wrong count can ask for.
        const std::uint64_t most = source.size() / 4;
        if (analogs > most || binaries > most)
            fail("no more channels than " + counted(source.size(), "byte") + " can describe", line);
        config.analogCount = analogs;
        config.binaryCount = binaries;
        const auto total = toNumber(field(fields, 0));
        if (!total || *total != static_cast<double>(analogs + binaries))
            warnHere("the total of channels is given as " + inQuotes(field(fields, 0)) + ", but " +
                     std::to_string(analogs) + " analog and " + std::to_string(binaries) +
                     " binary ones follow.");
    }

    /// A scale without which the samples mean nothing. Salvage goes on with raw values.
    double scale(const Fields& fields, std::size_t index, const char* what, double otherwise) {
        const auto value = toNumber(field(fields, index));
        if (value)
            return *value;
        if (!salvage)
            fail(std::string("a number as the channel's ") + what, field(fields, index));
        warnHere(std::string("the channel's ") + what + " " + inQuotes(field(fields, index)) +
                 " is no number; " + numberText(otherwise) + " is used.");
        return otherwise;
    }

    void readAnalog(std::uint64_t index) {
        const Fields fields =
            take("analog channel " + std::to_string(index + 1) + " of " + std::to_string(config.analogCount),
                 {10, 13});
        if (fields.size() < 7)
            fail("an analog channel with 10 or 13 fields", line);
        const auto number = [&](std::size_t place, double otherwise) {
            return toNumber(field(fields, place)).value_or(otherwise);
        };
        constexpr double absent = std::numeric_limits<double>::quiet_NaN();

        AnalogChannel channel;
        channel.name = fields[1];
        channel.phase = fields[2];
        channel.component = fields[3];
        channel.unit = fields[4];
        channel.factor = scale(fields, 5, "factor", 1);
        channel.offset = scale(fields, 6, "offset", 0);
        channel.skew = number(7, 0);
        channel.rawMinimum = number(8, absent);
        channel.rawMaximum = number(9, absent);
        channel.primary = number(10, 0);
        channel.secondary = number(11, 0);
        const std::string side = uppered(field(fields, 12));
        channel.side = side == "P" || side == "S" ? side[0] : '\0';
        out().analogs.push_back(std::move(channel));
        hasLongLines = hasLongLines || fields.size() > 10;
    }

    void readBinary(std::uint64_t index) {
        const Fields fields =
            take("binary channel " + std::to_string(index + 1) + " of " + std::to_string(config.binaryCount),
                 {3, 5});
        if (fields.size() < 3)
            fail("a binary channel with 3 or 5 fields", line);
        BinaryChannel channel;
        channel.name = fields[1];
        const bool isShort = fields.size() == 3;
        if (!isShort) {
            channel.phase = fields[2];
            channel.component = fields[3];
        }
        const std::string_view normal = field(fields, isShort ? 2 : 4);
        if (!normal.empty() && normal != "0" && normal != "1")
            warnHere("the normal state of a binary channel is given as " + inQuotes(normal) + "; 0 is used.");
        channel.normal = normal == "1";
        // Without an analog channel only these lines show which layout the file has.
        hasLongLines = hasLongLines || (out().analogs.empty() && !isShort);
        out().binaries.push_back(std::move(channel));
    }

    /// Devices write the year of another standard or of themselves; the layout of the channels then tells the
    /// rules.
    void settleRevision() {
        const std::string& text = out().revisionText;
        const auto year = toCount(text);
        if (text.empty()) {
            out().revision = 1991;
        } else if (year && (*year == 1991 || *year == 1999 || *year == 2013)) {
            out().revision = static_cast<int>(*year);
        } else {
            out().revision = year && *year > 2013 ? 2013 : hasLongLines ? 1999 : 1991;
            warn(source.name() + ": there is no revision " + inQuotes(text) + "; the rules of " +
                 std::to_string(out().revision) + " are applied.");
        }
    }

    double readNumber(const Fields& fields, std::size_t index, const std::string& expected) {
        const auto value = toNumber(field(fields, index));
        if (!value || *value < 0)
            fail(expected, line);
        return *value;
    }

    void readLineFrequency() {
        const Fields fields = take("the line frequency", {1});
        out().lineFrequency = fields[0].empty() ? 0 : readNumber(fields, 0, "the line frequency in hertz");
    }

    void readRates() {
        const Fields fields = take("the number of sampling rates", {1});
        const auto declared = toCount(fields[0]);
        if (!declared)
            fail("the number of sampling rates", line);
        // Without rates there is still one line for the number of samples, though some files leave it out.
        if (*declared == 0 && peek() && isMomentLine(*current))
            return;
        for (std::uint64_t i = 0; i < std::max<std::uint64_t>(*declared, 1); ++i)
            readRate();
    }

    void readRate() {
        const std::string expected = "a sampling rate and the number of its last sample";
        const Fields fields = take(expected, {2});
        Rate rate;
        rate.hertz = readNumber(fields, 0, expected);
        const double end = readNumber(fields, 1, expected);
        rate.end = end < 1e18 ? static_cast<std::uint64_t>(end) : std::uint64_t(1e18);
        if (rate.end < out().declaredSamples)
            warnHere("a sampling rate ends at sample " + std::to_string(rate.end) +
                     ", before the one above.");
        out().rates.push_back(rate);
        out().declaredSamples = std::max(out().declaredSamples, rate.end);
    }

    static bool isMomentLine(std::string_view text) {
        return text.find_first_of("/:") != std::string_view::npos;
    }

    std::optional<Moment> readMoment(const std::string& what) {
        const std::string expected = "the date and time of " + what;
        if (peek() && formatOf(split(*current)[0])) {
            warn(source.name() + ": the date and time of " + what + " is missing.");
            return std::nullopt;
        }
        const Fields fields = take(expected, {2});
        const bool isEmpty = field(fields, 0).empty() && field(fields, 1).empty();
        if (!isEmpty && !isMomentLine(line))
            fail(expected, line);
        const auto moment = parseMoment(field(fields, 0), field(fields, 1), out().revision == 1991);
        if (!moment)
            warnHere("the date and time of " + what + " is given as " + inQuotes(line) + ", which is none.");
        else if (moment->fractionDigits >= 9 && out().revision == 2013)
            out().stampUnit = 1e-9;
        return moment;
    }

    void readFormat() {
        const std::string expected = "a data format (ASCII, BINARY, BINARY32 or FLOAT32)";
        const Fields fields = take(expected, {1});
        config.format = formatOf(fields[0]);
        if (!config.format)
            fail(expected, line);
        out().format = *config.format;
    }

    void readTimeMultiplier() {
        if (!peek()) {
            if (out().revision != 1991)
                warn(source.name() + ": the time multiplier is missing; 1 is used.");
            return;
        }
        const Fields fields = take("the time multiplier", {1});
        const auto value = toNumber(fields[0]);
        if (value && *value > 0)
            out().timeMultiplier = *value;
        else
            warnHere("the time multiplier is given as " + inQuotes(line) + "; 1 is used.");
    }

    void readClock() {
        if (peek()) {
            const Fields fields = take("the time codes", {2});
            out().timeCode = field(fields, 0);
            out().localCode = field(fields, 1);
        }
        if (peek()) {
            take("the quality of the clock", {2});
            out().clockQuality = line;
        }
    }

    MemorySource source;
    Lines lines;
    bool salvage;
    Config config;
    std::optional<std::string_view> current;
    std::string_view line;
    std::uint64_t surplusCommas = 0;
    bool hasLongLines = false;
    std::size_t warningCount = 0;
};

} // namespace

std::optional<Format> formatOf(std::string_view text) {
    const std::string word = uppered(trim(text));
    for (const Format format : {Format::Ascii, Format::Binary, Format::Binary32, Format::Float32})
        if (word == name(format))
            return format;
    return std::nullopt;
}

Config parseConfig(std::string_view text, const std::string& name, bool salvage) {
    return Parser(text, name, salvage).parse();
}

} // namespace record
