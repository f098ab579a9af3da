/// Questions to the user.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <memory>
#include <string>

namespace Glib {
class ustring;
}

namespace Gtk {
class Dialog;
}

namespace Zel {

/// The buttons of a message dialog, joined by `|`, and the one that was pressed. 0 means no button: as a
/// result, that the dialog was closed by other means.
enum class DialogResult : int {
    Yes = 2,     ///< "Yes" or "Да"
    No = 4,      ///< "No" or "Нет"
    Apply = 8,   ///< "Apply" or "Применить"
    Ok = 16,     ///< "OK"
    Cancel = 32, ///< "Cancel" or "Отмена"
};

/// The buttons of both.
constexpr DialogResult operator|(DialogResult left, DialogResult right) {
    return static_cast<DialogResult>(static_cast<int>(left) | static_cast<int>(right));
}

/// The buttons that are in both; 0 for none.
constexpr DialogResult operator&(DialogResult left, DialogResult right) {
    return static_cast<DialogResult>(static_cast<int>(left) & static_cast<int>(right));
}

/// What asks the user.
class ZEL_API IDialogView : public IView {
public:
    ~IDialogView() override;

    /// Shows the message with the buttons and returns the one that was pressed.
    virtual DialogResult show(IView* parent, const std::string& message, const std::string& title,
                              DialogResult buttons) = 0;
};

/// A message dialog. Its buttons stand in the order of `DialogResult`, with words in the language that is
/// selected when it is shown; the message is plain text. The theme reaches it by the style classes
/// "DialogView", "DialogMessage" and "dialogButton".
class ZEL_API DialogView : public IDialogView {
public:
    ~DialogView() override;

    /// May be called from any thread: the dialog itself runs on the GTK thread, in a main loop of its own,
    /// and the caller is blocked until the user has answered. It stands centred over the window of `parent`,
    /// or on the screen if `parent` is null or in no window. Without a button only the window's close ends
    /// it.
    DialogResult show(IView* parent, const std::string& message, const std::string& title,
                      DialogResult buttons) override;

private:
    static std::unique_ptr<Gtk::Dialog> _createDialog(IView* parent, const std::string& message,
                                                      const std::string& title, DialogResult buttons);
    static void _addDialogButtons(Gtk::Dialog& dialog, DialogResult buttons);
    static void _addDialogButton(Gtk::Dialog& dialog, const Glib::ustring& word, int response);
    static DialogResult _convertResults(int response);
};

/// Message dialogs for whoever keeps no view.
class ZEL_API DialogPresenter {
public:
    /// See `DialogView::show`.
    static DialogResult show(IView* parent, const std::string& message, const std::string& title,
                             DialogResult buttons);
};

} // namespace Zel
