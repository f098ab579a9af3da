// Contents that open below their labels, checks that may be unknown, and names of one width wherever they
// stand.

#include "Pages.h"

#include <ZelCommonView/containers/Decorator.h>
#include <ZelCommonView/containers/ExtendedCheckView.h>
#include <ZelCommonView/containers/ExtendedExpander.h>
#include <ZelCommonView/containers/SharedSizeGroup.h>

#include <gtkmm.h>

#include <list>

namespace gallery {

namespace {

/// A name, as wide as all others, and a check beside it.
struct Line : Gtk::Box {
    Line(const std::string& text, const Zel::Nullable<bool>& value)
        : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL, 12), name(text, Gtk::ALIGN_START) {
        cell.add(name);
        check.setIsEvaluated(value);
        pack_start(cell, Gtk::PACK_SHRINK);
        pack_start(check, Gtk::PACK_SHRINK);
    }

    Gtk::Label name;
    Zel::SharedSizeGroup cell{"names"};
    Zel::ExtendedCheckView check;
};

/// An expander whose content are such lines.
struct Group : Gtk::Box {
    explicit Group(const std::string& text) : title(text, Gtk::ALIGN_START) {
        expander.set_label_widget(title);
        expander.set_hexpand(true);
        add(expander);
    }

    void addLine(const std::string& text, const Zel::Nullable<bool>& value) {
        content.add(lines.emplace_back(text, value));
        if (lines.size() == 1)
            expander.add(content);
    }

    std::list<Line> lines;
    Gtk::Box content{Gtk::ORIENTATION_VERTICAL, 6};
    Gtk::Label title;
    Zel::ExtendedExpander expander{false};
};

class Expander : public Gtk::Box {
public:
    Expander() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 12) {
        inputs.addLine(words("Breaker closed", "Выключатель включён"), true);
        inputs.addLine(words("Lockout", "Запрет"), false);
        outputs.addLine(words("Trip", "Отключение"), {});
        outputs.addLine(words("Signal of a faulty voltage circuit", "Сигнал неисправности цепей напряжения"),
                        false);
        for (Group* const group : {&inputs, &outputs})
            group->expander.set_expanded(true);
        for (Gtk::Widget* const group : std::initializer_list<Gtk::Widget*>{&inputs, &outputs, &empty})
            groups.pack_start(*group, Gtk::PACK_SHRINK);
        owner.add(groups);
        decorator.add(owner);

        for (const char* const state :
             {words("yes", "да"), words("no", "нет"), words("not known", "неизвестно")})
            states.append(state);
        states.set_active(0);
        states.signal_changed().connect(sigc::mem_fun(*this, &Expander::_onState), true);
        arrow.signal_toggled().connect(sigc::mem_fun(*this, &Expander::_onArrow), true);
        bar.pack_start(stateName, Gtk::PACK_SHRINK);
        bar.pack_start(states, Gtk::PACK_SHRINK);
        bar.pack_start(arrow, Gtk::PACK_SHRINK);
        pack_start(bar, Gtk::PACK_SHRINK);
        pack_start(decorator, Gtk::PACK_SHRINK);
    }

private:
    void _onState() {
        const int state = states.get_active_row_number();
        inputs.lines.front().check.setIsEvaluated(state == 2 ? Zel::Nullable<bool>() : state == 0);
    }

    void _onArrow() { empty.expander.showArrow(arrow.get_active()); }

    Group inputs{words("Inputs", "Входы")};
    Group outputs{words("Outputs", "Выходы")};
    Group empty{words("Without a content", "Без содержимого")};
    Gtk::Box groups{Gtk::ORIENTATION_VERTICAL, 6};
    Zel::SharedSizeGroupOwner owner;
    Zel::Decorator decorator;
    Gtk::Box bar{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Label stateName{words("The first check:", "Первый флажок:")};
    Gtk::ComboBoxText states;
    Gtk::CheckButton arrow{words("arrow without a content", "стрелка без содержимого")};
};

} // namespace

std::unique_ptr<Gtk::Widget> makeExpanderPage() {
    return std::make_unique<Expander>();
}

} // namespace gallery
