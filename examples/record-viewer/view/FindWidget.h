#pragma once

#include <gtkmm/container.h>

namespace viewer {

/// The first widget of the type in a tree, the root included, or null.
template <typename T>
T* findWidget(Gtk::Widget& widget) {
    if (T* const found = dynamic_cast<T*>(&widget))
        return found;
    T* found = nullptr;
    if (auto* const container = dynamic_cast<Gtk::Container*>(&widget))
        container->forall([&found](Gtk::Widget& child) {
            if (!found)
                found = findWidget<T>(child);
        });
    return found;
}

} // namespace viewer
