// Where a window stood and how large it was: the application asks for it, keeps it as it likes and hands it
// in for the next window. And a surface that takes the focus from its entries when it is clicked beside them.

#include "Pages.h"

#include <ZelCommonView/common/RectangleF.h>
#include <ZelCommonView/presentation/ViewPresenter.h>
#include <ZelCommonView/windows/GrabPanelView.h>
#include <ZelCommonView/windows/WindowRectangleManager.h>

#include <gtkmm.h>

#include <memory>

namespace gallery {

namespace {

/// Two entries as a view, for the surface.
class Entries : public Gtk::Box, public Zel::IView {
public:
    Entries() : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL, 8) {
        for (Gtk::Entry* entry : {&first, &second}) {
            entry->set_width_chars(26);
            entry->set_valign(Gtk::ALIGN_CENTER);
            pack_start(*entry, Gtk::PACK_EXPAND_PADDING);
        }
        first.set_placeholder_text(words("click beside the entries", "щёлкните рядом с полями"));
    }

private:
    Gtk::Entry first;
    Gtk::Entry second;
};

class Places : public Gtk::Box {
public:
    Places() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        openButton.signal_clicked().connect(sigc::mem_fun(*this, &Places::_onOpen), true);
        closeButton.signal_clicked().connect(sigc::mem_fun(*this, &Places::_onClose), true);
        for (Gtk::Widget* widget : std::initializer_list<Gtk::Widget*>{&openButton, &closeButton, &place})
            line.pack_start(*widget, Gtk::PACK_SHRINK);
        pack_start(line, Gtk::PACK_SHRINK);
        surface.addControl(&entries);
        surface.set_size_request(-1, 120);
        frame.add(surface);
        pack_start(surfaceName, Gtk::PACK_SHRINK);
        pack_start(frame, Gtk::PACK_SHRINK);
        _show();
    }

private:
    void _onOpen() {
        _onClose();
        window = std::make_unique<Gtk::Window>();
        window->set_title(words("Move me and close me", "Передвиньте и закройте меня"));
        manager = std::make_unique<Zel::WindowRectangleManager>(*window);
        manager->setRectangle(rectangle);
        window->signal_delete_event().connect(sigc::mem_fun(*this, &Places::_onDelete), false);
        window->show();
    }

    void _onClose() {
        if (!window)
            return;
        if (window->get_visible()) // else the user has closed it
            rectangle = manager->getRectangle();
        window.reset();
        _show();
    }

    bool _onDelete(GdkEventAny*) {
        rectangle = manager->getRectangle();
        _show();
        return false; // hides the window
    }

    void _show() {
        place.set_text(Glib::ustring::compose(
            words("The next one: %1 x %2 pixels at %3, %4", "Следующее: %1 x %2 пикселей в точке %3, %4"),
            rectangle.width, rectangle.height, rectangle.x, rectangle.y));
    }

    Zel::RectangleF rectangle{200, 150, 480, 240}; ///< pixels of the screen
    Gtk::Box line{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button openButton{words("Open a window", "Открыть окно")};
    Gtk::Button closeButton{words("Close it", "Закрыть его")};
    Gtk::Label place;
    Entries entries;
    Gtk::Label surfaceName{words("A surface with entries:", "Поверхность с полями:"), Gtk::ALIGN_START};
    Gtk::Frame frame;
    Zel::GrabPanelView surface;
    std::unique_ptr<Gtk::Window> window;
    std::unique_ptr<Zel::WindowRectangleManager> manager;
};

} // namespace

std::unique_ptr<Gtk::Widget> makePlacesPage() {
    return std::make_unique<Places>();
}

} // namespace gallery
