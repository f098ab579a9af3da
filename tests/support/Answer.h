/// Answering a dialog while the code under test waits for it in a main loop of its own.
#pragma once

#include <gtkmm.h>

#include <functional>
#include <vector>

namespace test {

/// Waits, from its construction on, for another dialog than those on the screen to come up, gives it the
/// focus, lets it come to rest and then acts on it, once. The code under test is called meanwhile and returns
/// when the dialog is over.
///
/// The test fails if no dialog comes up or if it stays longer than a quarter of a minute; such a dialog is
/// closed.
class Answer {
public:
    explicit Answer(std::function<void(Gtk::Dialog&)> act);
    /// Fails the test if the action wasn't reached.
    ~Answer();
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;

    bool hasActed() const { return isActed; }

private:
    bool _look();
    bool _giveUp();

    std::function<void(Gtk::Dialog&)> act;
    std::vector<Gtk::Dialog*> known; ///< only compared
    sigc::connection timer;
    sigc::connection patience; ///< of its own, since the action may be stuck in yet another main loop
    gint64 restingSince = 0;
    int lastX = 0;
    int lastY = 0;
    bool isPresented = false;
    bool isActed = false;
};

/// The dialogs that are on the screen.
std::vector<Gtk::Dialog*> findDialogs();

/// Every widget of type `T` below `root`, depth first.
template <typename T>
std::vector<T*> findAll(Gtk::Widget& root) {
    std::vector<T*> found;
    if (auto* const match = dynamic_cast<T*>(&root))
        found.push_back(match);
    if (auto* const container = dynamic_cast<Gtk::Container*>(&root))
        container->forall([&found](Gtk::Widget& child) {
            for (T* const match : findAll<T>(child))
                found.push_back(match);
        });
    return found;
}

/// The button of the dialog that shows the label; fails the test if there is none.
Gtk::Button* findButton(Gtk::Dialog& dialog, const Glib::ustring& label);

/// Clicks the button that shows the label, without waiting for what comes of it.
void clickButton(Gtk::Dialog& dialog, const Glib::ustring& label);

/// Accepts what was entered in the dialog by Return, and again as long as the dialog doesn't react: Gtk's
/// file chooser takes the key for nothing while it still reads a folder. Fails the test if it never reacts.
void acceptByKey(Gtk::Dialog& dialog);

/// Closes a window as its title bar does: through the window manager.
void closeByManager(Gtk::Window& window);

} // namespace test
