#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/notebook.h>
#include <gtkmm/paned.h>

#include <array>
#include <memory>

namespace Zel {

/// Two panes side by side or one above the other, a knot in the tree of panels. For each pane it has a tab
/// book, which isn't in the pane until it is needed. A tab book always stands in the pane of the container
/// that owns it, or nowhere. The theme reaches the tab books by the style class "panelTabs".
class ZEL_API PanelContainerView : public Gtk::Paned {
public:
    PanelContainerView();
    ~PanelContainerView() override;

    /// The tab book of the first pane.
    Gtk::Notebook& getNotebook1() { return *notebooks[0]; }

    /// The tab book of the second pane.
    Gtk::Notebook& getNotebook2() { return *notebooks[1]; }

    /// Whether neither pane has a child.
    bool isAllChildsEmpty() const;
    /// Whether at least one pane has no child.
    bool hasEmptyChild() const;

    /// Makes the tab book of `other` that of a pane, 0 or 1, of this one; `other` gets the one that was here.
    /// False if `other` doesn't own it. Neither may stand in a pane.
    bool takeNotebook(int pane, PanelContainerView& other, const Gtk::Notebook& notebook);

private:
    std::array<std::unique_ptr<Gtk::Notebook>, 2> notebooks;
};

} // namespace Zel
