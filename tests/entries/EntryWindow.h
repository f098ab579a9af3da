/// An entry between two others in a window on the screen, worked with real keys.
#pragma once

#include "entries/EntryForm.h"
#include "support/Hands.h"
#include "support/Keyboard.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <map>
#include <memory>
#include <string>

namespace test {

template <typename Entry>
class EntryWindow {
public:
    EntryWindow() {
        entry.set_size_request(150, -1);
        for (Gtk::Widget* widget : {static_cast<Gtk::Widget*>(&before), static_cast<Gtk::Widget*>(&entry),
                                    static_cast<Gtk::Widget*>(&after)})
            box.add(*widget);
        window.add(box);
        window.add_events(Gdk::SCROLL_MASK);
        window.signal_scroll_event().connect(
            [this](GdkEventScroll*) {
                ++wheelTurnsThatGotThrough;
                return false;
            },
            false);
        window.signal_key_release_event().connect(
            [this](GdkEventKey* event) {
                releasedKey = event->keyval;
                return false;
            },
            false);
        before.grab_focus();
        present(window);
        EXPECT_TRUE(waitFor([this] { return before.has_focus(); }));
    }

    ~EntryWindow() { runPending(); }

    /// Presses a key of the keyboard, or one that it gets for that, and waits for what comes of it.
    void strike(guint key) {
        releasedKey = 0;
        const bool isCyrillic = key >= GDK_KEY_Cyrillic_yu && key <= GDK_KEY_Cyrillic_HARDSIGN;
        if (isCyrillic) {
            std::unique_ptr<AddedKey>& added = addedKeys[key];
            if (!added)
                added = std::make_unique<AddedKey>(key);
            added->press();
        } else {
            pressKey(key);
        }
        EXPECT_TRUE(waitFor([&] { return releasedKey == key; })) << "the key " << key << " never came";
        runPending();
    }

    void strike(guint modifier, guint key) {
        {
            const HeldKey held(modifier);
            pressKey(key);
            wait(20);
        }
        settle();
    }

    void typeText(const Glib::ustring& text) {
        for (const gunichar c : text)
            strike(gdk_unicode_to_keyval(c));
    }

    /// Gives the entry a text as a person would have left it, with the focus and the cursor at a place.
    void prepare(const Glib::ustring& text, int position) {
        focus();
        entry.set_text("");
        entry.set_text(text);
        ASSERT_EQ(entry.get_text(), text);
        runPending();
        entry.set_position(position);
    }

    void focus() {
        entry.grab_focus();
        EXPECT_TRUE(waitFor([this] { return entry.has_focus(); }));
        runPending();
    }

    void leave() {
        after.grab_focus();
        EXPECT_TRUE(waitFor([this] { return !entry.has_focus(); }));
        runPending();
    }

    /// Turns the wheel over the entry: 4 is up, 5 down.
    void turnWheel(unsigned int button) {
        movePointer(entry, 75, 10);
        settle();
        pressButton(button);
        releaseButton(button);
        settle();
    }

    std::pair<int, int> selection() const {
        std::pair<int, int> bounds{0, 0};
        if (!entry.get_selection_bounds(bounds.first, bounds.second))
            return {0, 0};
        return bounds;
    }

    Gtk::Entry before;
    Entry entry;
    Gtk::Entry after;
    int wheelTurnsThatGotThrough = 0;

private:
    guint releasedKey = 0;
    std::map<guint, std::unique_ptr<AddedKey>> addedKeys;
    Gtk::Box box{Gtk::ORIENTATION_VERTICAL, 10};
    Gtk::Window window;
};

} // namespace test
