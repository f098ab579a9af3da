#include <ZelCommonView/windows/PanelContainerView.h>

namespace Zel {

PanelContainerView::PanelContainerView() : Gtk::Paned(Gtk::ORIENTATION_HORIZONTAL) {
    set_hexpand(true);
    set_vexpand(true);
    set_wide_handle(true);
    for (auto& notebook : notebooks) {
        notebook = std::make_unique<Gtk::Notebook>();
        notebook->get_style_context()->add_class("panelTabs");
    }
}

PanelContainerView::~PanelContainerView() = default;

bool PanelContainerView::isAllChildsEmpty() const {
    return !get_child1() && !get_child2();
}

bool PanelContainerView::hasEmptyChild() const {
    return !get_child1() || !get_child2();
}

bool PanelContainerView::takeNotebook(int pane, PanelContainerView& other, const Gtk::Notebook& notebook) {
    for (auto& candidate : other.notebooks)
        if (candidate.get() == &notebook) {
            std::swap(candidate, notebooks[static_cast<std::size_t>(pane)]);
            return true;
        }
    return false;
}

} // namespace Zel
