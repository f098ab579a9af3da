#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/windows/Positions.h>

#include <gtkmm/box.h>

namespace Zel {

/// Shades the part of a panel that a dropped one would take. Hidden at rest, and never shown by the
/// `show_all` of what it lies in. The theme colours it by the style class "demoboxPanel".
class ZEL_API DemoBoxView : public Gtk::Box {
public:
    DemoBoxView();
    ~DemoBoxView() override;

    /// Shades the half at that side, the whole for `Center` and nothing for `Default`, and shows or hides the
    /// box.
    void set(Positions position, bool visible);

    /// Gives the two halves their opacities, 0 to 1, and lays them side by side or one above the other.
    void setPanelParams(double firstOpacity, double secondOpacity, Gtk::Orientation orientation);
    /// Shades the whole with an opacity, 0 to 1.
    void setPanelParams(double opacity);

private:
    Gtk::Box first{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Box second{Gtk::ORIENTATION_HORIZONTAL};
};

} // namespace Zel
