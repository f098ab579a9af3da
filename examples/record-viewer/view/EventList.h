#pragma once

#include "TextColumn.h"
#include "reader/Transitions.h"

#include <ZelCommonView/collections/VirtualizationListView.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/box.h>
#include <gtkmm/label.h>
#include <gtkmm/scrolledwindow.h>

#include <string>
#include <vector>

namespace viewer {

/// Every change of every binary channel of a record in order of time, until a click on a header sorts them
/// otherwise. Where there is none a sentence says why. Empty until there is a record.
class EventList : public Gtk::Box, public Zel::IView {
public:
    /// A person clicked a change, went to it by keys or pressed Return on it: its time in seconds from the
    /// earliest sample of the record. A new record chooses none.
    sigc::signal<void, double> signalTimeChosen;

    EventList();
    ~EventList() override;

    /// Shows the changes of this record in place of the former ones; nothing of it is kept but the names.
    void setRecord(const record::Record& record);

private:
    /// The cells of the row that was asked last: the list takes their texts at once, so that a hundred
    /// thousand rows need no cells of their own.
    struct Cells {
        Cells();

        Zel::CellDataView number;
        Zel::CellDataView time;
        Zel::CellDataView channel;
        Zel::CellDataView state;
        std::vector<Zel::IView*> all;
    };

    class Row : public Zel::IRowPresenter {
    public:
        Row(EventList& owner, std::size_t givenNumber, const record::Transition& given);
        ~Row() override;

        const std::vector<Zel::IView*>& getCells() override;

        EventList* list;
        std::size_t number; ///< from 1, in order of time
        record::Transition transition;
    };

    void _onSelectionChanged();
    void _onRowActivated(const Gtk::TreePath& path, Gtk::TreeViewColumn* column);

    TextColumn numberColumn;
    TextColumn timeColumn;
    TextColumn channelColumn;
    TextColumn stateColumn;
    std::vector<std::string> names; ///< of the binary channels
    Cells cells;
    std::vector<Row> rows; ///< the list points at them
    Gtk::Label problem;
    Gtk::ScrolledWindow scrolled;
    Zel::VirtualizationListView list;
    sigc::connection selectionConnection;
};

} // namespace viewer
