/// What a person does with the keyboard, by real events of the display. They go to the window with the focus.
#pragma once

#include <gdk/gdkkeysyms.h>

#include <string>

namespace test {

/// Presses and releases a key, such as GDK_KEY_Escape, with Shift held where the character needs it.
void pressKey(unsigned int key);

/// Types a text of plain ASCII characters.
void type(const std::string& text);

/// Holds a key down while it lives.
class HeldKey {
public:
    explicit HeldKey(unsigned int key);
    ~HeldKey();
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    unsigned int code; ///< of the display's keyboard
};

} // namespace test
