// The curve drawer against a bare loop of the C drawing calls with the same path and stroke.
//
// Both are timed by turns within one run, so that what else the machine does hits both; the ratio of the
// medians is what counts. Target: at most 1.05.

#include "Timing.h"

#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <benchmark/benchmark.h>
#include <cairomm/cairomm.h>

#include <cmath>
#include <vector>

namespace {

using bench::median;
using bench::secondsOf;

constexpr int width = 1600;
constexpr int height = 300;

Zel::Series makeSeries(std::size_t count) {
    Zel::Series series;
    series.color = {0, 93, 170, 255};
    series.points.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const float x = 10 * static_cast<float>(i) / static_cast<float>(count);
        series.points.push_back({x, 4 * std::sin(40 * x) + std::sin(977 * x)});
    }
    return series;
}

ZelView::StretchableCoordsConverter makeConverter() {
    ZelView::StretchableCoordsConverter converter;
    converter.widgetWidth = width;
    converter.widgetHeight = height;
    converter.setBorder({0, 10, -6, 6});
    converter.recalc();
    return converter;
}

void drawBare(cairo_t* cr, const Zel::Series& series, const ZelView::StretchableCoordsConverter& c) {
    const auto x = [&](float v) { return (v - c.xMin) / c.realWidth * c.visualWidth + c.offset.left; };
    const auto y = [&](float v) { return (1 - (v - c.yMin) / c.realHeight) * c.visualHeight + c.offset.top; };
    cairo_set_line_width(cr, series.thickness);
    cairo_set_source_rgba(cr, series.color.r / 255.0, series.color.g / 255.0, series.color.b / 255.0, 1);
    cairo_move_to(cr, x(series.points[0].x), y(series.points[0].y));
    for (std::size_t i = 1; i < series.points.size(); ++i) {
        const float visualX = x(series.points[i].x);
        const float visualY = y(series.points[i].y);
        cairo_line_to(cr, visualX, visualY);
        cairo_move_to(cr, visualX, visualY);
    }
    cairo_stroke(cr);
}

void curve(benchmark::State& state) {
    const Zel::Series series = makeSeries(static_cast<std::size_t>(state.range(0)));
    const ZelView::StretchableCoordsConverter converter = makeConverter();
    ZelView::AnalogSeriesDrawer drawer;
    drawer.converter = &converter;
    const auto surface = Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, height);
    const auto context = Cairo::Context::create(surface);

    std::vector<double> own;
    std::vector<double> bare;
    for ([[maybe_unused]] auto _ : state) {
        // The second of two neighbours finds warm caches and a slower clock, so each goes first as often.
        const bool isBareFirst = bare.size() % 2 == 0;
        for (bool isBare : {isBareFirst, !isBareFirst}) {
            if (isBare)
                bare.push_back(secondsOf([&] { drawBare(context->cobj(), series, converter); }));
            else
                own.push_back(secondsOf([&] { drawer._draw(context, series); }));
        }
        state.SetIterationTime(own.back());
    }
    const double ratio = median(own) / median(bare);
    state.counters["bare_s"] = median(bare);
    state.counters["ratio"] = ratio;
    state.SetLabel(ratio <= 1.05 ? "within 1.05" : "ABOVE 1.05");
}

BENCHMARK(curve)->Arg(10'000)->Iterations(101)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(curve)->Arg(1'000'000)->Iterations(12)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
