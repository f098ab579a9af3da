#pragma once

#include "ImpedancePage.h"

#include <ZelCommonView/diagrams/Hodograph.h>

#include <cstdint>

namespace viewer {

/// A loop's impedance as it unfolds in time.
class HodographPage : public ImpedancePage {
public:
    /// The replay stands at another time, in milliseconds from the trajectory's first point.
    sigc::signal<void, std::uint64_t> signalTimeChanged;

    HodographPage();
    ~HodographPage() override;

    /// Stops the replay at its end, where the whole trajectory is seen.
    void stopAtEnd();

private:
    void _showLoop() override;
    void _onTimeChanged(unsigned long time);

    ZelView::Hodograph hodograph;
};

} // namespace viewer
