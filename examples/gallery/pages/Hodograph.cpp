// A trajectory that unfolds in time. The widget takes the points and does the rest: clock, button, sliders,
// zoom by the wheel and dragging by the left button.

#include "Pages.h"

#include <ZelCommonView/diagrams/Hodograph.h>

#include <gtkmm.h>

#include <cmath>

namespace gallery {

namespace {

class Trajectories : public Gtk::Box {
public:
    Trajectories() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        _onAdd();
        addButton.signal_clicked().connect(sigc::mem_fun(*this, &Trajectories::_onAdd), true);
        removeButton.signal_clicked().connect(sigc::mem_fun(*this, &Trajectories::_onRemove), true);
        for (Gtk::Button* button : {&addButton, &removeButton})
            buttons.pack_start(*button, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(hodograph, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    /// A flower with one petal more than the last one, drawn within five seconds.
    void _onAdd() {
        static const Zel::Color colors[] = {{0, 93, 170, 255}, {192, 57, 43, 255}, {39, 130, 70, 255}};
        auto series = std::make_unique<Zel::TimedSeries>();
        series->color = colors[count % 3];
        const float petals = static_cast<float>(3 + count);
        for (int i = 0; i <= 500; ++i) {
            const float angle = static_cast<float>(2 * G_PI) * static_cast<float>(i) / 500;
            const float radius = 10 * (1 + 0.4f * std::cos(petals * angle));
            // A point of the plane and the millisecond in which it is reached.
            series->points.push_back(
                {{radius * std::cos(angle), radius * std::sin(angle)}, static_cast<std::uint64_t>(10 * i)});
        }
        hodograph.addSeries(std::move(series));
        ++count;
    }

    void _onRemove() {
        hodograph.deleteSeries();
        count = 0;
    }

    int count = 0;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button addButton{words("Add a trajectory", "Добавить траекторию")};
    Gtk::Button removeButton{words("Remove all", "Удалить все")};
    ZelView::Hodograph hodograph;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeHodographPage() {
    return std::make_unique<Trajectories>();
}

} // namespace gallery
