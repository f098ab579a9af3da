#include <ZelCommonView/containers/ContainerView.h>

namespace Zel {

IContainerView::~IContainerView() = default;

ContainerView::ContainerView() {
    get_style_context()->add_class("ContainerView");
}

ContainerView::~ContainerView() = default;

void ContainerView::addChild(IView* view) {
    removeChild();
    if (auto* const widget = dynamic_cast<Gtk::Widget*>(view))
        add(*widget);
    show_all_children(true);
}

void ContainerView::removeChild() {
    Gtk::Bin::remove();
}

} // namespace Zel
