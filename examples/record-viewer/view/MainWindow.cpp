#include "MainWindow.h"

#include "Words.h"
#include "common/TextZoom.h"

namespace viewer {

MainWindow::MainWindow(const std::string& title) {
    set_title(title);
    set_default_size(1280, 860);
    notebook.append_page(page, words::oscillogram());
    notebook.append_page(hodograph, words::hodograph());
    notebook.append_page(plane, words::zPlane());
    notebook.set_show_border(false);
    add(notebook);
    notebook.show();
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
