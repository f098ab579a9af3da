#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/Nullable.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/bin.h>
#include <gtkmm/checkbutton.h>

namespace Zel {

/// What shows yes, no or not known.
class ZEL_API IExtendedCheckView : public IView {
public:
    ~IExtendedCheckView() override;

    /// Fires with the new state whenever the check goes on or off, by a person or by `setIsEvaluated`. A
    /// listener may delete the view.
    sigc::signal<void, bool>& signalToggled();

    /// Shows the value; the empty one as the inconsistent mark over a check that is off.
    virtual void setIsEvaluated(Nullable<bool> value) = 0;

private:
    sigc::signal<void, bool> toggled;
};

/// A check box in the middle of its place that also shows that nothing is known. A click doesn't take that
/// mark away, which is meant: only `setIsEvaluated` does. The theme reaches it by "ExtendedCheckView".
class ZEL_API ExtendedCheckView : public Gtk::Bin, public IExtendedCheckView {
public:
    ExtendedCheckView();
    ~ExtendedCheckView() override;

    void setIsEvaluated(Nullable<bool> value) override;

private:
    void _onSignalToggled();

    Gtk::CheckButton checkButton;
};

} // namespace Zel
