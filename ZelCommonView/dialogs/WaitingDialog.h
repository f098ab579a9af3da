#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/dialog.h>
#include <gtkmm/label.h>
#include <gtkmm/spinner.h>

namespace Zel {

class IView;

/// What the user sees while a long job runs: a spinner, a message and, if the job can be stopped, a cancel
/// button. It has no button to close it. The theme reaches the button by the style classes "textAreaPadding"
/// and "standartContentMargin".
class ZEL_API WaitingDialog : public Gtk::Dialog {
public:
    /// The cancel button was pressed. Emitted at most once for one dialog: from then on the button says that
    /// the job is being cancelled and can't be pressed any more.
    sigc::signal<void> signalCancel;

    /// Stands over the window of `parent`; over none if that is null or in no window. The button is hidden
    /// until `setCancelable`.
    WaitingDialog(IView* parent, const Glib::ustring& title, const Glib::ustring& message);
    ~WaitingDialog() override;

    /// Shows or hides the button. Also shows the dialog itself.
    void setCancelable(bool value);

    /// Replaces the message, which is plain text.
    void set_message(const Glib::ustring& value);

private:
    void _compose();
    void _onCancelButtonClicked();

    Gtk::Spinner spinner;
    Gtk::Label message;
    Gtk::Box row{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Box column{Gtk::ORIENTATION_VERTICAL};
    Gtk::Button cancelButton;
};

} // namespace Zel
