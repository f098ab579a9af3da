#pragma once

#include "ImpedancePage.h"

#include <ZelCommonView/diagrams/Hodograph.h>

#include <gtkmm/checkbutton.h>

#include <cstdint>

namespace viewer {

/// A loop's impedance as it unfolds in time. On demand its choices are locked while the replay runs.
class HodographPage : public ImpedancePage {
public:
    /// The replay stands at another time, in milliseconds from the trajectory's first point.
    sigc::signal<void, std::uint64_t> signalTimeChanged;
    /// The choices were locked or are open again.
    sigc::signal<void, bool> signalLockChanged;

    HodographPage();
    ~HodographPage() override;

    /// Stops the replay at its end, where the whole trajectory is seen.
    void stopAtEnd();

private:
    void _showLoop() override;
    void _onTimeChanged(unsigned long time);
    void _updateLock();

    Gtk::CheckButton lockButton; ///< off at first
    bool isLocked = false;
    ZelView::Hodograph hodograph;
};

} // namespace viewer
