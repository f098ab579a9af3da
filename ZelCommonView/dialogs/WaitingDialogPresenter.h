#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/UpdateViewGuard.h>

#include <sigc++/signal.h>

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>

namespace Zel {

class IView;
class WaitingDialog;

/// Runs one long job on a thread of its own while a dialog tells the user to wait. Make a new one for each
/// job.
///
/// All but `setMessage` and `isCanceled` is for the GTK thread.
class ZEL_API WaitingDialogPresenter {
public:
    /// Emitted by `close`, when the dialog is gone and before `open` returns.
    sigc::signal<void> signalClosedDialog;

    WaitingDialogPresenter();
    /// Waits for the job to end, which blocks the GTK thread: a job that is in `waitUpdateView` then blocks
    /// both for ever. Drops the updates that the job has queued, and ends an `open` that is still waiting.
    virtual ~WaitingDialogPresenter();
    WaitingDialogPresenter(const WaitingDialogPresenter&) = delete;
    WaitingDialogPresenter& operator=(const WaitingDialogPresenter&) = delete;

    /// Starts `work` on its own thread, shows the dialog over the window of `parent` and returns when the
    /// dialog is over, which is when the job has ended. Meanwhile a main loop of its own serves whatever
    /// comes up. What `work` throws ends the process. Without `work` the dialog stays until `close`.
    ///
    /// With a function `cancel` there is a button that calls it, once, on the GTK thread; it tells the job to
    /// stop, by means of the caller's own, and the dialog stays until the job has done so. `modal` is of
    /// effect outside that main loop only, for Gtk makes every dialog modal for as long as it runs.
    ///
    /// While a dialog is there, a further call does nothing. That is so, too, after the user has left the
    /// dialog by Escape: `open` returns, but the dialog and the job stay until `close`, which the end of the
    /// job calls.
    void open(IView* parent, const std::string& message, const std::string& title,
              const std::function<void()>& work, bool modal, const std::function<void()>& cancel);

    /// Ends the dialog and emits `signalClosedDialog`; does nothing if there is no dialog. Doesn't wait for
    /// the job.
    void close();

    /// Shows another message, in its turn after what other threads have queued before; does nothing if the
    /// dialog is over by then. May be called from any thread.
    void setMessage(const std::string& message);

    /// Whether the user has cancelled; set when the function `cancel` has returned, and never back to false.
    /// May be called from any thread.
    bool isCanceled() const;

private:
    void _onCancel();

    std::unique_ptr<WaitingDialog> dialog; ///< null unless open
    std::function<void()> work;
    std::function<void()> cancel;
    std::thread worker;
    UpdateViewGuard guard;
    std::atomic<bool> canceled{false}; ///< written on the GTK thread, polled by the job
};

} // namespace Zel
