// A table of real widgets and a box of them, whose neighbours share their borders. Cells stay their
// presenters': the table only shows them. A null entry makes the cell before it one column wider.

#include "Pages.h"

#include <ZelCommonView/collections/CollectionBoxView.h>
#include <ZelCommonView/collections/TableCellPresenter.h>
#include <ZelCommonView/collections/TableCollectionView.h>

#include <gtkmm.h>

#include <list>
#include <vector>

namespace gallery {

namespace {

class Tables : public Gtk::Box {
public:
    Tables() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 12) {
        table.setHeader({_cell(words("Channel", "Канал"), true, 1),
                         _cell(words("Limits", "Пределы"), true, 2), nullptr,
                         _cell(words("Unit", "Единица"), true, 1)});
        addButton.signal_clicked().connect(sigc::mem_fun(*this, &Tables::_onAdd), true);
        removeButton.signal_clicked().connect(sigc::mem_fun(*this, &Tables::_onRemove), true);
        moveButton.signal_clicked().connect(sigc::mem_fun(*this, &Tables::_onMove), true);
        clearButton.signal_clicked().connect(sigc::mem_fun(*this, &Tables::_onClear), true);
        for (Gtk::Button* const button : {&addButton, &moveButton, &removeButton, &clearButton})
            buttons.pack_start(*button, Gtk::PACK_SHRINK);
        for (int i = 0; i < 4; ++i)
            _onAdd();

        for (const char* const stage :
             {words("recorded", "записано"), words("checked", "проверено"), words("archived", "в архиве")})
            box.addChild(*_cell(stage, false, 1));
        box.setIsHorizontalOrientation(true);
        inRow.set_active();
        inRow.signal_toggled().connect(sigc::mem_fun(*this, &Tables::_onInRow), true);

        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(table, Gtk::PACK_SHRINK);
        pack_start(inRow, Gtk::PACK_SHRINK);
        pack_start(box, Gtk::PACK_SHRINK);
    }

private:
    /// A new cell; those of the header share the room that is left over, and the rows follow them.
    Zel::IView* _cell(const std::string& text, bool isHeader, unsigned long colspan) {
        cells.emplace_back(text, isHeader, isHeader, colspan);
        return cells.back().getView();
    }

    void _onAdd() {
        static const char* const names[] = {"UA", "UB", "UC", "IA", "IB", "IC"};
        const unsigned long number = rows;
        const bool isVoltage = number % 6 < 3;
        table.addRow(rows++, {_cell(names[number % 6], false, 1), _cell(isVoltage ? "-90" : "-5", false, 1),
                              _cell(isVoltage ? "90" : "5", false, 1),
                              _cell(isVoltage ? words("kV", "кВ") : words("kA", "кА"), false, 1)});
    }

    void _onMove() {
        if (rows > 1)
            table.moveRow(0, rows - 1);
    }

    void _onRemove() {
        if (rows > 0)
            table.removeRow(--rows);
    }

    void _onClear() {
        table.clearAll();
        rows = 0;
    }

    void _onInRow() { box.setIsHorizontalOrientation(inRow.get_active()); }

    std::list<Zel::TableCellPresenter> cells; ///< also those that were removed, as long as the page lives
    unsigned long rows = 0;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button addButton{words("Add a row", "Добавить строку")};
    Gtk::Button moveButton{words("First row to the end", "Первую в конец")};
    Gtk::Button removeButton{words("Remove the last", "Удалить последнюю")};
    Gtk::Button clearButton{words("Clear", "Очистить")};
    Zel::TableCollectionView table;
    Gtk::CheckButton inRow{words("in a row", "в ряд")};
    Zel::CollectionBoxView box;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeTablesPage() {
    return std::make_unique<Tables>();
}

} // namespace gallery
