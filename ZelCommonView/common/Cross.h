#pragma once

#include <ZelCommonView/common/Export.h>

/// What differs from system to system.
namespace cross {

/// Whether the character set of the process is that of a Russian locale with a territory, such as
/// ru_RU.UTF-8. A query only: it neither reads nor changes the language of the library's texts.
ZEL_API bool isRu();

/// Makes the C functions read and write numbers with a decimal point. For an application to call after it has
/// taken over the user's locale.
ZEL_API void correctLocale_NUMERIC_C();

/// The description of a signal's number, as the C function of that name gives it; valid until the next call.
ZEL_API const char* strsignal(int number);

/// Runs a shell command, waits for its end and returns its status as `system` does, also that of a failed
/// command. Throws ErrBufLastErr with the system's text if the command can't be run or its status can't be
/// had.
ZEL_API int xdg_open_(const char* command);

/// Opens a file or an address with the program that the desktop has for it, and waits until it has been
/// handed over. Blanks in `target` are safe; single quotes are not escaped, so one of them breaks the
/// command. That the desktop knows no such file or program is not reported. Throws as xdg_open_ does.
ZEL_API void xdg_open(const char* target);

} // namespace cross
