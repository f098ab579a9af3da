#include <ZelCommonView/containers/ExtendedExpander.h>

#include <ZelCommonView/common/EmitKept.h>

namespace Zel {

namespace {

constexpr double restingOpacity = 0.6;
constexpr double pointedOpacity = 1.0;

} // namespace

ExtendedExpander::ExtendedExpander(bool showArrow) : isArrowShown(showArrow) {
    expandArea.get_style_context()->add_class("ExpandArea");
    expandArea.signal_button_press_event().connect(
        sigc::mem_fun(*this, &ExtendedExpander::_onExpandAreaPressed), false);
    expandArea.signal_enter_notify_event().connect(
        sigc::mem_fun(*this, &ExtendedExpander::_onExpandAreaEnter), false);
    expandArea.signal_leave_notify_event().connect(
        sigc::mem_fun(*this, &ExtendedExpander::_onExpandAreaLeave), false);
    expandArea.set_opacity(restingOpacity);
    expandArea.add(arrowRightImage);
    grid.attach(expandArea, 0, 0, 1, 1);
    contentFrame.get_style_context()->add_class("ExpandAreaContainer");
    contentFrame.set_no_show_all(true);
    grid.attach(contentFrame, 0, 1, 2, 1);
    arrowDownImage.get_style_context()->add_class("ArrowDownImage");
    arrowRightImage.get_style_context()->add_class("ArrowRightImage");
    set_expanded(false);
    // The own add would put it into the frame of the content.
    Gtk::Container::add(grid);
}

ExtendedExpander::~ExtendedExpander() = default;

void ExtendedExpander::set_expanded(bool value) {
    expanded = value;
    expandArea.remove();
    if (!contentFrame.get_child() && !isArrowShown) {
        expandArea.add(placeholderImage);
        return;
    }
    if (expanded) {
        contentFrame.set_no_show_all(false);
        contentFrame.show_all();
    } else {
        contentFrame.set_no_show_all(true);
        contentFrame.hide();
    }
    Gtk::Image& arrow = expanded ? arrowDownImage : arrowRightImage;
    expandArea.add(arrow);
    arrow.show();
    _raiseSignalExpandedChanged();
}

bool ExtendedExpander::get_expanded() const {
    return expanded;
}

sigc::signal<void>& ExtendedExpander::signal_expanded_changed() {
    return signalExpandedChanged;
}

void ExtendedExpander::set_label_widget(Gtk::Widget& widget) {
    if (labelWidget)
        grid.remove(*labelWidget);
    labelWidget = &widget;
    widget.set_hexpand(true);
    grid.attach(widget, 1, 0, 1, 1);
}

void ExtendedExpander::showArrow(bool value) {
    isArrowShown = value;
    set_expanded(get_expanded());
}

void ExtendedExpander::add(Gtk::Widget& widget) {
    contentFrame.add(widget);
    set_expanded(get_expanded());
}

void ExtendedExpander::remove() {
    contentFrame.remove();
    set_expanded(get_expanded());
}

bool ExtendedExpander::_onExpandAreaPressed(GdkEventButton* event) {
    if (event->button == GDK_BUTTON_PRIMARY)
        set_expanded(!expanded);
    return false;
}

bool ExtendedExpander::_onExpandAreaEnter(GdkEventCrossing*) {
    expandArea.set_opacity(pointedOpacity);
    return false;
}

bool ExtendedExpander::_onExpandAreaLeave(GdkEventCrossing*) {
    expandArea.set_opacity(restingOpacity);
    return false;
}

void ExtendedExpander::_raiseSignalExpandedChanged() {
    emitKept(signalExpandedChanged);
}

} // namespace Zel
