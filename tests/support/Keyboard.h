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

/// Gives the keyboard one more key while it lives, such as GDK_KEY_Cyrillic_be; other layouts are made of
/// such.
class AddedKey {
public:
    explicit AddedKey(unsigned int key);
    ~AddedKey();
    AddedKey(const AddedKey&) = delete;
    AddedKey& operator=(const AddedKey&) = delete;

    /// Presses and releases it.
    void press();

private:
    unsigned int code = 0; ///< of the display's keyboard
};

} // namespace test
