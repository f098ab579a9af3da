// Uses an installed copy as a program does that was never built beside it: shows a record without a screen,
// counts the pixels of its curve, and loads an icon of the installed theme.
#include <ZelCommonView/ZelCommonView.h>

#include <gtkmm.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iostream>

namespace {

constexpr float duration = 2; // seconds
constexpr int width = 800;    // pixels
constexpr int height = 500;   // pixels

void require(bool isTrue, const std::string& what) {
    if (isTrue)
        return;
    std::cerr << "consumer: " << what << "\n";
    std::exit(1);
}

Glib::RefPtr<Gdk::Pixbuf> pictureOf(Gtk::OffscreenWindow& window) {
    window.queue_draw();
    while (Gtk::Main::events_pending())
        Gtk::Main::iteration();
    return window.get_pixbuf();
}

/// Counts what is painted in the curve's red or in a shade of it, as on its soft edges.
int countReddish(const Glib::RefPtr<Gdk::Pixbuf>& picture) {
    int count = 0;
    for (int y = 0; y < picture->get_height(); ++y)
        for (int x = 0; x < picture->get_width(); ++x) {
            const guint8* const pixel =
                picture->get_pixels() + y * picture->get_rowstride() + x * picture->get_n_channels();
            count += pixel[0] > pixel[1] + 60 && pixel[0] > pixel[2] + 60;
        }
    return count;
}

void showRecord() {
    Zel::Series current;
    current.name = "IA";
    current.color = {220, 0, 0, 255};
    for (int i = 0; i <= 400; ++i)
        current.points.push_back({duration * i / 400, std::sin(i * 0.1f) * 50});

    Gtk::OffscreenWindow window;
    window.set_default_size(width, height);
    ZelView::Oscillograph oscillograph;
    window.add(oscillograph);
    oscillograph.setSeriesDuration(duration);
    window.show_all();
    const int before = countReddish(pictureOf(window));
    require(before == 0, "an empty oscillogram has " + std::to_string(before) + " pixels of the curve");

    oscillograph.addSeries(&current);
    oscillograph.showRange(0, duration);
    const int after = countReddish(pictureOf(window));
    // The curve crosses the plot from one side to the other.
    require(after > width / 2, "the oscillogram shows " + std::to_string(after) + " pixels of the curve");
    std::cout << after << " pixels of the curve\n";
    oscillograph.clearSeries();
    window.remove();
}

void loadTheme() {
    std::cout << "theme unless told " << Zel::getThemesDir() << "\n";
    Zel::setThemesDir(THEMES_DIR);
    const std::string folder = std::filesystem::canonical(Zel::getThemesDir()).string();
    Zel::RefreshSpinner spinner; // throws without its icon
    Gtk::CssProvider::create()->load_from_path(Zel::getThemesDir() + "style.css");
    std::cout << "theme " << folder << "\n";
}

} // namespace

int main() try {
    require(gtk_init_check(nullptr, nullptr), "there is no display");
    Gtk::Main::init_gtkmm_internals();
    showRecord();
    loadTheme();
    return 0;

} catch (const Glib::Error& error) {

    std::cerr << "consumer: " << error.what() << "\n";
    return 1;

} catch (const char* failure) {

    std::cerr << "consumer: " << failure << "\n";
    return 1;
}
