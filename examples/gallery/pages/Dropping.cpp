// What a panel shows while another one is dragged over it: the cross of icons and the shade over the part
// that the dropped one would take. An application with a drag of its own can lay both over anything.

#include "Pages.h"

#include <ZelCommonView/windows/DemoBoxView.h>
#include <ZelCommonView/windows/OverlayBoxView.h>

#include <gtkmm.h>

namespace gallery {

namespace {

class Dropping : public Gtk::Box {
public:
    Dropping() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        const char* const names[] = {words("left half", "левая половина"),
                                     words("right half", "правая половина"),
                                     words("upper half", "верхняя половина"),
                                     words("lower half", "нижняя половина"),
                                     words("the whole", "всё"),
                                     words("nothing", "ничего")};
        for (const char* const name : names)
            places.append(name);
        places.signal_changed().connect(sigc::mem_fun(*this, &Dropping::_onPlace), true);
        cross.set_active();
        cross.signal_toggled().connect(sigc::mem_fun(*this, &Dropping::_onCross), true);
        for (Gtk::Widget* widget : std::initializer_list<Gtk::Widget*>{&placesName, &places, &cross})
            line.pack_start(*widget, Gtk::PACK_SHRINK);
        pack_start(line, Gtk::PACK_SHRINK);

        frame.add(content);
        overlay.add(frame);
        overlay.add_overlay(shade);
        overlay.add_overlay(icons);
        icons.set_halign(Gtk::ALIGN_CENTER);
        icons.set_valign(Gtk::ALIGN_CENTER);
        pack_start(overlay, Gtk::PACK_EXPAND_WIDGET);
        // Neither is shown by the `show_all` of what it lies in.
        _onCross();
        places.set_active(static_cast<int>(Zel::Positions::Right));
    }

private:
    void _onPlace() { shade.set(static_cast<Zel::Positions>(places.get_active_row_number()), true); }

    void _onCross() { icons.set_visible(cross.get_active()); }

    Gtk::Box line{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Label placesName{words("Shaded:", "Затенено:")};
    Gtk::ComboBoxText places;
    Gtk::CheckButton cross{words("with the cross", "с крестом")};
    Gtk::Overlay overlay;
    Gtk::Frame frame;
    Gtk::Label content{words("What lies below", "То, что под ними"), Gtk::ALIGN_START, Gtk::ALIGN_START};
    Zel::DemoBoxView shade;
    Zel::OverlayBoxView icons;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeDroppingPage() {
    return std::make_unique<Dropping>();
}

} // namespace gallery
