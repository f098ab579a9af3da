#pragma once

#include <ZelCommonView/common/Export.h>

#include <exception>

namespace cross {

/// An exception with a formatted text. It prints the text and a line break to standard output when it is
/// built, so it announces itself before anyone catches it; copying and throwing print nothing.
class ZEL_API ErrBuf : public std::exception {
public:
    /// Formats the text as `printf` does and cuts it to 511 bytes, wherever in a character that falls.
    explicit ErrBuf(const char* format, ...) __attribute__((format(printf, 2, 3)));

    /// The text; it lives as long as the exception.
    const char* what() const noexcept override;

private:
    char buffer[512] = {};
};

/// What the system reported for its last failed call.
class ZEL_API ErrBufLastErr : public ErrBuf {
public:
    /// Takes the system's text as a format, so a "%" in it counts as a conversion.
    explicit ErrBufLastErr(const char* format);
};

} // namespace cross
