#pragma once

#include "reader/Record.h"

#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/liststore.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/treeview.h>

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
    struct Columns : Gtk::TreeModel::ColumnRecord {
        Columns();

        Gtk::TreeModelColumn<int> number; ///< from 1, analogs first
        Gtk::TreeModelColumn<Glib::ustring> name;
        Gtk::TreeModelColumn<Glib::ustring> unit;
        Gtk::TreeModelColumn<Glib::ustring> values;
        Gtk::TreeModelColumn<double>
            extent; ///< by which the values are sorted: largest deviation from 0 as recorded
    };

    void _addRow(int number, const std::string& name, const std::string& unit, const std::string& values,
                 double extent);

    Columns columns;
    Glib::RefPtr<Gtk::ListStore> model;
    Gtk::TreeView view;
};

} // namespace viewer
