#include <ZelCommonView/oscillogram/ButtonsToolbar.h>

namespace ZelView {

ButtonsToolbar::ButtonsToolbar(bool horizontal) {
    if (!horizontal) {
        // The property takes true for its second value, which is vertical.
        Glib::Value<bool> vertical;
        vertical.init(Glib::Value<bool>::value_type());
        vertical.set(true);
        toolbar.set_property_value("orientation", vertical);
    }
    add(toolbar);
    show_all();
}

ButtonsToolbar::~ButtonsToolbar() = default;

void ButtonsToolbar::addButton(const std::string& label, std::function<void()> action) {
    auto button = std::make_unique<Gtk::ToolButton>();
    button->get_style_context()->add_class("oscButton");
    button->set_label(label);
    button->signal_clicked().connect(action, true);
    toolbar.insert(*button, static_cast<int>(buttonCount));
    ++buttonCount;
    button->show();
    buttons.push_back(std::move(button));
}

} // namespace ZelView
