// Pages behind tabs that are built when they are opened for the first time and keep their state from then on.

#include "Pages.h"

#include <ZelCommonView/collections/LazyPagedContentPresenter.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtkmm.h>

namespace gallery {

namespace {

/// A page whose state is a number of presses.
class Content : public Zel::IPresenter {
public:
    explicit Content(const std::string& name) {
        label.set_markup("<big>" + name + "</big>");
        button.signal_clicked().connect(sigc::mem_fun(*this, &Content::_onPressed), true);
        button.set_halign(Gtk::ALIGN_CENTER);
        view.set_orientation(Gtk::ORIENTATION_VERTICAL);
        view.set_spacing(12);
        view.set_border_width(24);
        view.pack_start(label, Gtk::PACK_SHRINK);
        view.pack_start(button, Gtk::PACK_SHRINK);
    }

    Zel::IView* getView() override { return &view; }

private:
    void _onPressed() { button.set_label(words("Pressed: ", "Нажато: ") + std::to_string(++presses)); }

    int presses = 0;
    Zel::IViewWrapper<Gtk::Box> view;
    Gtk::Label label;
    Gtk::Button button{words("Press me", "Нажмите")};
};

class Tabs : public Gtk::Box {
public:
    Tabs() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        built.set_xalign(0);
        hide.signal_toggled().connect(sigc::mem_fun(*this, &Tabs::_onHide), true);
        pack_start(hide, Gtk::PACK_SHRINK);
        // The view comes first: of pages that were there before it the first one would wait for a switch.
        pack_start(*Zel::GtkWidgetHelper::getWidget(pages.getView()), Gtk::PACK_EXPAND_WIDGET);
        pack_start(built, Gtk::PACK_SHRINK);
        for (const char* const name : {words("Settings", "Уставки"), words("Events", "События"),
                                       words("Oscillograms", "Осциллограммы")})
            last = pages.addPage(name, sigc::bind(sigc::mem_fun(*this, &Tabs::_build), std::string(name)));
    }

private:
    std::unique_ptr<Zel::IPresenter> _build(const std::string& name) {
        const std::string before = built.get_text();
        built.set_text((before.empty() ? words("Built so far: ", "Построены: ") : before + ", ") + name);
        return std::make_unique<Content>(name);
    }

    void _onHide() { pages.setIsPageVisible(last, !hide.get_active()); }

    Gtk::CheckButton hide{words("hide the last page", "скрыть последнюю страницу")};
    Gtk::Label built;
    Zel::LazyPagedContentPresenter pages;
    int last = 0; ///< index of a page
};

} // namespace

std::unique_ptr<Gtk::Widget> makeTabsPage() {
    return std::make_unique<Tabs>();
}

} // namespace gallery
