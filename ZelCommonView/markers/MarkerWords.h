#pragma once

#include <ZelCommonView/common/Language.h>

/// The words of the marker menu, in the language that is selected when they are asked for; UTF-8, as long as
/// the program lives.
namespace ZelView {

/// "Create a single horizontal marker" or "Создать одиночный горизонтальный маркер".
inline const char* lngCreateSingleHorizontalMarker() {
    static const char* const ar[] = {"Create a single horizontal marker",
                                     "Создать одиночный горизонтальный маркер"};
    return ar[lng::index()];
}

/// "Create a double horizontal marker" or "Создать двойной горизонтальный маркер".
inline const char* lngCreateDoubleHorizontalMarker() {
    static const char* const ar[] = {"Create a double horizontal marker",
                                     "Создать двойной горизонтальный маркер"};
    return ar[lng::index()];
}

/// "Create a single vertical marker" or "Создать одиночный вертикальный маркер".
inline const char* lngCreateSingleVerticalMarker() {
    static const char* const ar[] = {"Create a single vertical marker",
                                     "Создать одиночный вертикальный маркер"};
    return ar[lng::index()];
}

/// "Create a double vertical marker" or "Создать двойной вертикальный маркер".
inline const char* lngCreateDoubleVerticalMarker() {
    static const char* const ar[] = {"Create a double vertical marker",
                                     "Создать двойной вертикальный маркер"};
    return ar[lng::index()];
}

/// "Delete current marker" or "Удалить текущий маркер".
inline const char* lngDeleteCurrentMarker() {
    static const char* const ar[] = {"Delete current marker", "Удалить текущий маркер"};
    return ar[lng::index()];
}

/// "Delete all markers" or "Удалить все маркеры".
inline const char* lngDeleteAllMarkers() {
    static const char* const ar[] = {"Delete all markers", "Удалить все маркеры"};
    return ar[lng::index()];
}

/// "Export png" or "Экспорт png".
inline const char* lngExportPng() {
    static const char* const ar[] = {"Export png", "Экспорт png"};
    return ar[lng::index()];
}

} // namespace ZelView
