/// Whether Gtk objects really end: the leak checker can't tell, since Gtk's own tables still reach a leaked
/// widget.
#pragma once

#include <glib-object.h>

namespace test {

/// Counts the objects that were watched and have been finalised.
class Finalised {
public:
    /// `object` is a widget of gtkmm.
    template <typename T>
    void watch(T& object) {
        ++watched;
        g_object_weak_ref(
            G_OBJECT(object.gobj()), [](gpointer self, GObject*) { ++static_cast<Finalised*>(self)->count; },
            this);
    }

    bool all() const { return count == watched; }

    int count = 0;
    int watched = 0;
};

} // namespace test
