#include <ZelCommonView/presentation/ActionPresenter.h>

#include <ZelCommonView/common/EmitKept.h>

namespace Zel {

IActionView::~IActionView() = default;

BaseActionView::BaseActionView(const std::string& styleClass) {
    get_style_context()->add_class("ActionView");
    get_style_context()->add_class("readonly-collapsed");
    get_style_context()->add_class(styleClass);
    set_valign(Gtk::ALIGN_CENTER);
    get_style_context()->add_class("recordValueMargin");
    signal_clicked().connect(sigc::mem_fun(*this, &BaseActionView::_onClicked));
    show_all();
}

BaseActionView::~BaseActionView() = default;

void BaseActionView::_onClicked() {
    emitKept(signalClicked);
}

AddActionView::AddActionView() : BaseActionView("ToolAddButtonTransparent") {}

RemoveActionView::RemoveActionView() : BaseActionView("ToolRemoveButtonTransparent") {}

BaseActionPresenter::~BaseActionPresenter() = default;

void BaseActionPresenter::_onViewInited() {
    getView()->signalClicked.connect(sigc::mem_fun(*this, &BaseActionPresenter::_onClicked));
}

void BaseActionPresenter::_onClicked() {
    emitKept(signalClicked);
}

std::unique_ptr<IActionView> AddActionPresenter::_createDefaultView() {
    return std::make_unique<AddActionView>();
}

std::unique_ptr<IActionView> RemoveActionPresenter::_createDefaultView() {
    return std::make_unique<RemoveActionView>();
}

} // namespace Zel
