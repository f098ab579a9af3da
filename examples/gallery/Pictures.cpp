#include "Pictures.h"

#include "PageView.h"
#include "common/Look.h"

#include <gtkmm.h>

namespace gallery {

namespace {

constexpr int pictureWidth = 960; // pixels
constexpr int pictureHeight = 600;
constexpr gint64 twoFrames = 40000; // microseconds

/// While it lives nothing fades in or moves, so that there is nothing to wait for.
class Stillness {
public:
    Stillness() { settings->property_gtk_enable_animations() = false; }

    ~Stillness() { settings->property_gtk_enable_animations() = wereAnimated; }

    Stillness(const Stillness&) = delete;
    Stillness& operator=(const Stillness&) = delete;

private:
    Glib::RefPtr<Gtk::Settings> settings = Gtk::Settings::get_default();
    bool wereAnimated = settings->property_gtk_enable_animations();
};

} // namespace

Glib::RefPtr<Gdk::Pixbuf> paintPage(const Page& page) {
    examples::installLook();
    const Stillness stillness;
    Gtk::OffscreenWindow window;
    PageView view(page);
    view.set_size_request(pictureWidth, pictureHeight);
    window.add(view);
    bool isPainted = false;
    window.signal_draw().connect(
        [&](const Cairo::RefPtr<Cairo::Context>&) {
            isPainted = true;
            return false;
        },
        true);
    window.show();

    // The first paint may ask for another one, which comes with the next frame.
    gint64 quietSince = g_get_monotonic_time();
    while (!isPainted || g_get_monotonic_time() - quietSince < twoFrames) {
        if (Gtk::Main::events_pending()) {
            Gtk::Main::iteration();
            quietSince = g_get_monotonic_time();
        } else {
            g_usleep(1000);
        }
    }
    Glib::RefPtr<Gdk::Pixbuf> picture = window.get_pixbuf();
    window.remove();
    return picture;
}

std::string writePicture(const Page& page, const std::string& folder) {
    if (g_mkdir_with_parents(folder.c_str(), 0777) != 0)
        throw Glib::FileError(Glib::FileError::FAILED, "the folder can't be made");
    const std::string language = lng::index() == 0 ? "en" : "ru";
    const std::string look = examples::isDark() ? "dark" : "light";
    std::string path =
        Glib::build_filename(folder, std::string(page.name) + "-" + language + "-" + look + ".png");
    paintPage(page)->save(path, "png");
    return path;
}

} // namespace gallery
