#include "Csv.h"

#include "Data.h"
#include "Text.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>

namespace record {

namespace {

constexpr float missing = std::numeric_limits<float>::quiet_NaN();

using Row = std::vector<std::string>;

bool isQuote(char c) {
    return c == '"';
}

/// The cells of a row, trimmed and without their quotation marks. A separator within them does not separate.
Row cells(std::string_view line, char separator) {
    Row row(1);
    bool isQuoted = false;
    for (const char c : line) {
        if (isQuote(c))
            isQuoted = !isQuoted;
        else if (c == separator && !isQuoted)
            row.emplace_back();
        else
            row.back() += c;
    }
    for (std::string& cell : row)
        cell = trim(cell);
    return row;
}

char separatorOf(std::string_view line) {
    for (const char separator : {';', '\t', ','})
        if (line.find(separator) != std::string_view::npos)
            return separator;
    return ',';
}

/// Numbers or gaps only, and at least one number.
bool isNumeric(const Row& row) {
    bool hasNumber = false;
    for (const std::string& cell : row) {
        if (toNumber(cell))
            hasNumber = true;
        else if (!cell.empty())
            return false;
    }
    return hasNumber;
}

/// Seconds in a unit of time; empty for what is none.
std::optional<double> secondsIn(std::string_view unit) {
    const std::string word = lowered(unit);
    const auto isOneOf = [&](std::initializer_list<const char*> words) {
        return std::find(words.begin(), words.end(), word) != words.end();
    };
    if (isOneOf({"s", "sec", "second", "seconds"}))
        return 1;
    if (isOneOf({"ms", "msec", "millisecond", "milliseconds"}))
        return 1e-3;
    if (isOneOf({"us", "\u00b5s", "\u03bcs", "usec", "microsecond", "microseconds"}))
        return 1e-6;
    if (isOneOf({"ns", "nsec", "nanosecond", "nanoseconds"}))
        return 1e-9;
    return std::nullopt;
}

bool isTimeName(std::string_view name) {
    const std::string word = lowered(name);
    return word == "t" || word == "x-axis" || word.substr(0, 4) == "time";
}

/// Parts "Ua(V)" or "Ua [V]" into a name and a unit.
void partUnit(std::string& name, std::string& unit) {
    if (name.empty() || !unit.empty() || (name.back() != ')' && name.back() != ']'))
        return;
    const std::size_t place = name.find_last_of(name.back() == ')' ? '(' : '[');
    if (place == std::string::npos || place == 0)
        return;
    unit = trim(std::string_view(name).substr(place + 1, name.size() - place - 2));
    name = trim(std::string_view(name).substr(0, place));
}

class TableReader {
public:
    TableReader(Source& tableSource, const Options& readingOptions)
        : source(tableSource), options(readingOptions), lines(tableSource) {}

    Record read() {
        record.format = Format::Csv;
        record.encoding = "ASCII";
        readHeading();
        reserve();
        readRow(firstRow);
        std::uint64_t rows = 0;
        while (const auto line = lines.nextFilled()) {
            if (++rows % 1024 == 0)
                report(options, lines.offset(), source.size());
            readLine(*line);
        }
        finish();
        report(options, 1, 1);
        return std::move(record);
    }

private:
    void warn(const std::string& text) { record.warnings.push_back(source.name() + ": " + text); }

    std::string problem(const std::string& expected, std::string_view found) const {
        return source.name() + ", line " + std::to_string(lines.number()) + ": expected " + expected +
               ", found " + inQuotes(found) + ".";
    }

    Row decodedCells(std::string_view line, char cellSeparator) {
        const DecodedText decoded = decode(line, options.codePage);
        if (decoded.encoding != "ASCII")
            record.encoding = decoded.encoding;
        return cells(decoded.text, cellSeparator);
    }

    /// Reads up to the first row of numbers and names the channels.
    void readHeading() {
        std::vector<Row> headings;
        std::uint64_t length = 0;
        for (;;) {
            const auto line = lines.nextFilled();
            if (line)
                length += line->size();
            if (!line || length > std::size_t(1024) * 1024)
                throw Error(source.name() + ", line " + std::to_string(lines.number()) +
                            ": expected a row of numbers, found none up to here.");
            separator = separatorOf(*line);
            Row row = decodedCells(*line, separator);
            if (isNumeric(row)) {
                firstRow = std::move(row);
                break;
            }
            headings.push_back(std::move(row));
            // Only the last two can name columns.
            if (headings.size() > 2)
                headings.erase(headings.begin());
        }
        // An empty last cell is a missing value where the column has a name, else a separator too many.
        const bool isNamed = !headings.empty() && headings.back().size() >= firstRow.size() &&
                             !headings.back()[firstRow.size() - 1].empty();
        if (firstRow.size() > 1 && firstRow.back().empty() && !isNamed)
            firstRow.pop_back();
        columns = firstRow.size();
        nameColumns(headings);
    }

    void nameColumns(std::vector<Row>& headings) {
        std::vector<Row> fitting;
        for (auto heading = headings.rbegin(); heading != headings.rend(); ++heading) {
            if (heading->size() != columns && heading->size() != columns + 1)
                break;
            fitting.insert(fitting.begin(), *heading);
        }
        Row names = fitting.empty() ? Row(columns) : fitting.front();
        Row units = fitting.size() == 2 ? fitting.back() : Row(columns);
        for (std::size_t i = 0; i < columns; ++i)
            partUnit(names[i], units[i]);

        hasNames = !fitting.empty();
        const auto unitSeconds = secondsIn(units[0]);
        hasTime = columns > 1 && (hasNames ? isTimeName(names[0]) || unitSeconds : true);
        stampUnit = unitSeconds.value_or(1);
        for (std::size_t i = hasTime ? 1 : 0; i < columns; ++i)
            addChannel(names[i], units[i], i);
    }

    void addChannel(const std::string& name, const std::string& unit, std::size_t column) {
        AnalogChannel channel;
        channel.name = name.empty() ? "Column " + std::to_string(column + 1) : name;
        channel.unit = unit;
        channel.rawMinimum = channel.rawMaximum = missing;
        record.analogs.push_back(std::move(channel));
    }

    void reserve() {
        // A row has a separator between its cells at least, or one character.
        const std::uint64_t smallest = std::max<std::uint64_t>(1, columns - 1);
        const std::uint64_t most = std::min(countLines(source), source.size() / smallest);
        if (hasTime)
            ticks.reserve(most);
        for (AnalogChannel& channel : record.analogs)
            channel.samples.reserve(most);
    }

    void readLine(std::string_view line) {
        if (!damage.empty())
            settleDamage();
        const auto separators = static_cast<std::size_t>(std::count(line.begin(), line.end(), separator));
        if (separators + 1 < columns) {
            damage =
                problem(counted(columns, "column") + " instead of " + std::to_string(separators + 1), line);
            return;
        }
        Row& row = firstRow;
        row.assign(columns, {});
        std::string_view rest = line;
        for (std::string& cell : row) {
            const std::size_t end = rest.find(separator);
            cell = trim(rest.substr(0, end));
            rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        }
        if (!trim(rest).empty())
            refuse(problem("the end of the line after " + counted(columns, "column"), rest));
        readRow(row);
    }

    void settleDamage() {
        if (!options.salvage)
            throw Error(damage);
        if (damagedRows++ == 0)
            firstDamage = damage;
        damage.clear();
    }

    void refuse(const std::string& text) {
        if (!options.salvage)
            throw Error(text);
        if (refusedCells++ == 0)
            firstRefused = text;
    }

    double number(const std::string& cell) {
        if (cell.empty())
            return missing;
        const auto value = toNumber(cell);
        const std::string word = lowered(cell);
        if (!value && word != "nan" && word != "inf" && word != "-inf")
            refuse(problem("a number", cell));
        return value.value_or(missing);
    }

    void readRow(const Row& row) {
        std::size_t column = 0;
        if (hasTime)
            ticks.push_back(number(row[column++]));
        for (AnalogChannel& channel : record.analogs) {
            const double value = number(row[column++]);
            channel.samples.push_back(std::abs(value) <= FLT_MAX ? static_cast<float>(value) : missing);
        }
    }

    /// A column without a name is the time only if it always grows; otherwise it becomes the first channel.
    void settleTime() {
        if (!hasTime || hasNames)
            return;
        const bool isGrowing = std::adjacent_find(ticks.begin(), ticks.end(),
                                                  [](double a, double b) { return !(a < b); }) == ticks.end();
        if (isGrowing && !std::isnan(ticks.front()))
            return;
        hasTime = false;
        addChannel("", "", 0);
        std::rotate(record.analogs.begin(), record.analogs.end() - 1, record.analogs.end());
        std::vector<float>& samples = record.analogs.front().samples;
        samples.reserve(ticks.size());
        for (const double tick : ticks)
            samples.push_back(std::abs(tick) <= FLT_MAX ? static_cast<float>(tick) : missing);
        ticks = {};
    }

    void finish() {
        settleTime();
        const std::size_t samples = record.analogs.front().samples.size();
        record.declaredSamples = samples;
        record.stampUnit = stampUnit;
        record.time = TimeAxis(samples, {}, std::move(ticks), stampUnit);
        if (record.time.rule() == TimeAxis::Rule::Numbers)
            warn("no column holds the time; the axis counts samples.");
        if (record.time.gapCount() > 0)
            warn("the time leaps in " + counted(record.time.gapCount(), "place") + ", first by " +
                 numberText(record.time.gaps().front().seconds) + " s before row " +
                 std::to_string(record.time.gaps().front().position + 1) + ".");
        if (!damage.empty())
            warn("the last row is cut off and left out.");
        if (damagedRows > 0)
            warn(counted(damagedRows, "damaged row") + " left out. The first one: " + firstDamage);
        if (refusedCells > 0)
            warn(counted(refusedCells, "cell") +
                 " that can't be understood left out. The first one: " + firstRefused);
    }

    Source& source;
    const Options& options;
    Lines lines;
    Record record;
    char separator = ',';
    std::size_t columns = 0;
    bool hasNames = false;
    bool hasTime = false;
    double stampUnit = 1;
    Row firstRow;
    std::vector<double> ticks;
    std::string damage;
    std::uint64_t damagedRows = 0;
    std::string firstDamage;
    std::uint64_t refusedCells = 0;
    std::string firstRefused;
};

} // namespace

Record readCsv(Source& source, const Options& options) {
    return TableReader(source, options).read();
}

} // namespace record
