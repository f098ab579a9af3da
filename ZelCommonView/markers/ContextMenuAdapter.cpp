#include <ZelCommonView/markers/ContextMenuAdapter.h>

namespace ZelView {

ContextMenuAdapter::ContextMenuAdapter(Gtk::Widget& widget) {
    widget.add_events(Gdk::BUTTON_PRESS_MASK);
    widget.signal_button_press_event().connect(sigc::mem_fun(*this, &ContextMenuAdapter::_onButtonPress),
                                               true);
}

ContextMenuAdapter::~ContextMenuAdapter() = default;

void ContextMenuAdapter::addAction(const std::string& text, std::function<void()> action) {
    Gtk::MenuItem& item = items.emplace_back(text);
    item.signal_activate().connect(sigc::track_obj(action, *this), true);
    menu.append(item);
    menu.show_all();
}

bool ContextMenuAdapter::_onButtonPress(GdkEventButton* event) {
    if (event->button == 3 && !items.empty())
        menu.popup_at_pointer(reinterpret_cast<GdkEvent*>(event));
    return false;
}

} // namespace ZelView
