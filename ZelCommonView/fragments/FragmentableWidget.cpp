#include <ZelCommonView/fragments/FragmentableWidget.h>

#include <ZelCommonView/plot/Series.h>

#include <gdkmm/rgba.h>

#include <cstdio>

namespace ZelView {

namespace {

Gdk::RGBA makeRgba(Zel::Color color, double alpha) {
    Gdk::RGBA rgba;
    rgba.set_rgba(color.r / 255.0, color.g / 255.0, color.b / 255.0, alpha);
    return rgba;
}

} // namespace

FragmentableWidget::FragmentableWidget(const Zel::IFragmentable& value)
    : fragmentable(value), label(value.getName(), false) {
    connections.connect(&fragmentable,
                        fragmentable.changed.connect(sigc::mem_fun(*this, &FragmentableWidget::_update)));
    _update();
    add(label);
    label.get_style_context()->add_class("legend");
    // GTK can't read a colour of four channels from a text, so they are set one by one.
    const Zel::Color color = fragmentable.getColor();
    _setBackground(makeRgba(color, color.a / 255.0));
    label.get_style_context()->context_save();
    show_all();
}

FragmentableWidget::~FragmentableWidget() = default;

void FragmentableWidget::highlight() {
    highlighted = true;
    _update();
}

void FragmentableWidget::unhighlight() {
    highlighted = false;
    _update();
}

void FragmentableWidget::_update() {
    _setBackground(makeRgba(fragmentable.getColor(), 1));
}

void FragmentableWidget::_setBackground(const Gdk::RGBA& color) {
    label.override_background_color(color, Gtk::STATE_FLAG_NORMAL);
    // With a saved style context GTK takes note of the new colour and asks for no repaint.
    label.queue_draw();
}

std::string FragmentableWidget::_getHighlightedMarkup() const {
    return "<span underline='single' bgcolor='#000000' foreground='#ffffff'><b>" + fragmentable.getName() +
           "</b></span>";
}

std::string FragmentableWidget::_getNormalMarkup() const {
    const Zel::Color color = fragmentable.getColor();
    char text[9];
    std::snprintf(text, sizeof text, "%02x%02x%02x%02x", color.r, color.g, color.b, color.a);
    return std::string("<span underline='none' background='#") + text + "'>" + fragmentable.getName() +
           "</span>";
}

} // namespace ZelView
