#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/PointerNamedConnectionsDispatcher.h>
#include <ZelCommonView/presentation/ViewPresenter.h>
#include <ZelCommonView/windows/PanelCollections.h>

#include <gtkmm/box.h>

#include <string>

namespace Zel {

/// The panels of a window as applications see them.
class ZEL_API IPanelManagerView : public IView {
public:
    ~IPanelManagerView() override;

    /// Makes a panel with the title and the child and places it relative to `sibling`; null means the newest
    /// panel before it. While the root has an empty pane the panel goes there, and only `Center` looks at
    /// another panel, the newest. A sibling that stands in no pane (closed or floating) is replaced by the
    /// newest one that does. The panel stays the manager's, the child its owner's.
    virtual IPanelView* newPanel(const std::string& title, Positions position, IView& child,
                                 IPanelView* sibling) = 0;
    /// Deletes all panels, floating ones too; windows of these stay, empty.
    virtual void deleteAll() = 0;
    /// Takes a panel out of the layout and no longer listens to it. One that stood in tabs is deleted; any
    /// other lives on until `deleteAll` or the manager's end, since callers may still hold it. Null and what
    /// is no panel of this kind are ignored; a panel that was deleted before is not allowed. Throws
    /// std::bad_cast when the title bar of a panel is no widget.
    virtual void deletePanel(IPanelView* panel) = 0;
};

/// A tree of containers with two panes each, whose leaves are panels or tab books of panels. It carries out
/// what panels ask for: dock beside, dock into tabs, float in a window, close. The tree lives only in the
/// hierarchy of the widgets, and it isn't stored: an application that wants a layout builds it with
/// `newPanel`.
///
/// The theme reaches it by the style class "panelManager".
class ZEL_API PanelManagerView : public IPanelManagerView, public Gtk::Box {
public:
    PanelManagerView();
    ~PanelManagerView() override;

    IPanelView* newPanel(const std::string& title, Positions position, IView& child,
                         IPanelView* sibling) override;
    void deleteAll() override;
    void deletePanel(IPanelView* panel) override;

    /// All panels, placed or not, in the order in which they were made.
    PanelCollectionView& getPanelCollection() { return panels; }

    /// All containers; those that lost their place in the tree stay, empty, until `deleteAll`.
    PanelContainerCollectionView& getPanelContainerCollection() { return containers; }

    /// The windows of floating panels.
    WindowCollectionView& getWindowCollection() { return windows; }

private:
    PanelView* _newPanel();
    PanelContainerView* _newPanelContainer();
    WindwView* _newWindow();
    void _createMainPanelContainer();

    // Placing, see PanelLayout.cpp.
    void _setPanel(PanelView* panel, Positions position, PanelView* sibling);
    PanelContainerView* _findHole();
    PanelView* _findPlaced(PanelView* preferred, const PanelView* panel);
    bool _setPanelToContainer(PanelContainerView* container, PanelView* a, Positions position, PanelView* b);
    bool _setLeft(PanelContainerView* container, PanelView* a, PanelView* b);
    bool _setRight(PanelContainerView* container, PanelView* a, PanelView* b);
    bool _setTop(PanelContainerView* container, PanelView* a, PanelView* b);
    bool _setBottom(PanelContainerView* container, PanelView* a, PanelView* b);
    bool _setDefault(PanelContainerView* container, PanelView* a, PanelView* b);
    bool _setCenter(PanelContainerView* container, PanelView* a, PanelView* b, bool replace);
    bool _set(PanelContainerView* container, PanelView* a, Gtk::Orientation orientation, PanelView* b,
              bool first);
    bool _setInto(PanelContainerView* container, PanelView* a, Gtk::Orientation orientation, bool first);
    bool _setBeside(PanelContainerView* container, PanelView* a, Gtk::Orientation orientation, PanelView* b,
                    bool first);
    void _swap(PanelContainerView* container, Gtk::Widget* first, Gtk::Widget* second);
    bool _changePos(PanelContainerView* container, PanelView* panel, Positions position);
    void _changePosToCenter(PanelContainerView* container, PanelView* panel);
    void _addTab(PanelView* panel, Gtk::Notebook& notebook);
    void _unwrap(Gtk::Notebook& notebook, PanelContainerView& container);
    void _pack(PanelContainerView& container, int pane, Gtk::Widget& widget);

    // What panels and windows ask for.
    void _setSiblingPanel(PanelView* sibling, PanelView* panel, Positions position);
    void _leaveWindow(PanelView* panel);
    void _collapse(PanelContainerView* container);
    void _setToWindow(PanelView* panel);
    void _leaveContainer(PanelContainerView* container);
    void _deleteWindow(PanelView* panel);
    void _deletePanelFrom(PanelContainerView* container, PanelView* panel);
    static void _checkTitles(Gtk::Notebook& tabs);
    void _moveTabs(Gtk::Notebook& from, Gtk::Notebook& to);

    PanelCollectionView panels;
    PanelContainerCollectionView containers;
    WindowCollectionView windows;
    PanelContainerView* mainContainer = nullptr; ///< the root; the only child of the box
    PointerNamedConnectionsDispatcher connections;
};

} // namespace Zel
