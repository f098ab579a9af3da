#include "SettingsDialog.h"

#include "SettingsWords.h"

#include <ZelCommonView/common/DialogLocalization.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gdk/gdkkeysyms.h>

#include <vector>

namespace viewer {

SettingsDialog::SettingsDialog() = default;

SettingsDialog::~SettingsDialog() {
    dismiss();
}

void SettingsDialog::open(Zel::IView* parent, const ImpedanceSettings& settings,
                          const Impedances& impedances) {
    if (Gtk::Window* const window = getWindow()) {
        window->present();
        return;
    }
    form = std::make_unique<SettingsForm>(settings, impedances);
    // A new one each time: how it was ended is never forgotten.
    presenter = std::make_unique<Zel::ConfirmWindowPresenter>();
    presenter->signalApply.connect(sigc::mem_fun(*this, &SettingsDialog::_onApply));
    presenter->signalClosed.connect(sigc::mem_fun(*this, &SettingsDialog::_onClosed));
    Zel::IConfirmWindowView* const view = presenter->getView();
    view->setTitle(words::settingsTitle());
    view->setContentView(form.get());
    // Without such a function the window has no close button.
    view->setCloseButtonFunction(mayClose);
    view->show(parent);
    Gtk::Window& window = *getWindow();
    window.signal_map_event().connect(sigc::mem_fun(*this, &SettingsDialog::_onMapped), true);
    window.set_resizable(false);
    window.signal_key_press_event().connect(sigc::mem_fun(*this, &SettingsDialog::_onKeyPress), false);
    _makeOkDefault(window);
}

void SettingsDialog::dismiss() {
    // The window goes with its view, and only then what it shows.
    presenter.reset();
    form.reset();
}

Gtk::Window* SettingsDialog::getWindow() {
    return presenter ? dynamic_cast<Gtk::Window*>(presenter->getView()->getWindowObject()) : nullptr;
}

bool SettingsDialog::_onApply() {
    const std::optional<ImpedanceSettings> taken = form->take();
    if (taken)
        signalApplied.emit(*taken);
    return taken.has_value();
}

void SettingsDialog::_onClosed() {
    dismiss();
}

bool SettingsDialog::_onMapped(GdkEventAny*) {
    // Some window managers leave the keys with the window from which one of this kind was opened.
    getWindow()->present();
    return false;
}

bool SettingsDialog::_onKeyPress(GdkEventKey* event) {
    if (event->keyval != GDK_KEY_Escape)
        return false;
    presenter->getView()->close();
    return true;
}

void SettingsDialog::_makeOkDefault(Gtk::Window& window) {
    std::vector<Gtk::Button*> buttons;
    Zel::GtkWidgetHelper::findChildrens<Gtk::Button>(&window, buttons);
    for (Gtk::Button* const button : buttons)
        if (button->get_label() == Zel::DialogLocalization::ok()) {
            button->set_can_default(true);
            button->grab_default();
        }
}

} // namespace viewer
