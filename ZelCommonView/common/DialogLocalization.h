#pragma once

#include <ZelCommonView/common/Language.h>

/// The words of dialog buttons, in the language that is selected when they are asked for. Each stands in
/// English and in Russian, UTF-8, and lives as long as the program.
namespace Zel::DialogLocalization {

/// "OK".
inline const char* ok() {
    static const char* const ar[] = {"OK", "OK"};
    return ar[lng::index()];
}

/// "Cancel" or "Отмена".
inline const char* cancel() {
    static const char* const ar[] = {"Cancel", "Отмена"};
    return ar[lng::index()];
}

/// "Apply" or "Применить".
inline const char* apply() {
    static const char* const ar[] = {"Apply", "Применить"};
    return ar[lng::index()];
}

/// "Yes" or "Да".
inline const char* yes() {
    static const char* const ar[] = {"Yes", "Да"};
    return ar[lng::index()];
}

/// "No" or "Нет".
inline const char* no() {
    static const char* const ar[] = {"No", "Нет"};
    return ar[lng::index()];
}

/// "Save" or "Сохранить".
inline const char* save() {
    static const char* const ar[] = {"Save", "Сохранить"};
    return ar[lng::index()];
}

/// "Open" or "Открыть".
inline const char* open() {
    static const char* const ar[] = {"Open", "Открыть"};
    return ar[lng::index()];
}

/// "Cancelled..." or "Отменяется...".
inline const char* cancelled() {
    static const char* const ar[] = {"Cancelled...", "Отменяется..."};
    return ar[lng::index()];
}

} // namespace Zel::DialogLocalization
