#include <ZelCommonView/windows/WindowRectangleManager.h>

#include <gdkmm/screen.h>

#include <cmath>
#include <limits>

namespace Zel {

namespace {

bool isValid(float value) {
    return value > 0.0f && std::isnormal(value);
}

/// The number without its fraction, at most the largest int: a valid number may be far above it.
int toInt(float value) {
    constexpr int largest = std::numeric_limits<int>::max();
    return value >= static_cast<float>(largest) ? largest : static_cast<int>(value);
}

} // namespace

IWindowRectangle::~IWindowRectangle() = default;

WindowRectangleManager::WindowRectangleManager(Gtk::Window& givenWindow) {
    window = &givenWindow;
    window->signal_map().connect(sigc::mem_fun(*this, &WindowRectangleManager::_setStartupPosition), true);
}

WindowRectangleManager::~WindowRectangleManager() = default;

void WindowRectangleManager::setRectangle(const RectangleF& givenRectangle) {
    rectangle = std::make_unique<RectangleF>(givenRectangle);
    _setStartupSize();
}

RectangleF WindowRectangleManager::getRectangle() const {
    if (!window)
        return {};
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    window->get_position(x, y);
    window->get_size(width, height);
    return {static_cast<float>(x), static_cast<float>(y), static_cast<float>(width),
            static_cast<float>(height)};
}

void WindowRectangleManager::_setStartupSize() {
    if (window && isValid(rectangle->width) && isValid(rectangle->height))
        window->set_default_size(toInt(rectangle->width), toInt(rectangle->height));
}

void WindowRectangleManager::_setStartupPosition() {
    if (!rectangle || !isValid(rectangle->x) || !isValid(rectangle->y) || !isValid(rectangle->width) ||
        !isValid(rectangle->height))
        return;
    const int right = toInt(rectangle->x + rectangle->width);
    const int bottom = toInt(rectangle->y + rectangle->height);
    const Glib::RefPtr<Gdk::Screen> screen = window->get_screen();
    if (!screen)
        return;
    // Plain sums, whatever the arrangement of the monitors, and that is meant.
    int width = 0;
    int height = 0;
    for (int i = 0; i < screen->get_n_monitors(); ++i) {
        const Gdk::Rectangle area = screen->get_monitor_workarea(i);
        width += area.get_width();
        height += area.get_height();
    }
    if (width < right || height < bottom)
        return;
    window->move(toInt(rectangle->x), toInt(rectangle->y));
}

} // namespace Zel
