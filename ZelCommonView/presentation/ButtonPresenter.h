/// Push buttons.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/button.h>
#include <sigc++/signal.h>

#include <string>

namespace Zel {

/// A button as its presenter sees it.
class ZEL_API IButtonView : public IView {
public:
    ~IButtonView() override;

    /// Sets the text on the button, UTF-8.
    virtual void setTitle(const std::string& title) = 0;
    /// Adds a style class. None is ever removed: those of successive calls stand together.
    virtual void setStyle(const std::string& styleClass) = 0;

    /// The button was pressed, by the pointer or by the keyboard.
    sigc::signal<void> signalClicked;
};

/// A push button, shown and without a text at first.
class ZEL_API ButtonView : public IButtonView, public Gtk::Button {
public:
    ButtonView();
    ~ButtonView() override;

    void setTitle(const std::string& title) override;
    void setStyle(const std::string& styleClass) override;

private:
    void _onClicked();
};

/// A push button that an application listens to without knowing the widget.
class ZEL_API ButtonPresenter : public IPresenter {
public:
    /// The button was pressed. Emitted on the GTK thread.
    sigc::signal<void> signalClicked;

    /// Makes the `ButtonView`.
    ButtonPresenter();
    /// Deletes the view.
    ~ButtonPresenter() override;

    IButtonView* getView() override;

private:
    void _onClicked();

    std::unique_ptr<IButtonView> view;
};

} // namespace Zel
