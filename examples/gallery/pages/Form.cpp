// A form that one switch locks: its controls go dead, its texts stay. Three style classes make exceptions. A
// row that is added while it is locked comes locked.

#include "Pages.h"

#include <ZelCommonView/containers/ReadOnlySwitchableContainer.h>
#include <ZelCommonView/containers/ReadOnlySwitchableContainerPresenter.h>
#include <ZelCommonView/entries/NumericEntry.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtkmm.h>

#include <list>

namespace gallery {

namespace {

class Form : public Gtk::Box {
public:
    Form() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 12) {
        using Lockable = Zel::ReadOnlySwitchableContainer;
        name.set_text(words("Line 1, terminal A", "Линия 1, терминал А"));
        number.setValueRange({0, 100, 0.1});
        number.setValue(12.5);
        for (const char* const mode : {words("on", "введена"), words("off", "выведена")})
            protection.append(mode);
        protection.set_active(0);
        trip.set_active();
        live.set_halign(Gtk::ALIGN_START);
        live.set_active();
        _add(words("Name", "Название"), name);
        _add(words("Current, A", "Ток, А"), number);
        _add(words("Cycles", "Периоды"), cycles);
        _add(words("Protection", "Защита"), protection);
        _add(words("Live", "В работе"), live);
        _add("", trip);

        second.join_group(first);
        for (Gtk::RadioButton* const button : {&first, &second})
            group.pack_start(*button, Gtk::PACK_SHRINK);
        group.get_style_context()->add_class(Lockable::INTERACTIVE_CLASS);
        _add(words("One control", "Один элемент"), group);
        copy.get_style_context()->add_class(Lockable::EXEMPT_CLASS);
        _add(words("Stays usable", "Остаётся"), copy);
        apply.get_style_context()->add_class(Lockable::COLLAPSED_CLASS);
        _add(words("Goes away", "Исчезает"), apply);

        form.set_row_spacing(6);
        form.set_column_spacing(12);
        presenter.add(&form);
        lock.property_active().signal_changed().connect(sigc::mem_fun(*this, &Form::_onLock));
        addButton.signal_clicked().connect(sigc::mem_fun(*this, &Form::_onAdd), true);
        for (Gtk::Widget* const widget : std::initializer_list<Gtk::Widget*>{&lockName, &lock, &addButton})
            bar.pack_start(*widget, Gtk::PACK_SHRINK);
        lock.set_valign(Gtk::ALIGN_CENTER);
        pack_start(bar, Gtk::PACK_SHRINK);
        pack_start(*Zel::GtkWidgetHelper::getWidget(presenter.getView()), Gtk::PACK_SHRINK);
    }

private:
    void _add(const std::string& caption, Gtk::Widget& control) {
        form.attach(captions.emplace_back(caption, Gtk::ALIGN_START), 0, rows);
        form.attach(control, 1, rows++);
    }

    void _onAdd() {
        Gtk::Entry& added = remarks.emplace_back();
        _add(words("Remark", "Примечание"), added);
        form.show_all_children();
    }

    void _onLock() { presenter.setIsReadOnly(lock.get_active()); }

    int rows = 0;
    std::list<Gtk::Label> captions;
    std::list<Gtk::Entry> remarks;
    Gtk::Entry name;
    Zel::NumericEntry number;
    Gtk::SpinButton cycles{Gtk::Adjustment::create(5, 1, 50), 1, 0};
    Gtk::ComboBoxText protection;
    Gtk::Switch live;
    Gtk::CheckButton trip{words("trips the breaker", "отключает выключатель")};
    Gtk::Box group{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::RadioButton first{words("primary", "первичные")};
    Gtk::RadioButton second{words("secondary", "вторичные")};
    Gtk::Button copy{words("Copy", "Копировать")};
    Gtk::Button apply{words("Apply", "Применить")};
    Zel::IViewWrapper<Gtk::Grid> form;
    Zel::ReadOnlySwitchableContainerPresenter presenter;
    Gtk::Box bar{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Label lockName{words("Read only", "Только чтение")};
    Gtk::Switch lock;
    Gtk::Button addButton{words("Add a row", "Добавить строку")};
};

} // namespace

std::unique_ptr<Gtk::Widget> makeFormPage() {
    return std::make_unique<Form>();
}

} // namespace gallery
