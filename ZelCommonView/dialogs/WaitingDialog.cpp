#include <ZelCommonView/dialogs/WaitingDialog.h>

#include <ZelCommonView/common/DialogLocalization.h>
#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

namespace Zel {

WaitingDialog::WaitingDialog(IView* parent, const Glib::ustring& title, const Glib::ustring& givenMessage)
    : Gtk::Dialog(title, false), message(givenMessage) {
    if (Gtk::Window* const parentWindow = GtkWidgetHelper::getParentWindow(parent))
        set_transient_for(*parentWindow);
    _compose();
}

WaitingDialog::~WaitingDialog() {
    spinner.stop();
}

void WaitingDialog::setCancelable(bool value) {
    cancelButton.set_no_show_all(!value);
    cancelButton.set_visible(value);
    show_all();
}

void WaitingDialog::set_message(const Glib::ustring& value) {
    message.set_text(value);
}

void WaitingDialog::_compose() {
    get_action_area()->set_spacing(0);
    set_position(Gtk::WIN_POS_CENTER_ON_PARENT);
    set_default_size(400, -1);
    set_deletable(false);

    spinner.set_size_request(128, -1);
    spinner.set_hexpand(false);
    spinner.set_vexpand(false);
    spinner.set_halign(Gtk::ALIGN_CENTER);
    spinner.set_valign(Gtk::ALIGN_CENTER);
    message.set_line_wrap(true);

    row.set_spacing(10);
    row.set_border_width(10);
    row.pack_start(spinner, Gtk::PACK_SHRINK, 0);
    row.pack_end(message, Gtk::PACK_EXPAND_WIDGET, 0);
    column.pack_start(row, Gtk::PACK_EXPAND_WIDGET, 0);
    column.pack_start(cancelButton, Gtk::PACK_SHRINK, 0);

    cancelButton.set_label(DialogLocalization::cancel());
    cancelButton.get_style_context()->add_class("textAreaPadding");
    cancelButton.get_style_context()->add_class("standartContentMargin");
    cancelButton.set_halign(Gtk::ALIGN_END);
    cancelButton.signal_clicked().connect(sigc::mem_fun(*this, &WaitingDialog::_onCancelButtonClicked));
    cancelButton.set_no_show_all(true);

    get_content_area()->pack_start(column, Gtk::PACK_EXPAND_WIDGET, 0);
    show_all_children(true);
    spinner.start();
}

void WaitingDialog::_onCancelButtonClicked() {
    cancelButton.set_label(DialogLocalization::cancelled());
    cancelButton.set_sensitive(false);
    // Last: what hears it may destroy the dialog.
    emitKept(signalCancel);
}

} // namespace Zel
