#include "MainWindow.h"

#include "Words.h"
#include "common/TextZoom.h"

namespace viewer {

MainWindow::MainWindow(const std::string& title) {
    set_title(title);
    set_default_size(1280, 860);
    stack.add(page, "oscillogram", words::oscillogram());
    stack.add(hodograph, "hodograph", words::hodograph());
    stack.add(plane, "z-plane", words::zPlane());
    switcher.set_stack(stack);
    switcher.set_halign(Gtk::ALIGN_CENTER);
    switcher.property_margin() = 4;
    box.pack_start(switcher, Gtk::PACK_SHRINK);
    box.pack_start(stack, Gtk::PACK_EXPAND_WIDGET);
    add(box);
    box.show_all();
    _tiePages();
    examples::installTextZoom(*this);
}

void MainWindow::setRecord(record::Record record, Impedances impedances) {
    const auto shared = std::make_shared<const Impedances>(std::move(impedances));
    plane.setImpedances(shared);
    hodograph.setImpedances(shared);
    page.setRecord(std::move(record));
}

void MainWindow::_tiePages() {
    hodograph.signalLoopChosen.connect(sigc::mem_fun(plane, &ZPlanePage::chooseLoop));
    plane.signalLoopChosen.connect(sigc::mem_fun(hodograph, &HodographPage::chooseLoop));
    hodograph.signalTimeChanged.connect(sigc::mem_fun(plane, &ZPlanePage::showTime));
}

} // namespace viewer
