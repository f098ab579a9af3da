// The canvas' work on the pixels against the calls of cairo and gdk-pixbuf that make the same bytes, and a
// motion of the pointer over an oscillogram of few and of many points. Needs a display with room for 1920 by
// 1080.
//
// Both sides of a ratio are run by turns, each first as often as the other.

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

/// A grid and a curve such as a layer holds.
void paintLayer(const Context& context) {
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

/// The layer is painted by both; what is compared is the way from its pixels into the picture.
void layer(benchmark::State& state) {
    const int width = static_cast<int>(state.range(0));
    const int height = static_cast<int>(state.range(1));
    Sized widget(width, height);
    ZelView::Fragments::FragmentDrawerHelper helper(widget);
    const Context context =
        Cairo::Context::create(Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, height));
    helper.startFragmentsDraw(context);
    const Glib::RefPtr<Gdk::Pixbuf> background = helper.getBackground()->copy();
    paintLayer(context);
    const std::vector<ZelView::Fragments::DrawFunction> paintsNothing;
    const auto sequence = [&] {
        context->save();
        context->set_source_rgb(1, 1, 1);
        context->paint();
        context->restore();
        const auto snapshot = Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, height);
        const Context copy = Cairo::Context::create(snapshot);
        copy->set_source(context->get_target(), 0, 0);
        copy->paint();
        snapshot->flush();
        Gdk::Pixbuf::create(snapshot, 0, 0, width, height)
            ->add_alpha(true, 255, 255, 255)
            ->composite(background, 0, 0, width, height, 0, 0, 1, 1, Gdk::INTERP_NEAREST, 255);
    };
    runByTurns(
        state, [&] { helper.drawAsFragment(context, paintsNothing); }, sequence,
        "layer, times as fast as the sequence", width == 1920 ? 8 : 1);
}

void fragment(benchmark::State& state) {
    const int width = static_cast<int>(state.range(0));
    const int height = static_cast<int>(state.range(1));
    Sized widget(width, height);
    ZelView::Fragments::FragmentDrawerHelper helper(widget);
    const Context context =
        Cairo::Context::create(Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, height));
    helper.startFragmentsDraw(context);
    const Glib::RefPtr<Gdk::Pixbuf> background = helper.getBackground()->copy();
    ZelView::Fragments::Fragment kept{true, paintLayer, {}};
    helper.drawFragment(context, kept);
    runByTurns(
        state, [&] { helper.drawFragment(context, kept); },
        [&] { kept.image->composite(background, 0, 0, width, height, 0, 0, 1, 1, Gdk::INTERP_NEAREST, 255); },
        "fragment, times as fast as gdk", width == 1920 ? 4 : 1);
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

void settle() {
    for (int quiet = 0; quiet < 50; ++quiet) {
        while (Gtk::Main::events_pending()) {
            Gtk::Main::iteration();
            quiet = 0;
        }
        g_usleep(1000);
    }
}

void collect(Gtk::Widget& widget, std::vector<ZelView::FragmentsDrawArea*>& found) {
    if (auto* canvas = dynamic_cast<ZelView::FragmentsDrawArea*>(&widget))
        found.push_back(canvas);
    else if (auto* container = dynamic_cast<Gtk::Container*>(&widget))
        for (Gtk::Widget* child : container->get_children())
            collect(*child, found);
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
        settle();
        std::vector<ZelView::FragmentsDrawArea*> canvases;
        collect(oscillograph, canvases);
        canvas = *std::max_element(canvases.begin(), canvases.end(), [](auto* one, auto* other) {
            return one->get_allocated_width() * one->get_allocated_height() <
                   other->get_allocated_width() * other->get_allocated_height();
        });
    }

    ~Shown() { window.remove(); }

    double secondsOfMotion() {
        x = x > 1500 ? 100 : x + 7;
        GdkEvent* const event = gdk_event_new(GDK_MOTION_NOTIFY);
        event->motion.window = canvas->get_window()->gobj();
        g_object_ref(event->motion.window);
        event->motion.x = x;
        event->motion.y = 60;
        gtk_widget_event(GTK_WIDGET(canvas->gobj()), event);
        gdk_event_free(event);
        return secondsOf([this] {
            G_GNUC_BEGIN_IGNORE_DEPRECATIONS
            gdk_window_process_updates(window.get_window()->gobj(), TRUE);
            G_GNUC_END_IGNORE_DEPRECATIONS
            gdk_display_sync(gdk_display_get_default()); // which does a part of the painting
        });
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
