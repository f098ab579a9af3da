// Entries that vet what is typed: a text, an address, a date and a time, and what each of them reported.

#include "Pages.h"

#include <ZelCommonView/entries/DateEntry.h>
#include <ZelCommonView/entries/IpEntry.h>
#include <ZelCommonView/entries/TimeEntry.h>

#include <gtkmm.h>

namespace gallery {

namespace {

class Typed : public Gtk::Box {
public:
    Typed() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 12) {
        grid.set_row_spacing(8);
        grid.set_column_spacing(12);
        _attach(words("Text", "Текст"), text, autosize);
        _attach(words("Address", "Адрес"), address, verdict);
        _attach(words("Date", "Дата"), date, dateHint);
        _attach(words("Time", "Время"), time, timeHint);
        pack_start(grid, Gtk::PACK_SHRINK);
        logWindow.set_shadow_type(Gtk::SHADOW_IN);
        log.set_left_margin(6);
        log.set_top_margin(6);
        logWindow.add(log);
        log.set_editable(false);
        log.set_cursor_visible(false);
        log.set_can_focus(false);
        pack_start(logWindow, Gtk::PACK_EXPAND_WIDGET);

        text.set_text(words("It grows", "Растёт"));
        address.set_text("192.168.1.1");
        // The icon takes its place from the text, so the date doesn't go by the length of that.
        date.setAutosize(false);
        date.set_text("07:03:2024");
        time.setData("12:34:56");
        verdict.set_text(words("an address", "адрес"));
        item.set_label(words("Empty", "Очистить"));
        menu.append(item);
        menu.show_all();
        text.setCustomMenu(&menu);

        item.signal_activate().connect(sigc::mem_fun(*this, &Typed::_onEmpty), false);
        autosize.set_active(text.getAutosize());
        autosize.signal_toggled().connect(sigc::mem_fun(*this, &Typed::_onAutosize), false);
        text.signalValueChanged().connect(
            sigc::bind<0>(sigc::mem_fun(*this, &Typed::_onReported), words("Text", "Текст")));
        address.signalValueChanged().connect(
            sigc::bind<0>(sigc::mem_fun(*this, &Typed::_onReported), words("Address", "Адрес")));
        date.signalValueChanged().connect(
            sigc::bind<0>(sigc::mem_fun(*this, &Typed::_onReported), words("Date", "Дата")));
        // These two report while they are typed.
        address.signalIpChanged().connect(sigc::mem_fun(*this, &Typed::_onAddress));
        time.signalDataChanged().connect(sigc::mem_fun(*this, &Typed::_onTime));
        _log(words("Edits are told here when Tab, Return or another entry ends them, and times at once.",
                   "Правки появляются здесь по Tab, Enter или уходу из поля, а время — сразу."));
    }

private:
    void _attach(const char* title, Zel::StringEntry& entry, Gtk::Widget& beside) {
        auto* const label = Gtk::make_managed<Gtk::Label>(title);
        label->set_xalign(0);
        entry.set_halign(Gtk::ALIGN_START);
        beside.set_halign(Gtk::ALIGN_START);
        grid.attach(*label, 0, rows);
        grid.attach(entry, 1, rows);
        grid.attach(beside, 2, rows);
        ++rows;
    }

    void _onEmpty() { text.set_text(""); }

    void _onAutosize() { text.setAutosize(autosize.get_active()); }

    void _onReported(const Glib::ustring& name, const std::string& value) { _log(name + ": " + value); }

    void _onAddress(bool isValid, const std::string&) {
        verdict.set_text(isValid ? words("an address", "адрес") : words("no address", "не адрес"));
    }

    void _onTime(bool, const std::string& value) { _onReported(words("Time", "Время"), value); }

    void _log(const Glib::ustring& line) {
        const auto buffer = log.get_buffer();
        buffer->insert(buffer->begin(), line + "\n");
    }

    int rows = 0;
    Gtk::Grid grid;
    Zel::StringEntry text;
    Zel::IpEntry address;
    Zel::DateEntry date;
    Zel::TimeEntry time;
    Gtk::CheckButton autosize{words("wide as its text", "по ширине текста")};
    Gtk::Label verdict;
    Gtk::Label dateHint{words("the icon opens a calendar", "значок открывает календарь")};
    Gtk::Label timeHint{words("Tab, : and arrows walk the parts", "Tab, : и стрелки обходят части")};
    Gtk::Menu menu;
    Gtk::MenuItem item;
    Gtk::ScrolledWindow logWindow;
    Gtk::TextView log;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeTypedPage() {
    return std::make_unique<Typed>();
}

} // namespace gallery
