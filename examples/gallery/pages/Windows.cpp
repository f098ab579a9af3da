// Windows. A presenter has no window until it is shown; after it is closed the same presenter shows it again
// with all it had. Another kind has a title bar of its own, with room for buttons of the application.

#include "Pages.h"

#include <ZelCommonView/windows/Window.h>
#include <ZelCommonView/windows/WindowPresenter.h>

#include <gtkmm.h>

#include <memory>

namespace gallery {

namespace {

/// A label that a presenter can show: a view is any widget that is also an `IView`.
class Note : public Gtk::Label, public Zel::IView {};

class Windows : public Gtk::Box, public Zel::IView {
public:
    Windows() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        note.set_text(words("This label outlives the window in which it is shown.",
                            "Эта надпись переживает окно, в котором показана."));
        presenter.signalOpened.connect(sigc::mem_fun(*this, &Windows::_onOpened));
        presenter.signalClosed.connect(sigc::mem_fun(*this, &Windows::_onClosed));

        openButton.signal_clicked().connect(sigc::mem_fun(*this, &Windows::_onOpen), true);
        barButton.signal_clicked().connect(sigc::mem_fun(*this, &Windows::_onBar), true);
        for (Gtk::Widget* widget : std::initializer_list<Gtk::Widget*>{&openButton, &modal, &barButton})
            buttons.pack_start(*widget, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        hint.set_xalign(0);
        hint.set_line_wrap(true);
        pack_start(hint, Gtk::PACK_SHRINK);
        pack_start(state, Gtk::PACK_SHRINK);
        state.set_xalign(0);
        _onClosed();
    }

private:
    void _onOpen() {
        Zel::IWindowView* const view = presenter.getView();
        view->setTitle(words("A window", "Окно"));
        view->setContentView(&note);
        view->setModal(modal.get_active());
        view->setDefaultSize(460, 160);
        view->show(this); // over the window in which this page stands
    }

    void _onOpened() { state.set_text(words("The window is open.", "Окно открыто.")); }

    void _onClosed() { state.set_text(words("There is no window.", "Окна нет.")); }

    void _onBar() {
        bar = std::make_unique<Zel::Window>();
        bar->set_title(words("A title bar of its own", "Собственный заголовок"));
        bar->set_default_size(520, 240);
        if (auto* const parent = dynamic_cast<Gtk::Window*>(get_toplevel()))
            bar->set_transient_for(*parent);
        bar->set_position(Gtk::WIN_POS_CENTER_ON_PARENT);
        bar->setUserButtons(&pin); // this shows the window, too
    }

    Note note;
    Gtk::ToggleButton pin{words("Pin", "Закрепить")};
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button openButton{words("Open a window", "Открыть окно")};
    Gtk::CheckButton modal{words("modal", "модальное")};
    Gtk::Button barButton{words("Window with a bar of its own", "Окно с собственным заголовком")};
    Gtk::Label hint{words("The first kind is drawn by the window manager, the second draws its own bar.",
                          "Первое рисует менеджер окон, второе само рисует свой заголовок.")};
    Gtk::Label state;
    // Last, so that windows close before what they show is gone.
    Zel::WindowPresenter presenter;
    std::unique_ptr<Zel::Window> bar;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeWindowsPage() {
    return std::make_unique<Windows>();
}

} // namespace gallery
