#include "Info.h"

#include "Table.h"
#include "reader/Statistics.h"
#include "reader/Text.h"

#include <cmath>

namespace record {

namespace {

constexpr std::size_t shownRates = 5;
constexpr std::size_t shownTransitions = 4;

std::string orDash(const std::string& text) {
    return text.empty() ? "-" : printable(text);
}

std::string valueText(double value) {
    return std::isfinite(value) ? numberText(value) : "-";
}

std::string momentText(const std::optional<Moment>& moment) {
    return moment ? moment->text() : "not known";
}

std::string revisionText(const Record& record) {
    if (record.revision == 0)
        return "-";
    std::string applied = std::to_string(record.revision);
    if (record.revisionText == applied)
        return applied;
    return applied + (record.revisionText.empty() ? " (the file names none)"
                                                  : " (the file says " + inQuotes(record.revisionText) + ")");
}

std::string samplesText(const Record& record) {
    const std::string there = std::to_string(record.size());
    return record.size() == record.declaredSamples
               ? there
               : there + " (" + std::to_string(record.declaredSamples) + " promised)";
}

std::string ratesText(const std::vector<Rate>& rates) {
    std::string text;
    for (std::size_t i = 0; i < rates.size() && i < shownRates; ++i)
        text += (i == 0 ? "" : ", ") + valueText(rates[i].hertz) + " Hz up to sample " +
                std::to_string(rates[i].end);
    if (rates.size() > shownRates)
        text += ", and " + std::to_string(rates.size() - shownRates) + " more";
    return text.empty() ? "-" : text;
}

std::string rangeText(double first, double last) {
    return valueText(first) + " to " + valueText(last) + " s";
}

std::string stampsText(const TimeAxis& time) {
    std::string text = rangeText(time.byStamps(0), time.byStamps(time.size() - 1));
    if (time.missingStamps() > 0)
        text += ", " + std::to_string(time.missingStamps()) + " missing";
    if (time.gapCount() > 0)
        text += ", " + counted(time.gapCount(), "leap");
    return text;
}

std::string ruleText(TimeAxis::Rule rule) {
    switch (rule) {
    case TimeAxis::Rule::Rates:
        return "by rates";
    case TimeAxis::Rule::Stamps:
        return "by time stamps";
    case TimeAxis::Rule::Numbers:
        break;
    }
    return "numbers of samples";
}

std::string facts(const Record& record) {
    const TimeAxis& time = record.time;
    Table table(2);
    table.add({"Record", printable(record.path)});
    table.add({"Station", orDash(record.station)});
    table.add({"Device", orDash(record.device)});
    table.add({"Revision", revisionText(record)});
    table.add({"Format", std::string(name(record.format)) + ", texts in " + printable(record.encoding)});
    table.add({"Samples", samplesText(record)});
    table.add({"Line frequency", record.lineFrequency > 0 ? valueText(record.lineFrequency) + " Hz" : "-"});
    table.add({"Rates", ratesText(record.rates)});
    table.add({"Time axis", ruleText(time.rule())});
    const bool hasSamples = time.size() > 0;
    table.add({"Time by rates", hasSamples && time.hasRates()
                                    ? rangeText(time.byRates(0), time.byRates(time.size() - 1))
                                    : "-"});
    table.add({"Time by stamps", hasSamples && time.hasStamps() ? stampsText(time) : "-"});
    table.add({"Start", momentText(record.start)});
    const auto offset = record.triggerOffset();
    table.add({"Trigger", momentText(record.trigger) +
                              (offset ? " (" + valueText(*offset) + " s from the start)" : std::string())});
    return table.text("");
}

std::string analogs(const Record& record) {
    Table table(3);
    table.add({"Analog", "Phase", "Unit", "Minimum", "Maximum", "Mean", "Missing"});
    for (const AnalogChannel& channel : record.analogs) {
        const Statistics found = statistics(channel.samples);
        table.add({orDash(channel.name), orDash(channel.phase), orDash(channel.unit),
                   valueText(found.minimum), valueText(found.maximum), valueText(found.mean),
                   std::to_string(found.missing)});
    }
    return "\n" + table.text("");
}

/// When a binary channel changes, the first few times.
std::string changesText(const BinaryChannel& channel, const TimeAxis& time) {
    std::string text;
    std::size_t shown = 0;
    for (const std::size_t position : channel.samples.transitions()) {
        if (shown++ == shownTransitions)
            return text + ", ...";
        text += (text.empty() ? "" : ", ") + valueText(time.at(position));
    }
    return text;
}

std::string binaries(const Record& record) {
    Table table(5);
    table.add({"Binary", "Normal", "First", "Changes", "at"});
    for (const BinaryChannel& channel : record.binaries)
        table.add({orDash(channel.name), channel.normal ? "1" : "0",
                   channel.samples.size() == 0 ? "-"
                   : channel.samples[0]        ? "1"
                                               : "0",
                   std::to_string(channel.samples.transitionCount()), changesText(channel, record.time)});
    return "\n" + table.text("");
}

} // namespace

std::string describe(const Record& record) {
    std::string text = facts(record);
    if (!record.analogs.empty())
        text += analogs(record);
    if (!record.binaries.empty())
        text += binaries(record);
    if (!record.warnings.empty())
        text += "\nWarnings\n";
    for (const std::string& warning : record.warnings)
        text += "  " + printable(warning) + "\n";
    return text;
}

} // namespace record
