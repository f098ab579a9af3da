#pragma once

#include "Impedances.h"

#include <ZelCommonView/containers/ReadOnlySwitchableContainer.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/box.h>
#include <gtkmm/comboboxtext.h>
#include <gtkmm/label.h>
#include <gtkmm/stack.h>

#include <memory>

namespace viewer {

/// What the pages of impedances have in common: the choice of the loop above, and below in words what one
/// should know of the numbers. A sentence stands in place of the plane while there is nothing to show. It can
/// be on the screen before there is a record.
class ImpedancePage : public Gtk::Box, public Zel::IView {
public:
    /// Another loop is shown, chosen by a person or by `chooseLoop`.
    sigc::signal<void, impedance::Loop> signalLoopChosen;

    ~ImpedancePage() override;

    /// Shows these in place of the former ones, beginning with the loop of the fault; not null. Tells of no
    /// chosen loop.
    void setImpedances(std::shared_ptr<const Impedances> value);

    impedance::Loop getLoop() const { return loop; }

    /// Shows a loop; one that is shown already changes nothing.
    void chooseLoop(impedance::Loop chosen);

    /// Keeps a person from all choices, or lets them choose again; at first they may. A choice with the style
    /// class "readonly-exempt" stays usable.
    void setIsLocked(bool value);

protected:
    ImpedancePage();

    /// The derived page's plane, which stays its own.
    void _setPlane(Gtk::Widget& plane);
    /// Shows the loop of the view; called only once there are impedances.
    virtual void _showLoop() = 0;

    /// What else is to be said of the plane.
    virtual std::string _getRemark() const { return ""; }

    bool _hasImpedances() const { return impedances != nullptr; }

    const Impedances& _getImpedances() const { return *impedances; }

    const LoopView& _getView() const { return view; }

    /// Holds the choices, the one of the loop first.
    Gtk::Box choices{Gtk::ORIENTATION_HORIZONTAL, 6};

private:
    void _onLoopChanged();
    void _refresh();
    void _letChooseLoop();

    std::shared_ptr<const Impedances> impedances; ///< null before the first record
    LoopView view;
    impedance::Loop loop = impedance::Loop::AE;
    Gtk::Label loopLabel;
    Gtk::ComboBoxText loops;
    Zel::ReadOnlySwitchableContainer form; ///< around the choices
    Gtk::Stack stack;                      ///< the plane or the problem
    Gtk::Label problem;
    Gtk::Label status;
    sigc::connection loopConnection;
};

} // namespace viewer
