#include "support/LogWatch.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <clocale>
#include <iostream>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // The locale of the machine must not decide a test; those about locales set one themselves.
    gtk_disable_setlocale();
    std::setlocale(LC_ALL, "C.UTF-8");
    if (!gtk_init_check(&argc, &argv)) {
        std::cerr << "These tests need a display; ./test provides a virtual one.\n";
        return 1;
    }
    Gtk::Main::init_gtkmm_internals();
    test::watchLog();
    return RUN_ALL_TESTS();
}
