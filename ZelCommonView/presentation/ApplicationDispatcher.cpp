#include <ZelCommonView/presentation/ApplicationDispatcher.h>

#include <ZelCommonView/common/AutoResetEvent.h>

#include <glibmm/dispatcher.h>
#include <glibmm/thread.h>

#include <utility>

namespace Zel {

namespace {

/// With so many wake-ups under way no further one is sent. They travel through a pipe, and one that is full
/// blocks the sender, for ever if the GTK thread happens to wait for that very thread to end.
constexpr int maxWakeUps = 1024;

} // namespace

void beginUpdateView(const std::function<void()>& function) {
    ApplicationDispatcherPresenter::getInstance().beginInvoke(function);
}

void waitUpdateView(const std::function<void()>& function) {
    ApplicationDispatcherPresenter::getInstance().invoke(function);
}

IApplicationDispatcher::~IApplicationDispatcher() = default;

ApplicationDispatcher::ApplicationDispatcher() = default;

ApplicationDispatcher::~ApplicationDispatcher() {
    // Only the thread that made it may destroy it. A process that exits on another one keeps it to the end,
    // in a place where it doesn't count as lost.
    static std::atomic<Glib::Dispatcher*> kept;
    if (dispatcher && Glib::Thread::self() != mainThread)
        kept = dispatcher.release();
}

ApplicationDispatcher& ApplicationDispatcher::getInstance() {
    static ApplicationDispatcher instance;
    return instance;
}

void ApplicationDispatcher::registerDispatcher() {
    if (dispatcher)
        return;
    dispatcher = std::make_unique<Glib::Dispatcher>();
    dispatcher->connect(sigc::mem_fun(*this, &ApplicationDispatcher::_invokeQueue));
    mainThread = Glib::Thread::self();
}

void ApplicationDispatcher::beginInvoke(const std::function<void()>& function) {
    registerDispatcher();
    if (Glib::Thread::self() == mainThread) {
        function();
        return;
    }
    std::function<void()> copy = function;
    {
        const std::lock_guard<std::mutex> lock(queueMutex);
        registerDispatcher();
        queue.push_back(std::move(copy));
        ++queued;
    }
    // A function that sends none isn't missed: each of those under way empties the queue.
    if (wakeUps < maxWakeUps) {
        ++wakeUps;
        dispatcher->emit();
    }
}

void ApplicationDispatcher::invoke(const std::function<void()>& function) {
    registerDispatcher();
    if (Glib::Thread::self() == mainThread) {
        function();
        return;
    }
    const auto event = std::make_unique<AutoResetEvent>();
    {
        const std::function<void()> wrapper = [function, raw = event.get()] {
            function();
            raw->set();
        };
        beginInvoke(wrapper);
    }
    event->waitOne();
}

void ApplicationDispatcher::_invokeQueue() {
    --wakeUps;
    // The test needs no lock: a function that slips past it has a wake-up of its own.
    while (queued > 0) {
        std::function<void()> function;
        {
            const std::lock_guard<std::mutex> lock(queueMutex);
            function = std::move(queue.front());
            queue.pop_front();
            --queued;
        }
        function();
    }
}

ApplicationDispatcherPresenter& ApplicationDispatcherPresenter::getInstance() {
    static ApplicationDispatcherPresenter instance;
    return instance;
}

void ApplicationDispatcherPresenter::registerDispatcher() {
    ApplicationDispatcher::getInstance().registerDispatcher();
}

void ApplicationDispatcherPresenter::beginInvoke(const std::function<void()>& function) {
    ApplicationDispatcher::getInstance().beginInvoke(function);
}

void ApplicationDispatcherPresenter::invoke(const std::function<void()>& function) {
    ApplicationDispatcher::getInstance().invoke(function);
}

} // namespace Zel
