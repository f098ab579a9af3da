#include "Pictures.h"

#include "HodographPage.h"
#include "RecordPage.h"
#include "SignalPlot.h"
#include "ZPlanePage.h"

#include <gtkmm.h>

#include <memory>

namespace viewer {

namespace {

constexpr int pictureWidth = 1400;      // pixels
constexpr int oscillogramHeight = 900;  // pixels
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

/// What the widget shows in a window that is on no screen, once `last`, which is painted last, has been
/// painted.
Glib::RefPtr<Gdk::Pixbuf> takePicture(Gtk::Widget& widget, Gtk::Widget& last) {
    Gtk::OffscreenWindow window;
    window.add(widget);
    bool isPainted = false;
    last.signal_draw().connect(
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
    auto picture = window.get_pixbuf();
    window.remove();
    return picture;
}

Glib::RefPtr<Gdk::Pixbuf> takePicture(Plots& plots) {
    Gtk::Box box(Gtk::ORIENTATION_VERTICAL);
    for (const auto& plot : plots)
        box.pack_start(*plot, Gtk::PACK_SHRINK);
    box.set_size_request(pictureWidth, -1);
    return takePicture(box, *plots.back());
}

void makeFolder(const std::string& folder) {
    if (g_mkdir_with_parents(folder.c_str(), 0777) != 0)
        throw Glib::FileError(Glib::FileError::FAILED, "the folder can't be made");
}

} // namespace

std::string writeOscillogram(record::Record record, const std::string& folder, const std::string& stem) {
    makeFolder(folder);
    RecordPage page;
    page.setRecord(std::move(record));
    page.set_size_request(pictureWidth, oscillogramHeight);
    std::string path = Glib::build_filename(folder, stem + "-oscillogram.png");
    takePicture(page, page)->save(path, "png");
    return path;
}

std::vector<std::string> writePictures(std::vector<Section> sections, const std::string& folder,
                                       const std::string& stem) {
    makeFolder(folder);
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

std::vector<std::string> writeImpedances(const std::shared_ptr<const Impedances>& impedances,
                                         const std::string& folder, const std::string& stem) {
    makeFolder(folder);
    HodographPage hodograph;
    hodograph.setImpedances(impedances);
    hodograph.stopAtEnd();
    ZPlanePage plane;
    plane.setImpedances(impedances);
    const std::pair<ImpedancePage*, const char*> pages[] = {{&hodograph, "-hodograph.png"},
                                                            {&plane, "-zplane.png"}};
    std::vector<std::string> paths;
    for (const auto& [page, end] : pages) {
        page->set_size_request(pictureWidth, oscillogramHeight);
        paths.push_back(Glib::build_filename(folder, stem + end));
        takePicture(*page, *page)->save(paths.back(), "png");
    }
    return paths;
}

} // namespace viewer
