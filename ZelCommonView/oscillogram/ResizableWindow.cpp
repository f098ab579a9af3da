#include <ZelCommonView/oscillogram/ResizableWindow.h>

namespace ZelView {

namespace {

/// Requests a part of the height that the widget has; the width stays free.
void scaleHeight(Gtk::Widget& widget, float factor) {
    const auto height = static_cast<float>(widget.get_allocation().get_height());
    widget.set_size_request(-1, static_cast<int>(factor * height));
}

/// Unlike a plain function object a slot does nothing once the widget has gone.
template <typename Action>
sigc::slot<void> on(Gtk::Widget& widget, Action action) {
    return sigc::track_obj([&widget, action] { action(widget); }, widget);
}

} // namespace

ResizableWindow::ResizableWindow(Gtk::Widget& widget) {
    window.set_policy(Gtk::POLICY_NEVER, Gtk::POLICY_ALWAYS);
    window.add(widget);
    toolbar.addButton("-", on(widget, [](Gtk::Widget& framed) { scaleHeight(framed, 0.9f); }));
    toolbar.addButton("+", on(widget, [](Gtk::Widget& framed) { scaleHeight(framed, 1.1f); }));
    toolbar.addButton("=", on(widget, [](Gtk::Widget& framed) { framed.set_size_request(-1, -1); }));
    add(window);
    show_all();
}

ResizableWindow::~ResizableWindow() = default;

} // namespace ZelView
