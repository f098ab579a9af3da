#include <ZelCommonView/diagrams/MovableScrolledWindow.h>

#include <gtkmm/viewport.h>

namespace ZelView {

namespace {

constexpr unsigned int leftButton = 1;

/// Turns a place on `window` into one on `ancestor`; false if that isn't an ancestor.
bool translate(GdkWindow* window, GdkWindow* ancestor, double& x, double& y) {
    for (; window && window != ancestor; window = gdk_window_get_effective_parent(window))
        gdk_window_coords_to_parent(window, x, y, &x, &y);
    return window != nullptr;
}

/// The window through which the content is seen; null before the widgets are realized.
GdkWindow* getViewWindow(Gtk::Widget* child) {
    if (!child || !child->get_realized())
        return nullptr;
    if (auto* const viewport = dynamic_cast<Gtk::Viewport*>(child))
        return viewport->get_view_window()->gobj();
    return child->get_window()->gobj();
}

} // namespace

MovableScrolledWindow::MovableScrolledWindow() : adjustments(get_hadjustment(), get_vadjustment()) {
    // No motion mask: motion is taken as far as the content asks for it and lets it through.
    add_events(Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK);
    signal_button_press_event().connect(sigc::mem_fun(*this, &MovableScrolledWindow::_onPress), true);
    signal_button_release_event().connect(sigc::mem_fun(*this, &MovableScrolledWindow::_onRelease), true);
    signal_motion_notify_event().connect(sigc::mem_fun(*this, &MovableScrolledWindow::_onMove), true);

    signal_size_allocate().connect(sigc::mem_fun(*this, &MovableScrolledWindow::_onOwnSizeAllocate), true);

    const auto onValueChanged = sigc::mem_fun(*this, &MovableScrolledWindow::_onValueChanged);
    const auto followX = sigc::mem_fun(adjustments, &ScrolledWindowAdjustments::followX);
    const auto followY = sigc::mem_fun(adjustments, &ScrolledWindowAdjustments::followY);
    adjustmentConnections = {get_hadjustment()->signal_value_changed().connect(followX, true),
                             get_vadjustment()->signal_value_changed().connect(followY, true),
                             get_hadjustment()->signal_value_changed().connect(onValueChanged, true),
                             get_vadjustment()->signal_value_changed().connect(onValueChanged, true)};
}

MovableScrolledWindow::~MovableScrolledWindow() {
    removeCurrentWidget();
    for (sigc::connection& connection : adjustmentConnections)
        connection.disconnect();
}

void MovableScrolledWindow::add(Gtk::Widget& widget) {
    removeCurrentWidget();
    if (!widget.is_ancestor(*this)) {
        // Gtk refuses a second child, and the new one would end in a viewport that nobody owns.
        if (get_child())
            remove();
        Gtk::ScrolledWindow::add(widget);
    }
    currentWidget = &widget;
    currentWidget->add_destroy_notify_callback(this, &MovableScrolledWindow::_onWidgetDied);
    sizeConnection = widget.signal_size_allocate().connect(
        sigc::mem_fun(*this, &MovableScrolledWindow::_onSizeAllocate), true);
}

void MovableScrolledWindow::removeCurrentWidget() {
    if (!currentWidget)
        return;
    sizeConnection.disconnect();
    currentWidget->remove_destroy_notify_callback(this);
    currentWidget = nullptr;
}

Zel::PointF MovableScrolledWindow::_getPlaceInViewport(GdkWindow* window, double x, double y) {
    // The windows of the content move below the pointer while it is scrolled; the viewport's stays.
    GdkWindow* const view = getViewWindow(get_child());
    double placeX = x;
    double placeY = y;
    double originX = 0;
    double originY = 0;
    if (window && view && translate(window, get_window()->gobj(), placeX, placeY) &&
        translate(view, get_window()->gobj(), originX, originY)) {
        x = placeX - originX;
        y = placeY - originY;
    }
    return {static_cast<float>(x), static_cast<float>(y)};
}

bool MovableScrolledWindow::_onPress(GdkEventButton* event) {
    if (event->button == leftButton)
        dragging = true;
    return true;
}

bool MovableScrolledWindow::_onRelease(GdkEventButton* event) {
    if (event->button == leftButton)
        dragging = false;
    return true;
}

bool MovableScrolledWindow::_onMove(GdkEventMotion* event) {
    const Zel::PointF place = _getPlaceInViewport(event->window, event->x, event->y);
    if (dragging)
        _handleMove(place.x - lastX, place.y - lastY);
    lastX = place.x;
    lastY = place.y;
    return true;
}

void MovableScrolledWindow::_handleMove(float dx, float dy) {
    adjustments.move(-dx, -dy);
}

void MovableScrolledWindow::_onValueChanged() {
    // What sticks to the viewport is elsewhere on the content now.
    if (currentWidget)
        currentWidget->queue_draw();
}

void MovableScrolledWindow::_onSizeAllocate(Gdk::Rectangle&) {
    adjustments.refresh();
    adjustments.settle();
}

void MovableScrolledWindow::_onOwnSizeAllocate(Gdk::Rectangle&) {
    // The viewport may change without the content.
    adjustments.settle();
}

void* MovableScrolledWindow::_onWidgetDied(void* window) {
    auto& self = *static_cast<MovableScrolledWindow*>(window);
    self.currentWidget = nullptr;
    self.dragging = false;
    return nullptr;
}

} // namespace ZelView
