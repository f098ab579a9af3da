#include <ZelCommonView/presentation/ViewPresenter.h>

namespace Zel {

IView::~IView() = default;

IWidget::~IWidget() = default;

Gtk::Widget* IWidget::getIcons() {
    return nullptr;
}

IPresenter::~IPresenter() = default;

} // namespace Zel
