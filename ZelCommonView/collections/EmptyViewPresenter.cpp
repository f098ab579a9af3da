#include <ZelCommonView/collections/EmptyViewPresenter.h>

namespace Zel {

IEmptyView::~IEmptyView() = default;

EmptyView::EmptyView() : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL, 0) {
    get_style_context()->add_class("EmptyView");
}

EmptyView::~EmptyView() = default;

EmptyViewPresenter::~EmptyViewPresenter() = default;

std::unique_ptr<IEmptyView> EmptyViewPresenter::_createDefaultView() {
    return std::make_unique<EmptyView>();
}

} // namespace Zel
