#include "ImpedanceWords.h"

#include <ZelCommonView/common/Language.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <locale>
#include <sstream>

namespace viewer::words {

namespace {

using Word = std::array<const char*, 2>;

const char* say(const Word& word) {
    return word[static_cast<std::size_t>(lng::index())];
}

const Word sentences[] = {
    {"The record has no voltages of the three phases, so there is no impedance to compute.",
     "В записи нет напряжений трёх фаз, поэтому сопротивление вычислить нельзя."},
    {"The record has no currents of the three phases, so there is no impedance to compute.",
     "В записи нет токов трёх фаз, поэтому сопротивление вычислить нельзя."},
    {"The record has no voltages and currents of the three phases, so there is no impedance to compute.",
     "В записи нет напряжений и токов трёх фаз, поэтому сопротивление вычислить нельзя."},
    {"The record has no impedance to show.", "В записи нет сопротивления, которое можно показать."},
    {"The record does not tell the frequency of the network.", "В записи не указана частота сети."},
    {"The record does not tell when its samples were taken.", "В записи не указано время отсчётов."},
    {"The record has no whole cycle that is sampled evenly.",
     "В записи нет целого периода с равномерными отсчётами."},
    {"Where the record has fewer than four samples in a cycle there are no impedances.",
     "Там, где на период приходится меньше четырёх отсчётов, сопротивлений нет."},
    {"The impedances of the line are not known, so the loops to earth are computed without earth-fault "
     "compensation (k0 = 0); the loops between phases need none.",
     "Сопротивления линии неизвестны, поэтому контуры фаза–земля вычислены без компенсации тока нулевой "
     "последовательности (k0 = 0); контурам фаза–фаза она не нужна."},
    {"The earth-fault compensation of the line is not known, so the loops to earth are computed without it "
     "(k0 = 0); the loops between phases need none.",
     "Компенсация тока нулевой последовательности неизвестна, поэтому контуры фаза–земля вычислены без неё "
     "(k0 = 0); контурам фаза–фаза она не нужна."},
    {"The record does not tell which side of the transformers its values are on, so the impedances are in "
     "ohms of the values as recorded.",
     "В записи не указано, первичные в ней величины или вторичные; сопротивления в омах записанных величин."},
    {"The ratios of the transformers are not known, so the impedances are in primary ohms.",
     "Коэффициенты трансформации неизвестны, поэтому сопротивления в первичных омах."},
    {"The ratios of the transformers are not known, so the impedances are in secondary ohms.",
     "Коэффициенты трансформации неизвестны, поэтому сопротивления во вторичных омах."},
};

std::string number(double value, int digits) {
    std::ostringstream text;
    // As in the entries of the settings and on the axes, whatever the locale.
    text.imbue(std::locale::classic());
    text.precision(digits);
    text << value;
    return text.str();
}

/// Three digits that count.
std::string number(double value) {
    return number(value, 3);
}

/// What a person has set stands there as it was set.
std::string setNumber(double value) {
    return number(value, 6);
}

std::string ohms(double value) {
    return number(value) + say({" ohm", " Ом"});
}

/// "1 point", "2 points"; one form serves the Russian "точек: 2". What is said of them goes with it.
std::string pointCount(std::size_t count, const std::string& said) {
    if (lng::index() == 1)
        return said + (said.empty() ? "" : " ") + "точек: " + std::to_string(count);
    return std::to_string(count) + (count == 1 ? " point" : " points") + (said.empty() ? "" : " ") + said;
}

std::string sideOf(const Impedances& impedances) {
    if (!impedances.trajectories.side)
        return "";
    return *impedances.trajectories.side == impedance::Side::Primary
               ? say({", primary ohms", ", первичные омы"})
               : say({", secondary ohms", ", вторичные омы"});
}

double degreesOf(impedance::Complex value) {
    return std::arg(value) * 180 / std::acos(-1.0);
}

/// Where another frequency than that of the record was set.
std::string frequencyOf(const Impedances& impedances) {
    if (impedances.frequency == impedances.recordedFrequency)
        return "";
    const char* const hertz = say({" Hz", " Гц"});
    const std::string computed =
        say({" Computed for ", " Вычислено для "}) + setNumber(impedances.frequency) + hertz;
    return impedances.recordedFrequency > 0
               ? computed + say({", while the record tells ", ", в записи указано "}) +
                     setNumber(impedances.recordedFrequency) + hertz + "."
               : computed + say({"; the record tells no frequency.", "; в записи частота не указана."});
}

/// What a loop to earth was computed with, where that was set.
std::string compensationOf(const Impedances& impedances, impedance::Loop loop) {
    if (!impedances.k0 || loop > impedance::Loop::CE)
        return "";
    return " k0 = " + setNumber(std::abs(*impedances.k0)) + say({" at ", " под углом "}) +
           setNumber(degreesOf(*impedances.k0)) + "°.";
}

/// How far the zones reach, where that was set.
std::string reachesOf(const impedance::Reaches& reaches) {
    if (reaches == impedance::Reaches())
        return "";
    const auto percent = [](double part) { return setNumber(100 * part); };
    return say({" They reach over ", " Они охватывают "}) + percent(reaches.zone1) + ", " +
           percent(reaches.zone2) + say({" and ", " и "}) + percent(reaches.zone3) +
           say({" % of it, zone 3 over ", " % линии, зона 3 ещё "}) + percent(reaches.backward) +
           say({" % backward.", " % назад."});
}

std::string remarksOf(const Impedances& impedances) {
    std::string text = frequencyOf(impedances);
    for (const std::string& remark : impedances.trajectories.remarks)
        text += " " + translated(remark);
    return text;
}

} // namespace

std::string translated(const std::string& sentence) {
    for (const Word& word : sentences)
        if (sentence == word[0])
            return say(word);
    unsigned long leaps = 0;
    unsigned long last = 0;
    if (lng::index() == 1 &&
        std::sscanf(sentence.c_str(), "The time stamps leap %lu times; impedances end at the leap number %lu",
                    &leaps, &last) == 2)
        return "Число скачков меток времени: " + std::to_string(leaps) +
               "; сопротивления вычислены до скачка номер " + std::to_string(last) + ".";
    return sentence;
}

std::string problemOf(const Impedances& impedances) {
    if (impedances.problem.empty())
        return "";
    return translated(impedances.problem) + remarksOf(impedances);
}

std::string statusOf(const Impedances& impedances, impedance::Loop loop, const LoopView& view) {
    std::string text = std::string(say({"Loop ", "Контур "})) + impedance::name(loop) + ": " +
                       pointCount(view.points.size(), "") + sideOf(impedances) + ".";
    if (view.leftOut > 0)
        text += " " +
                pointCount(view.leftOut, say({"beyond ", "Дальше "}) + ohms(view.farthest) +
                                             say({" left out.", " не показано"})) +
                say({"", "."});
    text += std::string(say({" No points where the loop's current is below ",
                             " Точек нет там, где ток контура меньше "})) +
            number(impedances.trajectories.minimumCurrent) + say({" A.", " А."});
    return text + compensationOf(impedances, loop) + remarksOf(impedances);
}

std::string zonesOf(const Impedances& impedances) {
    if (impedances.line == impedance::Complex())
        return say({"The line is not known and there is no fault to go by, so there are no zones.",
                    "Линия неизвестна, и повреждения для её оценки нет, поэтому зон нет."});
    const std::string line = ohms(std::abs(impedances.line)) + say({" at ", " под углом "}) +
                             number(degreesOf(impedances.line)) + "°";
    if (!impedances.isLineAssumed)
        return say({"The zones are those of a line of ", "Зоны для линии "}) + line + "." +
               reachesOf(impedances.reaches);
    return say({"The line is not known: the zones are drawn for one that ends at the fault, of ",
                "Линия неизвестна: зоны построены для линии до места повреждения, "}) +
           line + say({", and are no settings of a relay.", ", и не являются уставками защиты."}) +
           reachesOf(impedances.reaches);
}

std::string zoneName(const std::string& name) {
    const std::string english = "Zone ";
    return name.rfind(english, 0) == 0 ? say({"Zone ", "Зона "}) + name.substr(english.size()) : name;
}

const char* horizontalAxis() {
    return say({"R, ohm", "R, Ом"});
}

const char* verticalAxis() {
    return say({"X, ohm", "X, Ом"});
}

} // namespace viewer::words
