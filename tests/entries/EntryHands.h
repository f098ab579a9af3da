/// What the tests of entries share: an entry on the screen between two others, and keys that go to a widget
/// straight away, without the display.
#pragma once

#include "support/Hands.h"
#include "support/Keyboard.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace test {

/// Where a selection begins and ends, in characters.
using Place = std::pair<int, int>;

/// An entry on the screen, with one before and one behind it. The first has the focus.
template <typename TEntry>
struct EntryOnScreen : testing::Test {
    /// What the display may take to hand over a clipboard, in milliseconds.
    static constexpr int pasteTime = 100;

    EntryOnScreen() {
        for (Gtk::Widget* const widget :
             {static_cast<Gtk::Widget*>(&before), widgetOfEntry(), static_cast<Gtk::Widget*>(&behind)})
            box.pack_start(*widget, Gtk::PACK_SHRINK);
        window.set_default_size(400, 300);
        window.add(box);
        before.set_text("before");
        test::present(window);
        before.grab_focus();
        test::settle();
    }

    Gtk::Widget* widgetOfEntry() { return owned.get(); }

    /// Gives the entry the focus and waits for what comes of it.
    void focus() {
        owned->grab_focus();
        test::settle();
    }

    void key(unsigned int value) {
        test::pressKey(value);
        test::settle();
    }

    /// A key with another one held.
    void keyWith(unsigned int held, unsigned int value) {
        {
            const HeldKey hold(held);
            test::pressKey(value);
            test::settle();
        }
        test::settle();
    }

    void typeText(const std::string& text) {
        test::type(text);
        test::settle();
    }

    /// Puts a text on the clipboard as another program does, and pastes it with the keyboard.
    void pasteByKeys(const std::string& text) {
        Gtk::Clipboard::get()->set_text(text);
        keyWith(GDK_KEY_Control_L, GDK_KEY_v);
        test::wait(pasteTime);
    }

    /// Selects a text with the pointer elsewhere, and pastes it with the middle button at a place of the
    /// entry.
    void pasteByPointer(const std::string& text, int x) {
        Gtk::Clipboard::get(GDK_SELECTION_PRIMARY)->set_text(text);
        test::click(*owned, x, owned->get_allocated_height() / 2, 2);
        test::wait(pasteTime);
    }

    /// Where the cursor stands before a character, in the entry's pixels.
    int xOf(int character) {
        int x = 0;
        int y = 0;
        owned->get_layout_offsets(x, y);
        const auto layout = owned->get_layout();
        const std::string text = layout->get_text();
        const char* const place = g_utf8_offset_to_pointer(text.c_str(), character);
        const auto rectangle = layout->index_to_pos(static_cast<int>(place - text.c_str()));
        return x + rectangle.get_x() / Pango::SCALE;
    }

    /// The selected characters, from and to; both the cursor where nothing is selected.
    Place selection() {
        int from = 0;
        int to = 0;
        if (!owned->get_selection_bounds(from, to))
            from = to = owned->get_position();
        return {from, to};
    }

    Gtk::Window window;
    Gtk::Box box{Gtk::ORIENTATION_VERTICAL};
    Gtk::Entry before;
    std::unique_ptr<TEntry> owned = std::make_unique<TEntry>();
    TEntry& entry = *owned;
    Gtk::Entry behind;
};

/// What the display says that a key types, with the control key or without.
inline std::string stringOf(unsigned int key, unsigned int state = 0) {
    if (key == GDK_KEY_Return || key == GDK_KEY_KP_Enter)
        return "\r";
    const gunichar character = gdk_keyval_to_unicode(key);
    if (character == 0)
        return key == GDK_KEY_Escape ? "\033" : key == GDK_KEY_BackSpace ? "\b" : "";
    if (state & GDK_CONTROL_MASK)
        return std::string(1, static_cast<char>(character & 0x1f));
    char utf8[7] = {};
    g_unichar_to_utf8(character, utf8);
    return utf8;
}

/// The place of a key on the keyboard, which Gtk finds its key bindings by; 0 if it isn't there.
inline guint16 codeOf(unsigned int key) {
    static std::map<unsigned int, guint16> known;
    const auto found = known.find(key);
    if (found != known.end())
        return found->second;
    GdkKeymapKey* keys = nullptr;
    int count = 0;
    gdk_keymap_get_entries_for_keyval(gdk_keymap_get_for_display(gdk_display_get_default()), key, &keys,
                                      &count);
    const guint16 code = count > 0 ? static_cast<guint16>(keys[0].keycode) : guint16{0};
    g_free(keys);
    return known[key] = code;
}

/// Hands an event to the widget, past its window. Gtk refuses events of a widget that isn't realized; such a
/// one gets the signal alone.
inline bool deliver(Gtk::Widget& widget, GdkEvent* event, const char* signal) {
    if (widget.get_realized())
        return gtk_widget_event(widget.gobj(), event);
    gboolean isTaken = false;
    g_signal_emit_by_name(widget.gobj(), signal, event, &isTaken);
    return isTaken;
}

/// The window that events of the widget come from.
inline GdkWindow* windowOf(Gtk::Widget& widget) {
    Gtk::Widget* const realized = widget.get_realized() ? &widget : widget.get_toplevel();
    return static_cast<GdkWindow*>(g_object_ref(realized->get_window()->gobj()));
}

/// A press or a release of a key, straight to the widget. `string` is what the key types.
inline bool sendKeyEvent(Gtk::Widget& widget, bool isPress, unsigned int key, unsigned int state,
                         const char* string) {
    GdkEvent* const event = gdk_event_new(isPress ? GDK_KEY_PRESS : GDK_KEY_RELEASE);
    event->key.window = windowOf(widget);
    event->key.send_event = true;
    event->key.state = state;
    event->key.keyval = key;
    event->key.hardware_keycode = codeOf(key);
    g_free(event->key.string);
    event->key.string = g_strdup(string);
    event->key.length = string ? static_cast<int>(std::strlen(string)) : 0;
    gdk_event_set_device(event,
                         gdk_seat_get_keyboard(gdk_display_get_default_seat(gdk_display_get_default())));
    const bool isTaken = deliver(widget, event, isPress ? "key-press-event" : "key-release-event");
    gdk_event_free(event);
    return isTaken;
}

/// Presses and releases a key straight to the widget. Returns whether the press was taken.
inline bool sendKey(Gtk::Widget& widget, unsigned int key, unsigned int state = 0) {
    const std::string string = stringOf(key, state);
    const bool isTaken = sendKeyEvent(widget, true, key, state, string.c_str());
    sendKeyEvent(widget, false, key, state, string.c_str());
    return isTaken;
}

/// The focus comes or goes, straight to the widget.
inline void sendFocus(Gtk::Widget& widget, bool isIn) {
    GdkEvent* const event = gdk_event_new(GDK_FOCUS_CHANGE);
    event->focus_change.window = windowOf(widget);
    event->focus_change.in = isIn;
    if (widget.get_realized())
        gtk_widget_send_focus_change(widget.gobj(), event);
    else
        deliver(widget, event, isIn ? "focus-in-event" : "focus-out-event");
    gdk_event_free(event);
}

/// Lets what waits for its turn have it, without waiting for anything new.
inline void runPending() {
    for (int i = 0; i < 500 && Gtk::Main::events_pending(); ++i)
        Gtk::Main::iteration(false);
}

} // namespace test
