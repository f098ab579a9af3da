#include <ZelCommonView/windows/ConfirmWindowView.h>

#include <ZelCommonView/common/DialogLocalization.h>
#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/LifeWatch.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

namespace Zel {

namespace {

constexpr int buttonSpacing = 5; // pixels
constexpr int buttonsMargin = 5; // pixels

} // namespace

IConfirmWindowView::~IConfirmWindowView() = default;

ConfirmWindowView::ConfirmWindowView() = default;

ConfirmWindowView::~ConfirmWindowView() = default;

void ConfirmWindowView::setContentView(IView* view) {
    if (contentWidget)
        grid.remove(*contentWidget);
    contentWidget = GtkWidgetHelper::getWidget(view);
    if (contentWidget)
        grid.attach(*contentWidget, 0, 0, 1, 1);
    // Past setContentWidget: the grid reaches the window when it is shown.
    content = &grid;
}

void ConfirmWindowView::setIsReadOnly(bool readOnly) {
    buttons.set_no_show_all(readOnly);
    buttons.set_visible(!readOnly);
}

void ConfirmWindowView::setCloseButtonFunction(std::function<bool(IConfirmWindowView*)>& function) {
    closeFunction = &function;
}

bool ConfirmWindowView::isConfirmed() {
    return confirmed;
}

void ConfirmWindowView::close() {
    WindowView::close();
}

void ConfirmWindowView::_onWindowCreated(Gtk::Window* createdWindow) {
    if (closeFunction)
        createdWindow->signal_delete_event().connect(sigc::mem_fun(*this, &ConfirmWindowView::_onDeleteEvent),
                                                     true);
    else
        createdWindow->set_deletable(false);
    grid.set_hexpand(true);
    grid.set_vexpand(true);
    okButton.set_label(DialogLocalization::ok());
    cancelButton.set_label(DialogLocalization::cancel());
    // Once only, or a window that is shown again would hear each click twice.
    if (!buttons.get_parent())
        _composeButtons();
}

void ConfirmWindowView::_composeButtons() {
    buttons.set_halign(Gtk::ALIGN_END);
    buttons.set_homogeneous(true);
    buttons.set_spacing(buttonSpacing);
    buttons.property_margin() = buttonsMargin;
    for (Gtk::Button* const button : {&okButton, &cancelButton}) {
        button->get_style_context()->add_class("textAreaPadding");
        button->get_style_context()->add_class("dialogButton");
        buttons.add(*button);
        // By itself: the window shows nothing inside a box that is hidden for reading only, and later only
        // the box is shown again.
        button->show();
    }
    okButton.signal_clicked().connect(sigc::mem_fun(*this, &ConfirmWindowView::_onApplyButtonClicked));
    cancelButton.signal_clicked().connect(sigc::mem_fun(*this, &ConfirmWindowView::_onCancelButtonClicked));
    grid.attach(buttons, 0, 1, 1, 1);
}

bool ConfirmWindowView::_onDeleteEvent(GdkEventAny*) {
    if (isFinished)
        return false;
    return !(*closeFunction)(this);
}

void ConfirmWindowView::_onApplyButtonClicked() {
    if (signalApply.empty())
        return;
    const LifeWatch life(*this);
    if (emitKept(signalApply) && life)
        _onEditFinished(true);
}

void ConfirmWindowView::_onCancelButtonClicked() {
    _onEditFinished(false);
}

void ConfirmWindowView::_onEditFinished(bool value) {
    isFinished = true;
    confirmed = value;
    WindowView::close();
}

} // namespace Zel
