/// What a text means to an entry for times, found in another way than the entry does.
#pragma once

#include <ZelCommonView/entries/TimeEntry.h>

#include "entries/EntryHands.h"

#include <glibmm/regex.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace test {

using Zel::TimeEntry;
using Told = std::pair<bool, std::string>;
using AllTold = std::vector<Told>;

struct MenuView : Gtk::Menu, Zel::IView {
    MenuView() {
        append(item);
        show_all();
    }

    Gtk::MenuItem item{"own"};
};

inline bool isTime(const std::string& text) {
    return Glib::Regex::create("^([0-9]|1[0-9]|2[0-3]):([1-5]?[0-9]):([1-5]?[0-9])\\z")->match(text);
}

/// Whether a person may leave the text for a while: a part may be missing.
inline bool mayStand(const std::string& text) {
    return Glib::Regex::create("^([0-9]|1[0-9]|2[0-3])?:([1-5]?[0-9])?:([1-5]?[0-9])?\\z")->match(text);
}

inline bool hasTwoColons(const std::string& text) {
    return std::count(text.begin(), text.end(), ':') == 2;
}

/// What is told of an edit that would leave `candidate` in place of the time `last`.
inline AllTold toldOf(const std::string& candidate, const std::string& last) {
    if (isTime(candidate))
        return {{true, candidate}};
    if (hasTwoColons(candidate) && !mayStand(candidate))
        return {{true, last}};
    return {};
}

/// Where the parts of the text stand.
inline std::vector<Place> partsOf(const std::string& text) {
    std::vector<Place> parts;
    int start = 0;
    for (int i = 0; i <= static_cast<int>(text.size()); ++i)
        if (i == static_cast<int>(text.size()) || text[static_cast<std::size_t>(i)] == ':') {
            parts.emplace_back(start, i);
            start = i + 1;
        }
    return parts;
}

/// The number of the part that the place lies in or stands at the end of.
inline std::size_t partAt(const std::string& text, int pos) {
    const std::vector<Place> parts = partsOf(text);
    std::size_t index = 0;
    while (parts[index].second < pos)
        ++index;
    return index;
}

} // namespace test
