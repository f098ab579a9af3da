#include <ZelCommonView/dialogs/WaitingDialogPresenter.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/dialogs/WaitingDialog.h>

namespace Zel {

WaitingDialogPresenter::WaitingDialogPresenter() = default;

WaitingDialogPresenter::~WaitingDialogPresenter() {
    if (worker.joinable())
        worker.join();
}

void WaitingDialogPresenter::open(IView* parent, const std::string& message, const std::string& title,
                                  const std::function<void()>& givenWork, bool modal,
                                  const std::function<void()>& givenCancel) {
    if (dialog)
        return;
    work = givenWork;
    cancel = givenCancel;
    if (work) {
        if (worker.joinable())
            worker.join();
        // Otherwise the worker would be the first to come there and be taken for the GTK thread.
        ApplicationDispatcherPresenter::getInstance().registerDispatcher();
        // It runs a copy, since a later call may replace the stored function while this job still runs.
        worker = std::thread([this, job = work] {
            job();
            guard.safeBeginUpdateView([this] { close(); });
        });
    }

    // The worker doesn't meet a half-made dialog: it reaches it through the main loop, which turns in `run`
    // only.
    dialog = std::make_unique<WaitingDialog>(parent, title, message);
    dialog->set_modal(modal);
    if (cancel) {
        dialog->setCancelable(true);
        dialog->signalCancel.connect([this] { _onCancel(); });
    }
    dialog->run();
    // Nothing is touched from here on: the presenter may have been destroyed meanwhile.
}

void WaitingDialogPresenter::close() {
    if (!dialog)
        return;
    dialog->response(Gtk::RESPONSE_OK);
    dialog.reset();
    // Last: what hears it may destroy the presenter.
    emitKept(signalClosedDialog);
}

void WaitingDialogPresenter::setMessage(const std::string& message) {
    guard.safeBeginUpdateView([this, message] {
        if (dialog)
            dialog->set_message(message);
    });
}

bool WaitingDialogPresenter::isCanceled() const {
    return canceled;
}

void WaitingDialogPresenter::_onCancel() {
    // The function may open another job or destroy the presenter, and with it the stored function itself.
    const std::function<void()> function = cancel;
    const std::weak_ptr<UpdateViewGuard::LifetimeToken> lifetime = guard.getLifetime();
    function();
    if (!lifetime.expired())
        canceled = true;
}

} // namespace Zel
