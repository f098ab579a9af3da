// The about window and help. The addresses of the maker are the application's to set; what is not set isn't
// shown.

#include "Pages.h"

#include <ZelCommonView/dialogs/AboutView.h>
#include <ZelCommonView/dialogs/AboutWindowActivatorPresenter.h>
#include <ZelCommonView/dialogs/AboutWords.h>
#include <ZelCommonView/dialogs/HelpView.h>
#include <ZelCommonView/dialogs/ShellDescriptor.h>

#include <gtkmm.h>

namespace gallery {

namespace {

class About : public Gtk::Box, public Zel::IView {
public:
    About() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        // Before a view is made; a registry without an address has no link.
        Zel::setAboutContacts({"https://example.org", "mail@example.org", "+0 000 000-00-00", ""});
        content = std::make_unique<Zel::AboutView>();
        content->setProgramName(words("The content of the window", "Содержимое окна"));
        content->setVersion("1.0");
        content->set_halign(Gtk::ALIGN_START);

        aboutButton.signal_clicked().connect(sigc::mem_fun(*this, &About::_onAbout), true);
        helpButton.signal_clicked().connect(sigc::mem_fun(*this, &About::_onHelp), true);
        buttons.pack_start(aboutButton, Gtk::PACK_SHRINK);
        buttons.pack_start(helpButton, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(*content, Gtk::PACK_SHRINK);
    }

private:
    void _onAbout() { presenter.show(this, shell.name(), "1.0"); }

    /// The file lies beside the program and is shown by the desktop's program for its kind.
    void _onHelp() { Zel::HelpView().show(this, words("gallery-help-en.txt", "gallery-help-ru.txt")); }

    /// How an application describes itself to parts that it shares with others.
    const Zel::ShellDescriptor shell{words("Gallery", "Галерея"), "", false};
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button aboutButton{words("About", "О программе")};
    Gtk::Button helpButton{words("Help", "Справка")};
    std::unique_ptr<Zel::AboutView> content;
    Zel::AboutWindowActivatorPresenter presenter;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeAboutPage() {
    return std::make_unique<About>();
}

} // namespace gallery
