#pragma once

#include <ZelCommonView/common/Language.h>

/// The viewer's own words, in the language that is selected when they are asked for.
namespace viewer::words {

inline const char* reading() {
    static const char* const ar[] = {"Reading the record", "Чтение записи"};
    return ar[lng::index()];
}

inline const char* preparing() {
    static const char* const ar[] = {"Preparing the signals", "Подготовка сигналов"};
    return ar[lng::index()];
}

inline const char* cantRead() {
    static const char* const ar[] = {"The record can't be read", "Запись не читается"};
    return ar[lng::index()];
}

inline const char* analogs() {
    static const char* const ar[] = {"analog channels", "аналоговых каналов"};
    return ar[lng::index()];
}

inline const char* binaries() {
    static const char* const ar[] = {"binary channels", "дискретных каналов"};
    return ar[lng::index()];
}

inline const char* samples() {
    static const char* const ar[] = {"samples", "отсчётов"};
    return ar[lng::index()];
}

inline const char* shown() {
    static const char* const ar[] = {"shown", "показано"};
    return ar[lng::index()];
}

inline const char* seconds() {
    static const char* const ar[] = {"s", "с"};
    return ar[lng::index()];
}

inline const char* loop() {
    static const char* const ar[] = {"Loop", "Контур"};
    return ar[lng::index()];
}

inline const char* zones() {
    static const char* const ar[] = {"Zones", "Зоны"};
    return ar[lng::index()];
}

inline const char* mho() {
    static const char* const ar[] = {"Circles (mho)", "Окружности"};
    return ar[lng::index()];
}

inline const char* quadrilateral() {
    static const char* const ar[] = {"Quadrilaterals", "Четырёхугольники"};
    return ar[lng::index()];
}

inline const char* oscillogram() {
    static const char* const ar[] = {"Oscillogram", "Осциллограмма"};
    return ar[lng::index()];
}

inline const char* hodograph() {
    static const char* const ar[] = {"Hodograph", "Годограф"};
    return ar[lng::index()];
}

inline const char* zPlane() {
    static const char* const ar[] = {"Z plane", "Плоскость Z"};
    return ar[lng::index()];
}

inline const char* channels() {
    static const char* const ar[] = {"Channels", "Каналы"};
    return ar[lng::index()];
}

inline const char* channelNumber() {
    static const char* const ar[] = {"No.", "№"};
    return ar[lng::index()];
}

inline const char* channelName() {
    static const char* const ar[] = {"Channel", "Канал"};
    return ar[lng::index()];
}

inline const char* channelUnit() {
    static const char* const ar[] = {"Unit", "Единица"};
    return ar[lng::index()];
}

inline const char* channelValues() {
    static const char* const ar[] = {"Values", "Значения"};
    return ar[lng::index()];
}

inline const char* changes() {
    static const char* const ar[] = {"changes: ", "изменений: "};
    return ar[lng::index()];
}

inline const char* events() {
    static const char* const ar[] = {"Events", "События"};
    return ar[lng::index()];
}

inline const char* eventTime() {
    static const char* const ar[] = {"Time, s", "Время, с"};
    return ar[lng::index()];
}

inline const char* eventState() {
    static const char* const ar[] = {"State", "Состояние"};
    return ar[lng::index()];
}

inline const char* noBinaries() {
    static const char* const ar[] = {"The record has no binary channels.",
                                     "В записи нет дискретных каналов."};
    return ar[lng::index()];
}

inline const char* noChanges() {
    static const char* const ar[] = {"No binary channel of the record changes.",
                                     "Ни один дискретный канал записи не меняется."};
    return ar[lng::index()];
}

inline const char* lockWhileReplaying() {
    static const char* const ar[] = {"Lock while replaying", "Запереть при показе"};
    return ar[lng::index()];
}

inline const char* resetPanels() {
    static const char* const ar[] = {"Reset panels", "Вернуть панели"};
    return ar[lng::index()];
}

inline const char* help() {
    static const char* const ar[] = {"Help", "Справка"};
    return ar[lng::index()];
}

inline const char* programName() {
    static const char* const ar[] = {"Record viewer", "Просмотр записей"};
    return ar[lng::index()];
}

inline const char* helpFile() {
    static const char* const ar[] = {"record-viewer-help-en.html", "record-viewer-help-ru.html"};
    return ar[lng::index()];
}

inline const char* warnings() {
    static const char* const ar[] = {"warnings, the first", "предупреждений, первое"};
    return ar[lng::index()];
}

} // namespace viewer::words
