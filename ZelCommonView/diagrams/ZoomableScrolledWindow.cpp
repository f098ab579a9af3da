#include <ZelCommonView/diagrams/ZoomableScrolledWindow.h>

#include <glibmm/main.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace ZelView {

namespace {

/// A part of a size, in pixels cut to whole ones.
int scaleSize(std::uint32_t percent, int size) {
    constexpr double largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(percent / 100.0 * size, largest));
}

std::pair<int, int> getSizeRequest(const Gtk::Widget& widget) {
    std::pair<int, int> size;
    widget.get_size_request(size.first, size.second);
    return size;
}

} // namespace

ZoomableScrolledWindow::ZoomableScrolledWindow(unsigned int min, unsigned int max, unsigned int step)
    : minScale(min), maxScale(max), scaleStep(step), scale(min), lastScale(min) {
    add_events(Gdk::SCROLL_MASK);
    // Before the default handler, so that the wheel doesn't scroll.
    signal_scroll_event().connect(sigc::mem_fun(*this, &ZoomableScrolledWindow::_onScrollEvent), false);
    signal_size_allocate().connect(sigc::mem_fun(*this, &ZoomableScrolledWindow::_onSizeAllocate), true);
}

ZoomableScrolledWindow::~ZoomableScrolledWindow() {
    disconnectWidgetScrolls();
    resizeConnection.disconnect();
}

void ZoomableScrolledWindow::setSize(unsigned int value) {
    if (!currentWidget)
        return;
    _setScale(value);
    adjustments.setProgressCenter();
    lastScale = scale;
    _updateChildSize();
}

void ZoomableScrolledWindow::connectScroll(Gtk::Widget& widget) {
    widget.add_events(Gdk::SMOOTH_SCROLL_MASK);
    scrollConnections.push_back(widget.signal_scroll_event().connect(
        sigc::mem_fun(*this, &ZoomableScrolledWindow::_zoomEmpty), false));
}

void ZoomableScrolledWindow::disconnectWidgetScrolls() {
    for (sigc::connection& connection : scrollConnections)
        connection.disconnect();
}

bool ZoomableScrolledWindow::_onScrollEvent(GdkEventScroll* event) {
    // Only smooth events tell a distance.
    if (currentWidget && event->delta_y != 0)
        _zoom(event);
    return true;
}

void ZoomableScrolledWindow::_zoom(GdkEventScroll* event) {
    _step(*event);
    const Zel::PointF place = _getPlaceInViewport(event->window, event->x, event->y);
    adjustments.setProgress(place.x, place.y);
    _updateChildSize();
}

bool ZoomableScrolledWindow::_zoomEmpty(GdkEventScroll* event) {
    // Unlike on this window an event without a distance counts, as a step down; that is meant.
    if (currentWidget) {
        _step(*event);
        adjustments.setProgressCenter();
        _updateChildSize();
    }
    return true;
}

void ZoomableScrolledWindow::_step(const GdkEventScroll& event) {
    // The numbers have no sign: a step below 0 leads to the largest scale; that is meant.
    _setScale(event.delta_y < 0 ? scale + scaleStep : scale - scaleStep);
}

void ZoomableScrolledWindow::_setScale(std::uint32_t value) {
    scale = std::min(std::max(value, minScale), maxScale);
}

void ZoomableScrolledWindow::_onSizeAllocate(Gdk::Rectangle&) {
    if (!currentWidget)
        return;
    const auto former = getSizeRequest(*currentWidget);
    _updateChildSize();
    // Gtk forgets a resize that is queued while it allocates, and ignores further ones of the content then.
    if (getSizeRequest(*currentWidget) != former && !resizeConnection.connected())
        resizeConnection = Glib::signal_idle().connect(
            sigc::mem_fun(*this, &ZoomableScrolledWindow::_onResizeQueued), Glib::PRIORITY_HIGH_IDLE);
}

void ZoomableScrolledWindow::_updateChildSize() {
    if (!currentWidget)
        return;
    const int height = scaleSize(scale, get_allocated_height());
    const int width = scaleSize(scale, get_allocated_width());
    currentWidget->set_size_request(width, height);
    if (scale == lastScale)
        return;
    lastScale = scale;
    // Last, and by a copy: a handler may destroy this window, and a signal that dies while it is emitted
    // leaks.
    const auto signal = signalScaleChanged;
    signal.emit(scale);
}

bool ZoomableScrolledWindow::_onResizeQueued() {
    queue_resize();
    return false;
}

} // namespace ZelView
