#include <ZelCommonView/diagrams/FiguresDrawManager.h>

#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/ZDiagram.h>

#include <gtkmm/main.h>
#include <gtkmm/offscreenwindow.h>

namespace Zel {

IFiguresDrawEngine::~IFiguresDrawEngine() = default;

FiguresDrawManager& FiguresDrawManager::getInstance() {
    static FiguresDrawManager manager;
    return manager;
}

FiguresDrawManager::FiguresDrawManager() : engine(std::make_unique<ZelView::FiguresDrawEngine>()) {}

FiguresDrawManager::~FiguresDrawManager() = default;

void FiguresDrawManager::saveToImage(const std::string& path,
                                     std::map<std::string, std::unique_ptr<Figure>>& figures,
                                     const std::string& horizontalHeader, const std::string& verticalHeader) {
    engine->saveToImage(path, figures, horizontalHeader, verticalHeader);
}

} // namespace Zel

namespace ZelView {

namespace {

constexpr int width = 500;           // pixels
constexpr int height = 400;          // pixels
constexpr gint64 patience = 2000000; // microseconds

/// Lays out and paints what was shown.
void runUntilIdle() {
    const gint64 end = g_get_monotonic_time() + patience;
    while (Gtk::Main::events_pending() && g_get_monotonic_time() < end)
        Gtk::Main::iteration(true);
}

} // namespace

FiguresDrawEngine::~FiguresDrawEngine() = default;

void FiguresDrawEngine::saveToImage(const std::string& path,
                                    std::map<std::string, std::unique_ptr<Zel::Figure>>& figures,
                                    const std::string& horizontalHeader, const std::string& verticalHeader) {
    ZDiagram diagram;
    diagram.getCoordsDrawer()->setHorizontalHeader(horizontalHeader);
    diagram.getCoordsDrawer()->setVerticalHeader(verticalHeader);
    for (auto& [key, figure] : figures)
        if (figure)
            diagram.addFigure(std::move(figure));
    Gtk::OffscreenWindow window;
    window.set_default_size(width, height);
    window.add(diagram);
    window.show_all();
    runUntilIdle();
    diagram.exportToPng(path);
}

} // namespace ZelView
