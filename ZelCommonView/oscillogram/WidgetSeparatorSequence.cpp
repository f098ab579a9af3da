#include <ZelCommonView/oscillogram/WidgetSeparatorSequence.h>

namespace ZelView {

WidgetSeparatorSequence::WidgetSeparatorSequence(bool value) : horizontal(value) {}

WidgetSeparatorSequence::~WidgetSeparatorSequence() = default;

void WidgetSeparatorSequence::addWidget(Gtk::Widget& widget) {
    // It is the panes that are counted and not the widgets, so there is never more than one: the second
    // widget goes into its free half, and GTK ignores every further one. This is meant.
    if (paneds.empty()) {
        _createPaned();
        paneds.back().pack1(widget, Gtk::EXPAND);
        add(paneds.back());
    } else if (paneds.size() == 1) {
        paneds.back().pack2(widget, Gtk::EXPAND);
    } else {
        Gtk::Paned& former = paneds.back();
        _createPaned();
        remove();
        add(paneds.back());
        paneds.back().pack1(former, Gtk::EXPAND);
        paneds.back().pack2(widget, Gtk::EXPAND);
    }
    widgets.push_back(&widget);
}

void WidgetSeparatorSequence::_createPaned() {
    Gtk::Paned& paned = paneds.emplace_back(Gtk::ORIENTATION_HORIZONTAL);
    if (!horizontal)
        paned.set_orientation(Gtk::ORIENTATION_VERTICAL);
    paned.set_wide_handle(true);
    paned.property_position().signal_changed().connect(
        sigc::mem_fun(*this, &WidgetSeparatorSequence::_onPositionChanged));
    // Nobody else does, and a sequence that is on the screen already must show its first widget at once.
    paned.show();
}

void WidgetSeparatorSequence::_onPositionChanged() {
    // A listener may add a widget, so the list is read whole before the first signal.
    const std::vector<Gtk::Widget*> all = widgets;
    for (Gtk::Widget* widget : all)
        signalSeparatorMoved.emit(*widget);
}

} // namespace ZelView
