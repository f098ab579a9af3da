#include "ImpedanceSettings.h"

#include "Impedances.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace viewer {

namespace {

struct FieldRule {
    Group group;
    Zel::NumericRange range;
    double usual;
};

/// By the number of the field. The least angle of the line keeps the sides of a quadrilateral from being
/// parallel to its top.
const std::array<FieldRule, fieldCount> rules{{
    {Group::Line, {0.001, 10000, 0.001}, 10},
    {Group::Line, {10, 90, 0.1}, 75},
    {Group::Compensation, {0, 10, 0.001}, 0},
    {Group::Compensation, {-180, 180, 0.1}, 0},
    {Group::Frequency, {10, 400, 0.001}, 50},
    {Group::Zones, {1, 200, 0.1}, 80},
    {Group::Zones, {1, 500, 0.1}, 120},
    {Group::Zones, {1, 1000, 0.1}, 200},
    {Group::Zones, {0, 1000, 0.1}, 25},
}};

const FieldRule& ruleOf(Field field) {
    return rules[static_cast<std::size_t>(field)];
}

bool isInRange(Field field, double value) {
    const Zel::NumericRange& range = rangeOf(field);
    return value >= range.getMin() && value <= range.getMax();
}

/// Empty for what is no number or has no end.
std::optional<double> numberOf(const std::string& text) {
    // Entries take a plus sign, too.
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    const char* const first = text.data() + (hasPlus ? 1 : 0);
    const char* const end = text.data() + text.size();
    double value = 0;
    const auto result = std::from_chars(first, end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

} // namespace

Group groupOf(Field field) {
    return ruleOf(field).group;
}

const Zel::NumericRange& rangeOf(Field field) {
    return ruleOf(field).range;
}

double rounded(Field field, double value) {
    // Steps are tenths and thousandths: multiplied by a whole number and divided again, none gets digits that
    // nobody has typed.
    const double scale = std::round(1 / rangeOf(field).getStep());
    return std::round(value * scale) / scale;
}

std::string textOf(double value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(10);
    text << value;
    return text.str();
}

ImpedanceSettings::ImpedanceSettings() {
    for (const Field field : allFields)
        (*this)[field] = ruleOf(field).usual;
}

bool ImpedanceSettings::has(Group group) const {
    return group == Group::Zones || isGiven[static_cast<std::size_t>(group)];
}

void ImpedanceSettings::setGiven(Group group, bool value) {
    if (group != Group::Zones)
        isGiven[static_cast<std::size_t>(group)] = value;
}

impedance::LineSettings ImpedanceSettings::line() const {
    impedance::LineSettings line;
    if (has(Group::Line))
        line.z1 = impedance::fromAngle((*this)[Field::Z1], (*this)[Field::Z1Angle]);
    if (has(Group::Compensation))
        line.k0 = impedance::fromAngle((*this)[Field::K0], (*this)[Field::K0Angle]);
    if (has(Group::Frequency))
        line.frequency = (*this)[Field::Frequency];
    return line;
}

impedance::Reaches ImpedanceSettings::reaches() const {
    return {(*this)[Field::Zone1] / 100, (*this)[Field::Zone2] / 100, (*this)[Field::Zone3] / 100,
            (*this)[Field::Backward] / 100};
}

bool operator==(const ImpedanceSettings& a, const ImpedanceSettings& b) {
    return a.values == b.values && a.isGiven == b.isGiven;
}

ImpedanceSettings withTold(const ImpedanceSettings& settings, const Impedances& impedances) {
    ImpedanceSettings told;
    const auto tell = [&told](Field field, double value) {
        const double taken = rounded(field, value);
        if (isInRange(field, taken))
            told[field] = taken;
    };
    if (impedances.isLineAssumed) {
        tell(Field::Z1, std::abs(impedances.line));
        tell(Field::Z1Angle, std::arg(impedances.line) * 180 / std::acos(-1.0));
    }
    tell(Field::Frequency, impedances.recordedFrequency);
    ImpedanceSettings result = settings;
    for (const Field field : allFields)
        if (!settings.has(groupOf(field)))
            result[field] = told[field];
    return result;
}

std::optional<Veto> contradictionIn(const ImpedanceSettings& settings) {
    for (const auto& [former, next] : {std::pair(Field::Zone1, Field::Zone2), {Field::Zone2, Field::Zone3}})
        if (settings[next] <= settings[former])
            return Veto{next, Veto::Reason::NotBeyondFormer, settings[next], settings[former]};
    if (settings[Field::Backward] > settings[Field::Zone3])
        return Veto{Field::Backward, Veto::Reason::BeyondZone3, settings[Field::Backward],
                    settings[Field::Zone3]};
    return std::nullopt;
}

SettingsVerdict judge(const SettingsDraft& draft) {
    ImpedanceSettings settings;
    settings.isGiven = draft.isGiven;
    for (const Field field : allFields) {
        if (!settings.has(groupOf(field)))
            continue;
        const auto value = numberOf(draft.texts[static_cast<std::size_t>(field)]);
        if (!value)
            return {std::nullopt, Veto{field, Veto::Reason::NoNumber, 0, 0}};
        if (!isInRange(field, *value))
            return {std::nullopt, Veto{field, Veto::Reason::OutOfRange, *value, 0}};
        settings[field] = rounded(field, *value);
    }
    const std::optional<Veto> veto = contradictionIn(settings);
    return veto ? SettingsVerdict{std::nullopt, veto} : SettingsVerdict{settings, std::nullopt};
}

} // namespace viewer
