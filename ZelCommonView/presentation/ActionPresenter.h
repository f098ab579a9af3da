/// Small tool buttons that add or remove something.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/button.h>
#include <sigc++/signal.h>

#include <string>

namespace Zel {

/// What a person presses for an action.
class ZEL_API IActionView : public IView {
public:
    ~IActionView() override;

    /// The button was pressed, by the pointer or by the keyboard.
    sigc::signal<void> signalClicked;
};

/// A tool button that disappears from a form which is switched to reading only: it carries the style class
/// "readonly-collapsed", beside "ActionView" and "recordValueMargin". Its picture comes from the theme.
class ZEL_API BaseActionView : public Gtk::Button, public IActionView {
public:
    /// `styleClass` is added to those that every action has.
    explicit BaseActionView(const std::string& styleClass);
    ~BaseActionView() override;

private:
    void _onClicked();
};

/// The button that adds, of the style class "ToolAddButtonTransparent".
class ZEL_API AddActionView : public BaseActionView {
public:
    AddActionView();
};

/// The button that removes, of the style class "ToolRemoveButtonTransparent".
class ZEL_API RemoveActionView : public BaseActionView {
public:
    RemoveActionView();
};

/// An action that an application puts where it needs one. Its button is made by the first `getView`; before
/// that one can already listen to it.
class ZEL_API BaseActionPresenter : public PresenterBase<IActionView> {
public:
    /// The button was pressed. Emitted on the GTK thread.
    sigc::signal<void> signalClicked;

    ~BaseActionPresenter() override;

protected:
    void _onViewInited() override;

private:
    void _onClicked();
};

/// Adds something: an `AddActionView`.
class ZEL_API AddActionPresenter : public BaseActionPresenter {
protected:
    std::unique_ptr<IActionView> _createDefaultView() override;
};

/// Removes something: a `RemoveActionView`.
class ZEL_API RemoveActionPresenter : public BaseActionPresenter {
protected:
    std::unique_ptr<IActionView> _createDefaultView() override;
};

} // namespace Zel
