/// Locales that the machine need not have.
#pragma once

#include "support/TemporaryFolder.h"

#include <clocale>
#include <cstdlib>

namespace test {

/// Locales made for a test, known to this process while the object lives. Its end brings the C locale back.
class TemporaryLocales {
public:
    TemporaryLocales() = default;

    ~TemporaryLocales() { std::setlocale(LC_ALL, "C.UTF-8"); }

    /// Whether the system has what locales are made from: package "locales" on Debian.
    static bool canMake() {
        return std::filesystem::exists("/usr/share/i18n/locales/ru_RU") &&
               std::system("command -v localedef >/dev/null") == 0;
    }

    /// Makes the locale `name` in UTF-8 out of a source such as ru_RU. False if that failed.
    bool make(const std::string& source, const std::string& name) {
        const std::string target = (folder.path / name).string();
        return std::system(("localedef -i " + source + " -f UTF-8 " + target).c_str()) == 0;
    }

    /// Makes the locale `existing`, made before, known under another name as well, much sooner than `make`
    /// would.
    void copy(const std::string& existing, const std::string& name) {
        std::filesystem::copy(folder.path / existing, folder.path / name,
                              std::filesystem::copy_options::recursive);
    }

private:
    TemporaryFolder folder;
    EnvironmentVariable path{"LOCPATH", folder.path.string()};
};

} // namespace test
