#pragma once

#include <ZelCommonView/common/Language.h>

/// The words of the marker menu, in the language that is selected when they are asked for; UTF-8, as long as
/// the program lives.
namespace ZelView {

inline const char* lngCreateSingleHorizontalMarker() {
    static const char* const ar[] = {"Create a single horizontal marker",
                                     "Создать одиночный горизонтальный маркер"};
    return ar[lng::index()];
}

inline const char* lngCreateDoubleHorizontalMarker() {
    static const char* const ar[] = {"Create a double horizontal marker",
                                     "Создать двойной горизонтальный маркер"};
    return ar[lng::index()];
}

inline const char* lngCreateSingleVerticalMarker() {
    static const char* const ar[] = {"Create a single vertical marker",
                                     "Создать одиночный вертикальный маркер"};
    return ar[lng::index()];
}

inline const char* lngCreateDoubleVerticalMarker() {
    static const char* const ar[] = {"Create a double vertical marker",
                                     "Создать двойной вертикальный маркер"};
    return ar[lng::index()];
}

inline const char* lngDeleteCurrentMarker() {
    static const char* const ar[] = {"Delete current marker", "Удалить текущий маркер"};
    return ar[lng::index()];
}

inline const char* lngDeleteAllMarkers() {
    static const char* const ar[] = {"Delete all markers", "Удалить все маркеры"};
    return ar[lng::index()];
}

inline const char* lngExportPng() {
    static const char* const ar[] = {"Export png", "Экспорт png"};
    return ar[lng::index()];
}

} // namespace ZelView
