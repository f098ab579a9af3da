#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <string>

namespace Zel {

/// What shows help.
class ZEL_API IHelpView : public IView {
public:
    ~IHelpView() override;

    /// Shows the help file of that name.
    virtual void show(IView* parent, const std::string& fileName) = 0;
};

/// Shows help with the desktop's viewer.
class ZEL_API HelpView : public IHelpView {
public:
    ~HelpView() override;

    /// Opens a file that lies beside the program and waits until the desktop has taken it. `parent` isn't
    /// used. A file that isn't there is not reported; throws cross::ErrBufLastErr if nothing can be started.
    void show(IView* parent, const std::string& fileName) override;
};

} // namespace Zel
