#include "WindowPlace.h"

#include "KeyFiles.h"

#include <glibmm/miscutils.h>

namespace viewer {

namespace {

constexpr const char* group = "window";
constexpr double largest = 16384; // pixels; no screen is as large, and greater windows can't be painted

} // namespace

std::string WindowPlace::usualFile() {
    return Glib::build_filename(Glib::get_user_config_dir(), "record-viewer", "window.ini");
}

WindowPlace::WindowPlace(Gtk::Window& givenWindow, const std::string& givenFile)
    : window(givenWindow), file(givenFile), manager(givenWindow) {
    _load();
}

void WindowPlace::_load() {
    const std::unique_ptr<Glib::KeyFile> keys = loadKeyFile(file);
    try {
        float numbers[4] = {};
        int i = 0;
        for (const char* const key : {"x", "y", "width", "height"}) {
            const double number = keys->get_double(group, key);
            if (!(number >= -largest && number <= largest))
                return;
            numbers[i++] = static_cast<float>(number);
        }
        manager.setRectangle({numbers[0], numbers[1], numbers[2], numbers[3]});
    } catch (const Glib::Error&) {
        // The first start, or a file that someone else has written.
    }
}

void WindowPlace::save() const {
    // That of the screen is not the one to come back to.
    if (window.is_maximized())
        return;
    const Zel::RectangleF rectangle = manager.getRectangle();
    // Others keep what is theirs in the same file.
    const std::unique_ptr<Glib::KeyFile> keys = loadKeyFile(file);
    keys->set_double(group, "x", rectangle.x);
    keys->set_double(group, "y", rectangle.y);
    keys->set_double(group, "width", rectangle.width);
    keys->set_double(group, "height", rectangle.height);
    saveKeyFile(*keys, file);
}

} // namespace viewer
