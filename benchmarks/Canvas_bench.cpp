// The canvas' work on the pixels against the calls of cairo and gdk-pixbuf that make the same bytes, and a
// motion of the pointer over an oscillogram of few and of many points. Needs a display with room for 1920 by
// 1080.
//
// Both sides of a ratio are run by turns, each first as often as the other.

#include "Screen.h"
#include "Timing.h"
#include "Verdict.h"

#include <ZelCommonView/fragments/FragmentDrawerHelper.h>
#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/oscillogram/Oscillograph.h>

#include <benchmark/benchmark.h>
#include <gtkmm.h>

#include <cmath>
#include <vector>

namespace {

using bench::median;
using bench::secondsOf;
using Context = Cairo::RefPtr<Cairo::Context>;

/// A widget that has a size without being shown.
class Sized : public Gtk::DrawingArea {
public:
    Sized(int width, int height) {
        show(); // GTK keeps no size of hidden ones
        Gtk::Allocation allocation(0, 0, width, height);
        size_allocate(allocation);
    }
};

/// A grid and a band such as layers hold. It costs little by itself, since both sides of the comparison paint
/// it.
void paintLayer(const Context& context) {
    context->set_source_rgb(0.8, 0, 0);
    for (int i = 0; i < 20; ++i)
        context->rectangle(50 + 96 * i, 0, 1, 4096);
    for (int i = 0; i < 12; ++i)
        context->rectangle(0, 20 + 90 * i, 4096, 1);
    context->rectangle(300, 0, 200, 4096);
    context->fill();
}

/// Curves such as fragments hold.
void paintCurves(const Context& context) {
    context->set_source_rgb(0.8, 0, 0);
    for (int i = 0; i < 8; ++i) {
        context->move_to(0, 100 + 110 * i);
        context->line_to(4096, 160 + 90 * i);
    }
    context->stroke();
}

void runByTurns(benchmark::State& state, const std::function<void()>& own, const std::function<void()>& other,
                const std::string& what, double limit) {
    std::vector<double> ownSeconds;
    std::vector<double> otherSeconds;
    for ([[maybe_unused]] auto _ : state) {
        const bool isOtherFirst = otherSeconds.size() % 2 == 0;
        for (const bool isOther : {isOtherFirst, !isOtherFirst})
            (isOther ? otherSeconds : ownSeconds).push_back(secondsOf(isOther ? other : own));
        state.SetIterationTime(ownSeconds.back());
    }
    state.counters["own_ms"] = 1000 * median(ownSeconds);
    state.counters["sequence_ms"] = 1000 * median(otherSeconds);
    bench::judge(state, what, median(otherSeconds) / median(ownSeconds), limit, true);
}

/// A canvas that is painted on an image, and a picture for the other side of the comparison.
struct OnImage {
    explicit OnImage(const benchmark::State& state)
        : width(static_cast<int>(state.range(0))), height(static_cast<int>(state.range(1))),
          widget(width, height), helper(widget),
          context(Cairo::Context::create(Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, height))) {
        helper.startFragmentsDraw(context);
        background = helper.getBackground()->copy();
    }

    /// The composition as gdk-pixbuf does it.
    void compose(const Glib::RefPtr<Gdk::Pixbuf>& picture) {
        picture->composite(background, 0, 0, width, height, 0, 0, 1, 1, Gdk::INTERP_NEAREST, 255);
    }

    /// The target of a figure that counts at the large size; at the small one it is only told.
    double limit(double atFullSize) const { return width == 1920 ? atFullSize : 1; }

    int width;
    int height;
    Sized widget;
    ZelView::Fragments::FragmentDrawerHelper helper;
    Context context;
    Glib::RefPtr<Gdk::Pixbuf> background;
};

void layer(benchmark::State& state) {
    OnImage canvas(state);
    const Context& context = canvas.context;
    const auto sequence = [&] {
        context->save();
        context->set_source_rgb(1, 1, 1);
        context->paint();
        paintLayer(context);
        context->restore();
        const auto snapshot = Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, canvas.width, canvas.height);
        const Context copy = Cairo::Context::create(snapshot);
        copy->set_source(context->get_target(), 0, 0);
        copy->paint();
        snapshot->flush();
        canvas.compose(
            Gdk::Pixbuf::create(snapshot, 0, 0, canvas.width, canvas.height)->add_alpha(true, 255, 255, 255));
    };
    runByTurns(
        state, [&] { canvas.helper.drawAsFragment(context, paintLayer); }, sequence,
        "layer, times as fast as the sequence", canvas.limit(8));
}

void fragment(benchmark::State& state) {
    OnImage canvas(state);
    ZelView::Fragments::Fragment kept{true, paintCurves, {}};
    canvas.helper.drawFragment(canvas.context, kept);
    runByTurns(
        state, [&] { canvas.helper.drawFragment(canvas.context, kept); }, [&] { canvas.compose(kept.image); },
        "fragment, times as fast as gdk", canvas.limit(4));
}

constexpr int analogs = 8;
constexpr int binaries = 32;
constexpr float duration = 10;

std::vector<Zel::Series> makeRecord(int points) {
    std::vector<Zel::Series> record;
    for (int i = 0; i < analogs + binaries; ++i) {
        Zel::Series& series = record.emplace_back();
        const bool isAnalog = i < analogs;
        series.name = isAnalog ? "analog" : "binary";
        series.type = isAnalog ? Zel::SeriesType::Analog : Zel::SeriesType::Binary;
        series.index = static_cast<std::uint32_t>(isAnalog ? 0 : i - analogs);
        series.color = {static_cast<std::uint8_t>(6 * i), 93, 170, 255};
        const int count = isAnalog ? points : 1000;
        for (int k = 0; k < count; ++k) {
            const float x = duration * static_cast<float>(k) / static_cast<float>(count);
            series.points.push_back({x, isAnalog ? 4 * std::sin(40 * x + static_cast<float>(i))
                                                 : static_cast<float>(k / (50 + i) % 2)});
        }
    }
    return record;
}

/// An oscillograph in a window of full size, and the largest of its canvases.
struct Shown {
    explicit Shown(int points) : record(makeRecord(points)) {
        for (const Zel::Series& series : record)
            oscillograph.addSeries(&series);
        oscillograph.setSeriesDuration(duration);
        window.set_decorated(false);
        window.set_default_size(1920, 1080);
        window.add(oscillograph);
        window.show_all();
        bench::settle();
        std::vector<ZelView::FragmentsDrawArea*> canvases;
        bench::collectCanvases(oscillograph, canvases);
        canvas = *std::max_element(canvases.begin(), canvases.end(), [](auto* one, auto* other) {
            return one->get_allocated_width() * one->get_allocated_height() <
                   other->get_allocated_width() * other->get_allocated_height();
        });
    }

    ~Shown() { window.remove(); }

    double secondsOfMotion() {
        x = x > 1500 ? 100 : x + 7;
        bench::movePointer(*canvas, x, 60);
        return secondsOf([this] { bench::paint(window); });
    }

    std::vector<Zel::Series> record;
    ZelView::Oscillograph oscillograph;
    Gtk::Window window;
    ZelView::FragmentsDrawArea* canvas = nullptr;
    double x = 100;
};

void motion(benchmark::State& state) {
    Shown few(1000);
    Shown many(1000000);
    std::vector<double> fewSeconds;
    std::vector<double> manySeconds;
    for ([[maybe_unused]] auto _ : state) {
        const bool isManyFirst = fewSeconds.size() % 2 == 0;
        for (const bool isMany : {isManyFirst, !isManyFirst})
            (isMany ? manySeconds : fewSeconds).push_back((isMany ? many : few).secondsOfMotion());
        state.SetIterationTime(manySeconds.back());
    }
    bench::judge(state, "motion over 8 curves of 1 million points and 32 rows, ms",
                 1000 * median(manySeconds), 4);
    bench::judge(state, "motion, times that over curves of 1 thousand points",
                 median(manySeconds) / median(fewSeconds), 1.2);
}

BENCHMARK(layer)
    ->Args({1600, 300})
    ->Args({1920, 1080})
    ->Iterations(25)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fragment)
    ->Args({1600, 300})
    ->Args({1920, 1080})
    ->Iterations(25)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(motion)->Iterations(51)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    gtk_disable_setlocale();
    Gtk::Main gtk(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
