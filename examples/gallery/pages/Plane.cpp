// Figures in the plane. Circles, sequences of points and dots come with the library; a figure of one's own
// needs a type with limits and a link in the chain of painters.

#include "Pages.h"

#include <ZelCommonView/diagrams/CircleDrawer.h>
#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>
#include <ZelCommonView/diagrams/FixedDotDrawer.h>
#include <ZelCommonView/diagrams/PointsSequenceDrawer.h>
#include <ZelCommonView/diagrams/ZDiagram.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtkmm.h>

#include <cmath>

namespace gallery {

namespace {

/// A cross that marks a place, a figure of this page's own.
class Mark : public Zel::Figure {
public:
    Mark(float givenX, float givenY) : x(givenX), y(givenY) {}

    void getRangeX(float& min, float& max) const override { min = max = x; }

    void getRangeY(float& min, float& max) const override { min = max = y; }

    float x; ///< world units
    float y;
};

class MarkDrawer : public ZelView::FigureDrawer<Mark> {
public:
    using FigureDrawer::FigureDrawer;

    void _onDraw(const Cairo::RefPtr<Cairo::Context>& context, const Mark& mark) override {
        const double x = converter->getVisualX(mark.x);
        const double y = converter->getVisualY(mark.y);
        context->set_source_rgb(0.8, 0.2, 0.1);
        context->set_line_width(2);
        context->move_to(x - 8, y - 8);
        context->line_to(x + 8, y + 8);
        context->move_to(x - 8, y + 8);
        context->line_to(x + 8, y - 8);
        context->stroke();
    }
};

class Plane : public Gtk::Box {
public:
    Plane() {
        diagram.getCoordsDrawer()->setHorizontalHeader(words("R, ohm", "R, Ом"));
        diagram.getCoordsDrawer()->setVerticalHeader(words("X, ohm", "X, Ом"));
        // The usual painters and one more. The new chain replaces the one that stood there.
        auto dots = std::make_unique<ZelView::FixedDotDrawer>(std::make_unique<MarkDrawer>());
        auto sequences = std::make_unique<ZelView::PointsSequenceDrawer>(std::move(dots));
        diagram.setRootFigureDrawer(std::make_unique<ZelView::CircleDrawer>(std::move(sequences)));

        _addCircle();
        _addQuadrilateral();
        _addPath();
        diagram.addFigure(std::make_unique<Mark>(6.0f, 3.0f));
        pack_start(diagram, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    void _addCircle() {
        auto circle = std::make_unique<Zel::Circle>();
        circle->x = 2;
        circle->y = 5;
        circle->radius = 5.4f;
        circle->color = {170, 200, 240, 120};
        circle->filled = true;
        circle->text = words("zone 1", "зона 1");
        diagram.addFigure(std::move(circle));
    }

    void _addQuadrilateral() {
        auto zone = std::make_unique<Zel::PointsSequence>();
        zone->points = {{-2, -2}, {9, -2}, {12, 12}, {-5, 12}};
        zone->closed = true;
        zone->color = {39, 130, 70, 255};
        diagram.addFigure(std::move(zone));
    }

    /// From the load into the first zone, with a dot at the end.
    void _addPath() {
        auto path = std::make_unique<Zel::PointsSequence>();
        path->color = {0, 93, 170, 255};
        for (int i = 0; i <= 60; ++i) {
            const float t = static_cast<float>(i) / 60;
            path->points.push_back({18 * (1 - t) + 1.5f + std::sin(9 * t), 3 * t + 2 + std::cos(7 * t)});
        }
        auto end = std::make_unique<Zel::FixedDot>();
        end->x = path->points.back().x;
        end->y = path->points.back().y;
        end->color = path->color;
        diagram.addFigure(std::move(path));
        diagram.addFigure(std::move(end));
    }

    ZelView::ZDiagram diagram;
};

} // namespace

std::unique_ptr<Gtk::Widget> makePlanePage() {
    return std::make_unique<Plane>();
}

} // namespace gallery
