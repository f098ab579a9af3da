#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/bin.h>

namespace Zel {

/// Holds one view, which belongs to its presenter.
class ZEL_API IContainerView : public IView {
public:
    ~IContainerView() override;

    /// Takes in a view; null and what is no widget are ignored.
    virtual void addChild(IView* view) = 0;

    /// Takes the view out; without one it does nothing.
    virtual void removeChild() = 0;
};

/// Holds one view after the other. The theme reaches it by "ContainerView".
class ZEL_API ContainerView : public Gtk::Bin, public virtual IContainerView {
public:
    ContainerView();
    ~ContainerView() override;

    /// Puts the view, shown with all its children, in the place of the one before, which goes also when
    /// there is no new one.
    void addChild(IView* view) override;
    void removeChild() override;
};

} // namespace Zel
