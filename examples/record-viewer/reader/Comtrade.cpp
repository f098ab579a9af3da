#include "Comtrade.h"

#include "Cff.h"
#include "Config.h"
#include "Data.h"
#include "Text.h"

namespace record {

namespace {

Config decodeConfig(std::string_view bytes, const std::string& name, const Options& options) {
    if (bytes.size() > longestConfiguration)
        throw Error(name + ": expected a configuration of at most " + counted(longestConfiguration, "byte") +
                    ", found " + counted(bytes.size(), "byte") + ".");
    DecodedText decoded = decode(bytes, options.codePage);
    Config config = parseConfig(decoded.text, name, options.salvage);
    config.record.encoding = decoded.encoding;
    if (decoded.replaced > 0)
        config.record.warnings.push_back(name + ": " + counted(decoded.replaced, "byte") + " not known to " +
                                         decoded.encoding + " replaced.");
    return config;
}

void warnAboutCount(Record& record, std::uint64_t samples, const std::string& name) {
    // A configuration that was cut off before its rates promises nothing.
    if (record.rates.empty() || record.declaredSamples == samples)
        return;
    record.warnings.push_back(name + ": " + counted(record.declaredSamples, "sample") + " promised, " +
                              std::to_string(samples) + " there.");
}

void warnAboutTime(Record& record, const std::string& name) {
    const TimeAxis& time = record.time;
    const auto warn = [&](const std::string& text) { record.warnings.push_back(name + ": " + text); };
    if (time.gapCount() > 0) {
        const Gap& first = time.gaps().front();
        warn("the time stamps leap in " + counted(time.gapCount(), "place") + ", first by " +
             numberText(first.seconds) + " s before sample " + std::to_string(first.position + 1) + ".");
    }
    if (time.worstDifference() > 3)
        warn("rates and time stamps disagree by up to " + numberText(time.worstDifference()) + " samples.");
    if (time.size() > 0 && time.rule() == TimeAxis::Rule::Numbers)
        warn("neither rates nor time stamps are there; the axis counts samples.");
}

void readSamples(Config& config, Source& data, const Options& options) {
    Record& record = config.record;
    if (!config.format) {
        config.format = guessFormat(config, data);
        record.warnings.push_back(data.name() + ": " +
                                  (config.format
                                       ? std::string("the format is taken to be ") + name(*config.format)
                                       : std::string("the format can't be told; no sample is read")) +
                                  ".");
        if (!config.format)
            return;
        record.format = *config.format;
    }
    DataOutcome outcome = readData(config, data, options);
    record.time = TimeAxis(static_cast<std::size_t>(outcome.samples), record.rates, std::move(outcome.ticks),
                           record.stampUnit * record.timeMultiplier);
    warnAboutCount(record, outcome.samples, data.name());
    warnAboutTime(record, data.name());
}

} // namespace

Record readPair(std::string_view configuration, const std::string& configurationName, Source* data,
                const Options& options) {
    Config config = decodeConfig(configuration, configurationName, options);
    if (data)
        readSamples(config, *data, options);
    else if (options.salvage)
        config.record.warnings.push_back(configurationName + ": the data are missing; no sample is read.");
    else
        throw Error(configurationName + ": expected a .dat file of the same name beside it, found none.");
    return std::move(config.record);
}

Record readCombined(Source& source, const Options& options) {
    Sections sections = readSections(source);
    Config config = decodeConfig(sections.configuration, source.name() + " (CFG section)", options);
    Record& record = config.record;
    record.warnings.insert(record.warnings.end(), sections.warnings.begin(), sections.warnings.end());
    record.header = decode(sections.header, options.codePage).text;
    record.information = decode(sections.information, options.codePage).text;
    if (sections.hasData) {
        if (sections.format && config.format && sections.format != config.format)
            record.warnings.push_back(source.name() + ": the configuration says " + name(*config.format) +
                                      ", but the data section " + name(*sections.format) +
                                      ", which is used.");
        if (sections.format) {
            config.format = sections.format;
            record.format = *sections.format;
        }
        PartSource data(source, sections.dataOffset, sections.dataSize);
        readSamples(config, data, options);
    } else if (options.salvage) {
        record.warnings.push_back(source.name() + ": there is no data section; no sample is read.");
    } else {
        throw Error(source.name() + ": expected a data section, found none.");
    }
    return std::move(record);
}

} // namespace record
