/// An entry beside a button that takes the focus from it, in a window that is not on the screen.
#pragma once

#include "support/Hands.h"

#include <gtkmm.h>

namespace test {

/// Such a window never becomes the active one, so the focus moves by the events that an active one sends.
template <typename Entry>
class EntryForm {
public:
    EntryForm() {
        box.add(entry);
        box.add(other);
        other.grab_focus();
    }

    void focusEntry() {
        if (entry.is_focus())
            return;
        entry.grab_focus();
        sendFocus(true);
    }

    void focusOther() {
        if (!entry.is_focus())
            return;
        other.grab_focus();
        sendFocus(false);
    }

    /// Tells the entry that the focus came or went, as when the window becomes the active one or ceases to
    /// be.
    void sendFocus(bool isIn) {
        GdkEvent* event = gdk_event_new(GDK_FOCUS_CHANGE);
        event->focus_change.window = GDK_WINDOW(g_object_ref(host.window.get_window()->gobj()));
        event->focus_change.in = isIn;
        gtk_widget_send_focus_change(GTK_WIDGET(entry.gobj()), event);
        gdk_event_free(event);
    }

    /// Presses and releases a key, without a keyboard.
    void press(guint key, guint state = 0) {
        for (const GdkEventType type : {GDK_KEY_PRESS, GDK_KEY_RELEASE}) {
            GdkEvent* event = gdk_event_new(type);
            event->key.window = GDK_WINDOW(g_object_ref(host.window.get_window()->gobj()));
            event->key.keyval = key;
            event->key.state = state;
            gdk_event_set_device(event, keyboard->gobj());
            gtk_widget_event(GTK_WIDGET(entry.gobj()), event);
            gdk_event_free(event);
        }
    }

    Entry entry;
    Gtk::Button other;
    Gtk::Box box;
    OffscreenHost host{box, 200, 40};

private:
    Glib::RefPtr<Gdk::Device> keyboard = Gdk::Display::get_default()->get_default_seat()->get_keyboard();
};

/// Runs what is due at once: idle handlers and events, but nothing that waits for a time.
inline void runPending() {
    while (Gtk::Main::events_pending())
        Gtk::Main::iteration(false);
}

} // namespace test
