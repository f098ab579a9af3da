#include <ZelCommonView/windows/PanelManagerView.h>

#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <utility>

namespace Zel {

namespace {

/// The container in which the widget, or the tab book around it, stands; null if there is none.
PanelContainerView* containerOf(Gtk::Widget& widget) {
    Gtk::Container* parent = widget.get_parent();
    if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(parent))
        parent = notebook->get_parent();
    return dynamic_cast<PanelContainerView*>(parent);
}

} // namespace

IPanelManagerView::~IPanelManagerView() = default;

PanelManagerView::PanelManagerView() {
    get_style_context()->add_class("panelManager");
    _createMainPanelContainer();
}

PanelManagerView::~PanelManagerView() = default;

IPanelView* PanelManagerView::newPanel(const std::string& title, Positions position, IView& child,
                                       IPanelView* sibling) {
    PanelView* const panel = _newPanel();
    connections.connect(panel, "drop",
                        panel->signalDrop.connect(sigc::mem_fun(*this, &PanelManagerView::_setSiblingPanel)));
    connections.connect(panel, "delete",
                        panel->signalDelete.connect(sigc::mem_fun(*this, &PanelManagerView::deletePanel)));
    connections.connect(panel, "toWindow",
                        panel->signalToWindow.connect(sigc::mem_fun(*this, &PanelManagerView::_setToWindow)));
    panel->setTitle(title);
    panel->setChild(child);
    _setPanel(panel, position, dynamic_cast<PanelView*>(sibling));
    return panel;
}

void PanelManagerView::deleteAll() {
    panels.clear();
    containers.clear();
    _createMainPanelContainer();
}

void PanelManagerView::deletePanel(IPanelView* givenPanel) {
    auto* const panel = dynamic_cast<PanelView*>(givenPanel);
    if (!panel)
        return;
    for (const char* const name : {"drop", "delete", "toWindow"})
        connections.disconnect(panel, name);
    PanelContainerView* const container = containerOf(*panel);
    if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(panel->get_parent())) {
        notebook->remove_page(*panel);
        panels.remove(panel);
        if (container)
            _unwrap(*notebook, *container);
    } else if (container) {
        // Only the panel of a tab is deleted here; any other stays in `panels`, since callers may hold it.
        _deletePanelFrom(container, panel);
    }
    show_all();
}

void PanelManagerView::_deletePanelFrom(PanelContainerView* container, PanelView* panel) {
    Gtk::Widget* const rest =
        container->get_child1() == panel ? container->get_child2() : container->get_child1();
    auto* const parent = dynamic_cast<PanelContainerView*>(container->get_parent());
    auto* const tabs = dynamic_cast<Gtk::Notebook*>(rest);
    if (parent && tabs)
        _checkTitles(*tabs);
    container->remove(*panel);
    if (!parent)
        return;
    if (rest)
        container->remove(*rest);
    const int pane = parent->get_child1() == container ? 0 : 1;
    parent->remove(*container);
    if (tabs) {
        // They would die with their container.
        Gtk::Notebook& place = pane == 0 ? parent->getNotebook1() : parent->getNotebook2();
        _pack(*parent, pane, place);
        _moveTabs(*tabs, place);
    } else if (rest) {
        _pack(*parent, pane, *rest);
    }
    containers.remove(container);
}

void PanelManagerView::_checkTitles(Gtk::Notebook& tabs) {
    // Before anything is moved: the throw leaves the layout as it was.
    for (int i = 0; i < tabs.get_n_pages(); ++i)
        (void)dynamic_cast<Gtk::Widget&>(*dynamic_cast<PanelView&>(*tabs.get_nth_page(i)).getTitleBar());
}

void PanelManagerView::_moveTabs(Gtk::Notebook& from, Gtk::Notebook& to) {
    while (from.get_n_pages() > 0) {
        auto& panel = dynamic_cast<PanelView&>(*from.get_nth_page(0));
        from.remove_page(panel);
        _addTab(&panel, to);
    }
}

void PanelManagerView::_setSiblingPanel(PanelView* sibling, PanelView* panel, Positions position) {
    PanelContainerView* const siblingContainer = sibling ? containerOf(*sibling) : nullptr;
    // Beside itself, beside one without a place or at no known place the panel would be lost: it stays.
    if (sibling == panel || !siblingContainer || position < Positions::Left || position > Positions::Default)
        return;
    _leaveWindow(panel);
    PanelContainerView* const container = containerOf(*panel);
    auto* const notebook = dynamic_cast<Gtk::Notebook*>(panel->get_parent());
    if (notebook) {
        notebook->remove_page(*panel);
        panel->setTitleBar();
        panel->hideTitle(false);
        if (container)
            _unwrap(*notebook, *container);
    } else if (container == siblingContainer && sibling->get_parent() == siblingContainer) {
        _changePos(container, panel, position);
        return;
    } else if (container) {
        container->remove(*panel);
    }
    _setPanelToContainer(siblingContainer, sibling, position, panel);
    if (container)
        _collapse(container);
}

void PanelManagerView::_leaveWindow(PanelView* panel) {
    auto* const window = dynamic_cast<WindwView*>(panel->get_parent());
    if (!window)
        return;
    window->remove();
    panel->setTitleBar();
    panel->setUserButtons();
    panel->hideTitle(false);
    connections.disconnect(window, "close");
    windows.remove(window);
}

void PanelManagerView::_collapse(PanelContainerView* container) {
    auto* const parent = dynamic_cast<PanelContainerView*>(container->get_parent());
    if (!parent)
        return;
    if (container->isAllChildsEmpty()) {
        parent->remove(*container);
        containers.remove(container);
    }
    auto* const grandparent = dynamic_cast<PanelContainerView*>(parent->get_parent());
    if (!grandparent || !parent->hasEmptyChild())
        return;
    Gtk::Widget* const rest = parent->get_child1() ? parent->get_child1() : parent->get_child2();
    if (rest)
        parent->remove(*rest);
    const int pane = grandparent->get_child1() == parent ? 0 : 1;
    grandparent->remove(*parent);
    if (rest)
        _pack(*grandparent, pane, *rest);
    // The parent stays in `containers`, empty, until all are deleted: that is meant.
}

void PanelManagerView::_setToWindow(PanelView* panel) {
    Gtk::Container* const parent = panel->get_parent();
    if (!parent || dynamic_cast<WindwView*>(parent))
        return;
    PanelContainerView* const container = containerOf(*panel);
    WindwView* const window = _newWindow();
    connections.connect(window, "close",
                        window->signalClose.connect(sigc::mem_fun(*this, &PanelManagerView::_deleteWindow)));
    if (auto* const toplevel = dynamic_cast<Gtk::Window*>(get_toplevel()))
        window->set_transient_for(*toplevel);
    window->set_position(Gtk::WIN_POS_CENTER_ON_PARENT);
    parent->remove(*panel);
    window->setView(panel);
    window->set_title(panel->getTitle());
    // What the child has for the title bar goes into that of the window.
    panel->setUserButtons();
    if (Gtk::Widget* const userButtons = panel->getUserButtons())
        window->setUserButtons(userButtons);
    panel->hideTitle(true);
    window->show_all();
    if (!container)
        return;
    if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(parent))
        _unwrap(*notebook, *container);
    else
        _leaveContainer(container);
}

void PanelManagerView::_leaveContainer(PanelContainerView* container) {
    auto* const parent = dynamic_cast<PanelContainerView*>(container->get_parent());
    if (!parent)
        return;
    Gtk::Widget* const rest = container->get_child1() ? container->get_child1() : container->get_child2();
    if (rest)
        container->remove(*rest);
    const int pane = parent->get_child1() == container ? 0 : 1;
    parent->remove(*container);
    if (rest)
        _pack(*parent, pane, *rest);
    // The container stays in `containers`, empty, until all are deleted: that is meant.
}

void PanelManagerView::_deleteWindow(PanelView* panel) {
    auto* const window = dynamic_cast<WindwView*>(panel->get_parent());
    if (!window)
        return;
    deletePanel(panel);
    connections.disconnect(window, "close");
    windows.remove(window);
}

PanelView* PanelManagerView::_newPanel() {
    return panels.create();
}

PanelContainerView* PanelManagerView::_newPanelContainer() {
    return containers.create();
}

WindwView* PanelManagerView::_newWindow() {
    return windows.create();
}

void PanelManagerView::_createMainPanelContainer() {
    mainContainer = _newPanelContainer();
    add(*mainContainer);
    set_hexpand(true);
    set_vexpand(true);
    show_all();
}

} // namespace Zel
