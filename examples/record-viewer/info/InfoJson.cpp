#include "Info.h"

#include "reader/Statistics.h"

#include <cmath>

namespace record {

namespace {

using nlohmann::ordered_json;

/// JSON has no word for values that are not numbers or have no end.
ordered_json number(double value) {
    return std::isfinite(value) ? ordered_json(value) : ordered_json();
}

ordered_json number(const std::optional<double>& value) {
    return value ? number(*value) : ordered_json();
}

/// A ratio or frequency whose zero means that it is not known.
ordered_json positive(double value) {
    return value > 0 ? number(value) : ordered_json();
}

ordered_json moment(const std::optional<Moment>& value) {
    return value ? ordered_json(value->text()) : ordered_json();
}

ordered_json ratesJson(const std::vector<Rate>& rates) {
    ordered_json list = ordered_json::array();
    for (const Rate& rate : rates)
        list.push_back({{"hertz", number(rate.hertz)}, {"end", rate.end}});
    return list;
}

ordered_json timeJson(const TimeAxis& time) {
    const bool hasSamples = time.size() > 0;
    const std::size_t last = hasSamples ? time.size() - 1 : 0;
    ordered_json result;
    result["rule"] = time.rule() == TimeAxis::Rule::Rates    ? "rates"
                     : time.rule() == TimeAxis::Rule::Stamps ? "stamps"
                                                             : "numbers";
    result["first"] = hasSamples ? number(time.at(0)) : ordered_json();
    result["last"] = hasSamples ? number(time.at(last)) : ordered_json();
    result["byRates"] = nullptr;
    result["byStamps"] = nullptr;
    if (hasSamples && time.hasRates())
        result["byRates"] = {{"first", number(time.byRates(0))}, {"last", number(time.byRates(last))}};
    if (hasSamples && time.hasStamps())
        result["byStamps"] = {{"first", number(time.byStamps(0))},
                              {"last", number(time.byStamps(last))},
                              {"missing", time.missingStamps()}};
    result["worstDifferenceInSamples"] = number(time.worstDifference());
    result["gapCount"] = time.gapCount();
    result["gaps"] = ordered_json::array();
    for (const Gap& gap : time.gaps())
        result["gaps"].push_back({{"sample", gap.position}, {"seconds", number(gap.seconds)}});
    return result;
}

ordered_json analogJson(const AnalogChannel& channel) {
    const Statistics found = statistics(channel.samples);
    ordered_json result;
    result["name"] = channel.name;
    result["phase"] = channel.phase;
    result["component"] = channel.component;
    result["unit"] = channel.unit;
    result["factor"] = number(channel.factor);
    result["offset"] = number(channel.offset);
    result["skewInMicroseconds"] = number(channel.skew);
    result["primary"] = positive(channel.primary);
    result["secondary"] = positive(channel.secondary);
    result["side"] = channel.side == 0 ? ordered_json() : ordered_json(std::string(1, channel.side));
    result["minimum"] = number(found.minimum);
    result["maximum"] = number(found.maximum);
    result["mean"] = number(found.mean);
    result["rms"] = number(found.rms);
    result["missing"] = found.missing;
    return result;
}

ordered_json binaryJson(const BinaryChannel& channel) {
    ordered_json result;
    result["name"] = channel.name;
    result["phase"] = channel.phase;
    result["component"] = channel.component;
    result["normal"] = channel.normal ? 1 : 0;
    result["first"] = channel.samples.size() == 0 ? ordered_json() : ordered_json(channel.samples[0] ? 1 : 0);
    result["transitions"] = channel.samples.transitionCount();
    return result;
}

} // namespace

ordered_json toJson(const Record& record) {
    ordered_json result;
    result["path"] = record.path;
    result["station"] = record.station;
    result["device"] = record.device;
    result["revision"] = record.revision;
    result["revisionText"] = record.revisionText;
    result["format"] = name(record.format);
    result["encoding"] = record.encoding;
    result["lineFrequency"] = positive(record.lineFrequency);
    result["samples"] = record.size();
    result["declaredSamples"] = record.declaredSamples;
    result["rates"] = ratesJson(record.rates);
    result["start"] = moment(record.start);
    result["trigger"] = moment(record.trigger);
    result["triggerOffset"] = number(record.triggerOffset());
    result["timeCode"] = record.timeCode;
    result["localCode"] = record.localCode;
    result["clockQuality"] = record.clockQuality;
    result["time"] = timeJson(record.time);
    result["analogs"] = ordered_json::array();
    for (const AnalogChannel& channel : record.analogs)
        result["analogs"].push_back(analogJson(channel));
    result["binaries"] = ordered_json::array();
    for (const BinaryChannel& channel : record.binaries)
        result["binaries"].push_back(binaryJson(channel));
    result["warnings"] = record.warnings;
    return result;
}

std::string jsonText(const Record& record) {
    return toJson(record).dump(2, ' ', false, ordered_json::error_handler_t::replace);
}

} // namespace record
