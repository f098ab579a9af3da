#include "support/LogWatch.h"
#include "support/TemporaryLocales.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <clocale>
#include <iostream>
#include <locale>
#include <memory>

namespace {

/// Takes the locale, such as "de_DE.UTF-8", for C and C++ as an application of that country does; it is made
/// for this run if the machine doesn't have it.
class RunLocale {
public:
    bool take(const std::string& name) {
        if (!std::setlocale(LC_ALL, name.c_str())) {
            made = std::make_unique<test::TemporaryLocales>();
            const std::string source = name.substr(0, name.find('.'));
            if (!test::TemporaryLocales::canMake() || !made->make(source, name) ||
                !std::setlocale(LC_ALL, name.c_str()))
                return false;
        }
        setenv("LC_ALL", name.c_str(), 1);
        std::locale::global(std::locale(name));
        return true;
    }

private:
    std::unique_ptr<test::TemporaryLocales> made;
};

constexpr int skipped = 77;

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The locale of the machine must not decide a test; those about locales set one themselves, and those
    // registered for some run once more in each.
    gtk_disable_setlocale();
    std::setlocale(LC_ALL, "C.UTF-8");
    RunLocale locale;
    if (const char* name = std::getenv("ZEL_TEST_LOCALE"); name && !locale.take(name)) {
        std::cerr << "Skipped: there is no locale " << name << ", nor the package \"locales\" to make it.\n";
        return skipped;
    }
    if (!gtk_init_check(&argc, &argv)) {
        std::cerr << "These tests need a display; ./test provides a virtual one.\n";
        return 1;
    }
    Gtk::Main::init_gtkmm_internals();
    test::watchLog();
    return RUN_ALL_TESTS();
}
