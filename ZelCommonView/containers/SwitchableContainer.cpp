#include <ZelCommonView/containers/SwitchableContainer.h>

namespace Zel {

ISwitchableContainer::~ISwitchableContainer() = default;

SwitchableContainer::SwitchableContainer() {
    get_style_context()->add_class("empty");
    show();
}

SwitchableContainer::~SwitchableContainer() = default;

void SwitchableContainer::setContent(IView* view) {
    Gtk::Bin::remove();
    auto* const widget = dynamic_cast<Gtk::Widget*>(view);
    if (!widget)
        return;
    add(*widget);
    widget->show_all();
}

} // namespace Zel
