// Items of which at most one is selected, whatever they show and wherever they stand below the manager. With
// autoselect an item that goes away hands the selection to its neighbour.

#include "Pages.h"

#include <ZelCommonView/collections/CollectionBoxView.h>
#include <ZelCommonView/collections/SelectionManagerPresenter.h>
#include <ZelCommonView/collections/SelectionPresenter.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtkmm.h>

#include <list>

namespace gallery {

namespace {

/// What an item shows.
class Content : public Zel::IPresenter {
public:
    explicit Content(const std::string& givenName) : name(givenName) {
        label.set_text(name);
        label.set_xalign(0);
        label.property_margin() = 6;
        view.add(label);
    }

    Zel::IView* getView() override { return &view; }

    const std::string name;

private:
    Zel::IViewWrapper<Gtk::Box> view;
    Gtk::Label label;
};

class Selection : public Gtk::Box {
public:
    Selection() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 12) {
        manager.setContent(&box);
        manager.signalSelectionChanged.connect(sigc::mem_fun(*this, &Selection::_onSelectionChanged));
        for (int i = 0; i < 4; ++i)
            _onAdd();

        addButton.signal_clicked().connect(sigc::mem_fun(*this, &Selection::_onAdd), true);
        hideButton.signal_clicked().connect(sigc::mem_fun(*this, &Selection::_onHide), true);
        showButton.signal_clicked().connect(sigc::mem_fun(*this, &Selection::_onShow), true);
        autoselect.signal_toggled().connect(sigc::mem_fun(*this, &Selection::_onAutoselect), true);
        for (Gtk::Widget* const widget :
             std::initializer_list<Gtk::Widget*>{&addButton, &hideButton, &showButton, &autoselect})
            buttons.pack_start(*widget, Gtk::PACK_SHRINK);
        selected.set_xalign(0);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(*Zel::GtkWidgetHelper::getWidget(manager.getView()), Gtk::PACK_SHRINK);
        pack_start(selected, Gtk::PACK_SHRINK);
        items.front().setIsSelected(true);
    }

private:
    void _onAdd() {
        const std::string name = words("Terminal ", "Терминал ") + std::to_string(items.size() + 1);
        items.emplace_back(nullptr, std::make_unique<Content>(name), false);
        box.addChild(*items.back().getView());
    }

    void _onHide() {
        if (Zel::IPresenter* const item = manager.getSelectedItem())
            Zel::GtkWidgetHelper::getWidget(item->getView())->hide();
    }

    void _onShow() {
        for (Zel::SelectionPresenter& item : items)
            Zel::GtkWidgetHelper::getWidget(item.getView())->show();
    }

    // The presenter's own flag is for the time before there is a view.
    void _onAutoselect() {
        dynamic_cast<Zel::ISelectionManagerView&>(*manager.getView()).setAutoselect(autoselect.get_active());
    }

    void _onSelectionChanged() {
        const auto* const item = dynamic_cast<Zel::SelectionPresenter*>(manager.getSelectedItem());
        selected.set_text(words("Selected: ", "Выбрано: ") +
                          (item ? dynamic_cast<Content&>(*item->getContentPresenter()).name
                                : std::string(words("nothing", "ничего"))));
    }

    std::list<Zel::SelectionPresenter> items;
    Zel::CollectionBoxView box;
    Zel::SelectionManagerPresenter manager;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button addButton{words("Add an item", "Добавить")};
    Gtk::Button hideButton{words("Hide the selected one", "Скрыть выбранный")};
    Gtk::Button showButton{words("Show all", "Показать все")};
    Gtk::CheckButton autoselect{words("always one", "всегда один")};
    Gtk::Label selected;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeSelectionPage() {
    return std::make_unique<Selection>();
}

} // namespace gallery
