#pragma once

namespace Zel {

/// Points to a widget that belongs to someone else and becomes null when that widget dies. `T` is a Gtk
/// widget; a null pointer is allowed.
template <typename T>
class WidgetReference {
public:
    WidgetReference() = default;

    ~WidgetReference() { _forget(); }

    WidgetReference(const WidgetReference&) = delete;
    WidgetReference& operator=(const WidgetReference&) = delete;

    /// Points to another widget, or to none.
    WidgetReference& operator=(T* other) {
        _forget();
        widget = other;
        if (widget)
            widget->add_destroy_notify_callback(this, &WidgetReference::_onDied);
        return *this;
    }

    /// The widget, null if it died.
    operator T*() const { return widget; }

    /// The widget, which must not be null.
    T* operator->() const { return widget; }

private:
    void _forget() {
        if (widget)
            widget->remove_destroy_notify_callback(this);
        widget = nullptr;
    }

    static void* _onDied(void* reference) {
        static_cast<WidgetReference*>(reference)->widget = nullptr;
        return nullptr;
    }

    T* widget = nullptr;
};

} // namespace Zel
