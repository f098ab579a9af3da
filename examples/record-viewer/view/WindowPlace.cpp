#include "WindowPlace.h"

#include <glibmm/fileutils.h>
#include <glibmm/keyfile.h>
#include <glibmm/miscutils.h>

#include <filesystem>

namespace viewer {

namespace {

constexpr const char* group = "window";

} // namespace

std::string WindowPlace::usualFile() {
    return Glib::build_filename(Glib::get_user_config_dir(), "record-viewer", "window.ini");
}

WindowPlace::WindowPlace(Gtk::Window& window, const std::string& givenFile)
    : file(givenFile), manager(window) {
    _load();
}

void WindowPlace::_load() {
    try {
        Glib::KeyFile keys;
        keys.load_from_file(file);
        const auto number = [&keys](const char* key) {
            return static_cast<float>(keys.get_double(group, key));
        };
        manager.setRectangle({number("x"), number("y"), number("width"), number("height")});
    } catch (const Glib::Error&) {
        // The first start, or a file that someone else has written.
    }
}

void WindowPlace::save() const {
    const Zel::RectangleF rectangle = manager.getRectangle();
    Glib::KeyFile keys;
    keys.set_double(group, "x", rectangle.x);
    keys.set_double(group, "y", rectangle.y);
    keys.set_double(group, "width", rectangle.width);
    keys.set_double(group, "height", rectangle.height);
    try {
        std::error_code ignored;
        std::filesystem::create_directories(std::filesystem::path(file).parent_path(), ignored);
        keys.save_to_file(file);
    } catch (const Glib::Error&) {
    }
}

} // namespace viewer
