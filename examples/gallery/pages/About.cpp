// The about window and help. The addresses of the maker are the application's to set; what is not set isn't
// shown.

#include "Pages.h"

#include <ZelCommonView/dialogs/AboutView.h>
#include <ZelCommonView/dialogs/AboutWindowActivatorPresenter.h>
#include <ZelCommonView/dialogs/AboutWords.h>

#include <gtkmm.h>

namespace gallery {

namespace {

class About : public Gtk::Box, public Zel::IView {
public:
    About() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        button.set_halign(Gtk::ALIGN_START);
        button.signal_clicked().connect(sigc::mem_fun(*this, &About::_onShow), true);
        pack_start(button, Gtk::PACK_SHRINK);
        // Its content, made before the contacts are set: without them.
        bare.setProgramName(words("Without contacts and version", "Без контактов и версии"));
        pack_start(bare, Gtk::PACK_SHRINK);
    }

private:
    void _onShow() {
        Zel::setAboutContacts({"https://example.org", "mail@example.org", "+0 000 000-00-00", ""});
        presenter.show(this, words("Gallery", "Галерея"), "1.0");
    }

    Gtk::Button button{words("About", "О программе")};
    Zel::AboutView bare;
    Zel::AboutWindowActivatorPresenter presenter;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeAboutPage() {
    return std::make_unique<About>();
}

} // namespace gallery
