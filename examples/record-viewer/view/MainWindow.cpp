#include "MainWindow.h"

#include "SettingsWords.h"
#include "Words.h"
#include "common/Look.h"
#include "common/TextZoom.h"

#include <ZelCommonView/common/ErrBuf.h>
#include <ZelCommonView/dialogs/AboutWords.h>
#include <ZelCommonView/dialogs/HelpView.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gdk/gdkkeysyms.h>

namespace viewer {

namespace {

constexpr int width = 1280; // pixels
constexpr int height = 860; // pixels
constexpr const char* version = ZEL_VERSION;

} // namespace

MainWindow::MainWindow(const std::string& file, const std::string& placeFile)
    : settingsFile(placeFile), settings(settingsFile.read()) {
    examples::installLook();
    set_title(file);
    set_default_size(width, height);
    if (!placeFile.empty())
        place = std::make_unique<WindowPlace>(*this, placeFile);
    _composeBar();
    arrangePanels();
    _tiePages();
    for (Gtk::Widget* const content :
         std::initializer_list<Gtk::Widget*>{&page, &hodograph, &plane, &channels, &events})
        content->signal_button_press_event().connect(sigc::mem_fun(*this, &MainWindow::_onContentPress),
                                                     false);
    signal_key_press_event().connect(sigc::mem_fun(*this, &MainWindow::_onKeyPress), false);
    examples::installTextZoom(*this);
}

MainWindow::~MainWindow() {
    // While all of it still stands: a window that is on the screen leaves it now and keeps its place.
    hide();
}

void MainWindow::setRecord(record::Record record, Impedances computed) {
    // What it shows of the former record says nothing of this one.
    settingsDialog.dismiss();
    source = keepForImpedances(record);
    _showImpedances(std::move(computed));
    settingsButton.set_sensitive(true);
    channels.setRecord(record);
    events.setRecord(record);
    page.setRecord(std::move(record));
}

void MainWindow::arrangePanels() {
    using Zel::Positions;
    // With the former manager go its panels and the windows of those that float.
    panels.reset();
    panels = std::make_unique<Zel::PanelManagerPresenter>();
    // The tables first, so that they have the whole width below all others.
    Zel::IPanelView* const left = panels->newPanel(words::oscillogram(), Positions::Left, page, nullptr);
    Zel::IPanelView* const below = panels->newPanel(words::channels(), Positions::Bottom, channels, left);
    Zel::IPanelView* const beside = panels->newPanel(words::events(), Positions::Right, events, below);
    Zel::IPanelView* const right = panels->newPanel(words::hodograph(), Positions::Right, hodograph, left);
    Zel::IPanelView* const tab = panels->newPanel(words::zPlane(), Positions::Center, plane, right);
    for (Zel::IPanelView* const panel : {left, right, tab, below, beside})
        panel->setProperties(true, true);
    // The dividers stand where these sizes put them.
    left->setSize(640, 440);
    right->setSize(420, 440);
    tab->setSize(420, 440);
    below->setSize(530, 100);
    beside->setSize(530, 100);
    Gtk::Widget& view = *Zel::GtkWidgetHelper::getWidget(panels->getView());
    add(view);
    view.show_all();
}

void MainWindow::_composeBar() {
    settingsButton.set_label(words::settings());
    settingsButton.set_sensitive(false);
    settingsButton.signal_clicked().connect(sigc::mem_fun(*this, &MainWindow::_onSettings));
    settingsDialog.signalApplied.connect(sigc::mem_fun(*this, &MainWindow::_applySettings));
    arrangeButton.set_label(words::resetPanels());
    helpButton.set_label(words::help());
    aboutButton.set_label(lng::View::About::about());
    arrangeButton.signal_clicked().connect(sigc::mem_fun(*this, &MainWindow::arrangePanels));
    helpButton.signal_clicked().connect(sigc::mem_fun(*this, &MainWindow::_onHelp));
    aboutButton.signal_clicked().connect(sigc::mem_fun(*this, &MainWindow::_onAbout));
    for (Gtk::Button* const button : {&settingsButton, &arrangeButton, &helpButton, &aboutButton})
        buttons.pack_start(*button, Gtk::PACK_SHRINK);
    buttons.set_margin_end(12);
}

void MainWindow::on_show() {
    Zel::Window::on_show();
    // Not before: giving the bar its buttons shows the whole window.
    if (!buttons.get_parent())
        setUserButtons(&buttons);
}

void MainWindow::_tiePages() {
    hodograph.signalLoopChosen.connect(sigc::mem_fun(plane, &ZPlanePage::chooseLoop));
    plane.signalLoopChosen.connect(sigc::mem_fun(hodograph, &HodographPage::chooseLoop));
    hodograph.signalTimeChanged.connect(sigc::mem_fun(plane, &ZPlanePage::showTime));
    hodograph.signalLockChanged.connect(sigc::mem_fun(plane, &ZPlanePage::setIsLocked));
    events.signalTimeChosen.connect(sigc::mem_fun(page, &RecordPage::centreOn));
}

void MainWindow::on_unmap() {
    settingsDialog.dismiss();
    // While it still has a place.
    if (place)
        place->save();
    Zel::Window::on_unmap();
}

bool MainWindow::_onContentPress(GdkEventButton* event) {
    // What the content lets through would drag its panel: a marker or a plane is to be dragged by itself.
    return event->button == GDK_BUTTON_PRIMARY;
}

bool MainWindow::_onKeyPress(GdkEventKey* event) {
    if (event->keyval != GDK_KEY_F1)
        return false;
    _onHelp();
    return true;
}

void MainWindow::_onHelp() {
    try {
        Zel::HelpView().show(this, words::helpFile());
    } catch (const cross::ErrBufLastErr&) {
        // It has told what happened; to ask for help must not end the program.
    }
}

void MainWindow::_onAbout() {
    about.show(this, words::programName(), version);
}

void MainWindow::_onSettings() {
    settingsDialog.open(this, settings, *impedances);
}

void MainWindow::_applySettings(const ImpedanceSettings& chosen) {
    if (chosen == settings)
        return;
    settings = chosen;
    settingsFile.write(settings);
    const impedance::Loop loop = plane.getLoop();
    _showImpedances(computeImpedances(source, settings.line(), settings.reaches()));
    // A person who looks at a loop goes on looking at it.
    plane.chooseLoop(loop);
}

void MainWindow::_showImpedances(Impedances computed) {
    impedances = std::make_shared<const Impedances>(std::move(computed));
    plane.setImpedances(impedances);
    hodograph.setImpedances(impedances);
}

} // namespace viewer
