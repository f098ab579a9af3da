#include <ZelCommonView/presentation/ButtonPresenter.h>

#include <ZelCommonView/common/EmitKept.h>

namespace Zel {

IButtonView::~IButtonView() = default;

ButtonView::ButtonView() {
    show_all();
    signal_clicked().connect(sigc::mem_fun(*this, &ButtonView::_onClicked));
}

ButtonView::~ButtonView() = default;

void ButtonView::setTitle(const std::string& title) {
    set_label(title);
}

void ButtonView::setStyle(const std::string& styleClass) {
    get_style_context()->add_class(styleClass);
}

void ButtonView::_onClicked() {
    emitKept(signalClicked);
}

ButtonPresenter::ButtonPresenter() : view(std::make_unique<ButtonView>()) {
    view->signalClicked.connect(sigc::mem_fun(*this, &ButtonPresenter::_onClicked));
}

ButtonPresenter::~ButtonPresenter() = default;

IButtonView* ButtonPresenter::getView() {
    return view.get();
}

void ButtonPresenter::_onClicked() {
    emitKept(signalClicked);
}

} // namespace Zel
