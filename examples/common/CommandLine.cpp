#include "CommandLine.h"

#include <ZelCommonView/common/Cross.h>

#include <gtkmm/main.h>

namespace examples {

Glib::OptionEntry entry(const char* longName, const char* description, const char* argument) {
    Glib::OptionEntry result;
    result.set_long_name(longName);
    result.set_description(description);
    result.set_arg_description(argument);
    return result;
}

bool isDisplayThere() {
    if (!gtk_init_check(nullptr, nullptr))
        return false;
    Gtk::Main::init_gtkmm_internals();
    // GTK has taken over the user's locale just now.
    cross::correctLocale_NUMERIC_C();
    return true;
}

} // namespace examples
