#pragma once

#include "ImpedancePage.h"

#include <ZelCommonView/diagrams/ZDiagram.h>

#include <cstdint>
#include <limits>
#include <string>

namespace viewer {

/// A loop's impedance beside the zones of a distance relay.
class ZPlanePage : public ImpedancePage {
public:
    ZPlanePage();
    ~ZPlanePage() override;

    /// Moves the dot to where the impedance is at a time, in milliseconds from the trajectory's first point;
    /// initially at its end. Before the first point that is shown there is no dot.
    void showTime(std::uint64_t value);

private:
    void _onShapesChanged();
    void _showLoop() override;
    std::string _getRemark() const override;
    void _addZone(const impedance::Zone& zone, Zel::Color color, Bounds& bounds);
    void _addCaption(const std::string& text, double x, double y, Zel::Color color);
    void _addTrajectory();
    void _placeDot();

    std::uint64_t time = std::numeric_limits<std::uint64_t>::max() / 2;
    Zel::FixedDot* dot = nullptr; ///< the diagram's
    Gtk::Label shapesLabel;
    Gtk::ComboBoxText shapes;
    ZelView::ZDiagram diagram;
};

} // namespace viewer
