#include "support/Keyboard.h"

#include <gtest/gtest.h>

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>
#include <gdk/gdkx.h>

namespace test {

namespace {

void moveKey(unsigned int code, bool isDown) {
    Display* display = gdk_x11_get_default_xdisplay();
    XTestFakeKeyEvent(display, code, isDown, CurrentTime);
    XSync(display, False);
}

} // namespace

HeldKey::HeldKey(unsigned int key) : code(XKeysymToKeycode(gdk_x11_get_default_xdisplay(), key)) {
    moveKey(code, true);
}

HeldKey::~HeldKey() {
    moveKey(code, false);
}

AddedKey::AddedKey(unsigned int key) {
    Display* display = gdk_x11_get_default_xdisplay();
    int first = 0;
    int last = 0;
    XDisplayKeycodes(display, &first, &last);
    code = last;
    while (code > static_cast<unsigned int>(first) && XkbKeycodeToKeysym(display, code, 0, 0) != NoSymbol)
        --code;
    EXPECT_GT(code, static_cast<unsigned int>(first)) << "the keyboard has no key to spare";
    KeySym symbol = key;
    XChangeKeyboardMapping(display, code, 1, &symbol, 1);
    XSync(display, False);
}

AddedKey::~AddedKey() {
    Display* display = gdk_x11_get_default_xdisplay();
    KeySym symbol = NoSymbol;
    XChangeKeyboardMapping(display, code, 1, &symbol, 1);
    XSync(display, False);
}

void AddedKey::press() {
    moveKey(code, true);
    moveKey(code, false);
}

void pressKey(unsigned int key) {
    Display* display = gdk_x11_get_default_xdisplay();
    const KeyCode code = XKeysymToKeycode(display, key);
    ASSERT_NE(code, 0) << "the keyboard has no key " << key;
    const bool needsShift = XkbKeycodeToKeysym(display, code, 0, 0) != key;
    const KeyCode shift = XKeysymToKeycode(display, GDK_KEY_Shift_L);
    if (needsShift)
        XTestFakeKeyEvent(display, shift, True, CurrentTime);
    XTestFakeKeyEvent(display, code, True, CurrentTime);
    XTestFakeKeyEvent(display, code, False, CurrentTime);
    if (needsShift)
        XTestFakeKeyEvent(display, shift, False, CurrentTime);
    XSync(display, False);
}

void type(const std::string& text) {
    for (const char c : text)
        pressKey(gdk_unicode_to_keyval(static_cast<unsigned char>(c)));
}

} // namespace test
