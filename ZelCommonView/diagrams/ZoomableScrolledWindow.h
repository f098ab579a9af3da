#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/MovableScrolledWindow.h>

#include <cstdint>
#include <vector>

namespace ZelView {

/// A movable window whose content the wheel zooms about the pointer. The scale is in percent of this window's
/// size; at 100 the content fills it.
///
/// The content gets its size by `set_size_request`. As long as there is none, nothing can be zoomed.
class ZEL_API ZoomableScrolledWindow : public MovableScrolledWindow {
public:
    /// The scale was changed by the wheel: the new one, in percent. The content has its new size requested.
    sigc::signal<void, unsigned int> signalScaleChanged;

    /// Limits and step in percent; the scale starts at `minScale`. A step that would lead below 0 leads to
    /// `maxScale`.
    ZoomableScrolledWindow(unsigned int minScale, unsigned int maxScale, unsigned int scaleStep);
    ~ZoomableScrolledWindow() override;

    /// Sets the scale, in percent and limited to the range, and keeps what is seen in the middle there. Emits
    /// nothing. Does nothing without content.
    void setSize(unsigned int scale);

    /// Lets the wheel over a widget that stands over this window zoom as well, about the middle. The widget
    /// stays the caller's; either may die first. It handles every scroll event then, and one that isn't
    /// smooth counts as a step down.
    void connectScroll(Gtk::Widget& widget);
    /// Undoes every `connectScroll`.
    void disconnectWidgetScrolls();

private:
    bool _onScrollEvent(GdkEventScroll* event);
    void _zoom(GdkEventScroll* event);
    bool _zoomEmpty(GdkEventScroll* event);
    void _step(const GdkEventScroll& event);
    void _setScale(std::uint32_t value);
    void _onSizeAllocate(Gdk::Rectangle& allocation);
    void _updateChildSize();
    bool _onResizeQueued();

    std::uint32_t minScale; ///< percent
    std::uint32_t maxScale;
    std::uint32_t scaleStep; ///< for one scroll event
    std::uint32_t scale;
    std::uint32_t lastScale; ///< last reported or set
    std::vector<sigc::connection> scrollConnections;
    sigc::connection resizeConnection; ///< an idle handler
};

} // namespace ZelView
