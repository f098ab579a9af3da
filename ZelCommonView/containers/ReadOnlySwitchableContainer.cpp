#include <ZelCommonView/containers/ReadOnlySwitchableContainer.h>

#include <gtkmm/button.h>
#include <gtkmm/combobox.h>
#include <gtkmm/entry.h>
#include <gtkmm/switch.h>
#include <gtkmm/treeview.h>

#include <algorithm>

namespace Zel {

namespace {

bool hasClass(const Gtk::Widget& widget, const Glib::ustring& styleClass) {
    return widget.get_style_context()->has_class(styleClass);
}

} // namespace

const Glib::ustring ReadOnlySwitchableContainer::EXEMPT_CLASS = "readonly-exempt";
const Glib::ustring ReadOnlySwitchableContainer::INTERACTIVE_CLASS = "readonly-interactive";
const Glib::ustring ReadOnlySwitchableContainer::COLLAPSED_CLASS = "readonly-collapsed";

IReadOnlySwitchableContainerView::~IReadOnlySwitchableContainerView() = default;

ReadOnlySwitchableContainer::ReadOnlySwitchableContainer() = default;

ReadOnlySwitchableContainer::~ReadOnlySwitchableContainer() {
    _listenToParents(false);
}

void ReadOnlySwitchableContainer::addChild(IView* view) {
    if (auto* const widget = dynamic_cast<Gtk::Widget*>(view))
        add(*widget);
}

void ReadOnlySwitchableContainer::removeChild() {
    Gtk::Bin::remove();
}

void ReadOnlySwitchableContainer::setIsReadOnly(bool value) {
    if (value == readOnly)
        return;
    readOnly = value;
    _listenToParents(value);
    if (Gtk::Widget* const child = get_child())
        _updateWidgetSensitivity(*child);
}

bool ReadOnlySwitchableContainer::getIsReadOnly() const {
    return readOnly;
}

void ReadOnlySwitchableContainer::on_add(Gtk::Widget* widget) {
    Gtk::Bin::on_add(widget);
    _updateWidgetSensitivity(*widget);
}

void ReadOnlySwitchableContainer::on_remove(Gtk::Widget* widget) {
    // First, since what the base does may be the widget's end. The containers inside stay watched until they
    // die.
    const auto found = watchedContainers.find(dynamic_cast<Gtk::Container*>(widget));
    if (found != watchedContainers.end()) {
        found->second.disconnect();
        watchedContainers.erase(found);
    }
    Gtk::Bin::on_remove(widget);
}

bool ReadOnlySwitchableContainer::_isInteractive(Gtk::Widget& widget) {
    if (hasClass(widget, INTERACTIVE_CLASS) || hasClass(widget, COLLAPSED_CLASS))
        return true;
    if (hasClass(widget, EXEMPT_CLASS))
        return false;
    // Toggle, check and radio buttons are buttons, and a spin button is an entry.
    return dynamic_cast<Gtk::Button*>(&widget) || dynamic_cast<Gtk::Entry*>(&widget) ||
           dynamic_cast<Gtk::ComboBox*>(&widget) || dynamic_cast<Gtk::Switch*>(&widget) ||
           dynamic_cast<Gtk::TreeView*>(&widget);
}

void ReadOnlySwitchableContainer::_updateWidgetSensitivity(Gtk::Widget& widget) {
    const bool isInteractive = _isInteractive(widget);
    if (auto* const container = dynamic_cast<Gtk::Container*>(&widget)) {
        _watch(*container);
        if (!hasClass(widget, INTERACTIVE_CLASS))
            container->forall([this](Gtk::Widget& inner) { _updateWidgetSensitivity(inner); });
    }
    if (!isInteractive)
        return;
    const bool isExempt = hasClass(widget, EXEMPT_CLASS);
    // Over what the application had set, in both directions, which is meant.
    widget.set_sensitive(!readOnly || isExempt);
    if (!isExempt && hasClass(widget, COLLAPSED_CLASS)) {
        widget.set_no_show_all(readOnly);
        widget.set_visible(!readOnly);
    }
}

void ReadOnlySwitchableContainer::_watch(Gtk::Container& container) {
    sigc::connection& connection = watchedContainers[&container];
    if (connection.connected())
        return;
    connection = container.signal_add().connect(
        sigc::mem_fun(*this, &ReadOnlySwitchableContainer::_onChildContainerAdded), true);
    if (watchedContainers.size() < nextCleaning)
        return;
    for (auto i = watchedContainers.begin(); i != watchedContainers.end();)
        i = i->second.connected() ? std::next(i) : watchedContainers.erase(i);
    nextCleaning = std::max<std::size_t>(64, 2 * watchedContainers.size());
}

void ReadOnlySwitchableContainer::_onChildContainerAdded(Gtk::Widget* widget) {
    // What lies in one control is left alone here as in the walk: no later walk would give it back.
    for (const Gtk::Widget* outer = widget->get_parent(); outer && outer != this; outer = outer->get_parent())
        if (hasClass(*outer, INTERACTIVE_CLASS))
            return;
    _updateWidgetSensitivity(*widget);
}

void ReadOnlySwitchableContainer::_listenToParents(bool isListening) {
    const guint signal = g_signal_lookup("parent-set", GTK_TYPE_WIDGET);
    if (parentHook != 0)
        g_signal_remove_emission_hook(signal, parentHook);
    parentHook = isListening ? g_signal_add_emission_hook(signal, 0, &_onParentSet, this, nullptr) : 0;
}

// Boxes, grids and notebooks tell nobody of what is packed, attached or appended: only of what is added.
gboolean ReadOnlySwitchableContainer::_onParentSet(GSignalInvocationHint*, guint, const GValue* values,
                                                   void* self) {
    auto& container = *static_cast<ReadOnlySwitchableContainer*>(self);
    auto* const widget = static_cast<GtkWidget*>(g_value_get_object(values));
    if (gtk_widget_is_ancestor(widget, GTK_WIDGET(container.gobj())))
        container._onChildContainerAdded(Glib::wrap(widget));
    return TRUE; // goes on listening
}

} // namespace Zel
