// An oscillogram: curves and rows on stacked plots over one time axis, a summary of all, and a navigation.
// The application hands in series and hears which part of the record the user looks at.

#include "Pages.h"

#include <ZelCommonView/oscillogram/Oscillograph.h>
#include <ZelCommonView/plot/Series.h>

#include <gtkmm.h>

#include <array>
#include <cmath>

namespace gallery {

namespace {

constexpr float duration = 400; // milliseconds
constexpr float faultBegin = 120;
constexpr float faultEnd = 220;

class Oscillogram : public Gtk::Box {
public:
    Oscillogram() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        faultButton.signal_clicked().connect(sigc::mem_fun(*this, &Oscillogram::_onFault), true);
        allButton.signal_clicked().connect(sigc::mem_fun(*this, &Oscillogram::_onAll), true);
        for (Gtk::Widget* widget : std::initializer_list<Gtk::Widget*>{&faultButton, &allButton, &range})
            buttons.pack_start(*widget, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(oscillograph, Gtk::PACK_EXPAND_WIDGET);

        oscillograph.signalSeriesRangeChanged.connect(sigc::mem_fun(*this, &Oscillogram::_onRange));
        // Voltages on the first plot of curves, currents on the second; the fault halves and triples them.
        for (int phase = 0; phase < 3; ++phase) {
            _addCurve(std::string("U") + "ABC"[phase], phase, 0, 100, 50);
            _addCurve(std::string("I") + "ABC"[phase], phase, 1, 5, 15);
        }
        _addRow(words("Start", "Пуск"), 0, faultBegin + 10, faultEnd);
        _addRow(words("Trip", "Отключение"), 1, faultBegin + 40, faultEnd + 20);
        oscillograph.setSeriesDuration(duration); // shows all of it
        oscillograph.setHorizontalInterval(faultBegin, faultEnd);
        _onAll();
    }

private:
    Zel::Series& _add(const std::string& name, int number) {
        static const Zel::Color colors[] = {{204, 121, 0, 255}, {0, 128, 72, 255}, {200, 30, 45, 255}};
        Zel::Series& added = series.at(count++);
        added.name = name;
        added.color = colors[number % 3];
        return added;
    }

    void _addCurve(const std::string& name, int phase, unsigned int plot, float usual, float during) {
        Zel::Series& curve = _add(name, phase);
        curve.drawAreaIndex = plot;
        for (int sample = 0; sample <= 2 * static_cast<int>(duration); ++sample) {
            const float time = static_cast<float>(sample) / 2;
            const float size = time >= faultBegin && time <= faultEnd ? during : usual;
            const float turns = time / 20 - static_cast<float>(phase) / 3; // at 50 Hz
            curve.points.push_back({time, size * std::sin(2 * static_cast<float>(G_PI) * turns)});
        }
        oscillograph.addSeries(&curve);
    }

    void _addRow(const std::string& name, unsigned int place, float on, float off) {
        Zel::Series& row = _add(name, static_cast<int>(place) + 1);
        row.type = Zel::SeriesType::Binary;
        row.index = place;
        row.points = {{0, 0}, {on, 1}, {off, 0}, {duration, 0}};
        oscillograph.addSeries(&row);
    }

    void _onFault() { oscillograph.showRange(faultBegin - 40, faultEnd + 40); }

    void _onAll() { oscillograph.showRange(0, duration); }

    void _onRange(float from, float to) {
        range.set_text(Glib::ustring::compose(words("%1 to %2 ms of %3 ms", "от %1 до %2 мс из %3 мс"),
                                              std::lround(from), std::lround(to), std::lround(duration)));
    }

    std::array<Zel::Series, 8> series; ///< they outlive the widget, and their addresses never change
    std::size_t count = 0;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button faultButton{words("The fault", "Повреждение")};
    Gtk::Button allButton{words("The whole record", "Вся запись")};
    Gtk::Label range;
    ZelView::Oscillograph oscillograph;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeOscillogramPage() {
    return std::make_unique<Oscillogram>();
}

} // namespace gallery
