#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>
#include <ZelCommonView/presentation/WidgetReference.h>
#include <ZelCommonView/windows/DemoBoxView.h>
#include <ZelCommonView/windows/OverlayBoxView.h>
#include <ZelCommonView/windows/Positions.h>

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/eventbox.h>
#include <gtkmm/frame.h>
#include <gtkmm/grid.h>
#include <gtkmm/label.h>
#include <gtkmm/overlay.h>
#include <gtkmm/scrolledwindow.h>

#include <string>
#include <type_traits>

namespace Zel {

/// A panel as applications see it. Views that are given or handed out stay their owner's.
class ZEL_API IPanelView : public IView {
public:
    ~IPanelView() override;

    /// Sets the text of the title, UTF-8.
    virtual void setTitle(const std::string& title) = 0;
    /// The text of the title.
    virtual std::string getTitle() = 0;
    /// Takes the title row away.
    virtual void removeTitle() = 0;
    /// Puts a view into the panel; one that is no widget is ignored. What an `IWidget` has for the title bar
    /// goes there.
    virtual void setChild(IView& view) = 0;
    /// The first child, null if there is none or if it is no view.
    virtual IView* getChild() = 0;
    /// Takes a view out of the panel; null is ignored.
    virtual void removeChild(IView* view) = 0;
    /// Takes the title out of its row and hands it out, to be the label of a tab.
    virtual IView* getTitleBar() = 0;
    /// Puts the title back into its row, wherever it stands now.
    virtual void setTitleBar() = 0;
    /// Gives the panel its buttons, to a window and close; it has none at first. Meant to be called once.
    virtual void setProperties(bool toWindow, bool close) = 0;
    /// Sets the smallest size, in pixels; 300 by 134 at first.
    virtual void setSize(int width, int height) = 0;
};

/// A framed box with a title row and one child, which the user drags onto another panel, to dock it beside it
/// or into tabs with it, or sends to a window of its own. It decides nothing about the layout: three signals
/// tell what the user did. Where it stands is read from its parent.
///
/// The theme reaches it by the style classes "panel", "headerButtons", "btnClose" and "btnToWindow".
class ZEL_API PanelView : public IPanelView, public Gtk::Frame {
public:
    /// This panel, the one that was dropped on it, and the place where.
    sigc::signal<void, PanelView*, PanelView*, Positions> signalDrop;
    /// The close button was pressed. A listener may delete the panel.
    sigc::signal<void, IPanelView*> signalDelete;
    /// The to-window button was pressed.
    sigc::signal<void, PanelView*> signalToWindow;

    /// Throws what `OverlayBoxView` throws when its icon can't be read.
    PanelView();
    /// Leaves its parent first.
    ~PanelView() override;

    void setTitle(const std::string& title) override;
    std::string getTitle() override;
    void removeTitle() override;
    void setChild(IView& view) override;
    /// Puts a plain widget into the panel.
    void setChild(Gtk::Widget& widget);

    /// For what is both, a view and a widget: as with a view.
    template <typename T>
    std::enable_if_t<std::is_base_of_v<IView, T> && std::is_base_of_v<Gtk::Widget, T>> setChild(T& view) {
        setChild(static_cast<IView&>(view));
    }

    IView* getChild() override;
    void removeChild(IView* view) override;
    IView* getTitleBar() override;
    void setTitleBar() override;
    void setProperties(bool toWindow, bool close) override;
    void setSize(int width, int height) override;

    /// Takes the title row away or puts it back above the child.
    void hideTitle(bool hide);
    /// Whether all in the title row are equally wide; false at first.
    void setTitleHomogeneous(bool homogeneous);
    /// Puts a widget into the title row; it stays the caller's.
    void addToTitle(Gtk::Widget& widget);
    /// Takes such a widget out again.
    void removeFromTitle(Gtk::Widget& widget);

    /// Takes the child's widget out of the title bar and hands it out; null if the child has none.
    Gtk::Widget* getUserButtons();
    /// Puts the child's widget, if it has one, back into the title bar, wherever it stands now.
    void setUserButtons();

private:
    void _compose();
    void _composeTitle();
    void _initDrag();
    bool _isFloating() const;
    void _hideOverlay();
    /// The place that a drop at (x, y), in pixels of the panel, means.
    Positions _getPosition(int x, int y) const;

    void _on_drag_begin(const Glib::RefPtr<Gdk::DragContext>& context);
    void _on_drag_end(const Glib::RefPtr<Gdk::DragContext>& context);
    void _on_drag_data_get(const Glib::RefPtr<Gdk::DragContext>& context, Gtk::SelectionData& selection,
                           guint info, guint time);
    bool _on_drag_motion(const Glib::RefPtr<Gdk::DragContext>& context, int x, int y, guint time);
    void _on_drag_leave(const Glib::RefPtr<Gdk::DragContext>& context, guint time);
    void _on_drop_drag_data_received(const Glib::RefPtr<Gdk::DragContext>& context, int x, int y,
                                     const Gtk::SelectionData& selection, guint info, guint time);
    bool _onDraw(const Cairo::RefPtr<Cairo::Context>& context);
    void _onBtnClose();
    void _onBtnToWindow();

    bool isDragSource = false; ///< a drag that began on this panel is under way
    Gtk::Overlay overlay;
    DemoBoxView demoBox;       ///< shows where a drop would land
    OverlayBoxView overlayBox; ///< the cross of drop targets
    Gtk::EventBox eventBox;
    Gtk::Box mainBox{Gtk::ORIENTATION_VERTICAL};
    Gtk::Box titleBox{Gtk::ORIENTATION_HORIZONTAL};
    IViewWrapper<Gtk::Grid> titleGrid; ///< what moves to a tab
    Gtk::Box headerButtons{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Box iconsBox{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Box contentBox{Gtk::ORIENTATION_VERTICAL};
    Gtk::ScrolledWindow scrolled;
    Gtk::Label titleLabel;
    Gtk::Button btnClose;
    Gtk::Button btnToWindow;
    WidgetReference<Gtk::Widget> icons; ///< what the child has for the title bar; not owned
};

} // namespace Zel
