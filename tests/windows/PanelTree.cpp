#include "PanelTree.h"

#include <gtkmm/notebook.h>

namespace test {

using namespace Zel;

namespace {

std::string textOf(Gtk::Widget* widget) {
    if (!widget)
        return "-";
    if (auto* const panel = dynamic_cast<PanelView*>(widget))
        return panel->getTitle();
    if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(widget)) {
        std::string text = "[";
        for (int i = 0; i < notebook->get_n_pages(); ++i)
            text += (i ? " " : "") + textOf(notebook->get_nth_page(i));
        return text + "]";
    }
    if (auto* const container = dynamic_cast<PanelContainerView*>(widget))
        return std::string(container->get_orientation() == Gtk::ORIENTATION_HORIZONTAL ? "H(" : "V(") +
               textOf(container->get_child1()) + ", " + textOf(container->get_child2()) + ")";
    return "?";
}

class Inspection {
public:
    explicit Inspection(PanelManagerView& givenManager) : manager(givenManager) {}

    std::vector<std::string> run() {
        const std::vector<Gtk::Widget*> children = manager.get_children();
        require(children.size() == 1 && children.front() == manager.mainContainer,
                "the root is not the only child");
        walk(*manager.mainContainer);
        for (const auto& container : manager.containers)
            checkContainer(*container);
        for (const auto& panel : manager.panels)
            checkPanel(*panel);
        for (const auto& window : manager.windows)
            require(!window->get_child() || dynamic_cast<PanelView*>(window->get_child()),
                    "a window holds something else than a panel");
        return faults;
    }

private:
    void require(bool holds, const std::string& fault) {
        if (!holds)
            faults.push_back(fault + " in " + textOf(manager.mainContainer));
    }

    void walk(PanelContainerView& container) {
        require(reached.insert(&container).second, "a container stands twice");
        for (Gtk::Widget* const child : {container.get_child1(), container.get_child2()}) {
            if (auto* const inner = dynamic_cast<PanelContainerView*>(child))
                walk(*inner);
            else
                require(!child || dynamic_cast<PanelView*>(child) || dynamic_cast<Gtk::Notebook*>(child),
                        "a stranger stands in a pane");
        }
    }

    void checkContainer(PanelContainerView& container) {
        if (!reached.count(&container))
            require(container.isAllChildsEmpty(), "a container outside the tree is not empty");
        checkNotebook(container.getNotebook1(), container, container.get_child1());
        checkNotebook(container.getNotebook2(), container, container.get_child2());
    }

    void checkNotebook(Gtk::Notebook& notebook, PanelContainerView& owner, Gtk::Widget* child) {
        if (!notebook.get_parent()) {
            require(notebook.get_n_pages() == 0, "a tab book outside the tree has pages");
            return;
        }
        require(notebook.get_parent() == &owner && child == &notebook, "a tab book stands in a wrong pane");
        require(notebook.get_n_pages() >= 2, "a tab book has too few pages");
        for (int i = 0; i < notebook.get_n_pages(); ++i) {
            auto* const panel = dynamic_cast<PanelView*>(notebook.get_nth_page(i));
            require(panel != nullptr, "a page is no panel");
            if (panel)
                require(notebook.get_tab_label(*panel) == &panel->titleGrid, "a tab has another label");
        }
    }

    void checkPanel(PanelView& panel) {
        Gtk::Container* const parent = panel.get_parent();
        const std::string title = panel.getTitle();
        const bool isTitleRowShown = panel.titleBox.get_parent() == &panel.mainBox;
        if (auto* const container = dynamic_cast<PanelContainerView*>(parent)) {
            require(reached.count(container) != 0, title + " stands outside the tree");
            require(isTitleRowShown && panel.titleGrid.get_parent() == &panel.titleBox,
                    title + " is docked without its title");
            const std::vector<Gtk::Widget*> rows = panel.mainBox.get_children();
            require(rows.size() == 2 && rows.front() == &panel.titleBox, title + " has its title below");
        } else if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(parent)) {
            require(!isTitleRowShown && panel.titleGrid.get_parent() == notebook,
                    title + " has its title not in the tab");
        } else if (parent) {
            require(dynamic_cast<WindwView*>(parent) != nullptr, title + " has a strange parent");
            require(!isTitleRowShown, title + " floats with its title row");
        }
    }

    PanelManagerView& manager;
    std::set<PanelContainerView*> reached;
    std::vector<std::string> faults;
};

} // namespace

std::string layoutOf(PanelManagerView& manager) {
    return textOf(manager.mainContainer);
}

std::vector<std::string> findFaults(PanelManagerView& manager) {
    return Inspection(manager).run();
}

std::set<PanelView*> visiblePanels(PanelManagerView& manager) {
    std::set<PanelView*> found;
    for (const auto& panel : manager.panels)
        if (panel->get_parent())
            found.insert(panel.get());
    return found;
}

} // namespace test
