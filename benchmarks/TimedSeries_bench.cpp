// A step of a replay, and the painting of a trajectory against a bare loop of the C drawing calls.
//
// A step must cost what the passed points cost, however long the trajectory is. The two paintings are timed
// by turns within one run, so that what else the machine does hits both; the ratio of the medians is what
// counts. Target: at most 1.05.

#include "Timing.h"

#include <ZelCommonView/plot/CoordsConverter.h>
#include <ZelCommonView/plot/SingleTimedSeriesDrawer.h>
#include <ZelCommonView/plot/TimedSeriesIteratorCalc.h>

#include <benchmark/benchmark.h>
#include <cairomm/cairomm.h>

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace {

using bench::median;
using bench::secondsOf;

constexpr int side = 800;
constexpr std::size_t pointsOfAStep = 100;

/// One point each millisecond, the first at 1.
std::vector<Zel::TimedPointF> makePoints(std::size_t count) {
    std::vector<Zel::TimedPointF> points;
    points.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const float angle = 60 * static_cast<float>(i) / static_cast<float>(count);
        const float radius = 3 + std::sin(11.3f * angle);
        points.push_back({{radius * std::cos(angle), radius * std::sin(angle)}, i + 1});
    }
    return points;
}

ZelView::ProportionalCoordsConverter makeConverter() {
    ZelView::ProportionalCoordsConverter converter;
    converter.widgetWidth = side;
    converter.widgetHeight = side;
    converter.setBorder({-4, 4, -4, 4});
    converter.recalc();
    return converter;
}

/// Steps of a hundred points in the middle of the trajectory, there and back.
void step(benchmark::State& state) {
    const auto points = makePoints(static_cast<std::size_t>(state.range(0)));
    ZelView::TimedSeriesIteratorCalc calc(points);
    const std::size_t middle = points.size() / 2;
    calc.setTime(middle);
    for ([[maybe_unused]] auto _ : state) {
        calc.setTime(middle + pointsOfAStep);
        benchmark::DoNotOptimize(calc.getIt());
        calc.setTime(middle);
        benchmark::DoNotOptimize(calc.getIt());
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(2 * pointsOfAStep * state.iterations()));
}

BENCHMARK(step)->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kNanosecond);

void drawBare(cairo_t* cr, const std::vector<Zel::TimedPointF>& points,
              const ZelView::ProportionalCoordsConverter& c) {
    const float left = c.offset.left + c.paddingX;
    const float top = c.offset.top + c.paddingY;
    const auto x = [&](float v) { return (v - c.xMin) * c.scale + left; };
    const auto y = [&](float v) { return (c.yMin + (c.realHeight - v)) * c.scale + top; };
    cairo_set_line_width(cr, 1);
    cairo_set_source_rgba(cr, 0, 93 / 255.0, 170 / 255.0, 1);
    cairo_move_to(cr, x(points[0].point.x), y(points[0].point.y));
    for (const Zel::TimedPointF& point : points) {
        const float visualX = x(point.point.x);
        const float visualY = y(point.point.y);
        cairo_line_to(cr, visualX, visualY);
        cairo_move_to(cr, visualX, visualY);
    }
    cairo_stroke(cr);
}

void trajectory(benchmark::State& state) {
    auto series = std::make_unique<Zel::TimedSeries>();
    series->color = {0, 93, 170, 255};
    series->points = makePoints(static_cast<std::size_t>(state.range(0)));
    const std::vector<Zel::TimedPointF>& points = series->points;
    const ZelView::ProportionalCoordsConverter converter = makeConverter();
    ZelView::SingleTimedSeriesDrawer drawer(std::move(series));
    drawer.setConverter(converter);
    drawer.setTime(points.size());
    const auto surface = Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, side, side);
    const auto context = Cairo::Context::create(surface);

    std::vector<double> own;
    std::vector<double> bare;
    for ([[maybe_unused]] auto _ : state) {
        // The second of two neighbours finds warm caches and a slower clock, so each goes first as often.
        const bool isBareFirst = bare.size() % 2 == 0;
        for (bool isBare : {isBareFirst, !isBareFirst}) {
            if (isBare)
                bare.push_back(secondsOf([&] { drawBare(context->cobj(), points, converter); }));
            else
                own.push_back(secondsOf([&] { drawer.draw(context); }));
        }
        state.SetIterationTime(own.back());
    }
    const double ratio = median(own) / median(bare);
    state.counters["bare_s"] = median(bare);
    state.counters["ratio"] = ratio;
    state.SetLabel(ratio <= 1.05 ? "within 1.05" : "ABOVE 1.05");
}

BENCHMARK(trajectory)->Arg(100'000)->Iterations(31)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
