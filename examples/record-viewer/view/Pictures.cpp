#include "Pictures.h"

#include "SignalPlot.h"

#include <gtkmm.h>

#include <memory>

namespace viewer {

namespace {

constexpr int pictureWidth = 1400;      // pixels
constexpr int maxPictureHeight = 12000; // pixels; a window can't be much higher than twice that

using Plots = std::vector<std::unique_ptr<SignalPlot>>;

/// Consecutive plots that fit into one picture.
std::vector<Plots> packIntoPictures(std::vector<Section> sections) {
    std::vector<Plots> pictures;
    int height = 0;
    for (Section& section : sections) {
        auto plot = std::make_unique<SignalPlot>(std::move(section));
        height += plot->getNeededHeight();
        if (pictures.empty() || height > maxPictureHeight) {
            pictures.emplace_back();
            height = plot->getNeededHeight();
        }
        pictures.back().push_back(std::move(plot));
    }
    return pictures;
}

/// Takes each step of the main loop that is due, and waits for the next frame as long as the window has not
/// painted.
Glib::RefPtr<Gdk::Pixbuf> takePicture(Plots& plots) {
    Gtk::OffscreenWindow window;
    Gtk::Box box(Gtk::ORIENTATION_VERTICAL);
    for (const auto& plot : plots)
        box.pack_start(*plot, Gtk::PACK_SHRINK);
    box.set_size_request(pictureWidth, -1);
    window.add(box);

    bool isPainted = false;
    plots.back()->signal_draw().connect(
        [&](const Cairo::RefPtr<Cairo::Context>&) {
            isPainted = true;
            return false;
        },
        true);
    window.show_all();
    while (!isPainted)
        Gtk::Main::iteration();
    while (Gtk::Main::events_pending())
        Gtk::Main::iteration();
    return window.get_pixbuf();
}

} // namespace

std::vector<std::string> writePictures(std::vector<Section> sections, const std::string& folder,
                                       const std::string& stem) {
    if (g_mkdir_with_parents(folder.c_str(), 0777) != 0)
        throw Glib::FileError(Glib::FileError::FAILED, "the folder can't be made");

    std::vector<std::string> paths;
    std::vector<Plots> pictures = packIntoPictures(std::move(sections));
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const std::string number = pictures.size() == 1 ? "" : "-" + std::to_string(i + 1);
        paths.push_back(Glib::build_filename(folder, stem + number + ".png"));
        takePicture(pictures[i])->save(paths.back(), "png");
        pictures[i].clear();
    }
    return paths;
}

} // namespace viewer
