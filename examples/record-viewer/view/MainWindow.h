#pragma once

#include "HodographPage.h"
#include "RecordPage.h"
#include "ZPlanePage.h"

#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/notebook.h>
#include <gtkmm/window.h>

#include <string>

namespace viewer {

/// The viewer's window: one record on three pages, which are empty until it is read. Both pages of impedances
/// show the same loop, and the dot in the Z plane stands where the replay of the hodograph does. Ctrl with
/// plus, minus, 0 or the wheel changes the size of the text.
class MainWindow : public Gtk::Window, public Zel::IView {
public:
    explicit MainWindow(const std::string& title);

    /// Shows a record in place of the former one, with what was computed from its samples before.
    void setRecord(record::Record record, Impedances impedances);

    RecordPage page;
    HodographPage hodograph;
    ZPlanePage plane;

private:
    void _tiePages();

    Gtk::Notebook notebook;
};

} // namespace viewer
