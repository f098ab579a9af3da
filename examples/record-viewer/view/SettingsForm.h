#pragma once

#include "ImpedanceSettings.h"
#include "Impedances.h"

#include <ZelCommonView/entries/NumericEntry.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/checkbutton.h>
#include <gtkmm/grid.h>
#include <gtkmm/image.h>
#include <gtkmm/label.h>

#include <array>

namespace viewer {

/// The entries of the settings, with the sentence on the one that is wrong below them.
class SettingsForm : public Gtk::Box, public Zel::IView {
public:
    /// Shows the settings, and what the record tells where nothing is given.
    SettingsForm(const ImpedanceSettings& settings, const Impedances& impedances);
    ~SettingsForm() override;

    /// What stands in the entries, if all of it can be taken. Otherwise the first wrong entry is marked and
    /// gets the focus, and a sentence says what is wrong with it, until it is changed.
    std::optional<ImpedanceSettings> take();

private:
    using Entries = std::array<Zel::NumericEntry, fieldCount>;

    void _composeGroup(Group group);
    void _composeEntry(Field field, int column, int row);
    void _composeVerdict();
    void _show(const ImpedanceSettings& settings);
    void _enable();
    void _onDefaults();
    void _showVeto(const Veto& veto);
    void _clearVeto();
    Zel::NumericEntry& _entryOf(Field field);

    ImpedanceSettings defaults; ///< what the record tells
    double recordedFrequency;
    std::optional<impedance::Side> side;
    int rows = 0;
    Gtk::Grid grid;
    std::array<Gtk::CheckButton, optionalGroupCount> givenButtons;
    std::array<Gtk::Label, fieldCount> names;
    Entries entries;
    std::array<Gtk::Label, fieldCount> units;
    Gtk::Label zonesLabel;
    Gtk::Button defaultsButton;
    Gtk::Box verdict{Gtk::ORIENTATION_HORIZONTAL, 6};
    Gtk::Image warning;
    Gtk::Label sentence;
};

} // namespace viewer
