#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>
#include <ZelCommonView/presentation/WidgetReference.h>

#include <gtkmm/window.h>
#include <sigc++/signal.h>

#include <memory>
#include <string>

namespace Zel {

/// A window as its presenter sees it: one that is made when it is shown, so that all settings may be given
/// before.
class ZEL_API IWindowView : public IView, public virtual sigc::trackable {
public:
    ~IWindowView() override;

    /// Makes the view the content of the window; null empties it. The content stays the caller's. A view that
    /// is no widget leaves the window empty.
    virtual void setContentView(IView* view) = 0;
    /// Sets the title, UTF-8.
    virtual void setTitle(const std::string& title) = 0;
    /// Whether the window keeps the application's others from being used; false at first.
    virtual void setModal(bool modal) = 0;
    /// Sets the size, in pixels, with which the window opens the next time; 0 for the one that the content
    /// asks for, which is the default.
    virtual void setDefaultSize(int width, int height) = 0;
    /// Opens the window over that of `parent`, which may be null, and returns it as a view. A window that is
    /// open already is only returned.
    virtual IView* show(IView* parent) = 0;
    /// Closes the window as a person does, so that it may be refused; it is gone only after a return to the
    /// main loop. Nothing happens while it isn't shown.
    virtual void close() = 0;
    /// The open window as a view, null while there is none.
    virtual IView* getWindowObject() = 0;

    sigc::signal<void> signalOpened; ///< the window is shown
    sigc::signal<void> signalClosed; ///< the window is gone; `show` would make a new one
};

/// A plain window that can be handed out as a view, for instance as the parent of a dialog.
class ZEL_API WindowControl : public Gtk::Window, public IView {
public:
    using Gtk::Window::Window;
    ~WindowControl() override;
};

/// A window that exists only while it is shown. View, settings and content survive its end, so that it can be
/// shown again. The theme reaches the content by the style class "StandartContent".
class ZEL_API WindowView : public virtual IWindowView {
public:
    WindowView();
    ~WindowView() override;
    WindowView(const WindowView&) = delete;
    WindowView& operator=(const WindowView&) = delete;

    void setContentView(IView* view) override;
    /// As `setContentView`, with a plain widget.
    void setContentWidget(Gtk::Widget* widget);
    void setTitle(const std::string& title) override;
    void setModal(bool modal) override;
    void setDefaultSize(int width, int height) override;
    IView* show(IView* parent) override;
    void close() override;
    IView* getWindowObject() override;

protected:
    /// Called by each `show` with the new window, before it is seen: the place to fill it. The default does
    /// nothing.
    virtual void _onWindowCreated(Gtk::Window* createdWindow);

    /// The window over which this one was last shown; null if there was none.
    Gtk::Window* _getParentWindow() const { return parentWindow; }

private:
    static void* _onContentDied(void* view);
    void _setActiveWindowContent(Gtk::Widget* widget);
    void _onSignalShow();
    bool _onSignalDeleteEvent(GdkEventAny* event);
    void _onSignalClosed();

protected:
    std::unique_ptr<WindowControl> window; ///< null while not shown
    WidgetReference<Gtk::Widget> content;  ///< not owned

private:
    std::string title;
    bool modal = false;
    int defaultWidth = 0;
    int defaultHeight = 0;
    WidgetReference<Gtk::Window> parentWindow; ///< not owned
    sigc::connection deleteConnection;
};

} // namespace Zel
