// Not installed: for the sources of the library only.
#pragma once

#include <sigc++/trackable.h>

namespace Zel {

/// Tells an operation that emits a signal in its middle whether a listener has destroyed the emitting object.
class LifeWatch {
public:
    explicit LifeWatch(const sigc::trackable& trackable) : object(trackable) {
        object.add_destroy_notify_callback(this, &_onDestroyed);
    }

    ~LifeWatch() {
        if (alive)
            object.remove_destroy_notify_callback(this);
    }

    LifeWatch(const LifeWatch&) = delete;
    LifeWatch& operator=(const LifeWatch&) = delete;

    /// Whether the object still lives.
    explicit operator bool() const { return alive; }

private:
    static void* _onDestroyed(void* watch) {
        static_cast<LifeWatch*>(watch)->alive = false;
        return nullptr;
    }

    const sigc::trackable& object;
    bool alive = true;
};

} // namespace Zel
