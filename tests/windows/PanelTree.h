/// The tree of panels as a test sees it.
#pragma once

#include <ZelCommonView/windows/PanelManagerView.h>

#include <set>
#include <string>
#include <vector>

namespace test {

/// The layout as text: "H(A, V(B, [C D]))" for A left of B above a tab book with C and D; "-" is an empty
/// pane.
std::string layoutOf(Zel::PanelManagerView& manager);

/// What is wrong with the tree, one line each; empty if all is well. It has to hold between any two
/// operations:
/// - the root is the only child of the manager, and a child of no container;
/// - a container in the tree is one of the manager's, one outside it is empty;
/// - what stands in a pane is a container, a panel or a tab book; a tab book stands only in the pane of the
///   container that owns it, has at least two pages, and each page is a panel with its title as the label;
/// - a tab book outside the tree has no pages;
/// - each panel stands in one place: a pane, a tab, a window of the manager or nowhere;
/// - the title of a panel is in its row when it is docked, in the tab when it is tabbed, and its row is
/// hidden
///   when it is tabbed or floats;
/// - each window of the manager holds one panel or, after all were deleted, none.
std::vector<std::string> findFaults(Zel::PanelManagerView& manager);

/// The panels that a person can see: docked, tabbed or floating.
std::set<Zel::PanelView*> visiblePanels(Zel::PanelManagerView& manager);

} // namespace test
