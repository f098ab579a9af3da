/// Finding the parts of a page, as a person finds them by what they say.
#pragma once

#include <gtkmm.h>

#include <string>
#include <vector>

namespace test {

/// All widgets of the type at or below the widget, from the outside in.
template <typename T>
void collect(Gtk::Widget& widget, std::vector<T*>& found) {
    if (auto* const match = dynamic_cast<T*>(&widget))
        found.push_back(match);
    if (auto* const container = dynamic_cast<Gtk::Container*>(&widget))
        container->foreach ([&found](Gtk::Widget& child) { collect<T>(child, found); });
}

template <typename T>
std::vector<T*> findAll(Gtk::Widget& widget) {
    std::vector<T*> found;
    collect<T>(widget, found);
    return found;
}

/// The first widget of the type with this text, null if there is none.
template <typename T>
T* findLabelled(Gtk::Widget& widget, const std::string& text) {
    for (T* candidate : findAll<T>(widget))
        if (candidate->get_label() == text)
            return candidate;
    return nullptr;
}

} // namespace test
