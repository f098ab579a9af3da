#include <ZelCommonView/dialogs/DialogPresenter.h>

#include <ZelCommonView/common/DialogLocalization.h>
#include <ZelCommonView/presentation/ApplicationDispatcher.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/dialog.h>
#include <gtkmm/label.h>

namespace Zel {

IDialogView::~IDialogView() = default;

DialogView::~DialogView() = default;

DialogResult DialogView::show(IView* parent, const std::string& message, const std::string& title,
                              DialogResult buttons) {
    int response = Gtk::RESPONSE_NONE;
    ApplicationDispatcher::getInstance().invoke([parent, message, title, buttons, &response] {
        const std::unique_ptr<Gtk::Dialog> dialog = _createDialog(parent, message, title, buttons);
        response = dialog->run();
    });
    return _convertResults(response);
}

std::unique_ptr<Gtk::Dialog> DialogView::_createDialog(IView* parent, const std::string& message,
                                                       const std::string& title, DialogResult buttons) {
    std::unique_ptr<Gtk::Dialog> dialog;
    if (Gtk::Window* const parentWindow = GtkWidgetHelper::getParentWindow(parent)) {
        dialog = std::make_unique<Gtk::Dialog>(title, *parentWindow, false);
        dialog->set_position(Gtk::WIN_POS_CENTER_ON_PARENT);
    } else {
        dialog = std::make_unique<Gtk::Dialog>(title, false);
        dialog->set_position(Gtk::WIN_POS_CENTER);
    }
    dialog->get_style_context()->add_class("DialogView");
    dialog->set_type_hint(Gdk::WINDOW_TYPE_HINT_UTILITY);
    dialog->set_resizable(false);
    _addDialogButtons(*dialog, buttons);

    auto* const label = Gtk::make_managed<Gtk::Label>(message, false);
    label->get_style_context()->add_class("DialogMessage");
    label->set_line_wrap(true);
    label->set_line_wrap_mode(Pango::WRAP_WORD);
    label->set_max_width_chars(60);
    dialog->get_content_area()->pack_start(*label, Gtk::PACK_EXPAND_PADDING, 0);
    dialog->show_all();
    return dialog;
}

void DialogView::_addDialogButtons(Gtk::Dialog& dialog, DialogResult buttons) {
    const auto add = [&](DialogResult flag, const char* word, int response) {
        if ((buttons & flag) == flag)
            _addDialogButton(dialog, word, response);
    };
    add(DialogResult::Yes, DialogLocalization::yes(), Gtk::RESPONSE_YES);
    add(DialogResult::No, DialogLocalization::no(), Gtk::RESPONSE_NO);
    add(DialogResult::Apply, DialogLocalization::apply(), Gtk::RESPONSE_APPLY);
    add(DialogResult::Ok, DialogLocalization::ok(), Gtk::RESPONSE_OK);
    add(DialogResult::Cancel, DialogLocalization::cancel(), Gtk::RESPONSE_CANCEL);
}

void DialogView::_addDialogButton(Gtk::Dialog& dialog, const Glib::ustring& word, int response) {
    dialog.add_button(word, response)->get_style_context()->add_class("dialogButton");
}

DialogResult DialogView::_convertResults(int response) {
    constexpr int first = Gtk::RESPONSE_APPLY;
    constexpr int last = Gtk::RESPONSE_OK;
    static constexpr DialogResult results[] = {
        DialogResult::Apply,  // -10
        DialogResult::No,     // -9
        DialogResult::Yes,    // -8
        DialogResult{},       // -7, the close button, which no dialog here has
        DialogResult::Cancel, // -6
        DialogResult::Ok,     // -5
    };
    if (response < first || response > last)
        return DialogResult{};
    return results[response - first];
}

DialogResult DialogPresenter::show(IView* parent, const std::string& message, const std::string& title,
                                   DialogResult buttons) {
    DialogView view;
    return view.show(parent, message, title, buttons);
}

} // namespace Zel
