#pragma once

#include "Signals.h"

#include <ZelCommonView/oscillogram/Oscillograph.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm.h>

#include <string>

namespace viewer {

/// Shows one record on an oscillograph, with what was odd about it in a line at the bottom. It can be on the
/// screen before there is a record.
class MainWindow : public Gtk::Window, public Zel::IView {
public:
    explicit MainWindow(const std::string& title);
    ~MainWindow() override;

    void setRecord(record::Record record);

private:
    void _showRange(float from, float to);
    void _growBinaryArea(std::size_t rows);

    Oscillogram oscillogram; ///< outlives the oscillograph, which shows its series
    std::string summary;
    Gtk::Box page{Gtk::ORIENTATION_VERTICAL};
    ZelView::Oscillograph oscillograph;
    Gtk::Label status;
};

} // namespace viewer
