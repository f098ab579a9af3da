#include <ZelCommonView/windows/WindwView.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/windows/PanelView.h>

namespace Zel {

WindwView::WindwView() {
    signal_delete_event().connect_notify(sigc::mem_fun(*this, &WindwView::_onClose), false);
}

WindwView::~WindwView() = default;

void WindwView::setView(PanelView* panel) {
    Gtk::Container& container = *this;
    container.add(*panel);
}

void WindwView::_onClose(GdkEventAny* event) {
    if (event->type != GDK_DELETE)
        return;
    if (auto* const panel = dynamic_cast<PanelView*>(get_child()))
        emitKept(signalClose, panel);
}

} // namespace Zel
