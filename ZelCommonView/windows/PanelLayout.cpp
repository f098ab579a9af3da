// Where panels stand: the tree of containers.
#include <ZelCommonView/windows/PanelManagerView.h>

#include <ZelCommonView/presentation/GtkWidgetHelper.h>

namespace Zel {

void PanelManagerView::_setPanel(PanelView* panel, Positions position, PanelView* sibling) {
    const bool isRootFull = !mainContainer->hasEmptyChild();
    PanelView* const neighbour = _findPlaced(isRootFull ? sibling : nullptr, panel);
    if (neighbour && (isRootFull || position == Positions::Center))
        _setSiblingPanel(neighbour, panel, position);
    else
        _setPanelToContainer(_findHole(), panel, position == Positions::Center ? Positions::Left : position,
                             nullptr);
}

PanelContainerView* PanelManagerView::_findHole() {
    PanelContainerView* container = mainContainer;
    // Without a panel in the tree there are only containers, the innermost of them empty.
    while (!container->hasEmptyChild())
        container = dynamic_cast<PanelContainerView*>(container->get_child1());
    return container;
}

PanelView* PanelManagerView::_findPlaced(PanelView* preferred, const PanelView* panel) {
    const auto isPlaced = [panel](const PanelView* candidate) {
        return candidate != panel && (dynamic_cast<const PanelContainerView*>(candidate->get_parent()) ||
                                      dynamic_cast<const Gtk::Notebook*>(candidate->get_parent()));
    };
    if (preferred && isPlaced(preferred))
        return preferred;
    // The newest that has a place: beside one that is closed or floats the new panel would be lost.
    for (auto candidate = panels.rbegin(); candidate != panels.rend(); ++candidate)
        if (isPlaced(candidate->get()))
            return candidate->get();
    return nullptr;
}

bool PanelManagerView::_setPanelToContainer(PanelContainerView* container, PanelView* a, Positions position,
                                            PanelView* b) {
    switch (position) {
    case Positions::Left:
        return _setLeft(container, a, b);
    case Positions::Right:
        return _setRight(container, a, b);
    case Positions::Top:
        return _setTop(container, a, b);
    case Positions::Bottom:
        return _setBottom(container, a, b);
    case Positions::Center:
        return _setCenter(container, a, b, false);
    case Positions::Default:
        return _setDefault(container, a, b);
    }
    return false;
}

bool PanelManagerView::_setLeft(PanelContainerView* container, PanelView* a, PanelView* b) {
    return _set(container, a, Gtk::ORIENTATION_HORIZONTAL, b, true);
}

bool PanelManagerView::_setRight(PanelContainerView* container, PanelView* a, PanelView* b) {
    return _set(container, a, Gtk::ORIENTATION_HORIZONTAL, b, false);
}

bool PanelManagerView::_setTop(PanelContainerView* container, PanelView* a, PanelView* b) {
    return _set(container, a, Gtk::ORIENTATION_VERTICAL, b, true);
}

bool PanelManagerView::_setBottom(PanelContainerView* container, PanelView* a, PanelView* b) {
    return _set(container, a, Gtk::ORIENTATION_VERTICAL, b, false);
}

bool PanelManagerView::_setDefault(PanelContainerView* container, PanelView* a, PanelView* b) {
    return _setLeft(container, a, b);
}

bool PanelManagerView::_set(PanelContainerView* container, PanelView* a, Gtk::Orientation orientation,
                            PanelView* b, bool first) {
    return b ? _setBeside(container, a, orientation, b, first) : _setInto(container, a, orientation, first);
}

bool PanelManagerView::_setInto(PanelContainerView* container, PanelView* a, Gtk::Orientation orientation,
                                bool first) {
    Gtk::Widget* const child1 = container->get_child1();
    Gtk::Widget* const child2 = container->get_child2();
    if (container->isAllChildsEmpty()) {
        container->set_orientation(orientation);
        _pack(*container, first ? 0 : 1, *a);
        // Not shown here, and that is meant.
        return true;
    }
    if (container->hasEmptyChild()) {
        container->set_orientation(orientation);
        // Whoever stands in the pane gives way to the other one.
        if (Gtk::Widget* const occupant = first ? child1 : child2) {
            container->remove(*occupant);
            _pack(*container, first ? 1 : 0, *occupant);
        }
        _pack(*container, first ? 0 : 1, *a);
    } else {
        PanelContainerView& inner = *_newPanelContainer();
        inner.set_orientation(orientation);
        container->remove(*child1);
        container->remove(*child2);
        _pack(inner, 0, *child1);
        _pack(inner, 1, *child2);
        _pack(*container, first ? 0 : 1, *a);
        _pack(*container, first ? 1 : 0, inner);
    }
    show_all();
    return true;
}

bool PanelManagerView::_setBeside(PanelContainerView* container, PanelView* a, Gtk::Orientation orientation,
                                  PanelView* b, bool first) {
    PanelContainerView& inner = *_newPanelContainer();
    inner.set_orientation(orientation);
    Gtk::Widget* const notebook = dynamic_cast<Gtk::Notebook*>(a->get_parent());
    Gtk::Widget* const occupant = notebook ? notebook : a;
    const bool isFirstPane = container->get_child1() == occupant;
    if (isFirstPane || container->get_child2() == occupant) {
        container->remove(*occupant);
        // In the second pane only, and that is meant.
        if (!isFirstPane && !first)
            b->unparent();
        _pack(inner, first ? 0 : 1, *b);
        _pack(inner, first ? 1 : 0, *occupant);
        _pack(*container, isFirstPane ? 0 : 1, inner);
    }
    show_all();
    return true;
}

bool PanelManagerView::_setCenter(PanelContainerView* container, PanelView* a, PanelView* b, bool replace) {
    if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(a->get_parent())) {
        if (!replace)
            _addTab(b, *notebook);
        show_all();
        return !replace;
    }
    const bool isFirstPane = container->get_child1() == a;
    if (!isFirstPane && container->get_child2() != a)
        return false;
    Gtk::Widget* const other = isFirstPane ? container->get_child2() : container->get_child1();
    container->remove(*a);
    if (replace && other)
        container->remove(*other);
    Gtk::Notebook& notebook = isFirstPane ? container->getNotebook1() : container->getNotebook2();
    _pack(*container, isFirstPane ? 0 : 1, notebook);
    _addTab(a, notebook);
    _addTab(b, notebook);
    show_all();
    return true;
}

void PanelManagerView::_swap(PanelContainerView* container, Gtk::Widget* first, Gtk::Widget* second) {
    if (!first || !second || dynamic_cast<Gtk::Notebook*>(first->get_parent()) ||
        dynamic_cast<Gtk::Notebook*>(second->get_parent()))
        return;
    container->remove(*first);
    container->remove(*second);
    _pack(*container, 0, *second);
    _pack(*container, 1, *first);
}

bool PanelManagerView::_changePos(PanelContainerView* container, PanelView* panel, Positions position) {
    Gtk::Widget* const child1 = container->get_child1();
    Gtk::Widget* const child2 = container->get_child2();
    switch (position) {
    case Positions::Left:
    case Positions::Default:
    case Positions::Top:
        container->set_orientation(position == Positions::Top ? Gtk::ORIENTATION_VERTICAL
                                                              : Gtk::ORIENTATION_HORIZONTAL);
        if (panel == child2)
            _swap(container, child1, panel);
        return true;
    case Positions::Right:
    case Positions::Bottom:
        container->set_orientation(position == Positions::Bottom ? Gtk::ORIENTATION_VERTICAL
                                                                 : Gtk::ORIENTATION_HORIZONTAL);
        if (panel == child1)
            _swap(container, panel, child2);
        return true;
    case Positions::Center:
        _changePosToCenter(container, panel);
        return true;
    }
    return false;
}

void PanelManagerView::_changePosToCenter(PanelContainerView* container, PanelView* panel) {
    // Both are panels here: the one that was dropped and the one that it was dropped on.
    auto* const child1 = dynamic_cast<PanelView*>(container->get_child1());
    auto* const child2 = dynamic_cast<PanelView*>(container->get_child2());
    if (child1 && child2 && (panel == child1 || panel == child2))
        _setCenter(container, child1, child2, true);
}

void PanelManagerView::_addTab(PanelView* panel, Gtk::Notebook& notebook) {
    notebook.append_page(*panel);
    if (Gtk::Widget* const titleBar = GtkWidgetHelper::getWidget(panel->getTitleBar())) {
        notebook.set_tab_label(*panel, *titleBar);
        titleBar->show_all();
    }
    panel->hideTitle(true);
    gtk_container_child_set(static_cast<Gtk::Container&>(notebook).gobj(), panel->Gtk::Widget::gobj(),
                            "tab-expand", TRUE, nullptr);
    notebook.set_tab_reorderable(*panel, true);
}

void PanelManagerView::_unwrap(Gtk::Notebook& notebook, PanelContainerView& container) {
    auto* const last = dynamic_cast<PanelView*>(notebook.get_nth_page(0));
    if (notebook.get_n_pages() != 1 || !last)
        return;
    notebook.remove_page(*last);
    last->setTitleBar();
    last->hideTitle(false);
    const int pane = container.get_child1() == &notebook ? 0 : 1;
    container.remove(notebook);
    _pack(container, pane, *last);
}

void PanelManagerView::_pack(PanelContainerView& container, int pane, Gtk::Widget& widget) {
    // A tab book belongs to the container in which it stands. Otherwise it would die with one in which it
    // doesn't, and that one would have none for its own pane.
    if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(&widget))
        for (const auto& owner : containers)
            if (container.takeNotebook(pane, *owner, *notebook))
                break;
    if (pane == 0)
        container.pack1(widget, false, false);
    else
        container.pack2(widget, false, false);
}

} // namespace Zel
