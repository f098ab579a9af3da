#include <ZelCommonView/containers/SensitiveHidingPanel.h>

namespace Zel {

SensitiveHidingPanel::SensitiveHidingPanel() {
    set_border_width(0);
    signal_state_flags_changed().connect(sigc::mem_fun(*this, &SensitiveHidingPanel::_onStateFlagChanged));
    lastSensitivity = is_sensitive();
}

SensitiveHidingPanel::~SensitiveHidingPanel() = default;

void SensitiveHidingPanel::_onStateFlagChanged(Gtk::StateFlags) {
    const bool isSensitive = is_sensitive();
    if (isSensitive == lastSensitivity)
        return;
    lastSensitivity = isSensitive;
    if (isSensitive) {
        set_no_show_all(false);
        show_all();
    } else {
        set_no_show_all(true);
        hide();
    }
}

} // namespace Zel
