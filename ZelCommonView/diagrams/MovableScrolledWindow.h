#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/ScrolledWindowAdjustments.h>
#include <ZelCommonView/plot/Series.h>

#include <gtkmm/scrolledwindow.h>

#include <vector>

namespace ZelView {

/// A scrolled window whose content is dragged with the left button, like a map.
///
/// It handles every press and release that the content lets through, and the drag lives on the motion events
/// that the content lets through. When the content changes its size, the anchored point stays in place.
class ZEL_API MovableScrolledWindow : public Gtk::ScrolledWindow {
public:
    MovableScrolledWindow();
    ~MovableScrolledWindow() override;

    /// Makes `widget` the content. It stays the caller's and may die before the window. Content that is there
    /// already is taken out.
    void add(Gtk::Widget& widget) override;
    /// Forgets the content, which stays in the container: it is no longer repainted by scrolling, and a
    /// change of its size no longer scrolls. Nothing happens without content.
    void removeCurrentWidget();

    /// Which part of the content is in view; lives as long as the window.
    const IScrollInfo& getScrollInfo() const { return adjustments; }

protected:
    /// The place of the viewport, in its pixels, where an event happened on any window inside or around the
    /// content. Places on other windows, and on none, are returned as they are.
    Zel::PointF _getPlaceInViewport(GdkWindow* window, double x, double y);

    Gtk::Widget* currentWidget = nullptr;  ///< the content; not owned
    ScrolledWindowAdjustments adjustments; ///< tells what is in view

private:
    bool _onPress(GdkEventButton* event);
    bool _onRelease(GdkEventButton* event);
    bool _onMove(GdkEventMotion* event);
    void _handleMove(float dx, float dy);
    void _onValueChanged();
    void _onSizeAllocate(Gdk::Rectangle& allocation);
    void _onOwnSizeAllocate(Gdk::Rectangle& allocation);
    static void* _onWidgetDied(void* window);

    sigc::connection sizeConnection; ///< to the content's allocation
    bool dragging = false;
    float lastX = 0; ///< the pointer at its last motion, in pixels of the viewport
    float lastY = 0;
    std::vector<sigc::connection> adjustmentConnections; ///< the adjustments may outlive the window
};

} // namespace ZelView
