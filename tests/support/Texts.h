/// Searching in texts by regular expressions of GLib: those of g++ 12 give false warnings under the
/// sanitizers.
#pragma once

#include <glib.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace test {

/// The first group of each match. `^` and `$` stand for the ends of lines. Throws `std::invalid_argument` for
/// an expression that is none.
inline std::vector<std::string> groupsIn(const std::string& text, const char* expression) {
    const std::unique_ptr<GRegex, void (*)(GRegex*)> regex(
        g_regex_new(expression, GRegexCompileFlags(G_REGEX_MULTILINE | G_REGEX_RAW), GRegexMatchFlags(0),
                    nullptr),
        g_regex_unref);
    if (!regex)
        throw std::invalid_argument(expression);
    GMatchInfo* match = nullptr;
    g_regex_match(regex.get(), text.c_str(), GRegexMatchFlags(0), &match);
    std::vector<std::string> found;
    for (; g_match_info_matches(match); g_match_info_next(match, nullptr)) {
        gchar* const group = g_match_info_fetch(match, 1);
        found.emplace_back(group);
        g_free(group);
    }
    g_match_info_free(match);
    return found;
}

} // namespace test
