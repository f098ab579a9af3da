/// A person who edits without a plan: keys, pastes, selections, focus changes and calls of the application,
/// in an order that a seed decides.
#pragma once

#include "entries/EntryHands.h"

#include <random>

namespace test {

/// A key with its modifiers.
struct Key {
    unsigned int value;
    unsigned int state = 0;
};

/// Edits one entry. A test derives from it and states what holds after each step.
template <typename TEntry>
class RandomEdits : public testing::Test {
protected:
    RandomEdits() {
        entry.grab_focus();
        test::settle();
    }

    /// A million steps in all: some in a window, and most of them out of it, where nothing is painted and the
    /// display isn't told of each selection.
    static constexpr int windowSteps = 30000;
    static constexpr int hiddenSteps = 970000;

    /// Takes all steps, until the test has failed.
    void run() {
        ASSERT_TRUE(entry.get_realized());
        _run(1, windowSteps);
        runPending();
        entry.hide();
        gtk_widget_unrealize(GTK_WIDGET(entry.gobj()));
        _run(2, hiddenSteps);
        EXPECT_GT(keyCount, (windowSteps + hiddenSteps) / 4);
    }

    int below(int count) { return static_cast<int>(random() % static_cast<unsigned int>(count)); }

    template <typename TItems>
    const auto& oneOf(const TItems& items) {
        return items[static_cast<std::size_t>(below(static_cast<int>(std::size(items))))];
    }

    /// One of the application's calls.
    virtual void call() = 0;

    /// A press; most entries don't mind the release. A test overrides it to say what the key does.
    virtual void pressKey(const Key& key) { sendPress(key); }

    /// The focus comes or goes.
    virtual void moveFocus(bool isIn) { sendFocus(entry, isIn); }

    /// What holds after each step.
    virtual void expectInvariants() = 0;

    void sendPress(const Key& key) {
        sendKeyEvent(entry, true, key.value, key.state, stringOf(key.value, key.state).c_str());
    }

    Place selection() const {
        int from = 0;
        int to = 0;
        if (!entry.get_selection_bounds(from, to))
            from = to = entry.get_position();
        return {from, to};
    }

    std::mt19937 random;
    std::string did; ///< the last step, for a failure
    TEntry entry;
    test::OffscreenHost host{entry, 300, 40};
    std::vector<Key> keys{{GDK_KEY_0},
                          {GDK_KEY_1},
                          {GDK_KEY_2},
                          {GDK_KEY_3},
                          {GDK_KEY_4},
                          {GDK_KEY_5},
                          {GDK_KEY_6},
                          {GDK_KEY_9},
                          {GDK_KEY_KP_7},
                          {GDK_KEY_period},
                          {GDK_KEY_colon},
                          {GDK_KEY_comma},
                          {GDK_KEY_space},
                          {GDK_KEY_a},
                          {GDK_KEY_Z},
                          {GDK_KEY_Cyrillic_zhe},
                          {GDK_KEY_BackSpace},
                          {GDK_KEY_BackSpace},
                          {GDK_KEY_Delete},
                          {GDK_KEY_Delete},
                          {GDK_KEY_Left},
                          {GDK_KEY_Right},
                          {GDK_KEY_Home},
                          {GDK_KEY_End},
                          {GDK_KEY_Tab},
                          {GDK_KEY_Return},
                          {GDK_KEY_KP_Enter},
                          {GDK_KEY_Escape},
                          {GDK_KEY_Insert},
                          {GDK_KEY_F3},
                          {GDK_KEY_Shift_L},
                          {GDK_KEY_Copy},
                          {GDK_KEY_Cut},
                          {GDK_KEY_ISO_Left_Tab, GDK_SHIFT_MASK},
                          {GDK_KEY_Left, GDK_SHIFT_MASK},
                          {GDK_KEY_Right, GDK_SHIFT_MASK},
                          {GDK_KEY_BackSpace, GDK_CONTROL_MASK},
                          {GDK_KEY_a, GDK_CONTROL_MASK},
                          {GDK_KEY_x, GDK_CONTROL_MASK},
                          {GDK_KEY_v, GDK_CONTROL_MASK}};

private:
    void _run(unsigned int seed, int steps) {
        random.seed(seed);
        for (int i = 0; i < steps && !HasFailure(); ++i) {
            _step();
            expectWithin();
            expectInvariants();
            if (HasFailure())
                ADD_FAILURE() << "seed " << seed << " step " << i << ": " << did << ", text \""
                              << entry.get_text() << '"';
        }
    }

    void _step() {
        const int choice = below(100);
        if (choice < 78) {
            const Key& key = oneOf(keys);
            did = "key " + std::to_string(key.value);
            ++keyCount;
            pressKey(key);
        } else if (choice < 84) {
            const int length = entry.get_text_length();
            const int from = below(length + 1);
            const int to = below(3) == 0 ? below(length + 1) : from;
            did = "select " + std::to_string(from) + ' ' + std::to_string(to);
            entry.select_region(from, to);
        } else if (choice < 86) {
            static const char* const texts[] = {"1",        "23",       ":",        "1:2:3",
                                                "12:34:56", "99:99:99", "10.0.0.1", "",
                                                "text, и",  "255.256",  "::",       "0\n5"};
            const char* const text = oneOf(texts);
            did = "paste";
            // Filling the clipboard is slow.
            if (below(10) == 0)
                Gtk::Clipboard::get()->set_text(text);
            entry.paste_clipboard();
        } else if (choice < 91) {
            const bool isIn = below(2) == 0;
            did = isIn ? "focus in" : "focus out";
            moveFocus(isIn);
        } else if (choice < 98) {
            did = "call";
            call();
        } else {
            did = "idle";
            runPending();
        }
    }

    /// The cursor and the selection are within the text.
    void expectWithin() {
        const int length = entry.get_text_length();
        const auto [from, to] = selection();
        if (from < 0 || from > to || to > length || entry.get_position() < 0 || entry.get_position() > length)
            ADD_FAILURE() << "selected " << from << " to " << to << " of " << length;
    }

    int keyCount = 0;
};

} // namespace test
