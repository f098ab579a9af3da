// Panels. Drag one by its content onto another: to a side, or to the middle for tabs. The buttons in the
// title send it to a window of its own and close it. Children stay the application's.

#include "Pages.h"

#include <ZelCommonView/windows/PanelManagerPresenter.h>

#include <gtkmm.h>

#include <list>

namespace gallery {

namespace {

/// What a panel shows; it puts a button into the title bar, too.
class Content : public Gtk::Label, public Zel::IView, public Zel::IWidget {
public:
    explicit Content(const std::string& given) : text(given) {
        set_text(text);
        bold.signal_toggled().connect(sigc::mem_fun(*this, &Content::_onToggled), true);
    }

    Gtk::Widget* getIcons() override { return &bold; }

private:
    void _onToggled() { set_markup(bold.get_active() ? "<b>" + text + "</b>" : text); }

    std::string text;
    Gtk::ToggleButton bold{"B"};
};

class Panels : public Gtk::Box {
public:
    Panels() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        const char* const names[] = {words("left", "слева"), words("right", "справа"),
                                     words("above", "сверху"), words("below", "снизу"),
                                     words("in tabs", "во вкладках")};
        for (const char* const name : names)
            places.append(name);
        places.set_active(1);
        addButton.signal_clicked().connect(sigc::mem_fun(*this, &Panels::_onAdd), true);
        clearButton.signal_clicked().connect(sigc::mem_fun(*this, &Panels::_onClear), true);
        for (Gtk::Widget* widget : std::initializer_list<Gtk::Widget*>{&addButton, &places, &clearButton})
            buttons.pack_start(*widget, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(dynamic_cast<Gtk::Widget&>(*presenter.getView()), Gtk::PACK_EXPAND_WIDGET);
        _add(Zel::Positions::Left);
        _add(Zel::Positions::Right);
        _add(Zel::Positions::Bottom);
        _add(Zel::Positions::Center);
    }

private:
    void _onAdd() { _add(static_cast<Zel::Positions>(places.get_active_row_number())); }

    /// Beside the newest panel, or in the empty half of the root.
    void _add(Zel::Positions position) {
        const std::string number = std::to_string(contents.size() + 1);
        Content& content = contents.emplace_back(words("Content of panel ", "Содержимое панели ") + number);
        Zel::IPanelView* const panel =
            presenter.newPanel(words("Panel ", "Панель ") + number, position, content, nullptr);
        panel->setProperties(true, true);
        panel->setSize(180, 90);
        // The first one of all isn't shown by itself.
        dynamic_cast<Gtk::Widget&>(*panel).show_all();
    }

    void _onClear() {
        presenter.deleteAll();
        // The windows of floating panels stay, without their content.
        for (const auto& window :
             dynamic_cast<Zel::PanelManagerView&>(*presenter.getView()).getWindowCollection())
            window->hide();
        contents.clear();
    }

    std::list<Content> contents; ///< they outlive the panels
    Zel::PanelManagerPresenter presenter;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button addButton{words("New panel", "Новая панель")};
    Gtk::ComboBoxText places;
    Gtk::Button clearButton{words("Delete all", "Удалить все")};
};

} // namespace

std::unique_ptr<Gtk::Widget> makePanelsPage() {
    return std::make_unique<Panels>();
}

} // namespace gallery
