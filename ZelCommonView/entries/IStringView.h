#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <sigc++/signal.h>

#include <string>

namespace ZelTree {

/// What shows a text that can be edited.
class ZEL_API IStringView : public Zel::IView {
public:
    ~IStringView() override;

    /// For views that report through the interface: whether the text is valid, and the text. `Zel::TimeEntry`
    /// doesn't emit it, which is meant; it has a signal of its own.
    sigc::signal<void, bool, std::string const&> signalTextChanged;

    /// Shows the text, or what the view makes of it.
    virtual void setData(std::string text) = 0;
    /// The present text.
    virtual std::string getData() = 0;

    /// The menu of the right button, which stays the caller's; null for none.
    virtual void setContextMenu(Zel::IView* menu) = 0;
};

} // namespace ZelTree
