#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/scrolledwindow.h>

namespace Zel {

/// An area that scrolls a view.
class ZEL_API IScrollAreaView : public IView {
public:
    ~IScrollAreaView() override;

    /// Puts in the view, which stays its presenter's; null and what is no widget are ignored. To be called
    /// once: what is there already isn't taken out.
    virtual void setContent(IView* view) = 0;
};

/// Scrolls up and down as needed, never sideways.
class ZEL_API ScrollAreaView : public Gtk::ScrolledWindow, public virtual IScrollAreaView {
public:
    ScrollAreaView();
    ~ScrollAreaView() override;

    void setContent(IView* view) override;
};

} // namespace Zel
