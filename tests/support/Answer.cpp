#include "support/Answer.h"

#include "support/Hands.h"
#include "support/Keyboard.h"

#include <gtest/gtest.h>

#include <gdk/gdkx.h>

#include <algorithm>

namespace test {

namespace {

constexpr int lookEvery = 20;                        // milliseconds
constexpr gint64 restTime = 150000;                  // microseconds
constexpr int patienceTime = 15000 * test::patience; // milliseconds

} // namespace

Answer::Answer(std::function<void(Gtk::Dialog&)> givenAct) : act(std::move(givenAct)), known(findDialogs()) {
    // A theme lets buttons fade for a fifth of a second.
    Gtk::Settings::get_default()->property_gtk_enable_animations() = false;
    movePointerAway();
    timer = Glib::signal_timeout().connect(sigc::mem_fun(*this, &Answer::_look), lookEvery);
    patience = Glib::signal_timeout().connect(sigc::mem_fun(*this, &Answer::_giveUp), patienceTime);
}

Answer::~Answer() {
    timer.disconnect();
    patience.disconnect();
    EXPECT_TRUE(isActed) << "no dialog came up";
}

bool Answer::_look() {
    Gtk::Dialog* dialog = nullptr;
    for (Gtk::Dialog* const found : findDialogs())
        if (std::find(known.begin(), known.end(), found) == known.end())
            dialog = found;
    if (!dialog)
        return true;

    if (!isPresented) {
        // A window manager keeps the focus from a window that doesn't say that it comes from what the person
        // did last.
        dialog->present(gdk_x11_get_server_time(dialog->get_window()->gobj()));
        isPresented = true;
    }
    int x = 0;
    int y = 0;
    dialog->get_window()->get_origin(x, y);
    if (!dialog->is_active() || x != lastX || y != lastY) {
        lastX = x;
        lastY = y;
        restingSince = g_get_monotonic_time();
        return true;
    }
    if (g_get_monotonic_time() - restingSince < restTime)
        return true;
    isActed = true;
    act(*dialog);
    return false;
}

bool Answer::_giveUp() {
    ADD_FAILURE() << (isActed ? "the dialog stays" : "no dialog comes to rest");
    for (Gtk::Dialog* const dialog : findDialogs())
        dialog->response(Gtk::RESPONSE_DELETE_EVENT);
    return true;
}

std::vector<Gtk::Dialog*> findDialogs() {
    std::vector<Gtk::Dialog*> dialogs;
    for (Gtk::Window* const window : Gtk::Window::list_toplevels())
        if (auto* const dialog = dynamic_cast<Gtk::Dialog*>(window))
            if (dialog->get_mapped())
                dialogs.push_back(dialog);
    return dialogs;
}

Gtk::Button* findButton(Gtk::Dialog& dialog, const Glib::ustring& label) {
    for (Gtk::Button* const button : findAll<Gtk::Button>(dialog))
        if (button->get_label() == label)
            return button;
    ADD_FAILURE() << "the dialog has no button \"" << label << '"';
    return nullptr;
}

void clickButton(Gtk::Dialog& dialog, const Glib::ustring& label) {
    Gtk::Button* const button = findButton(dialog, label);
    if (!button)
        return;
    movePointer(*button, button->get_allocated_width() / 2, button->get_allocated_height() / 2);
    pressButton();
    releaseButton();
}

void acceptByKey(Gtk::Dialog& dialog) {
    bool isAnswered = false;
    sigc::connection connection = dialog.signal_response().connect([&isAnswered](int) { isAnswered = true; });
    for (int i = 0; i < 5 && !isAnswered; ++i) {
        // A question of the dialog's own has the focus while it waits for its answer.
        if (dialog.is_active())
            pressKey(GDK_KEY_Return);
        waitFor([&isAnswered] { return isAnswered; }, 2000);
    }
    connection.disconnect();
    EXPECT_TRUE(isAnswered) << "the dialog takes no Return";
}

void closeByManager(Gtk::Window& window) {
    GdkWindow* const gdkWindow = window.get_window()->gobj();
    Display* const display = gdk_x11_get_default_xdisplay();
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = gdk_x11_window_get_xid(gdkWindow);
    event.xclient.message_type = XInternAtom(display, "_NET_CLOSE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = gdk_x11_get_server_time(gdkWindow);
    event.xclient.data.l[1] = 2; // from a person
    XSendEvent(display, DefaultRootWindow(display), False, SubstructureRedirectMask | SubstructureNotifyMask,
               &event);
    XFlush(display);
}

} // namespace test
