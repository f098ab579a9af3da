#include <ZelCommonView/common/Cross.h>

#include <ZelCommonView/common/ErrBuf.h>

#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <string>

namespace cross {

bool isRu() {
    return std::strncmp(std::setlocale(LC_CTYPE, nullptr), "ru_", 3) == 0;
}

void correctLocale_NUMERIC_C() {
    std::setlocale(LC_NUMERIC, "C");
}

const char* strsignal(int number) {
    return ::strsignal(number);
}

int xdg_open_(const char* command) {
    const int result = std::system(command);
    if (result == -1)
        throw ErrBufLastErr(std::strerror(errno));
    return result;
}

void xdg_open(const char* target) {
    xdg_open_(("xdg-open '" + std::string(target) + "'").c_str());
}

} // namespace cross
