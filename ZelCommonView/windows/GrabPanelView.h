#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/eventbox.h>

namespace Zel {

class IView;

/// A surface that takes the keyboard focus away from the entries on it when it is clicked beside them.
class ZEL_API GrabPanelView : public Gtk::EventBox {
public:
    GrabPanelView();
    ~GrabPanelView() override;

    /// Puts a view on the surface and shows all. The view stays the caller's; null and one that is no widget
    /// are ignored.
    void addControl(IView* view);

private:
    bool _onButtonPress(GdkEventButton* event);
};

} // namespace Zel
