// One figure under both converters. A ConverterProxy follows the limits of the figure; a drawing area tells
// it its size and asks its converter for pixels.

#include "Pages.h"

#include <ZelCommonView/plot/ConverterProxy.h>
#include <ZelCommonView/plot/Series.h>

#include <gtkmm.h>

#include <cmath>

namespace gallery {

namespace {

/// Paints a figure through a converter of its own and tells the world position under the pointer.
class FigureArea : public Gtk::DrawingArea {
public:
    sigc::signal<void, Zel::PointF> signalPointed;

    FigureArea(const Zel::Series& given, ZelView::CoordsConvertMode mode) : figure(given) {
        proxy.setCoordsConvertMode(mode);
        proxy.setOffset({10, 10, 10, 10});
        proxy.addBorderable(figure);
        add_events(Gdk::POINTER_MOTION_MASK);
    }

protected:
    void on_size_allocate(Gtk::Allocation& allocation) override {
        Gtk::DrawingArea::on_size_allocate(allocation);
        proxy.setWidgetSize(static_cast<float>(allocation.get_width()),
                            static_cast<float>(allocation.get_height()));
    }

    bool on_draw(const Cairo::RefPtr<Cairo::Context>& context) override {
        const ZelView::CoordsConverter& converter = *proxy.getConverter();
        context->set_source_rgb(1, 1, 1);
        context->paint();
        for (const Zel::PointF& point : figure.points)
            context->line_to(converter.getVisualX(point.x), converter.getVisualY(point.y));
        context->set_source_rgb(0.1, 0.4, 0.8);
        context->set_line_width(2);
        context->stroke();
        return true;
    }

    bool on_motion_notify_event(GdkEventMotion* event) override {
        const ZelView::CoordsConverter& converter = *proxy.getConverter();
        signalPointed.emit({converter.getRealX(static_cast<float>(event->x)),
                            converter.getRealY(static_cast<float>(event->y))});
        return false;
    }

private:
    const Zel::Series& figure;
    ZelView::ConverterProxy proxy;
};

class Geometry : public Gtk::Box {
public:
    Geometry() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        grid.set_row_spacing(4);
        grid.set_column_spacing(8);
        grid.set_column_homogeneous(true);
        grid.attach(proportionalTitle, 0, 0);
        grid.attach(stretchableTitle, 1, 0, 2, 1);
        grid.attach(proportional, 0, 1);
        grid.attach(stretchable, 1, 1, 2, 1);
        for (FigureArea* area : {&proportional, &stretchable}) {
            area->set_vexpand();
            area->signalPointed.connect(sigc::mem_fun(*this, &Geometry::_onPointed));
        }
        pack_start(grid, Gtk::PACK_EXPAND_WIDGET);
        pack_start(position, Gtk::PACK_SHRINK);
    }

private:
    static Zel::Series _makeCircle() {
        Zel::Series circle;
        for (int i = 0; i <= 100; ++i) {
            const double angle = i * 2 * G_PI / 100;
            circle.points.push_back(
                {5 + 4 * static_cast<float>(std::cos(angle)), 5 + 4 * static_cast<float>(std::sin(angle))});
        }
        return circle;
    }

    void _onPointed(Zel::PointF point) {
        position.set_text(Glib::ustring::compose("x = %1, y = %2", point.x, point.y));
    }

    const Zel::Series circle = _makeCircle();
    Gtk::Grid grid;
    Gtk::Label proportionalTitle{
        words("Proportional: a circle stays one", "Пропорциональное: круг остаётся кругом")};
    Gtk::Label stretchableTitle{
        words("Stretchable: each axis fills its side", "Растяжимое: каждая ось занимает свою сторону")};
    FigureArea proportional{circle, ZelView::CoordsConvertMode::Proportional};
    FigureArea stretchable{circle, ZelView::CoordsConvertMode::Stretchable};
    Gtk::Label position{words("Move the pointer over a figure", "Наведите указатель на фигуру")};
};

} // namespace

std::unique_ptr<Gtk::Widget> makeGeometryPage() {
    return std::make_unique<Geometry>();
}

} // namespace gallery
