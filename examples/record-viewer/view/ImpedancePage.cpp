#include "ImpedancePage.h"

#include "ImpedanceWords.h"
#include "Words.h"

namespace viewer {

ImpedancePage::~ImpedancePage() = default;

ImpedancePage::ImpedancePage() : Gtk::Box(Gtk::ORIENTATION_VERTICAL) {
    loopLabel.set_text(words::loop());
    for (std::size_t i = 0; i < impedance::loopCount; ++i)
        loops.append(impedance::name(static_cast<impedance::Loop>(i)));
    loops.set_active(0);
    loopConnection = loops.signal_changed().connect(sigc::mem_fun(*this, &ImpedancePage::_onLoopChanged));
    choices.pack_start(loopLabel, Gtk::PACK_SHRINK);
    choices.pack_start(loops, Gtk::PACK_SHRINK);
    choices.property_margin() = 6;

    problem.set_line_wrap(true);
    problem.property_margin() = 24;
    problem.show();
    stack.add(problem);
    status.set_line_wrap(true);
    status.set_xalign(0);
    status.property_margin() = 4;
    // The form gives the choices to a person, so that what there is nothing to choose from is shut behind it.
    form.add(choices);
    _letChooseLoop();
    pack_start(form, Gtk::PACK_SHRINK);
    pack_start(stack, Gtk::PACK_EXPAND_WIDGET);
    pack_start(status, Gtk::PACK_SHRINK);
    set_hexpand(true);
    set_vexpand(true);
    show_all();
}

void ImpedancePage::setImpedances(std::shared_ptr<const Impedances> value) {
    impedances = std::move(value);
    loop = impedances->trajectories.shown;
    loopConnection.block();
    loops.set_active(static_cast<int>(loop));
    loopConnection.unblock();
    _refresh();
}

void ImpedancePage::chooseLoop(impedance::Loop chosen) {
    loops.set_active(static_cast<int>(chosen));
}

void ImpedancePage::setIsLocked(bool value) {
    form.setIsReadOnly(value);
    // Lifting the lock gives back everything, also the choice among loops that can't be shown.
    _letChooseLoop();
}

void ImpedancePage::_setPlane(Gtk::Widget& plane) {
    plane.show();
    stack.add(plane);
}

void ImpedancePage::_onLoopChanged() {
    loop = static_cast<impedance::Loop>(loops.get_active_row_number());
    if (impedances)
        _refresh();
    signalLoopChosen.emit(loop);
}

void ImpedancePage::_refresh() {
    const bool isShown = impedances->problem.empty();
    view = viewOf(*impedances, loop);
    _showLoop();
    for (Gtk::Widget* const child : stack.get_children())
        if ((child != &problem) == isShown)
            stack.set_visible_child(*child);
    _letChooseLoop();
    problem.set_text(words::problemOf(*impedances));
    const std::string remark = isShown ? _getRemark() : "";
    status.set_text(
        !isShown ? "" : words::statusOf(*impedances, loop, view) + (remark.empty() ? "" : " " + remark));
}

void ImpedancePage::_letChooseLoop() {
    loops.set_sensitive(impedances && impedances->problem.empty() && !form.getIsReadOnly());
}

} // namespace viewer
