#include "RecordPage.h"

#include "FindWidget.h"
#include "Words.h"

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/oscillogram/SeriesSections.h>

#include <gtkmm.h>

#include <cmath>
#include <iomanip>
#include <sstream>

namespace viewer {

namespace {

constexpr int rowHeight = 16;         // of a binary, pixels
constexpr int binaryMargins = 40;     // above and below the rows, pixels
constexpr int maxBinaryHeight = 8000; // a canvas and its pictures stay within reason, pixels

/// Legend rows stand on the colours of their signals, and those of binaries beside rows of 16 pixels.
void loadStyle() {
    const auto provider = Gtk::CssProvider::create();
    provider->load_from_data(".legend { color: white; font-size: 11px; min-height: 16px; padding: 0 6px; }");
    Gtk::StyleContext::add_provider_for_screen(Gdk::Screen::get_default(), provider,
                                               GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
}

std::string summaryOf(const record::Record& record) {
    return std::to_string(record.analogs.size()) + " " + words::analogs() + ", " +
           std::to_string(record.binaries.size()) + " " + words::binaries() + ", " +
           std::to_string(record.size()) + " " + words::samples();
}

std::string warningsOf(const record::Record& record) {
    if (record.warnings.empty())
        return "";
    if (record.warnings.size() == 1)
        return "  ⚠ " + record.warnings.front();
    return "  ⚠ " + std::to_string(record.warnings.size()) + " " + words::warnings() + ": " +
           record.warnings.front();
}

} // namespace

RecordPage::RecordPage() : Gtk::Box(Gtk::ORIENTATION_VERTICAL) {
    loadStyle();
    status.set_halign(Gtk::ALIGN_START);
    status.set_ellipsize(Pango::ELLIPSIZE_END);
    status.property_margin() = 4;
    oscillograph.signalSeriesRangeChanged.connect(sigc::mem_fun(*this, &RecordPage::_showRange));
    pack_start(oscillograph, Gtk::PACK_EXPAND_WIDGET);
    pack_start(status, Gtk::PACK_SHRINK);
    set_hexpand(true);
    set_vexpand(true);
    show_all();
}

RecordPage::~RecordPage() = default;

void RecordPage::setRecord(record::Record record) {
    std::string all;
    for (const std::string& warning : record.warnings)
        all += (all.empty() ? "" : "\n") + warning;
    status.set_tooltip_text(all);
    summary = summaryOf(record) + warningsOf(record);
    const std::size_t rows = record.binaries.size();

    oscillograph.clearSeries();
    oscillogram = makeOscillogram(record);
    for (const auto& series : oscillogram.series)
        oscillograph.addSeries(series.get());
    _growBinaryArea(rows);
    // A new oscillograph takes a duration of exactly 1 for the one it has and stays disabled; the next number
    // shows the same.
    if (oscillogram.duration == 1.0f)
        oscillogram.duration = std::nextafter(1.0f, 2.0f);
    oscillograph.setSeriesDuration(oscillogram.duration);
    if (oscillogram.fault)
        oscillograph.setHorizontalInterval(static_cast<float>(oscillogram.fault->from),
                                           static_cast<float>(oscillogram.fault->to));
    oscillograph.showRange(0, oscillogram.duration);
    if (!(oscillogram.duration > 0))
        status.set_text(summary);
}

void RecordPage::centreOn(double time) {
    double from = 0;
    double to = 0;
    oscillograph.getSeriesRange(from, to);
    const Interval seen = centred({from, to}, time, oscillogram.duration);
    oscillograph.showRange(static_cast<float>(seen.from), static_cast<float>(seen.to));
}

void RecordPage::_showRange(float from, float to) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(4) << summary << "  |  " << words::shown() << " " << from << " – "
         << to << " " << words::seconds();
    status.set_text(text.str());
}

void RecordPage::_growBinaryArea(std::size_t rows) {
    auto* const binaries = findWidget<ZelView::BinarySections>(oscillograph);
    if (!binaries || rows == 0)
        return;
    const auto wanted = static_cast<long>(rows) * rowHeight + binaryMargins;
    for (ZelView::SeriesGroupDrawArea* area : binaries->getDrawAreas())
        area->set_size_request(-1, static_cast<int>(std::min<long>(wanted, maxBinaryHeight)));
}

} // namespace viewer
