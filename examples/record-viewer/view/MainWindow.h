#pragma once

#include "ChannelTable.h"
#include "HodographPage.h"
#include "RecordPage.h"
#include "WindowPlace.h"
#include "ZPlanePage.h"

#include <ZelCommonView/dialogs/AboutWindowActivatorPresenter.h>
#include <ZelCommonView/presentation/ViewPresenter.h>
#include <ZelCommonView/windows/PanelManagerPresenter.h>
#include <ZelCommonView/windows/Window.h>

#include <gtkmm/box.h>
#include <gtkmm/button.h>

#include <string>

namespace viewer {

/// The viewer's window: one record in four panels, which are empty until it is read and which a person
/// arranges at will. Both panels of impedances show the same loop, and the dot in the Z plane stands where
/// the replay of the hodograph does. F1 opens the help; Ctrl with plus, minus, 0 or the wheel changes the
/// size of the text.
class MainWindow : public Zel::Window, public Zel::IView {
public:
    /// Place and size are kept in `placeFile`; an empty name keeps none.
    explicit MainWindow(const std::string& title, const std::string& placeFile = "");
    ~MainWindow() override;

    /// Shows a record in place of the former one, with what was computed from its samples before.
    void setRecord(record::Record record, Impedances impedances);

    RecordPage page;
    HodographPage hodograph;
    ZPlanePage plane;
    ChannelTable channels;

private:
    void _tiePages();
    void _composePanels();
    void _composeBar();
    bool _onKeyPress(GdkEventKey* event);
    void _onHelp();
    void _onAbout();
    void _onHidden();

    std::unique_ptr<WindowPlace> place; ///< null if none is kept
    Zel::PanelManagerPresenter panels;
    Zel::AboutWindowActivatorPresenter about;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 4};
    Gtk::Button helpButton;
    Gtk::Button aboutButton;
};

} // namespace viewer
