#include "MainWindow.h"

#include "Words.h"
#include "common/TextZoom.h"

#include <ZelCommonView/dialogs/AboutWords.h>
#include <ZelCommonView/dialogs/HelpView.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gdk/gdkkeysyms.h>

namespace viewer {

namespace {

constexpr int width = 1280; // pixels
constexpr int height = 860; // pixels
constexpr const char* version = "0.1";

} // namespace

MainWindow::MainWindow(const std::string& title, const std::string& placeFile) {
    set_title(title);
    set_default_size(width, height);
    if (!placeFile.empty()) {
        place = std::make_unique<WindowPlace>(*this, placeFile);
        signal_unmap().connect(sigc::mem_fun(*this, &MainWindow::_onHidden), false);
    }
    _composePanels();
    _composeBar();
    _tiePages();
    signal_key_press_event().connect(sigc::mem_fun(*this, &MainWindow::_onKeyPress), false);
    examples::installTextZoom(*this);
}

MainWindow::~MainWindow() = default;

void MainWindow::setRecord(record::Record record, Impedances impedances) {
    const auto shared = std::make_shared<const Impedances>(std::move(impedances));
    plane.setImpedances(shared);
    hodograph.setImpedances(shared);
    channels.setRecord(record);
    page.setRecord(std::move(record));
}

void MainWindow::_composePanels() {
    using Zel::Positions;
    Zel::IPanelView* const left = panels.newPanel(words::oscillogram(), Positions::Left, page, nullptr);
    Zel::IPanelView* const right = panels.newPanel(words::hodograph(), Positions::Right, hodograph, nullptr);
    Zel::IPanelView* const tab = panels.newPanel(words::zPlane(), Positions::Center, plane, right);
    Zel::IPanelView* const below = panels.newPanel(words::channels(), Positions::Bottom, channels, right);
    for (Zel::IPanelView* const panel : {left, right, tab, below})
        panel->setProperties(true, false); // a closed panel could not be brought back
    left->setSize(760, 400);
    right->setSize(480, 360);
    tab->setSize(480, 360);
    below->setSize(480, 160);
    add(*Zel::GtkWidgetHelper::getWidget(panels.getView()));
}

void MainWindow::_composeBar() {
    helpButton.set_label(words::help());
    aboutButton.set_label(lng::View::About::about());
    helpButton.signal_clicked().connect(sigc::mem_fun(*this, &MainWindow::_onHelp));
    aboutButton.signal_clicked().connect(sigc::mem_fun(*this, &MainWindow::_onAbout));
    buttons.pack_start(helpButton, Gtk::PACK_SHRINK);
    buttons.pack_start(aboutButton, Gtk::PACK_SHRINK);
    setUserButtons(&buttons);
}

void MainWindow::_tiePages() {
    hodograph.signalLoopChosen.connect(sigc::mem_fun(plane, &ZPlanePage::chooseLoop));
    plane.signalLoopChosen.connect(sigc::mem_fun(hodograph, &HodographPage::chooseLoop));
    hodograph.signalTimeChanged.connect(sigc::mem_fun(plane, &ZPlanePage::showTime));
}

bool MainWindow::_onKeyPress(GdkEventKey* event) {
    if (event->keyval != GDK_KEY_F1)
        return false;
    _onHelp();
    return true;
}

void MainWindow::_onHelp() {
    Zel::HelpView().show(this, words::helpFile());
}

void MainWindow::_onAbout() {
    about.show(this, words::programName(), version);
}

void MainWindow::_onHidden() {
    place->save();
}

} // namespace viewer
