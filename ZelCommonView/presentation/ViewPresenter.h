/// Views and presenters. A view is at once a Gtk widget and an interface derived from `IView`; a presenter
/// holds the logic, owns its view and talks to it only through that interface. Calls go down through the
/// interface, events come up through the signals of the view, and a view never knows its presenter.
///
/// Both live on the GTK thread; other threads reach it through `beginUpdateView` and `waitUpdateView`.
#pragma once

#include <ZelCommonView/common/Export.h>

#include <sigc++/trackable.h>

#include <memory>

namespace Gtk {
class Widget;
}

namespace Zel {

/// The base of every view's interface. What all views have in common is reached by casting across to the
/// widget, see `GtkWidgetHelper`.
class ZEL_API IView {
public:
    virtual ~IView();
};

/// Hands out a plain Gtk container `T` as a view.
template <typename T>
class ZEL_API IViewWrapper : public IView, public T {};

/// What a child of a panel may implement to put something into the title bar of the panel.
class ZEL_API IWidget {
public:
    virtual ~IWidget();

    /// The widget for the title bar, null for none, which is the default. It stays the child's.
    virtual Gtk::Widget* getIcons();
};

/// The base of every presenter. Slots that are bound to a presenter die with it.
class ZEL_API IPresenter : public sigc::trackable {
public:
    IPresenter() = default;
    IPresenter(const IPresenter&) = delete;
    IPresenter& operator=(const IPresenter&) = delete;
    virtual ~IPresenter();

    /// The presenter's view, which stays the presenter's. Null only where there is none to be had.
    virtual IView* getView() = 0;
};

/// A presenter that makes its view of the interface `TView` when it is first asked for it, so that one nobody
/// asks never builds a widget. A subclass chooses its view by overriding `_createDefaultView`.
template <typename TView>
class ZEL_API PresenterBase : public virtual IPresenter {
public:
    /// The view, owned by the presenter. The first call makes it with `_createDefaultView` and then lets
    /// `_onViewInited` prepare it; all later calls return it. Null if `_createDefaultView` returned null;
    /// then the next call tries again. What the two hooks throw passes through: after a throw from
    /// `_onViewInited` that hook isn't run again.
    ///
    /// All operations of a presenter take this way to the view and none touches the field.
    TView* getView() override {
        if (!view)
            view = _createDefaultView();
        if (!view)
            return nullptr;
        if (viewInited)
            return view.get();
        // Set first, since the hook itself calls getView.
        viewInited = true;
        _onViewInited();
        return view.get();
    }

protected:
    /// Makes the view that the presenter works with.
    virtual std::unique_ptr<TView> _createDefaultView() = 0;

    /// Called once, when the view is there: the place to connect to its signals. The default does nothing.
    virtual void _onViewInited() {}

public:
    ~PresenterBase() override = default;

private:
    std::unique_ptr<TView> view;
    bool viewInited = false; ///< `_onViewInited` has been entered
};

} // namespace Zel
