#include "SettingsWords.h"

#include <ZelCommonView/common/Language.h>

namespace viewer::words {

namespace {

using Word = std::array<const char*, 2>;

const char* say(const Word& word) {
    return word[static_cast<std::size_t>(lng::index())];
}

const Word shortNames[fieldCount] = {
    {"Z1", "Z1"},         {"Angle", "Угол"},        {"k0", "k0"},
    {"Angle", "Угол"},    {"Frequency", "Частота"}, {"Zone 1", "Зона 1"},
    {"Zone 2", "Зона 2"}, {"Zone 3", "Зона 3"},     {"Backward", "Назад"},
};

const Word fullNames[fieldCount] = {
    {"Line impedance Z1", "Сопротивление линии Z1"},
    {"Angle of Z1", "Угол Z1"},
    {"Compensation factor k0", "Коэффициент компенсации k0"},
    {"Angle of k0", "Угол k0"},
    {"Frequency", "Частота"},
    {"Reach of zone 1", "Охват зоны 1"},
    {"Reach of zone 2", "Охват зоны 2"},
    {"Reach of zone 3", "Охват зоны 3"},
    {"Reach of zone 3 backward", "Охват зоны 3 назад"},
};

/// With the unit, "°" close to the number and all others apart from it.
std::string measured(Field field, double value) {
    const std::string unit = unitOf(field);
    return textOf(value) + (unit.empty() || unit == "°" ? "" : " ") + unit;
}

std::string fromTo(Field field, double from, double to) {
    return say({"from ", "от "}) + textOf(from) + say({" to ", " до "}) + measured(field, to);
}

std::string aboveTo(Field field, double limit, double to) {
    return say({"above ", "больше "}) + textOf(limit) + say({" and up to ", " и до "}) + measured(field, to);
}

/// The field of the zone before.
Field former(Field field) {
    return static_cast<Field>(static_cast<int>(field) - 1);
}

} // namespace

const char* settings() {
    return say({"Settings", "Настройки"});
}

const char* settingsTitle() {
    return say({"Line and zones", "Линия и зоны"});
}

const char* defaults() {
    return say({"Defaults", "По умолчанию"});
}

const char* inPercent() {
    return say({"Reach of the zones, in percent of the line", "Охват зон в процентах от линии"});
}

std::string groupName(Group group, double recordedFrequency) {
    if (group == Group::Line)
        return say({"The impedance of the line is known", "Сопротивление линии известно"});
    if (group == Group::Compensation)
        return say(
            {"The earth-fault compensation is known", "Компенсация нулевой последовательности известна"});
    if (!(recordedFrequency > 0))
        return say(
            {"Frequency of the network; the record tells none", "Частота сети; в записи она не указана"});
    return say({"Another frequency than the ", "Другая частота, не "}) +
           measured(Field::Frequency, recordedFrequency) + say({" of the record", " из записи"});
}

const char* shortName(Field field) {
    return say(shortNames[static_cast<std::size_t>(field)]);
}

const char* fullName(Field field) {
    return say(fullNames[static_cast<std::size_t>(field)]);
}

std::string unitOf(Field field, const std::optional<impedance::Side>& side) {
    switch (field) {
    case Field::Z1:
        if (!side)
            return say({"ohm", "Ом"});
        return *side == impedance::Side::Primary ? say({"primary ohm", "Ом, первичных"})
                                                 : say({"secondary ohm", "Ом, вторичных"});
    case Field::Z1Angle:
    case Field::K0Angle:
        return "°";
    case Field::K0:
        return "";
    case Field::Frequency:
        return say({"Hz", "Гц"});
    default:
        return "%";
    }
}

std::string vetoOf(const Veto& veto) {
    const Field field = veto.field;
    const Zel::NumericRange& range = rangeOf(field);
    const std::string start = std::string(fullName(field)) + ": ";
    const std::string value = measured(field, veto.value);
    const std::string mayBe = say({" It may be ", " Допустимо "});
    switch (veto.reason) {
    case Veto::Reason::NoNumber:
        return start + say({"this is no number.", "это не число."}) + mayBe +
               fromTo(field, range.getMin(), range.getMax()) + ".";
    case Veto::Reason::OutOfRange:
        return start + value + say({" is out of range.", " вне допустимых пределов."}) + mayBe +
               fromTo(field, range.getMin(), range.getMax()) + ".";
    case Veto::Reason::NotBeyondFormer:
        return start + value + say({" does not reach beyond ", " не дальше, чем "}) +
               shortName(former(field)) + say({", which has ", ", у которой "}) +
               measured(field, veto.other) + "." + mayBe + aboveTo(field, veto.other, range.getMax()) + ".";
    case Veto::Reason::BeyondZone3:
        return start + value + say({" is more than it reaches forward.", " больше, чем вперёд."}) + mayBe +
               fromTo(field, range.getMin(), veto.other) + ".";
    }
    return "";
}

} // namespace viewer::words
