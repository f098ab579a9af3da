// Small holders: a result with its explanation, a spinner, a place whose view changes, a panel that goes with
// its sensitivity, an area that scrolls.

#include "Pages.h"

#include <ZelCommonView/collections/EmptyViewPresenter.h>
#include <ZelCommonView/containers/ContainerView.h>
#include <ZelCommonView/containers/RefreshSpinner.h>
#include <ZelCommonView/containers/ResultStateView.h>
#include <ZelCommonView/containers/ScrollAreaPresenter.h>
#include <ZelCommonView/containers/SensitiveHidingPanel.h>
#include <ZelCommonView/containers/SwitchableContainer.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtkmm.h>

namespace gallery {

namespace {

class Containers : public Gtk::Grid {
public:
    Containers() {
        for (const char* const state : {words("not known", "неизвестно"), words("error", "ошибка"), "OK"})
            states.append(state);
        states.signal_changed().connect(sigc::mem_fun(*this, &Containers::_onState), true);
        states.set_active(1);
        turn.signal_toggled().connect(sigc::mem_fun(*this, &Containers::_onTurn), true);
        spinner.set_size_request(48, 48);
        spinner.set_vexpand(false);
        filled.signal_toggled().connect(sigc::mem_fun(*this, &Containers::_onFilled), true);
        textLabel.property_margin() = 6;
        text.add(textLabel);
        filled.set_active();
        sensitive.set_active();
        sensitive.signal_toggled().connect(sigc::mem_fun(*this, &Containers::_onSensitive), true);
        panel.add(panelLabel);
        holder.addChild(&list);
        for (int i = 1; i <= 30; ++i)
            list.append(*Gtk::make_managed<Gtk::Label>(words("Record ", "Запись ") + std::to_string(i),
                                                       Gtk::ALIGN_START));
        scrollArea.setContent(&holder);

        set_row_spacing(12);
        set_column_spacing(16);
        Gtk::Widget& area = *Zel::GtkWidgetHelper::getWidget(scrollArea.getView());
        area.set_vexpand();
        area.set_size_request(-1, 160);
        _attach(0, states, result);
        _attach(1, turn, spinner);
        _attach(2, filled, place);
        _attach(3, sensitive, panel);
        _attach(4, scrollName, area);
        show_all_children();
    }

private:
    void _attach(int row, Gtk::Widget& control, Gtk::Widget& shown) {
        control.set_valign(Gtk::ALIGN_CENTER);
        shown.set_hexpand();
        attach(control, 0, row);
        attach(shown, 1, row);
    }

    void _onState() {
        const int state = states.get_active_row_number();
        result.setIsValid(state == 0 ? Zel::Nullable<bool>() : state == 2);
        result.setText(states.get_active_text());
        // Only an error has something to explain, behind the mark at the end of the row.
        result.setExtendedText(state == 1 ? words("The terminal doesn't answer", "Терминал не отвечает")
                                          : "");
    }

    void _onTurn() { turn.get_active() ? spinner.start_animation() : spinner.stop_animation(); }

    void _onFilled() {
        if (filled.get_active())
            place.setContent(&text);
        else
            place.setContent(nothing.getView());
    }

    void _onSensitive() { panel.set_sensitive(sensitive.get_active()); }

    Gtk::ComboBoxText states;
    Zel::ResultStateView result;
    Gtk::ToggleButton turn{words("Turn", "Вращать")};
    Zel::RefreshSpinner spinner;
    Gtk::CheckButton filled{words("with a view", "с представлением")};
    Zel::IViewWrapper<Gtk::Box> text;
    Gtk::Label textLabel{words("The view of a presenter", "Представление")};
    Zel::EmptyViewPresenter nothing;
    Zel::SwitchableContainer place;
    Gtk::CheckButton sensitive{words("sensitive", "доступна")};
    Zel::SensitiveHidingPanel panel;
    Gtk::Label panelLabel{words("Here as long as it is sensitive", "Здесь, пока доступна")};
    Gtk::Label scrollName{words("Up and down", "Вверх и вниз")};
    Zel::IViewWrapper<Gtk::ListBox> list;
    Zel::ContainerView holder;
    Zel::ScrollAreaPresenter scrollArea;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeContainersPage() {
    return std::make_unique<Containers>();
}

} // namespace gallery
