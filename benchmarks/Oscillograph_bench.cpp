// An oscillogram on the screen: a step of the range, a motion of the pointer, series that come and go, and
// the memory that they take. Needs a display with room for 1920 by 1080.
//
// The painting is timed by turns with a baseline within one run, so that what else the machine does hits
// both; the ratio of the medians is what counts. For a step the baseline paints the same curves and rows
// straight on surfaces of the same kind and size as the plots'; for a motion it paints one such picture.

#include "Screen.h"
#include "Timing.h"

#include <ZelCommonView/oscillogram/Oscillograph.h>
#include <ZelCommonView/oscillogram/SynchronizerFacade.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <benchmark/benchmark.h>
#include <gtkmm.h>

#include <malloc.h>

#include <algorithm>
#include <cmath>
#include <list>
#include <memory>
#include <vector>

namespace {

using bench::median;
using bench::secondsOf;
using bench::settle;

constexpr int width = 1920;
constexpr int height = 1080;
constexpr std::uint32_t analogs = 8;
constexpr std::uint32_t binaries = 32;
constexpr int samples = 20000;
constexpr float duration = 10;

Zel::Series makeAnalog(std::uint32_t i) {
    Zel::Series series;
    series.name = "analog";
    series.color = {static_cast<std::uint8_t>(30 * i), 93, 170, 255};
    series.drawAreaIndex = i % 2;
    for (int k = 0; k < samples; ++k) {
        const float x = duration * static_cast<float>(k) / samples;
        series.points.push_back({x, 4 * std::sin(40 * x + static_cast<float>(i)) + std::sin(977 * x)});
    }
    return series;
}

Zel::Series makeBinary(std::uint32_t i) {
    Zel::Series series;
    series.name = "binary";
    series.type = Zel::SeriesType::Binary;
    series.index = i;
    series.color = {0, 120, 0, 255};
    for (int k = 0; k < samples; ++k) {
        const float x = duration * static_cast<float>(k) / samples;
        series.points.push_back({x, static_cast<float>(k / (500 + static_cast<int>(i)) % 2)});
    }
    return series;
}

std::vector<Zel::Series> makeRecord() {
    std::vector<Zel::Series> record;
    for (std::uint32_t i = 0; i < analogs; ++i)
        record.push_back(makeAnalog(i));
    for (std::uint32_t i = 0; i < binaries; ++i)
        record.push_back(makeBinary(i));
    return record;
}

/// An oscillograph in a window of full size.
struct Shown {
    explicit Shown(const std::vector<Zel::Series>& record) {
        for (const Zel::Series& series : record)
            oscillograph.addSeries(&series);
        oscillograph.setSeriesDuration(duration);
        window.set_decorated(false);
        window.set_default_size(width, height);
        window.add(oscillograph);
        window.show_all();
        settle();
    }

    ~Shown() {
        window.remove();
        settle();
    }

    void paint() { bench::paint(window); }

    /// Waits for the display, which does a part of the painting.
    static void finishPainting() { gdk_display_sync(gdk_display_get_default()); }

    /// A surface such as the window paints on.
    Cairo::RefPtr<Cairo::Surface> makeSurface(const ZelView::FragmentsDrawArea& canvas) {
        return window.get_window()->create_similar_surface(Cairo::CONTENT_COLOR, canvas.get_allocated_width(),
                                                           canvas.get_allocated_height());
    }

    /// All canvases from top to bottom.
    std::vector<ZelView::FragmentsDrawArea*> canvases() {
        std::vector<ZelView::FragmentsDrawArea*> found;
        bench::collectCanvases(oscillograph, found);
        const auto top = [this](ZelView::FragmentsDrawArea* canvas) {
            int x = 0;
            int y = 0;
            canvas->translate_coordinates(oscillograph, 0, 0, x, y);
            return y;
        };
        std::sort(found.begin(), found.end(), [&top](auto* a, auto* b) { return top(a) < top(b); });
        return found;
    }

    ZelView::Oscillograph oscillograph;
    Gtk::Window window;
};

/// Times both by turns, each first as often as the other, and reports the medians and their ratio.
template <typename Own, typename Bare>
void compare(benchmark::State& state, Own own, Bare bare) {
    std::vector<double> ownSeconds;
    std::vector<double> bareSeconds;
    for ([[maybe_unused]] auto _ : state) {
        const bool isBareFirst = bareSeconds.size() % 2 == 0;
        for (bool isBare : {isBareFirst, !isBareFirst}) {
            if (isBare)
                bareSeconds.push_back(secondsOf(bare));
            else
                ownSeconds.push_back(secondsOf(own));
        }
        state.SetIterationTime(ownSeconds.back());
    }
    state.counters["own_ms"] = 1000 * median(ownSeconds);
    state.counters["bare_ms"] = 1000 * median(bareSeconds);
    state.counters["ratio"] = median(ownSeconds) / median(bareSeconds);
}

void rangeStep(benchmark::State& state) {
    const std::vector<Zel::Series> record = makeRecord();
    Shown shown(record);
    float from = 0;
    const auto step = [&] {
        from = from > 4 ? 0 : from + 0.1f;
        shown.oscillograph.showRange(from, from + 5);
        shown.paint();
    };

    ZelView::StretchableCoordsConverter converter;
    ZelView::AnalogSeriesDrawer analogDrawer;
    ZelView::BinarySeriesDrawer binaryDrawer;
    analogDrawer.converter = binaryDrawer.converter = &converter;
    const auto canvases = shown.canvases();
    std::vector<Cairo::RefPtr<Cairo::Surface>> surfaces;
    for (const ZelView::FragmentsDrawArea* canvas : canvases)
        surfaces.push_back(shown.makeSurface(*canvas));
    const auto bare = [&] {
        for (std::size_t i = 0; i < 3; ++i) {
            const auto context = Cairo::Context::create(surfaces[i]);
            context->set_source_rgb(211 / 255.0, 211 / 255.0, 211 / 255.0);
            context->paint();
            converter.widgetWidth = static_cast<float>(canvases[i]->get_allocated_width());
            converter.widgetHeight = static_cast<float>(canvases[i]->get_allocated_height());
            converter.offset = {35, 0, 20, 20};
            converter.setBorder({from, from + 5, -6, 6});
            converter.recalc();
            for (const Zel::Series& series : record) {
                context->save();
                if (i == 2)
                    binaryDrawer._draw(context, series);
                else if (series.drawAreaIndex == i)
                    analogDrawer._draw(context, series);
                context->restore();
            }
        }
        Shown::finishPainting();
    };
    compare(state, step, bare);
}

void pointerMotion(benchmark::State& state) {
    const std::vector<Zel::Series> record = makeRecord();
    Shown shown(record);
    ZelView::FragmentsDrawArea& canvas = *shown.canvases().front();
    if (state.range(0)) {
        // As after the legend or a colour of one signal has changed: each has a picture of its own.
        for (const Zel::Series& series : record)
            series.changed.emit();
        settle();
    }
    double x = 100;
    const auto move = [&] {
        x = x > 1500 ? 100 : x + 7;
        bench::movePointer(canvas, x, 60);
        shown.paint();
    };
    const auto picture = shown.makeSurface(canvas);
    {
        // An empty surface would be left out altogether.
        const auto context = Cairo::Context::create(picture);
        context->set_source_rgb(211 / 255.0, 211 / 255.0, 211 / 255.0);
        context->paint();
    }
    const auto target = shown.makeSurface(canvas);
    const auto bare = [&] {
        const auto context = Cairo::Context::create(target);
        context->set_source(picture, 0, 0);
        context->paint();
        Shown::finishPainting();
    };
    compare(state, move, bare);
}

/// Series of two points, which cost no painting worth the name.
std::list<Zel::Series> makeSmall(int count) {
    std::list<Zel::Series> all;
    for (int i = 0; i < count; ++i) {
        Zel::Series& series = all.emplace_back();
        series.name = "analog";
        series.points = {{0, 0}, {10, 1}};
    }
    return all;
}

void addAndRemove(benchmark::State& state) {
    const std::list<Zel::Series> all = makeSmall(static_cast<int>(state.range(0)));
    Shown shown({});
    std::vector<double> adding;
    std::vector<double> removing;
    for ([[maybe_unused]] auto _ : state) {
        adding.push_back(secondsOf([&] {
            for (const Zel::Series& series : all)
                shown.oscillograph.addSeries(&series);
            settle();
        }));
        removing.push_back(secondsOf([&] {
            for (const Zel::Series& series : all)
                shown.oscillograph.deleteSeries(&series);
            settle();
        }));
        state.SetIterationTime(adding.back() + removing.back());
    }
    const double settling = secondsOf(settle);
    const auto count = static_cast<double>(state.range(0));
    state.counters["add_us_each"] = 1e6 * (median(adding) - settling) / count;
    state.counters["remove_us_each"] = 1e6 * (median(removing) - settling) / count;
}

/// Bytes that the action takes from the heap and keeps.
template <typename F>
double bytesOf(F action) {
    const std::size_t before = mallinfo2().uordblks;
    action();
    return static_cast<double>(mallinfo2().uordblks - before);
}

void memory(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        std::list<Zel::Series> all = makeSmall(1001);
        ZelView::Oscillograph oscillograph;
        oscillograph.addSeries(&all.front()); // what is made once for all
        const double series = bytesOf([&] {
            for (auto each = std::next(all.begin()); each != all.end(); ++each)
                oscillograph.addSeries(&*each);
        });
        oscillograph.clearSeries();

        Zel::Series last = all.front();
        last.drawAreaIndex = 100;
        const double areas = bytesOf([&] { oscillograph.addSeries(&last); });
        state.counters["bytes_each_series"] = series / 1000;
        state.counters["bytes_each_area"] = areas / 100;
    }
}

BENCHMARK(rangeStep)->Iterations(21)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(pointerMotion)
    ->ArgName("pictures")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(21)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(addAndRemove)->Arg(100)->Arg(1000)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(memory)->Iterations(1);

} // namespace

int main(int argc, char** argv) {
    gtk_disable_setlocale();
    Gtk::Main gtk(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
