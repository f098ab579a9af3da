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
