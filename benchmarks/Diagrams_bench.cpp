// Pictures of figures without a window, and a step of the wheel over a diagram of many points. Needs a
// display.
//
// Each is timed by turns with a baseline within one run, so that what else the machine does hits both; the
// ratio of the medians is what counts. A picture is compared with the same figures drawn by bare C calls and
// written to a file of the same size; a step of the wheel with the same points drawn on a surface of the size
// that the diagram then has.

#include "Screen.h"
#include "Timing.h"

#include <ZelCommonView/diagrams/FiguresDrawManager.h>
#include <ZelCommonView/diagrams/ZDiagram.h>

#include <benchmark/benchmark.h>
#include <gtkmm.h>

#include <malloc.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <map>
#include <memory>
#include <vector>

namespace {

using bench::median;
using bench::secondsOf;
using bench::settle;

constexpr int figuresOfAPicture = 100;
constexpr int pictures = 50;
constexpr int warmUp = 5;
constexpr std::size_t pointsOfADiagram = 10000;

std::size_t heapInUse() {
    return mallinfo2().uordblks;
}

std::unique_ptr<Zel::Circle> makeCircle(int i) {
    auto circle = std::make_unique<Zel::Circle>();
    circle->x = static_cast<float>(i % 10);
    circle->y = static_cast<float>(i / 10);
    circle->radius = 1 + static_cast<float>(i % 7);
    circle->color = {static_cast<std::uint8_t>(2 * i), 90, 170, 255};
    return circle;
}

void saveBare(const std::string& path) {
    cairo_surface_t* const surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 500, 400);
    cairo_t* const cr = cairo_create(surface);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    for (int i = 0; i < figuresOfAPicture; ++i) {
        cairo_set_source_rgb(cr, 2 * i / 255.0, 90 / 255.0, 170 / 255.0);
        cairo_new_path(cr);
        cairo_arc(cr, 100 + i % 10 * 15, 100 + i / 10 * 15, (1 + i % 7) * 15, 0, 2 * G_PI);
        cairo_stroke(cr);
    }
    cairo_surface_write_to_png(surface, path.c_str());
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}

/// Fifty pictures in a row of a hundred figures each.
void savePictures(benchmark::State& state) {
    const std::string path = std::filesystem::temp_directory_path() / "zel-figures.png";
    std::vector<double> ours;
    std::vector<double> bare;
    double growth = 0;
    for ([[maybe_unused]] auto _ : state) {
        std::size_t before = 0;
        for (int i = 0; i < pictures; ++i) {
            if (i == warmUp)
                before = heapInUse();
            std::map<std::string, std::unique_ptr<Zel::Figure>> figures;
            for (int k = 0; k < figuresOfAPicture; ++k)
                figures["figure " + std::to_string(k)] = makeCircle(k);
            ours.push_back(secondsOf(
                [&] { Zel::FiguresDrawManager::getInstance().saveToImage(path, figures, "R", "X"); }));
            bare.push_back(secondsOf([&] { saveBare(path); }));
        }
        growth = (static_cast<double>(heapInUse()) - static_cast<double>(before)) / (pictures - warmUp);
    }
    state.counters["picture_ms"] = 1000 * median(ours);
    state.counters["bare_ms"] = 1000 * median(bare);
    state.counters["ratio"] = median(ours) / median(bare);
    state.counters["bytes_kept_by_a_picture"] = growth;
    std::filesystem::remove(path);
}

BENCHMARK(savePictures)->Iterations(1)->Unit(benchmark::kMillisecond);

std::unique_ptr<Zel::PointsSequence> makeTrajectory() {
    auto sequence = std::make_unique<Zel::PointsSequence>();
    sequence->color = {0, 90, 170, 255};
    for (std::size_t i = 0; i < pointsOfADiagram; ++i) {
        const float angle = 60 * static_cast<float>(i) / pointsOfADiagram;
        const float radius = 3 + std::sin(11.3f * angle);
        sequence->points.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    return sequence;
}

void turnWheel(Gtk::Widget& widget, double deltaY) {
    GdkEvent* const event = gdk_event_new(GDK_SCROLL);
    event->scroll.window = static_cast<GdkWindow*>(g_object_ref(widget.get_window()->gobj()));
    event->scroll.direction = GDK_SCROLL_SMOOTH;
    event->scroll.x = widget.get_allocated_width() / 2.0;
    event->scroll.y = widget.get_allocated_height() / 2.0;
    event->scroll.delta_y = deltaY;
    gdk_event_set_device(event,
                         gdk_seat_get_pointer(gdk_display_get_default_seat(gdk_display_get_default())));
    gtk_widget_event(widget.gobj(), event);
    gdk_event_free(event);
}

/// The scrolled window of the diagram.
Gtk::Widget& scrolledOf(ZelView::ZDiagram& diagram) {
    return *dynamic_cast<Gtk::Container&>(*diagram.get_child()).get_children().front();
}

void drawBare(Gtk::Window& window, int width, int height, const Zel::PointsSequence& sequence) {
    const auto surface = window.get_window()->create_similar_surface(Cairo::CONTENT_COLOR, width, height);
    cairo_t* const cr = cairo_create(surface->cobj());
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    cairo_set_source_rgb(cr, 0, 90 / 255.0, 170 / 255.0);
    cairo_set_line_width(cr, 3);
    for (const Zel::PointF& point : sequence.points)
        cairo_line_to(cr, width / 2.0 + point.x * height / 10.0, height / 2.0 - point.y * height / 10.0);
    cairo_stroke(cr);
    cairo_destroy(cr);
    gdk_display_sync(gdk_display_get_default());
}

/// Steps of the wheel at scales about the given one, in percent, each up to the painted picture.
void zoomStep(benchmark::State& state) {
    const auto sequence = makeTrajectory();
    ZelView::ZDiagram diagram;
    diagram.addFigure(makeTrajectory());
    Gtk::Window window;
    window.set_default_size(1200, 800);
    window.add(diagram);
    window.show_all();
    settle();
    Gtk::Widget& scrolled = scrolledOf(diagram);
    for (long scale = 100; scale < state.range(0); scale += 10)
        turnWheel(scrolled, -1);
    settle();

    int direction = -1;
    std::vector<double> ours;
    std::vector<double> bare;
    const auto canvasWidth = [&diagram] { return diagram.getDrawArea().get_allocated_width(); };
    for ([[maybe_unused]] auto _ : state) {
        const int before = canvasWidth();
        ours.push_back(secondsOf([&] {
            turnWheel(scrolled, direction);
            while (canvasWidth() == before)
                Gtk::Main::iteration(true);
            G_GNUC_BEGIN_IGNORE_DEPRECATIONS
            gdk_window_process_updates(window.get_window()->gobj(), TRUE);
            G_GNUC_END_IGNORE_DEPRECATIONS
            gdk_display_sync(gdk_display_get_default());
        }));
        direction = -direction;
        settle();
        bare.push_back(secondsOf([&] {
            drawBare(window, canvasWidth(), diagram.getDrawArea().get_allocated_height(), *sequence);
        }));
    }
    state.counters["step_ms"] = 1000 * median(ours);
    state.counters["bare_ms"] = 1000 * median(bare);
    state.counters["ratio"] = median(ours) / median(bare);
    window.remove();
}

BENCHMARK(zoomStep)->Arg(100)->Arg(300)->Arg(490)->Iterations(10)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (!gtk_init_check(&argc, &argv)) {
        std::fputs("This benchmark needs a display.\n", stderr);
        return 1;
    }
    Gtk::Main kit(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
