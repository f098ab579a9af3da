// One plot with its legend. Series stay the application's: they are added by reference and must be removed,
// or the plot be gone, before they die.

#include "Pages.h"

#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>

#include <gtkmm.h>

#include <cmath>
#include <list>

namespace gallery {

namespace {

class Plot : public Gtk::Box {
public:
    Plot() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        plot.addDrawer(std::make_unique<ZelView::CoordsDrawer>(), ZelView::DrawerPosition::BeforeFragments);
        plot.addDrawer(std::make_unique<ZelView::AnalogSeriesDrawer>());
        for (int i = 0; i < 3; ++i)
            _onAdd();

        addButton.signal_clicked().connect(sigc::mem_fun(*this, &Plot::_onAdd), true);
        removeButton.signal_clicked().connect(sigc::mem_fun(*this, &Plot::_onRemove), true);
        colorButton.signal_clicked().connect(sigc::mem_fun(*this, &Plot::_onColor), true);
        for (Gtk::Button* button : {&addButton, &removeButton, &colorButton})
            buttons.pack_start(*button, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(plot, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    void _onAdd() {
        static const Zel::Color colors[] = {{240, 120, 90, 255}, {100, 170, 240, 255}, {90, 190, 120, 255}};
        const std::size_t number = series.size();
        Zel::Series& added = series.emplace_back(); // a list: the address must not change
        added.name = words("Signal ", "Сигнал ") + std::to_string(number + 1);
        added.color = colors[number % 3];
        for (int i = 0; i <= 400; ++i) {
            const float x = static_cast<float>(i) / 40;
            const float n = static_cast<float>(number);
            added.points.push_back({x, 3 * n + 1.5f + 1.2f * std::sin(x * (1 + n / 2))});
        }
        // Limits and picture are two roles of a series, each added for itself.
        plot.addBorderable(added);
        plot.addFragmentable(added);
        _onCountChanged();
    }

    void _onRemove() {
        plot.deleteFragmentable(series.back());
        plot.deleteBorderable(series.back());
        series.pop_back();
        _onCountChanged();
    }

    void _onColor() {
        Zel::Series& last = series.back();
        last.color = {last.color.g, last.color.b, last.color.r, 255};
        last.changed.emit(); // repaints its fragment and its row in the legend, and nothing else
    }

    void _onCountChanged() {
        removeButton.set_sensitive(!series.empty());
        colorButton.set_sensitive(!series.empty());
    }

    std::list<Zel::Series> series;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button addButton{words("Add a series", "Добавить серию")};
    Gtk::Button removeButton{words("Remove the last one", "Удалить последнюю")};
    Gtk::Button colorButton{words("Colour the last one anew", "Перекрасить последнюю")};
    ZelView::SeriesGroupDrawArea plot;
};

} // namespace

std::unique_ptr<Gtk::Widget> makePlotPage() {
    return std::make_unique<Plot>();
}

} // namespace gallery
