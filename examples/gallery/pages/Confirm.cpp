// A window with OK and Cancel. The application is asked before OK closes it and may refuse; here OK needs a
// number from 1 to 10.

#include "Pages.h"

#include <ZelCommonView/windows/ConfirmWindowPresenter.h>

#include <gtkmm.h>

#include <cstdlib>
#include <memory>

namespace gallery {

namespace {

class Setting : public Gtk::Box, public Zel::IView {
public:
    Setting() : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL, 8) {
        property_margin() = 12;
        set_hexpand(true);
        set_vexpand(true);
        entry.set_valign(Gtk::ALIGN_CENTER);
        pack_start(caption, Gtk::PACK_SHRINK);
        pack_start(entry, Gtk::PACK_EXPAND_WIDGET);
    }

    bool isValid() const {
        const int value = std::atoi(entry.get_text().c_str());
        return value >= 1 && value <= 10;
    }

    Gtk::Label caption{words("A number from 1 to 10", "Число от 1 до 10")};
    Gtk::Entry entry;
};

class Confirm : public Gtk::Box, public Zel::IView {
public:
    Confirm() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        button.signal_clicked().connect(sigc::mem_fun(*this, &Confirm::_onAsk), true);
        buttons.pack_start(button, Gtk::PACK_SHRINK);
        buttons.pack_start(readOnly, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        hint.set_xalign(0);
        hint.set_line_wrap(true);
        pack_start(hint, Gtk::PACK_SHRINK);
        result.set_xalign(0);
        result.set_text(words("Nothing was asked yet.", "Ещё ничего не спрошено."));
        pack_start(result, Gtk::PACK_SHRINK);
    }

private:
    void _onAsk() {
        // Each question has a presenter of its own: how it was ended is never forgotten.
        presenter = std::make_unique<Zel::ConfirmWindowPresenter>();
        presenter->signalApply.connect(sigc::mem_fun(*this, &Confirm::_mayClose));
        presenter->signalClosed.connect(sigc::mem_fun(*this, &Confirm::_onClosed));
        Zel::IConfirmWindowView* const view = presenter->getView();
        // Without such a function the window has no close button.
        view->setCloseButtonFunction(closeFunction);
        view->setTitle(words("Setting", "Настройка"));
        view->setContentView(&setting);
        view->setModal(true);
        view->setDefaultSize(420, 120);
        presenter->setIsReadOnly(readOnly.get_active());
        view->show(this);
    }

    bool _mayClose() {
        if (!setting.isValid())
            result.set_text(words("OK was refused.", "«OK» отклонено."));
        return setting.isValid();
    }

    void _onClosed() {
        result.set_text(presenter->isConfirmed()
                            ? words("Confirmed: ", "Подтверждено: ") + setting.entry.get_text()
                            : Glib::ustring(words("Cancelled.", "Отменено.")));
    }

    std::function<bool(Zel::IConfirmWindowView*)> closeFunction = [](Zel::IConfirmWindowView*) {
        return true;
    };
    Setting setting;
    std::unique_ptr<Zel::ConfirmWindowPresenter> presenter;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button button{words("Ask", "Спросить")};
    Gtk::CheckButton readOnly{words("for reading only", "только чтение")};
    Gtk::Label hint{words("OK closes the window only if the number is in its range; Cancel always does.",
                          "«OK» закрывает окно, только если число в пределах, «Отмена» — всегда.")};
    Gtk::Label result;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeConfirmPage() {
    return std::make_unique<Confirm>();
}

} // namespace gallery
