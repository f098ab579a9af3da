#include "ZPlanePage.h"

#include "ImpedanceWords.h"
#include "Words.h"

#include <ZelCommonView/diagrams/FiguresCoordsDrawer.h>

#include <algorithm>

namespace viewer {

namespace {

constexpr double captionDistance = 0.03; // from the outline, in lines
constexpr Zel::Color trajectoryColor = {200, 0, 0, 255};
constexpr Zel::Color dotColor = {40, 40, 40, 255};
constexpr Zel::Color zoneColors[] = {{0, 130, 60, 255}, {190, 110, 0, 255}, {70, 90, 190, 255}};

} // namespace

ZPlanePage::ZPlanePage() {
    shapesLabel.set_text(words::zones());
    shapesLabel.set_margin_start(18);
    shapes.append(words::mho());
    shapes.append(words::quadrilateral());
    shapes.set_active(0);
    shapes.signal_changed().connect(sigc::mem_fun(*this, &ZPlanePage::_onShapesChanged));
    choices.pack_start(shapesLabel, Gtk::PACK_SHRINK);
    choices.pack_start(shapes, Gtk::PACK_SHRINK);
    choices.show_all();

    diagram.getCoordsDrawer()->setHorizontalHeader(words::horizontalAxis());
    diagram.getCoordsDrawer()->setVerticalHeader(words::verticalAxis());
    // Automatic axes reach from -1 to 10 at least, which would hide small impedances.
    diagram.getDrawArea().setXBordersMode(ZelView::BordersMode::Manual);
    diagram.getDrawArea().setYBordersMode(ZelView::BordersMode::Manual);
    _setPlane(diagram);
}

ZPlanePage::~ZPlanePage() = default;

void ZPlanePage::showTime(std::uint64_t value) {
    time = value;
    if (dot)
        _placeDot();
}

void ZPlanePage::_onShapesChanged() {
    if (_hasImpedances())
        _showLoop();
}

void ZPlanePage::_showLoop() {
    dot = nullptr;
    diagram.deleteFigures();
    Bounds bounds = _getView().bounds();
    const auto characteristic = shapes.get_active_row_number() == 0
                                    ? impedance::Characteristic::Mho
                                    : impedance::Characteristic::Quadrilateral;
    std::size_t color = 0;
    for (const impedance::Zone& zone :
         impedance::zonesOf(_getImpedances().line, characteristic, _getImpedances().reaches))
        _addZone(zone, zoneColors[color++ % std::size(zoneColors)], bounds);
    _addTrajectory();
    bounds.addMargin();
    ZelView::SeriesGroupDrawArea& area = diagram.getDrawArea();
    area.setXBorders(static_cast<float>(bounds.xMin), static_cast<float>(bounds.xMax));
    area.setYBorders(static_cast<float>(bounds.yMin), static_cast<float>(bounds.yMax));
    area.redrawFragmentable();
}

std::string ZPlanePage::_getRemark() const {
    return words::zonesOf(_getImpedances());
}

void ZPlanePage::_addZone(const impedance::Zone& zone, Zel::Color color, Bounds& bounds) {
    // The name stands above the outline's highest place: there the names of zones that lie in one another
    // are apart.
    impedance::Complex top;
    if (const auto* const disc = std::get_if<impedance::Disc>(&zone.area)) {
        auto circle = std::make_unique<Zel::Circle>();
        circle->x = static_cast<float>(disc->centre.real());
        circle->y = static_cast<float>(disc->centre.imag());
        circle->radius = static_cast<float>(disc->radius);
        circle->color = color;
        diagram.addFigure(std::move(circle));
        top = disc->centre + impedance::Complex(0, disc->radius);
        bounds.include(disc->centre.real() - disc->radius, disc->centre.imag() - disc->radius);
        bounds.include(disc->centre.real() + disc->radius, top.imag());
    } else {
        auto outline = std::make_unique<Zel::PointsSequence>();
        outline->closed = true;
        outline->color = color;
        for (const impedance::Complex& corner : std::get<impedance::Polygon>(zone.area).corners) {
            outline->points.push_back({static_cast<float>(corner.real()), static_cast<float>(corner.imag())});
            bounds.include(corner.real(), corner.imag());
            if (corner.imag() > top.imag())
                top = corner;
        }
        diagram.addFigure(std::move(outline));
    }
    const double distance = captionDistance * std::abs(_getImpedances().line);
    _addCaption(words::zoneName(zone.name), top.real(), top.imag() + distance, color);
}

void ZPlanePage::_addCaption(const std::string& text, double x, double y, Zel::Color color) {
    // The text of a circle begins at its centre and has the opposite colour. One without a size leaves no
    // other mark.
    auto caption = std::make_unique<Zel::Circle>();
    caption->x = static_cast<float>(x);
    caption->y = static_cast<float>(y);
    caption->color = {static_cast<std::uint8_t>(255 - color.r), static_cast<std::uint8_t>(255 - color.g),
                      static_cast<std::uint8_t>(255 - color.b), 255};
    caption->text = text;
    diagram.addFigure(std::move(caption));
}

void ZPlanePage::_addTrajectory() {
    const LoopView& seen = _getView();
    for (const auto& [first, end] : seen.runs) {
        auto path = std::make_unique<Zel::PointsSequence>();
        path->color = trajectoryColor;
        for (std::size_t i = first; i < end; ++i)
            path->points.push_back(
                {static_cast<float>(seen.points[i].r), static_cast<float>(seen.points[i].x)});
        diagram.addFigure(std::move(path));
    }
    if (seen.points.empty())
        return;
    auto present = std::make_unique<Zel::FixedDot>();
    dot = present.get();
    _placeDot();
    diagram.addFigure(std::move(present));
}

void ZPlanePage::_placeDot() {
    const impedance::Point* const point = _getView().at(time);
    dot->color = dotColor;
    if (point) {
        dot->x = static_cast<float>(point->r);
        dot->y = static_cast<float>(point->x);
    } else {
        dot->color.a = 0;
    }
    dot->rangeChanged.emit();
    diagram.getDrawArea().getFragmensDrawArea().queue_draw();
}

} // namespace viewer
