// Entries that vet a number while it is typed, with the settings of the first of them, and what they
// reported.

#include "Pages.h"

#include <ZelCommonView/entries/HexEntry.h>
#include <ZelCommonView/entries/NumericEntry.h>

#include <gtkmm.h>

#include <algorithm>
#include <array>

namespace gallery {

namespace {

const std::array<Zel::NumericRange, 4> ranges{
    {{0, 100, 0.01}, {-10, 10, 0.5}, {0, 999, 1}, {-1e16, 1e16, 1e-9}}};

class Numbers : public Gtk::Box {
public:
    Numbers() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 16) {
        for (const Zel::NumericRange& each : ranges)
            range.append(Glib::ustring::compose(words("%1 to %2 in steps of %3", "от %1 до %2 с шагом %3"),
                                                each.getMin(), each.getMax(), each.getStep()));
        range.set_active(0);
        range.signal_changed().connect(sigc::mem_fun(*this, &Numbers::_onSettings), true);
        for (Gtk::CheckButton* button : {&autoformat, &wheelReports})
            button->signal_toggled().connect(sigc::mem_fun(*this, &Numbers::_onSettings), true);
        autoformat.set_active();

        reset.signal_activate().connect(sigc::mem_fun(*this, &Numbers::_onReset), true);
        menu.append(reset);
        menu.show_all();
        number.setCustomMenu(&menu);

        number.signalValueChanged().connect(sigc::mem_fun(*this, &Numbers::_onNumber));
        address.signalValueChanged().connect(sigc::mem_fun(*this, &Numbers::_onAddress));
        _onSettings();
        number.setValue(12.5);
        address.setValueRange({0, 0xffff, 1});
        address.setValue(0x1a2b);

        grid.set_row_spacing(8);
        grid.set_column_spacing(12);
        numberName.set_xalign(0);
        addressName.set_xalign(0);
        grid.attach(numberName, 0, 0);
        grid.attach(number, 1, 0);
        grid.attach(addressName, 0, 1);
        grid.attach(address, 1, 1);
        grid.attach(range, 1, 2);
        grid.attach(autoformat, 1, 3);
        grid.attach(wheelReports, 1, 4);
        pack_start(grid, Gtk::PACK_SHRINK);

        log.set_editable(false);
        log.set_cursor_visible(false);
        log.get_buffer()->set_text(words("Tab and Return report here. Try the wheel and the right button.\n",
                                         "Tab и Enter сообщат здесь. Есть колесо и правая кнопка.\n"));
        log.set_left_margin(6);
        log.set_top_margin(6);
        logWindow.set_shadow_type(Gtk::SHADOW_IN);
        logWindow.set_min_content_height(150);
        logWindow.add(log);
        pack_start(logWindow, Gtk::PACK_EXPAND_WIDGET);
    }

private:
    void _onSettings() {
        const Zel::NumericRange& chosen = ranges[range.get_active_row_number()];
        number.setValueRange(chosen);
        number.setScrollStep(10 * chosen.getStep());
        number.setAutoformat(autoformat.get_active());
        number.setUpdateOnScroll(wheelReports.get_active());
    }

    void _onReset() { number.setValue(0); }

    // Digits are limited while they are typed; the limits of the value are for its owner to keep.
    void _onNumber(double value) {
        const Zel::NumericRange& limits = number.getValueRange();
        const double limited = std::min(std::max(value, limits.getMin()), limits.getMax());
        number.setValue(limited);
        _print(limited == value ? Glib::ustring::compose(words("number: %1", "число: %1"), value)
                                : Glib::ustring::compose(
                                      words("number: %1, put right to %2", "число: %1, исправлено на %2"),
                                      value, limited));
    }

    void _onAddress(int value) { _print(Glib::ustring::compose(words("address: %1", "адрес: %1"), value)); }

    void _print(const Glib::ustring& line) {
        const Glib::RefPtr<Gtk::TextBuffer> buffer = log.get_buffer();
        buffer->insert(buffer->end(), line + "\n");
    }

    Gtk::Grid grid;
    Gtk::Label numberName{words("Number", "Число")};
    Zel::NumericEntry number;
    Gtk::Label addressName{words("Address", "Адрес")};
    Zel::HexEntry address;
    Gtk::Menu menu;
    Gtk::MenuItem reset{words("Set to zero", "Обнулить")};
    Gtk::ComboBoxText range;
    Gtk::CheckButton autoformat{words("with the decimals of the step", "с десятичными знаками шага")};
    Gtk::CheckButton wheelReports{words("the wheel reports, too", "колесо тоже сообщает")};
    Gtk::ScrolledWindow logWindow;
    Gtk::TextView log;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeNumbersPage() {
    return std::make_unique<Numbers>();
}

} // namespace gallery
