#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/windows/WindowView.h>

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/grid.h>

#include <functional>

namespace Zel {

/// A window with OK and Cancel as its presenter sees it.
class ZEL_API IConfirmWindowView : public virtual IWindowView {
public:
    ~IConfirmWindowView() override;

    /// Whether the two buttons are hidden; the content stays. False at first.
    virtual void setIsReadOnly(bool readOnly) = 0;
    /// Lets the window be closed by other means than its buttons: the function is asked each time, and true
    /// closes the window, unconfirmed. Without a function the window has no close button. The function object
    /// is not copied: it must outlive the view. It is looked at when the window is made, so it has to be
    /// given before `show`.
    virtual void setCloseButtonFunction(std::function<bool(IConfirmWindowView*)>& function) = 0;
    /// Whether the window was ended by OK.
    virtual bool isConfirmed() = 0;

    /// Asks whether OK may close the window. The answer of the last slot counts; without a slot OK does
    /// nothing.
    sigc::signal<bool> signalApply;
};

/// A window with a content and, below it, OK and Cancel in the language that is selected when it is shown.
/// The theme reaches the buttons by the style classes "textAreaPadding" and "dialogButton".
///
/// It is meant to be shown once: how it was ended is never forgotten.
class ZEL_API ConfirmWindowView : public WindowView, public IConfirmWindowView {
public:
    ConfirmWindowView();
    ~ConfirmWindowView() override;

    /// A window that is open already shows the new content at once.
    void setContentView(IView* view) override;
    void setIsReadOnly(bool readOnly) override;
    void setCloseButtonFunction(std::function<bool(IConfirmWindowView*)>& function) override;
    bool isConfirmed() override;
    void close() override;

protected:
    void _onWindowCreated(Gtk::Window* createdWindow) override;

private:
    void _composeButtons();
    bool _onDeleteEvent(GdkEventAny* event);
    void _onApplyButtonClicked();
    void _onCancelButtonClicked();
    void _onEditFinished(bool value);

    bool isFinished = false;                                           ///< a button has decided the window
    bool confirmed = false;                                            ///< the decision was OK
    std::function<bool(IConfirmWindowView*)>* closeFunction = nullptr; ///< not owned
    Gtk::Grid grid;
    WidgetReference<Gtk::Widget> contentWidget; ///< in the grid; not owned
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Button okButton;
    Gtk::Button cancelButton;
};

} // namespace Zel
