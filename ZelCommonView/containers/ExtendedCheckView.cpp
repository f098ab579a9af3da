#include <ZelCommonView/containers/ExtendedCheckView.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/LifeWatch.h>

namespace Zel {

IExtendedCheckView::~IExtendedCheckView() = default;

sigc::signal<void, bool>& IExtendedCheckView::signalToggled() {
    return toggled;
}

ExtendedCheckView::ExtendedCheckView() {
    get_style_context()->add_class("ExtendedCheckView");
    checkButton.set_halign(Gtk::ALIGN_CENTER);
    checkButton.signal_toggled().connect(sigc::mem_fun(*this, &ExtendedCheckView::_onSignalToggled));
    add(checkButton);
}

ExtendedCheckView::~ExtendedCheckView() = default;

void ExtendedCheckView::setIsEvaluated(Nullable<bool> value) {
    const LifeWatch life(*this);
    // A listener may delete the view, and Gtk still needs the check then.
    void* const kept = g_object_ref(checkButton.gobj());
    checkButton.set_active(value.hasValue && value.value);
    if (life)
        checkButton.set_inconsistent(!value.hasValue);
    g_object_unref(kept);
}

void ExtendedCheckView::_onSignalToggled() {
    emitKept(signalToggled(), checkButton.get_active());
}

} // namespace Zel
