/// The hop to the GTK thread. Gtk may be touched from that thread only; these operations carry a function to
/// it from any other.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <atomic>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace Glib {
class Dispatcher;
class Thread;
} // namespace Glib

namespace Zel {

/// Runs `function` on the GTK thread: at once if that is the calling thread, ahead of whatever is queued;
/// otherwise after all that was queued before, when the main loop comes to it, without waiting for it.
///
/// An application calls `ApplicationDispatcherPresenter::getInstance().registerDispatcher()` on its GTK
/// thread before it starts another one: the first thread that gets here by any way is taken for the GTK
/// thread.
///
/// An empty function throws `std::bad_function_call` where it is run. What a function throws on the main loop
/// goes to the handlers of glibmm, and those behind it wait for the next wake-up.
ZEL_API void beginUpdateView(const std::function<void()>& function);

/// The same, but returns only when `function` has been run. There is no time limit: a GTK thread that itself
/// waits for the calling thread blocks both for ever, and so does a function that throws there. Main loops
/// within the main loop, such as that of a dialog, serve the queue too.
ZEL_API void waitUpdateView(const std::function<void()>& function);

/// What carries functions to the GTK thread, as a view.
class ZEL_API IApplicationDispatcher : public IView {
public:
    ~IApplicationDispatcher() override;

    /// Makes the calling thread the one that functions are carried to. Only the first call counts.
    virtual void registerDispatcher() = 0;
    /// See `beginUpdateView`.
    virtual void beginInvoke(const std::function<void()>& function) = 0;
    /// See `waitUpdateView`.
    virtual void invoke(const std::function<void()>& function) = 0;
};

/// The one queue of the process, first in, first out. All three operations may be called from any thread.
///
/// It lives until the process exits; what is queued then is destroyed without being called, and a thread that
/// waits in `invoke` at that moment is not woken.
class ZEL_API ApplicationDispatcher : public virtual IApplicationDispatcher {
public:
    ~ApplicationDispatcher() override;
    ApplicationDispatcher(const ApplicationDispatcher&) = delete;
    ApplicationDispatcher& operator=(const ApplicationDispatcher&) = delete;

    /// The one object, made on first use.
    static ApplicationDispatcher& getInstance();

    void registerDispatcher() override;
    void beginInvoke(const std::function<void()>& function) override;
    void invoke(const std::function<void()>& function) override;

private:
    ApplicationDispatcher();

    void _invokeQueue();

    std::deque<std::function<void()>> queue;
    std::unique_ptr<Glib::Dispatcher> dispatcher; ///< null until registered
    Glib::Thread* mainThread = nullptr;           ///< the thread that registered
    std::mutex queueMutex;                        ///< guards `queue`; never held while a function runs
    std::atomic<std::size_t> queued{0};           ///< the length of `queue`, to be read without the lock
    std::atomic<int> wakeUps{0};                  ///< sent to the main loop and not yet served
};

/// The same three operations for applications; an object without a state of its own.
class ZEL_API ApplicationDispatcherPresenter {
public:
    ApplicationDispatcherPresenter(const ApplicationDispatcherPresenter&) = delete;
    ApplicationDispatcherPresenter& operator=(const ApplicationDispatcherPresenter&) = delete;

    /// The one object, made on first use.
    static ApplicationDispatcherPresenter& getInstance();

    /// Makes the calling thread, which must be the GTK thread, the one that functions are carried to. To be
    /// called once before any other thread is started; later calls change nothing.
    void registerDispatcher();
    /// See `beginUpdateView`.
    void beginInvoke(const std::function<void()>& function);
    /// See `waitUpdateView`.
    void invoke(const std::function<void()>& function);

private:
    ApplicationDispatcherPresenter() = default;
};

} // namespace Zel
