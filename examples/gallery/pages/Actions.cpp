// Actions and buttons. An application listens to the presenter and never to a widget; the pictures of the two
// actions come from the theme.

#include "Pages.h"

#include <ZelCommonView/presentation/ActionPresenter.h>
#include <ZelCommonView/presentation/ButtonPresenter.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtkmm.h>

namespace gallery {

namespace {

class Actions : public Gtk::Box {
public:
    Actions() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        add.signalClicked.connect(sigc::mem_fun(*this, &Actions::_onAdd));
        remove.signalClicked.connect(sigc::mem_fun(*this, &Actions::_onRemove));
        reset.signalClicked.connect(sigc::mem_fun(*this, &Actions::_onReset));
        reset.getView()->setTitle(words("Back to three", "Снова три"));
        reset.getView()->setStyle("suggested-action");

        for (Zel::IPresenter* presenter : std::initializer_list<Zel::IPresenter*>{&add, &remove, &reset})
            buttons.pack_start(*Zel::GtkWidgetHelper::getWidget(presenter->getView()), Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        rows.set_size_request(-1, 200);
        pack_start(rows, Gtk::PACK_SHRINK);
        _onReset();
    }

private:
    void _onAdd() { _show(count + 1); }

    void _onRemove() { _show(std::max(count - 1, 0)); }

    void _onReset() { _show(3); }

    void _show(int number) {
        count = number;
        for (Gtk::Widget* const row : rows.get_children())
            delete row;
        for (int i = 1; i <= count; ++i)
            rows.append(*Gtk::manage(
                new Gtk::Label(words("Channel ", "Канал ") + std::to_string(i), Gtk::ALIGN_START)));
        rows.show_all();
    }

    int count = 0;
    Zel::AddActionPresenter add;
    Zel::RemoveActionPresenter remove;
    Zel::ButtonPresenter reset;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::ListBox rows;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeActionsPage() {
    return std::make_unique<Actions>();
}

} // namespace gallery
