/// One page of the gallery, and what a test does to it and reads on it.
#pragma once

#include "Pages.h"
#include "Search.h"

#include "support/Hands.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace test {

/// One page that is painted without being shown.
struct PageHost {
    explicit PageHost(const char* name)
        : widget(gallery::findPage(name)->create()), host(*widget, 800, 500) {}

    Picture picture() { return pictureOf(host.picture()); }

    void press(const char* text) {
        auto* const button = findLabelled<Gtk::Button>(*widget, text);
        ASSERT_NE(button, nullptr) << text;
        button->clicked();
        settle();
    }

    void pressTool(const char* text) {
        auto* const button = findLabelled<Gtk::ToolButton>(*widget, text);
        ASSERT_NE(button, nullptr) << text;
        g_signal_emit_by_name(button->gobj(), "clicked");
        settle();
    }

    std::vector<std::string> texts() {
        std::vector<std::string> all;
        for (Gtk::Label* label : findAll<Gtk::Label>(*widget))
            all.push_back(label->get_text());
        return all;
    }

    bool says(const std::string& text) {
        const std::vector<std::string> all = texts();
        return std::find(all.begin(), all.end(), text) != all.end();
    }

    std::unique_ptr<Gtk::Widget> widget;
    OffscreenHost host;
};

} // namespace test
