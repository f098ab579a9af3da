#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/bin.h>

namespace Zel {

/// Vanishes with its child when it becomes insensitive, by itself or through what it lies in, and comes back
/// when it becomes sensitive again. While it is gone no `show_all` of what it lies in brings it back.
class ZEL_API SensitiveHidingPanel : public Gtk::Bin {
public:
    SensitiveHidingPanel();
    ~SensitiveHidingPanel() override;

private:
    void _onStateFlagChanged(Gtk::StateFlags previous);

    bool lastSensitivity; ///< what it was when it was looked at last
};

} // namespace Zel
