#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ApplicationDispatcher.h>

#include <memory>
#include <type_traits>
#include <utility>

namespace Zel {

/// Keeps updates that another thread has queued from reaching a presenter that has gone: a value member of a
/// presenter whose work runs off the GTK thread. It is destroyed on the GTK thread, with the presenter.
class ZEL_API UpdateViewGuard {
public:
    /// Nothing but a lifetime: only the expiry of its pointer matters.
    struct LifetimeToken {};

    UpdateViewGuard();
    ~UpdateViewGuard();
    UpdateViewGuard(const UpdateViewGuard&) = delete;
    UpdateViewGuard& operator=(const UpdateViewGuard&) = delete;

    /// Queues `body`, a copyable function without arguments, for the GTK thread through `beginUpdateView`; it
    /// is dropped without being called if the guard has been destroyed before its turn. On the GTK thread it
    /// runs at once. May be called from any thread while the guard lives.
    template <typename F>
    void safeBeginUpdateView(F&& body) {
        const std::weak_ptr<LifetimeToken> weak = token;
        beginUpdateView([weak, call = std::decay_t<F>(std::forward<F>(body))]() mutable {
            // The lock is released before the body runs, so that the body itself may destroy the guard. It is
            // enough: the guard is destroyed on this thread, never beside the body.
            const bool isAlive = weak.lock() != nullptr;
            if (isAlive)
                call();
        });
    }

    /// Expires with the guard: for code on the GTK thread that calls something which may destroy the guard.
    std::weak_ptr<LifetimeToken> getLifetime() const { return token; }

private:
    std::shared_ptr<LifetimeToken> token; ///< never handed out strongly
};

} // namespace Zel
