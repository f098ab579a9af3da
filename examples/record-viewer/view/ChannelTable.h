#pragma once

#include "TextColumn.h"
#include "reader/Record.h"

#include <ZelCommonView/collections/VirtualizationListView.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/scrolledwindow.h>

#include <list>

namespace viewer {

/// All channels of a record with the smallest and largest sample, in a unit whose prefix suits them; binaries
/// with the number of their changes. Sorted by a click on a header. Empty until there is a record.
class ChannelTable : public Gtk::ScrolledWindow, public Zel::IView {
public:
    ChannelTable();
    ~ChannelTable() override;

    /// Shows the channels of this record in place of the former ones; nothing of it is kept.
    void setRecord(const record::Record& record);

private:
    class Row : public Zel::IRowPresenter {
    public:
        Row(int number, const std::string& name, const std::string& unit, const std::string& values,
            double extent);
        ~Row() override;

        const std::vector<Zel::IView*>& getCells() override;

        Zel::CellDataView number; ///< from 1, analogs first
        Zel::CellDataView name;
        Zel::CellDataView unit;
        Zel::CellDataView values;
        double extent; ///< by which the values are sorted: largest deviation from 0 as recorded

    private:
        std::vector<Zel::IView*> cells;
    };

    void _sortValuesByExtent();

    TextColumn numberColumn;
    TextColumn nameColumn;
    TextColumn unitColumn;
    TextColumn valuesColumn;
    std::list<Row> rows; ///< the list points at them
    Zel::VirtualizationListView list;
};

} // namespace viewer
