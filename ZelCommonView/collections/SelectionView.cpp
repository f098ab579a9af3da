#include <ZelCommonView/collections/SelectionView.h>

#include <ZelCommonView/collections/SelectionManagerView.h>
#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/common/LifeWatch.h>

namespace Zel {

ISelectionView::~ISelectionView() = default;

sigc::signal<void>& ISelectionView::signalSelectionChanged() {
    return selectionChanged;
}

SelectionView::SelectionView(bool contentIsInteractive) {
    get_style_context()->add_class("SelectionView");
    contentBox.signal_button_press_event().connect(
        sigc::mem_fun(*this, &SelectionView::_onEventLayerButtonPressed), true);
    if (!contentIsInteractive) {
        eventLayer = std::make_unique<Gtk::EventBox>();
        eventLayer->signal_button_press_event().connect(
            sigc::mem_fun(*this, &SelectionView::_onEventLayerButtonPressed), true);
        add_overlay(*eventLayer);
    }
    frame.get_style_context()->add_class("SelectionFrame");
    frame.add(contentBox);
    frame.set_hexpand(true);
    add(frame);
}

SelectionView::~SelectionView() {
    isDying = true;
    if (const auto found = manager.lock())
        found->_onItemDies(*this);
}

void SelectionView::setContext(IPresenter* presenter) {
    context = presenter;
}

IPresenter* SelectionView::getContext() {
    return context;
}

void SelectionView::setContent(IView* content) {
    auto* const widget = dynamic_cast<Gtk::Widget*>(content);
    if (!widget)
        return;
    widget->get_style_context()->add_class("SelectionContent");
    contentBox.add(*widget);
}

void SelectionView::setIsSelected(bool value) {
    if (value == selected || isDying)
        return;
    SelectionManagerView* const found = _findManager();
    if (!found)
        return;
    if (value) {
        const LifeWatch life(*this);
        const LifeWatch managerLife(*found);
        found->setSelectedView(this);
        // A listener may have deleted one of the two or selected another item.
        if (!life || !managerLife || found->getSelectedView() != this || selected)
            return;
        selected = true;
        get_style_context()->add_class("Selected");
    } else {
        if (found->getSelectedView() == this)
            return;
        _giveUp();
    }
    emitKept(signalSelectionChanged());
}

bool SelectionView::getIsSelected() {
    return selected;
}

void SelectionView::on_map() {
    const LifeWatch life(*this);
    if (SelectionManagerView* const found = _findManager())
        found->updateState();
    if (life)
        Gtk::Overlay::on_map();
}

void SelectionView::on_unmap() {
    const LifeWatch life(*this);
    const auto found = manager.lock();
    if (getIsSelected() && found)
        found->setSelectedView(nullptr);
    if (life)
        Gtk::Overlay::on_unmap();
}

bool SelectionView::_onEventLayerButtonPressed(GdkEventButton* event) {
    if (event->button == GDK_BUTTON_PRIMARY)
        static_cast<ISelectionView*>(this)->setIsSelected(true);
    return false;
}

SelectionManagerView* SelectionView::_findManager() {
    for (Gtk::Widget* widget = this; manager.expired() && widget; widget = widget->get_parent())
        if (auto* const found = dynamic_cast<SelectionManagerView*>(widget))
            manager = found->self;
    return manager.lock().get();
}

void SelectionView::_giveUp() {
    selected = false;
    get_style_context()->remove_class("Selected");
}

} // namespace Zel
