#include <ZelCommonView/dialogs/AboutWindowActivatorPresenter.h>

#include <ZelCommonView/dialogs/AboutView.h>
#include <ZelCommonView/dialogs/AboutWords.h>
#include <ZelCommonView/windows/WindowPresenter.h>

namespace Zel {

AboutWindowActivatorPresenter::AboutWindowActivatorPresenter() = default;

AboutWindowActivatorPresenter::~AboutWindowActivatorPresenter() = default;

void AboutWindowActivatorPresenter::show(IView* parent, const std::string& programName,
                                         const std::string& version) {
    if (window)
        return;
    about = std::make_unique<AboutView>();
    about->setProgramName(programName);
    about->setVersion(version);
    window = std::make_unique<WindowPresenter>();
    IWindowView* const view = window->getView();
    view->setTitle(lng::View::About::about());
    view->setContentView(about.get());
    view->setModal(true);
    view->show(parent);
    window->signalClosed.connect(sigc::mem_fun(*this, &AboutWindowActivatorPresenter::_onClosed));
}

void AboutWindowActivatorPresenter::_onClosed() {
    about.reset();
    window.reset();
}

} // namespace Zel
