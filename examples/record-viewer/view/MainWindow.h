#pragma once

#include "ChannelTable.h"
#include "EventList.h"
#include "HodographPage.h"
#include "RecordPage.h"
#include "SettingsDialog.h"
#include "SettingsFile.h"
#include "WindowPlace.h"
#include "ZPlanePage.h"

#include <ZelCommonView/dialogs/AboutWindowActivatorPresenter.h>
#include <ZelCommonView/presentation/ViewPresenter.h>
#include <ZelCommonView/windows/PanelManagerPresenter.h>
#include <ZelCommonView/windows/Window.h>

#include <gtkmm/box.h>
#include <gtkmm/button.h>

#include <memory>
#include <string>

namespace viewer {

/// The viewer's window: one record in five panels, which are empty until it is read and which a person
/// arranges by their titles, closes and brings back at will. Both panels of impedances show the same loop,
/// and the dot in the Z plane stands where the replay of the hodograph does. An event that is chosen stands
/// in the middle of the oscillogram. F1 opens the help; Ctrl with plus, minus, 0 or the wheel changes the
/// size of the text.
class MainWindow : public Zel::Window, public Zel::IView {
public:
    /// The title names the record's file. Place, size and settings are kept in `placeFile`; an empty name
    /// keeps none.
    explicit MainWindow(const std::string& file, const std::string& placeFile = "");
    ~MainWindow() override;

    /// Shows a record in place of the former one, with what was computed from its samples before.
    void setRecord(record::Record record, Impedances computed);

    /// What impedances are to be computed with; those of the window, and of the file at first.
    const ImpedanceSettings& getSettings() const { return settings; }

    /// Puts the panels where they stand at first, those that were closed or float, too.
    void arrangePanels();

    RecordPage page;
    HodographPage hodograph;
    ZPlanePage plane;
    ChannelTable channels;
    EventList events;

protected:
    void on_show() override;
    void on_unmap() override;

private:
    void _composeBar();
    void _tiePages();
    bool _onContentPress(GdkEventButton* event);
    bool _onKeyPress(GdkEventKey* event);
    void _onHelp();
    void _onAbout();
    void _onSettings();
    void _applySettings(const ImpedanceSettings& chosen);
    void _showImpedances(Impedances computed);

    std::unique_ptr<WindowPlace> place;                 ///< null if none is kept
    std::unique_ptr<Zel::PanelManagerPresenter> panels; ///< never null
    SettingsFile settingsFile;
    ImpedanceSettings settings;
    record::Record source;                        ///< what impedances are computed from
    std::shared_ptr<const Impedances> impedances; ///< null before the first record
    SettingsDialog settingsDialog;
    Zel::AboutWindowActivatorPresenter about;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 4};
    Gtk::Button settingsButton;
    Gtk::Button arrangeButton;
    Gtk::Button helpButton;
    Gtk::Button aboutButton;
};

} // namespace viewer
