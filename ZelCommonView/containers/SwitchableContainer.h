#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/frame.h>

namespace Zel {

/// A place whose view changes, such as with a mode.
class ZEL_API ISwitchableContainer : public IView {
public:
    ~ISwitchableContainer() override;

    /// Puts the view in the place of the one before. Null, or what is no widget, leaves the place empty.
    virtual void setContent(IView* view) = 0;
};

/// A frame around a view that changes. It keeps the style class "empty" whatever it holds, which is meant.
class ZEL_API SwitchableContainer : public Gtk::Frame, public virtual ISwitchableContainer {
public:
    SwitchableContainer();
    ~SwitchableContainer() override;

    /// The view, which stays its presenter's, is shown with all its children.
    void setContent(IView* view) override;
};

} // namespace Zel
