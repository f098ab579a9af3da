#include <ZelCommonView/containers/ScrollAreaView.h>

namespace Zel {

IScrollAreaView::~IScrollAreaView() = default;

ScrollAreaView::ScrollAreaView() {
    set_policy(Gtk::POLICY_NEVER, Gtk::POLICY_AUTOMATIC);
}

ScrollAreaView::~ScrollAreaView() = default;

void ScrollAreaView::setContent(IView* view) {
    if (auto* const widget = dynamic_cast<Gtk::Widget*>(view))
        add(*widget);
}

} // namespace Zel
