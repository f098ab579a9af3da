#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/containers/ContainerView.h>

#include <gtkmm/bin.h>

#include <cstddef>
#include <map>

namespace Zel {

/// A form that can be locked.
class ZEL_API IReadOnlySwitchableContainerView : public IContainerView {
public:
    ~IReadOnlySwitchableContainerView() override;

    /// Locks the form or lifts the lock. The value that stands already does nothing.
    virtual void setIsReadOnly(bool value) = 0;
    /// Whether the form is locked; false at first.
    virtual bool getIsReadOnly() const = 0;
};

/// Locks the controls of any tree of widgets on one call, those that are added later at any depth included,
/// while labels and layout stay as they are. Controls are buttons of all kinds, entries, combo boxes,
/// switches and lists. The style classes change that:
/// - "readonly-exempt": stays usable;
/// - "readonly-interactive": is one control, and its insides are left alone;
/// - "readonly-collapsed": is a control that is not greyed out but goes away while the form is locked.
///
/// Lifting the lock makes every control sensitive, also one that the application had made insensitive.
class ZEL_API ReadOnlySwitchableContainer : public Gtk::Bin, public virtual IReadOnlySwitchableContainerView {
public:
    static const Glib::ustring EXEMPT_CLASS;      ///< "readonly-exempt"
    static const Glib::ustring INTERACTIVE_CLASS; ///< "readonly-interactive"
    static const Glib::ustring COLLAPSED_CLASS;   ///< "readonly-collapsed"

    ReadOnlySwitchableContainer();
    ~ReadOnlySwitchableContainer() override;

    void addChild(IView* view) override;
    void removeChild() override;

    /// Without a child the value is kept for the one that comes.
    void setIsReadOnly(bool value) override;
    bool getIsReadOnly() const override;

protected:
    void on_add(Gtk::Widget* widget) override;
    void on_remove(Gtk::Widget* widget) override;

private:
    static bool _isInteractive(Gtk::Widget& widget);
    void _updateWidgetSensitivity(Gtk::Widget& widget);
    void _watch(Gtk::Container& container);
    void _onChildContainerAdded(Gtk::Widget* widget);
    void _listenToParents(bool isListening);
    static gboolean _onParentSet(GSignalInvocationHint* hint, guint count, const GValue* values, void* self);

    bool readOnly = false;
    /// Each container of the tree that was visited, with the connection of its `signal_add`. The connection
    /// of one that died is not connected any more, also when another container stands at its address.
    std::map<Gtk::Container*, sigc::connection> watchedContainers;
    gulong parentHook = 0;         ///< hears of every widget that gets a parent; 0 while not locked
    std::size_t nextCleaning = 64; ///< so many entries, and those of dead containers are dropped
};

} // namespace Zel
