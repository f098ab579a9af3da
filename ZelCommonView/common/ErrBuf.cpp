#include <ZelCommonView/common/ErrBuf.h>

#include <cstdarg>
#include <cstdio>

namespace cross {

ErrBuf::ErrBuf(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    std::puts(buffer);
}

const char* ErrBuf::what() const noexcept {
    return buffer;
}

// The text is meant to be the format, though the compiler would rather see it as an argument.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"

ErrBufLastErr::ErrBufLastErr(const char* format) : ErrBuf(format) {}

#pragma GCC diagnostic pop

} // namespace cross
