#include "SettingsFile.h"

#include "KeyFiles.h"

#include <utility>

namespace viewer {

namespace {

constexpr const char* group = "impedance";
/// By the number of the field.
constexpr std::array<const char*, fieldCount> keys{
    "z1-ohms",        "z1-degrees",      "k0",
    "k0-degrees",     "frequency-hertz", "zone-1-percent",
    "zone-2-percent", "zone-3-percent",  "zone-3-backward-percent"};

std::optional<double> valueOf(const Glib::KeyFile& file, Field field) {
    try {
        const double value = file.get_double(group, keys[static_cast<std::size_t>(field)]);
        const Zel::NumericRange& range = rangeOf(field);
        // False for what is not a number, too.
        if (value >= range.getMin() && value <= range.getMax())
            return rounded(field, value);
    } catch (const Glib::Error&) {
    }
    return std::nullopt;
}

} // namespace

SettingsFile::SettingsFile(std::string givenFile) : file(std::move(givenFile)) {}

ImpedanceSettings SettingsFile::read() const {
    ImpedanceSettings settings;
    if (file.empty())
        return settings;
    const std::unique_ptr<Glib::KeyFile> content = loadKeyFile(file);
    // The first field of a group is the one that it needs.
    for (const Field field : {Field::Z1, Field::K0, Field::Frequency})
        settings.setGiven(groupOf(field), valueOf(*content, field).has_value());
    for (const Field field : allFields)
        if (settings.has(groupOf(field)))
            settings[field] = valueOf(*content, field).value_or(settings[field]);
    if (contradictionIn(settings)) {
        const ImpedanceSettings usual;
        for (const Field field : allFields)
            if (groupOf(field) == Group::Zones)
                settings[field] = usual[field];
    }
    return settings;
}

void SettingsFile::write(const ImpedanceSettings& settings) const {
    if (file.empty())
        return;
    const std::unique_ptr<Glib::KeyFile> content = loadKeyFile(file);
    if (content->has_group(group))
        content->remove_group(group);
    const ImpedanceSettings usual;
    for (const Field field : allFields)
        if (settings.has(groupOf(field)) &&
            (groupOf(field) != Group::Zones || settings[field] != usual[field]))
            content->set_string(group, keys[static_cast<std::size_t>(field)], textOf(settings[field]));
    saveKeyFile(*content, file);
}

} // namespace viewer
