// Small services for texts: to search and to split them, to read a number whatever the user's locale, to
// complete the name of a file. And what that locale is.

#include "Pages.h"

#include <ZelCommonView/common/Cross.h>
#include <ZelCommonView/common/StringHelper.h>
#include <ZelCommonView/dialogs/FileDialogHelper.h>
#include <ZelCommonView/entries/NumericConversion.h>

#include <gtkmm.h>

namespace gallery {

namespace {

namespace Helper = Zel::StringHelper;

class Services : public Gtk::Grid {
public:
    Services() {
        set_row_spacing(8);
        set_column_spacing(12);
        _attach(0, words("List", "Список"), list, pieces, "10;20;;40");
        _attach(1, words("Part of it", "Часть списка"), part, isThere, "20");
        _attach(2, words("Number", "Число"), number, value, "-12.5e3");
        _attach(3, words("File name", "Имя файла"), file, completed, "table");
        // The user's locale, which a program may take for the choice of its language.
        system.set_text(cross::isRu() ? words("The locale is a Russian one", "Локаль русская")
                                      : words("The locale is no Russian one", "Локаль не русская"));
        system.set_xalign(0);
        attach(system, 0, 4, 3);
        _onChanged();
        for (Gtk::Entry* entry : {&list, &part, &number, &file})
            entry->signal_changed().connect(sigc::mem_fun(*this, &Services::_onChanged), true);
    }

private:
    void _attach(int row, const char* text, Gtk::Entry& entry, Gtk::Label& shown, const char* first) {
        entry.set_text(first);
        shown.set_xalign(0);
        auto* const name = Gtk::make_managed<Gtk::Label>(text, Gtk::ALIGN_START);
        attach(*name, 0, row);
        attach(entry, 1, row);
        attach(shown, 2, row);
    }

    void _onChanged() {
        const std::string text = list.get_text();
        const auto found = Helper::split(text, ';');
        pieces.set_text(
            Glib::ustring::compose(words("%1 pieces, the last one: \"%2\"", "частей: %1, последняя: «%2»"),
                                   found.size(), found.back()));
        isThere.set_text(Helper::isInclude(text, part.get_text(), 0, text.size(), true)
                             ? words("stands in the list", "есть в списке")
                             : words("doesn't stand in the list", "нет в списке"));

        double read = 0;
        value.set_text(Zel::tryConvert<double, true>(number.get_text(), read)
                           ? words("read as ", "прочитано как ") + Zel::convertToString<double, true>(read, 2)
                           : words("no number", "не число"));

        const Zel::FileDialogFilters filters{{"*.csv|*.txt", words("Tables", "Таблицы")}};
        const std::string name = file.get_text();
        completed.set_text(Zel::FileDialogHelper::isMatchPattern(name, filters)
                               ? words("fits a table", "подходит для таблицы")
                               : words("is saved as ", "будет сохранён как ") +
                                     Zel::FileDialogHelper::completeFileName(name, filters));
    }

    Gtk::Entry list;
    Gtk::Entry part;
    Gtk::Entry number;
    Gtk::Entry file;
    Gtk::Label pieces;
    Gtk::Label isThere;
    Gtk::Label value;
    Gtk::Label completed;
    Gtk::Label system;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeServicesPage() {
    return std::make_unique<Services>();
}

} // namespace gallery
