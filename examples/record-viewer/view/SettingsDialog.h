#pragma once

#include "SettingsForm.h"

#include <ZelCommonView/windows/ConfirmWindowPresenter.h>

#include <functional>
#include <memory>

namespace viewer {

/// The window of the settings. It doesn't keep the others from being used.
class SettingsDialog : public sigc::trackable {
public:
    /// OK was pressed and all values can be taken; the window closes afterwards.
    sigc::signal<void, const ImpedanceSettings&> signalApplied;

    SettingsDialog();
    ~SettingsDialog();

    /// Opens the window over that of `parent`; one that is open comes to the front as it is.
    void open(Zel::IView* parent, const ImpedanceSettings& settings, const Impedances& impedances);

    /// Closes the window at once without a question; nothing happens if there is none.
    void dismiss();

    /// The window; null while there is none.
    Gtk::Window* getWindow();

private:
    bool _onApply();
    void _onClosed();
    bool _onMapped(GdkEventAny* event);
    bool _onKeyPress(GdkEventKey* event);
    void _makeOkDefault(Gtk::Window& window);

    std::function<bool(Zel::IConfirmWindowView*)> mayClose = [](Zel::IConfirmWindowView*) { return true; };
    std::unique_ptr<SettingsForm> form;                     ///< null while there is no window
    std::unique_ptr<Zel::ConfirmWindowPresenter> presenter; ///< as the form
};

} // namespace viewer
