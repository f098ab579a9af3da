#pragma once

#include "Signals.h"

#include <ZelCommonView/oscillogram/Oscillograph.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/box.h>
#include <gtkmm/label.h>

#include <string>

namespace viewer {

/// Shows one record on an oscillograph, with what was odd about it in a line at the bottom. It can be on the
/// screen before there is a record.
class RecordPage : public Gtk::Box, public Zel::IView {
public:
    RecordPage();
    ~RecordPage() override;

    /// Shows this record in place of the former one, from its beginning to its end.
    void setRecord(record::Record record);

    /// Brings a time, in seconds from the earliest sample, to the middle of what is seen, which keeps its
    /// length. Near the ends of the record as close to the middle as they allow.
    void centreOn(double time);

private:
    void _showRange(float from, float to);
    void _growBinaryArea(std::size_t rows);

    Oscillogram oscillogram; ///< outlives the oscillograph, which shows its series
    std::string summary;
    ZelView::Oscillograph oscillograph;
    Gtk::Label status;
};

} // namespace viewer
