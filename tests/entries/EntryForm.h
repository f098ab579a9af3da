/// An entry beside a button that takes the focus from it, in a window that is not on the screen.
#pragma once

#include "support/Hands.h"

#include <gtkmm.h>

#include <memory>

namespace test {

/// Such a window never becomes the active one, so the focus moves by the events that an active one sends.
template <typename Entry>
class EntryForm {
public:
    /// Without a picture the window is never painted, nor the text measured, and all goes much faster.
    explicit EntryForm(bool hasPicture = true) {
        box.add(entry);
        box.add(other);
        if (hasPicture)
            host = std::make_unique<OffscreenHost>(box, 200, 40);
        else
            plain.add(box);
        box.show_all();
        other.grab_focus();
    }

    ~EntryForm() { plain.remove(); }

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
        event->focus_change.window = getWindow();
        event->focus_change.in = isIn;
        gtk_widget_send_focus_change(GTK_WIDGET(entry.gobj()), event);
        gdk_event_free(event);
    }

    /// Presses a key, without a keyboard.
    void press(guint key, guint state = 0) {
        GdkEvent* event = gdk_event_new(GDK_KEY_PRESS);
        event->key.window = getWindow();
        event->key.keyval = key;
        event->key.state = state;
        gdk_event_set_device(event, keyboard->gobj());
        send("key-press-event", event);
    }

    /// Turns the wheel by one notch.
    void scroll(GdkScrollDirection direction) {
        GdkEvent* event = gdk_event_new(GDK_SCROLL);
        event->scroll.window = getWindow();
        event->scroll.direction = direction;
        send("scroll-event", event);
    }

    Entry entry;
    Gtk::Button other;
    Gtk::Box box;

private:
    /// By the signal itself, since Gtk keeps events from widgets that are not shown.
    void send(const char* signal, GdkEvent* event) {
        gboolean isHandled = false;
        g_signal_emit_by_name(entry.gobj(), signal, event, &isHandled);
        gdk_event_free(event);
    }

    /// A window for an event, which gives it back; any will do.
    static GdkWindow* getWindow() { return GDK_WINDOW(g_object_ref(gdk_get_default_root_window())); }

    Gtk::Window plain;
    std::unique_ptr<OffscreenHost> host;
    Glib::RefPtr<Gdk::Device> keyboard = Gdk::Display::get_default()->get_default_seat()->get_keyboard();
};

/// Runs what is due at once: idle handlers and events, but nothing that waits for a time.
inline void runPending() {
    while (Gtk::Main::events_pending())
        Gtk::Main::iteration(false);
}

} // namespace test
